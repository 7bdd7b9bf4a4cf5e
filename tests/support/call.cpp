#include "tests/support/call.h"

namespace tandekor::test
{

inline namespace calls
{

std::vector<std::vector<Given>> Combinations(const std::vector<std::vector<Given>>& choices)
{
    std::vector<std::vector<Given>> all{{}};
    for (const std::vector<Given>& choice : choices)
    {
        std::vector<std::vector<Given>> longer;
        for (const std::vector<Given>& start : all)
        {
            for (const Given& next : choice)
            {
                longer.push_back(start);
                longer.back().push_back(next);
            }
        }
        all = longer;
    }
    return all;
}

Arguments::Arguments(const std::vector<Parameter>& parameters, const std::vector<Given>& all)
{
    size_t next = 0;
    for (const Parameter& parameter : parameters)
    {
        const bool given = !parameter.isPointer || parameter.isConstant || (next < all.size() && !all[next].isNumber);
        starts.push_back(given ? all.at(next++) : Given(Out{parameter.size}));
        buffers.emplace_back(starts.back().content);
    }
}

CallResult Arguments::Result(const std::vector<Parameter>& parameters, uint8_t result) const
{
    CallResult call;
    call.result = result;
    for (size_t i = 0; i < parameters.size(); ++i)
    {
        call.guardsIntact = call.guardsIntact && buffers[i].GuardsIntact();
        if (parameters[i].isPointer && !parameters[i].isConstant)
        {
            call.outs.push_back(buffers[i].Content());
            call.written.push_back(call.outs.back() != starts[i].content);
        }
    }
    return call;
}

Call MakeCall(std::vector<Parameter> parameters, std::vector<Given> all, Invoke invoke)
{
    return
        [parameters = std::move(parameters), all = std::move(all), invoke = std::move(invoke)](ResourceContext handle)
    {
        Arguments arguments(parameters, all);
        return arguments.Result(parameters, invoke(handle, arguments));
    };
}

}  // namespace calls

}  // namespace tandekor::test
