#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

Call ReadOnly(const Call& call)
{
    return [call](ResourceContext handle)
    {
        CallResult made = call(handle);
        EXPECT_EQ(made.written, std::vector<bool>(made.written.size()));
        made.outs.clear();
        made.written.clear();
        return made;
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
        EXPECT_EQ(Values(call.outs), row.outs);
        EXPECT_TRUE(call.guardsIntact);
        EXPECT_EQ((Texts{Log().begin() + 1, Log().end()}), row.log);
        EXPECT_EQ(CountExchanges(), row.replies.size());
    }
}

}  // namespace tandekor::test
