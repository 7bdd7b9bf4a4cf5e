#include "simulator/obex_packet.h"

#include <numeric>

namespace simulator::obex
{

namespace
{

// Takes bytes from the front, as long as there are enough.
class Front
{
public:
    explicit Front(const Bytes& packet) : bytes(packet) {}

    bool Empty() const { return position == bytes.size(); }
    std::optional<Bytes> Take(size_t count)
    {
        if (count > bytes.size() - position)
            return std::nullopt;
        const auto start = bytes.begin() + static_cast<ptrdiff_t>(position);
        position += count;
        return Bytes(start, start + static_cast<ptrdiff_t>(count));
    }

private:
    const Bytes& bytes;
    size_t position = 0;
};

std::optional<Fields> HeadersOf(Front rest)
{
    Fields fields;
    while (!rest.Empty())
    {
        const uint8_t id = rest.Take(1)->front();
        size_t length = 4;
        if (id < 0x80)
        {
            const auto field = rest.Take(2);
            if (!field || NumberOf(*field) < 3)
                return std::nullopt;
            length = NumberOf(*field) - 3;
        }
        else if (id < 0xC0)
            length = 1;
        const auto value = rest.Take(length);
        if (!value)
            return std::nullopt;
        fields.Add(id, *value);
    }
    return fields;
}

// Connect and SetPath have fields of a fixed size before their headers.
size_t FixedSize(uint8_t operation) { return operation == ConnectFinal ? 4 : operation == SetPathFinal ? 2 : 0; }

}  // namespace

void Fields::Add(uint8_t id, const Bytes& value)
{
    form.push_back(id);
    values[id] = value;
}

std::optional<Packet> PacketOf(const Bytes& request)
{
    Front rest(request);
    const auto start = rest.Take(3);
    if (!start || NumberOf({(*start)[1], (*start)[2]}) != request.size() || request.size() > longestRequest)
        return std::nullopt;
    const auto fixed = rest.Take(FixedSize(start->front()));
    const auto headers = fixed ? HeadersOf(rest) : std::nullopt;
    if (!headers)
        return std::nullopt;
    return Packet{start->front(), *fixed, *headers};
}

std::string TextOf(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

std::optional<std::string> WideTextOf(const Bytes& bytes)
{
    std::string text;
    for (size_t i = 0; i < bytes.size(); i += 2)
    {
        if (i + 1 == bytes.size() || bytes[i] != 0 || bytes[i + 1] == 0)
            return std::nullopt;
        text += static_cast<char>(bytes[i + 1]);
    }
    return text;
}

std::optional<Fields> TagsOf(const Bytes& parameters)
{
    Fields fields;
    for (Front rest(parameters); !rest.Empty();)
    {
        const uint8_t tag = rest.Take(1)->front();
        const auto length = rest.Take(1);
        const auto value = length ? rest.Take(length->front()) : std::nullopt;
        if (!value)
            return std::nullopt;
        fields.Add(tag, *value);
    }
    return fields;
}

uint32_t NumberOf(const Bytes& bytes)
{
    return std::accumulate(bytes.begin(), bytes.end(), uint32_t{0},
                           [](uint32_t sum, uint8_t byte) { return sum << 8 | byte; });
}

void Append(Bytes& bytes, const Bytes& more) { bytes.insert(bytes.end(), more.begin(), more.end()); }

Bytes Word(size_t value) { return {static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)}; }

Bytes Dword(size_t value)
{
    Bytes bytes = Word(value >> 16);
    Append(bytes, Word(value));
    return bytes;
}

// A header of four bytes, or one with a length.
Bytes Header(uint8_t id, const Bytes& value)
{
    Bytes bytes = {id};
    if (id < 0xC0)
        Append(bytes, Word(value.size() + 3));
    Append(bytes, value);
    return bytes;
}

Bytes Answer(uint8_t code, const Bytes& content)
{
    Bytes bytes = {code};
    Append(bytes, Word(content.size() + 3));
    Append(bytes, content);
    return bytes;
}

}  // namespace simulator::obex
