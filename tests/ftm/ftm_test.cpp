#include "tests/ftm/ftm_test.h"

#include <algorithm>

namespace tandekor::test
{

GuardedCall CallOn(const std::vector<Bytes>& contents,
                   const std::function<uint8_t(ResourceContext, const std::vector<uint8_t*>&)>& function)
{
    return [contents, function](ResourceContext handle)
    {
        std::vector<GuardedBuffer> buffers;
        for (const Bytes& content : contents)
        {
            buffers.emplace_back(content.size());
            std::copy(content.begin(), content.end(), buffers.back().Data());
        }
        std::vector<uint8_t*> areas;
        areas.reserve(buffers.size());
        for (GuardedBuffer& buffer : buffers)
            areas.push_back(buffer.Data());
        CallResult call;
        call.result = function(handle, areas);
        for (size_t i = 0; i < buffers.size(); ++i)
        {
            const Bytes content = buffers[i].Content();
            call.outs.insert(call.outs.end(), content.begin(), content.end());
            call.guardsIntact = call.guardsIntact && buffers[i].GuardsIntact();
            call.outsUntouched = call.outsUntouched && content == contents[i];
        }
        return call;
    };
}

void FtmTest::RepliesWith(const std::string& fields) { Replies(Hex("01 02 03 04 05 06 07 08 09 00 " + fields)); }

void FtmTest::ExpectAnswers(const std::vector<Answered>& rows)
{
    for (const Answered& row : rows)
    {
        simulator::ForgetCalls();
        simulator::ForgetLog();
        std::string replies;
        for (const std::string& reply : row.replies)
        {
            replies += " (" + reply + ")";
            if (reply.starts_with(silence))
                FailsToReply(Hex(reply.substr(1)));
            else
                reply == nothing ? Replies(Bytes()) : RepliesWith(reply);
        }
        const CallResult call = row.call(handle);
        SCOPED_TRACE(Log().front() + " answered by" + replies);
        EXPECT_EQ(call.result, row.result);
        EXPECT_EQ(call.outs, row.outs);
        EXPECT_TRUE(call.guardsIntact);
        EXPECT_EQ((Texts{Log().begin() + 1, Log().end()}), row.log);
        EXPECT_EQ(CountExchanges(), row.replies.size());
    }
}

}  // namespace tandekor::test
