// The phone's OBEX file server. It is strict: it takes the packets of the library it knows, header by header in their
// order, and everything else is a bad request. The data of an object go out in Body headers only.
#include <algorithm>

#include "simulator/obex_packet.h"
#include "simulator/phone.h"
#include "simulator/state.h"

namespace simulator
{

using namespace obex;

namespace
{

const Bytes target = {0x6B, 0x01, 0xCB, 0x31, 0x41, 0x06, 0x11, 0xD4, 0x9A, 0x77, 0x00, 0x50, 0xDA, 0x3F, 0x47, 0x1F};
const Bytes escapeSequence = {'+', '+', '+', 0};

// The value of a Name header; no value for one that cannot name a file.
std::optional<std::string> NameOf(const Bytes& value)
{
    if (value.size() < 4 || value[value.size() - 1] != 0 || value[value.size() - 2] != 0)
        return std::nullopt;
    auto name = WideTextOf({value.begin(), value.end() - 2});
    return name && name->find_first_of("/\\") == std::string::npos ? name : std::nullopt;
}

// A path in the parameters of copy and move, which may begin with the slash of the root.
std::optional<std::string> PathOf(const Bytes& value)
{
    const auto path = WideTextOf(value);
    if (!path || path->empty() || path->find('\\') != std::string::npos)
        return std::nullopt;
    return path->front() == '/' ? path->substr(1) : path;
}

// As in 20240309T070502.
bool IsTime(const std::string& text)
{
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    return text.size() == 15 && text[8] == 'T' && std::ranges::count_if(text, isDigit) == 14;
}

// Two texts in double quotes, each with some of the letters RWD in this order.
bool ArePermissions(const std::string& texts)
{
    size_t position = 0;
    for (const char* expected = "\"RWD\"\"RWD\""; *expected != '\0'; ++expected)
    {
        if (position < texts.size() && texts[position] == *expected)
            ++position;
        else if (*expected == '"')
            return false;
    }
    return position == texts.size();
}

ObexSession& Session() { return TheState().phone.obexSession; }
std::map<std::string, SimulatedFile>& Files() { return ThePhone().files; }

SimulatedFile* Find(const std::string& path)
{
    const auto file = Files().find(path);
    return file == Files().end() ? nullptr : &file->second;
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

// Whether the path, with a slash at its end, is a folder's or the root's.
bool IsFolder(const std::string& path)
{
    const SimulatedFile* folder = path.empty() ? nullptr : Find(path.substr(0, path.size() - 1));
    return path.empty() || (folder != nullptr && folder->folder);
}

// The first of the two permission texts counts.
bool Permits(const SimulatedFile& file, char letter)
{
    return file.permissions.substr(0, file.permissions.find('"', 1)).find(letter) != std::string::npos;
}

size_t FreeBytes()
{
    size_t used = 0;
    for (const auto& [path, file] : Files())
        used += file.content.size();
    return used < ThePhone().storageSize ? ThePhone().storageSize - used : 0;
}

// Whether a file of this size may be put at this place, by what the phone would answer.
uint8_t PlaceFor(const std::string& path, size_t size)
{
    const SimulatedFile* old = Find(path);
    if (!IsFolder(FolderOf(path)))
        return NotFound;
    if (old != nullptr && (old->folder || !Permits(*old, 'W')))
        return Forbidden;
    return size > FreeBytes() + (old == nullptr ? 0 : old->content.size()) ? DatabaseFull : Success;
}

std::string Attribute(const char* name, const std::string& value)
{
    std::string text = std::string(" ") + name + "=\"";
    for (const char character : value)
    {
        const auto code = static_cast<uint8_t>(character);
        const bool plain = code >= ' ' && code < 0x7F && std::string("\"&<>").find(character) == std::string::npos;
        text += plain ? std::string(1, character) : "&#" + std::to_string(code) + ";";
    }
    return text + '"';
}

std::string ListingOf(const std::string& folder)
{
    std::string text
        = "<?xml version=\"1.0\"?>\r\n<!DOCTYPE folder-listing SYSTEM \"obex-folder-listing.dtd\">\r\n"
          "<folder-listing version=\"1.0\">\r\n";
    if (!folder.empty())
        text += "<parent-folder/>\r\n";
    for (const auto& [path, file] : Files())
    {
        if (FolderOf(path) != folder)
            continue;
        text += (file.folder ? "<folder" : "<file") + Attribute("name", path.substr(folder.size()));
        if (!file.folder)
            text += Attribute("size", std::to_string(file.content.size())) + Attribute("modified", file.time);
        text += "/>\r\n";
    }
    return text + "</folder-listing>\r\n";
}

Bytes Connect(const Packet& packet)
{
    const size_t mostReplyBytes = NumberOf({packet.fixed[2], packet.fixed[3]});
    if (!packet.Has({Target}) || packet.fixed[0] != 0x10 || packet.fixed[1] != 0 || mostReplyBytes < 255)
        return Answer(BadRequest);
    if (packet[Target] != target)
        return Answer(NotFound);
    ObexSession& session = Session();
    session = {.open = true, .connectionId = session.connectionId + 1, .mostReplyBytes = mostReplyBytes};
    Bytes content = {0x10, 0x00};
    Append(content, Word(longestRequest));
    Append(content, Header(ConnectionId, Dword(session.connectionId)));
    Append(content, Header(Who, target));
    return Answer(Success, content);
}

Bytes Disconnect(const Packet& packet)
{
    if (!packet.Has({ConnectionId}))
        return Answer(BadRequest);
    Session().open = false;
    return Answer(Success, Header(ConnectionId, packet[ConnectionId]));
}

// To the root, or into a folder, which is made first if the packet does not forbid it.
Bytes SetPath(const Packet& packet)
{
    const bool create = packet.fixed == Bytes{0, 0};
    const bool toRoot = packet.Has({ConnectionId});
    const auto name = packet.Has({ConnectionId, Name}) ? NameOf(packet[Name]) : std::nullopt;
    if ((!create && packet.fixed != Bytes{2, 0}) || (!toRoot && !name))
        return Answer(BadRequest);
    const std::string path = toRoot ? "" : Session().folder + *name + '/';
    if (create && !toRoot && Find(Session().folder + *name) == nullptr)
        Files()[Session().folder + *name].folder = true;
    if (!IsFolder(path))
        return Answer(NotFound);
    Session().folder = path;
    return Answer(Success);
}

// The next part of the object: a Body, also for an empty object, and after the last one an empty End of Body.
Bytes NextPart(ObexGet& get)
{
    Bytes content = Header(ConnectionId, Dword(Session().connectionId));
    if (get.begun && get.sent == get.object.size())
    {
        Append(content, Header(EndOfBody, {}));
        Session().get.reset();
        return Answer(Success, content);
    }
    if (!get.begun && ThePhone().announcesLength)
        Append(content, Header(Length, Dword(get.object.size())));
    const size_t room = Session().mostReplyBytes - 3 - content.size() - 3;
    const auto start = get.object.begin() + static_cast<ptrdiff_t>(get.sent);
    const auto count = static_cast<ptrdiff_t>(std::min(room, get.object.size() - get.sent));
    Append(content, Header(Body, {start, start + count}));
    get.begun = true;
    get.sent += static_cast<size_t>(count);
    return Answer(Continue, content);
}

Bytes BeginGet(const Bytes& object)
{
    Session().get.emplace().object = object;
    return NextPart(*Session().get);
}

Bytes Get(const Packet& packet)
{
    if (packet.Has({ConnectionId}) && Session().get)
        return NextPart(*Session().get);
    if (packet.Has({ConnectionId, Type}) && TextOf(packet[Type]) == std::string("x-obex/folder-listing") + '\0')
    {
        const std::string listing = ListingOf(Session().folder);
        return BeginGet({listing.begin(), listing.end()});
    }
    if (packet.Has({ConnectionId, Parameters}) && packet[Parameters] == Bytes{FreeSpace, 1, 2})
    {
        Bytes content = Header(ConnectionId, packet[ConnectionId]);
        Bytes value = {FreeSpace, 4};
        Append(value, Dword(FreeBytes()));
        Append(content, Header(Parameters, value));
        return Answer(Success, content);
    }
    const auto name = packet.Has({ConnectionId, Name}) ? NameOf(packet[Name]) : std::nullopt;
    if (!name)
        return Answer(BadRequest);
    const SimulatedFile* file = Find(Session().folder + *name);
    if (file == nullptr || file->folder)
        return Answer(NotFound);
    return Permits(*file, 'R') ? BeginGet(file->content) : Answer(Forbidden);
}

// A packet of a file's data. The file takes its place only when it is complete.
Bytes PutData(const Bytes& data, bool last)
{
    auto& put = Session().put;
    if (!put || put->file.content.size() + data.size() > put->announced)
        return Answer(BadRequest);
    Append(put->file.content, data);
    if (!last)
        return Answer(Continue);
    Files()[put->path] = put->file;
    put.reset();
    return Answer(Success);
}

Bytes BeginPut(const Packet& packet, const std::string& path, bool last)
{
    const std::string time = TextOf(packet[Time]);
    const uint32_t size = NumberOf(packet[Length]);
    if (!IsTime(time))
        return Answer(BadRequest);
    if (const uint8_t code = PlaceFor(path, size); code != Success)
        return Answer(code);
    Session().put.emplace(ObexPut{path, {.time = time}, size});
    return PutData(packet[last ? EndOfBody : Body], last);
}

Bytes Delete(const std::string& path)
{
    const SimulatedFile* file = Find(path);
    if (file == nullptr)
        return Answer(NotFound);
    const auto inside = [&](const auto& other) { return other.first.starts_with(path + '/'); };
    if (!Permits(*file, 'D') || std::ranges::any_of(Files(), inside))
        return Answer(Forbidden);
    Files().erase(path);
    return Answer(Success);
}

Bytes SetPermissions(const Bytes& parameters, const std::string& path)
{
    const auto tags = TagsOf(parameters);
    if (!tags || tags->form != Bytes{Permissions})
        return Answer(BadRequest);
    const std::string texts = TextOf(tags->values.at(Permissions));
    if (!ArePermissions(texts))
        return Answer(BadRequest);
    if (Find(path) == nullptr)
        return Answer(NotFound);
    Find(path)->permissions = texts;
    return Answer(Success);
}

Bytes CopyOrMove(const Bytes& parameters)
{
    const auto tags = TagsOf(parameters);
    if (!tags || tags->form != Bytes{Action, SourcePath, DestinationPath})
        return Answer(BadRequest);
    const std::string action = TextOf(tags->values.at(Action));
    const auto from = PathOf(tags->values.at(SourcePath));
    const auto to = PathOf(tags->values.at(DestinationPath));
    if ((action != "copy" && action != "move") || !from || !to)
        return Answer(BadRequest);
    const bool move = action == "move";
    if (Find(*from) == nullptr || Find(*from)->folder)
        return Answer(NotFound);
    const SimulatedFile file = *Find(*from);
    if (!Permits(file, move ? 'D' : 'R'))
        return Answer(Forbidden);
    if (const uint8_t code = PlaceFor(*to, move ? 0 : file.content.size()); code != Success)
        return Answer(code);
    if (move)
        Files().erase(*from);
    Files()[*to] = file;
    return Answer(Success);
}

Bytes Put(const Packet& packet, bool last)
{
    const HeaderId body = last ? EndOfBody : Body;
    if (packet.Has({ConnectionId, body}))
        return PutData(packet[body], last);
    if (last && packet.Has({ConnectionId, Parameters}))
        return CopyOrMove(packet[Parameters]);
    const auto name = packet.headers.values.contains(Name) ? NameOf(packet[Name]) : std::nullopt;
    if (!name)
        return Answer(BadRequest);
    const std::string path = Session().folder + *name;
    if (packet.Has({ConnectionId, Name, Length, Time, body}))
        return BeginPut(packet, path, last);
    if (last && packet.Has({ConnectionId, Name}))
        return Delete(path);
    if (last && packet.Has({ConnectionId, Name, Parameters}))
        return SetPermissions(packet[Parameters], path);
    return Answer(BadRequest);
}

Bytes AnswerPacket(const Packet& packet)
{
    if (packet.operation == ConnectFinal)
        return Connect(packet);
    if (packet.headers.form.empty() || packet.headers.form[0] != ConnectionId)
        return Answer(BadRequest);
    if (!Session().open || NumberOf(packet[ConnectionId]) != Session().connectionId)
        return Answer(Unavailable);
    switch (packet.operation)
    {
        case DisconnectFinal:
            return Disconnect(packet);
        case PutPart:
        case PutFinal:
            return Put(packet, packet.operation == PutFinal);
        case GetFinal:
            return Get(packet);
        case SetPathFinal:
            return SetPath(packet);
        default:
            return Answer(NotImplemented);
    }
}

}  // namespace

std::map<std::string, SimulatedFile> FreshFiles()
{
    const SimulatedFile folder = {.folder = true};
    return {
        {"Pictures", folder},
        {"Pictures/Holiday", folder},
        {"Pictures/Holiday/beach.jpg", {.content = Bytes(12000, 0xDB)}},
        {"Sounds", folder},
        {"contrast.bmp", {.content = Bytes(3000, 0x42)}},
        {"Sounds/alarm.mid", {.content = Bytes(700, 0x4D), .permissions = "\"R\"\"R\""}},
    };
}

// The escape sequence ends the session, and is not answered.
std::optional<Bytes> AnswerObex(const Bytes& request)
{
    Phone& phone = ThePhone();
    if (request == escapeSequence)
    {
        Session().open = phone.obexMode = false;
        return {};
    }
    if (phone.obexPeer)
    {
        const Bytes answer = phone.obexPeer(request);
        return answer.empty() ? std::nullopt : std::optional(answer);
    }
    const auto packet = PacketOf(request);
    if (!packet)
        return Answer(BadRequest);
    const auto response = phone.obexResponses.find(packet->operation);
    return response == phone.obexResponses.end() ? AnswerPacket(*packet) : Answer(response->second);
}

}  // namespace simulator
