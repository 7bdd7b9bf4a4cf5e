#include "tests/support/every_function.h"

#include <algorithm>

namespace tandekor::test
{

namespace
{

class Chosen
{
public:
    Chosen(const Function& calledFunction, const Choices& given) : function(calledFunction), choices(given) {}

    Given ArgumentAt(size_t place) const
    {
        const ArgumentForm& form = function.forms[place];
        const size_t count = Count(form);
        // What is written holds at least one element, as the headers say, and only what is empty is null.
        const size_t size
            = function.parameters[place].size * (form.kind == Kind::In ? count : std::max<size_t>(count, 1));
        if (form.mayBeNull && choices.nulls && (form.countFrom < 0 || count == 0))
            return nullptr;
        switch (form.kind)
        {
            case Kind::Number:
                return NumberAt(place);
            case Kind::Text:
                return TextAt(place);
            case Kind::Out:
                return Out{size};
            default:
                return SaysCount(place) ? LittleEndian(NumberAt(place), size) : Filled(size);
        }
    }

private:
    bool SaysCount(size_t place) const
    {
        return std::ranges::any_of(
            function.forms, [place](const ArgumentForm& form) { return form.countFrom == static_cast<int>(place); });
    }

    int64_t NumberAt(size_t place) const
    {
        const int64_t number = choices.numbers[place % choices.numbers.size()];
        const int64_t most = function.parameters[place].size == 1 ? UINT8_MAX : Choices::mostElements;
        return SaysCount(place) ? std::clamp<int64_t>(number, 0, most) : number;
    }

    size_t Count(const ArgumentForm& form) const
    {
        if (form.name == std::string("aiMemPartitionInfo"))
            return UINT8_MAX;  // the header asks for a byte for each HARQ process
        return form.countFrom < 0 ? form.count : static_cast<size_t>(NumberAt(static_cast<size_t>(form.countFrom)));
    }

    std::string TextAt(size_t place) const
    {
        const std::string name = function.forms[place].name;
        if (name == "sLogFile")
            return "/dev/null";
        return name == "psLocalFolder" ? choices.hostFolder : choices.texts[place % choices.texts.size()];
    }

    static Bytes LittleEndian(int64_t number, size_t size)
    {
        Bytes bytes;
        for (size_t i = 0; i < size; ++i)
            bytes.push_back(static_cast<uint8_t>(number >> 8 * i));
        return bytes;
    }

    Bytes Filled(size_t size) const
    {
        Bytes bytes;
        for (size_t i = 0; i < size; ++i)
            bytes.push_back(static_cast<uint8_t>(choices.numbers[i % choices.numbers.size()]));
        return bytes;
    }

    const Function& function;
    const Choices& choices;
};

}  // namespace

Call CallOf(const Function& function, const Choices& choices)
{
    const Chosen chosen(function, choices);
    std::vector<Given> all;
    for (size_t place = 0; place < function.forms.size(); ++place)
        all.push_back(chosen.ArgumentAt(place));
    return MakeCall(function.parameters, std::move(all), function.invoke);
}

}  // namespace tandekor::test
