// The events of an upload, as the callback is told them.
#include <utility>

#include "procedures/upload_callback.h"
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

using Told = std::vector<std::pair<uint32_t, uint32_t>>;  // status and percentage

class UploadTest : public ProcedureTest
{
protected:
    UploadTest()
    {
        TANDEKOR_SetLibraryMode(1);
        ToldOf({{11, 4000}, {12, 0}, {0, 0}});
        TANDEKOR_SetCallback(handle, Callback);
    }
    ~UploadTest() override { TANDEKOR_SetLibraryMode(0); }

    static Told ToldOf(const std::vector<std::pair<uint32_t, uint32_t>>& events)
    {
        for (const auto& [code, value] : events)
        {
            const uint32_t record[] = {code, 0xDEADBEEF, value};
            EXPECT_EQ(UploadProgressCallback(record), 1);
        }
        return std::exchange(told, {});
    }
    static void Callback(uint32_t status, uint32_t percent) { told.emplace_back(status, percent); }

    static Told told;  // since it was looked at last
};

Told UploadTest::told;

TEST_F(UploadTest, CallbackIsToldEachStepAndThePercentageOfTheUploadBefore)
{
    Phone().upload = {.totalSize = 100000, .steps = 4, .stepTimeMs = 1, .lastStatus = 2, .result = 1};
    EXPECT_EQ(TANDEKOR_UploadCEFS_File(handle, 1, 2), 1);
    EXPECT_EQ(ToldOf({}), (Told{{1, 0}, {1, 25}, {1, 50}, {1, 75}, {1, 100}, {2, 100}}));
    Phone().upload.totalSize = 2000;
    Phone().upload.result = 0;
    EXPECT_EQ(TANDEKOR_UploadCEFS_File(handle, 1, 2), 0);
    EXPECT_EQ(ToldOf({}), (Told{{1, 100}, {2, 100}})) << "no percentages of a small upload";
    Phone().upload.totalSize = 2001;
    int sleeps = 0;
    simulator::TheClock().onSleep = [&](uint32_t)
    {
        if (++sleeps == 2)
            TANDEKOR_SetCallback(unknownHandle, nullptr);
    };
    TANDEKOR_UploadCEFS_File(handle, 1, 2);
    EXPECT_EQ(ToldOf({}), (Told{{1, 100}, {1, 24}})) << "taken away in the middle, by another handle";
}

TEST_F(UploadTest, EventsOneByOne)
{
    EXPECT_EQ(ToldOf({{0, 7}, {14, 7}, {0, 7}}), (Told{{7, 0}})) << "a status is told once, whichever event carries it";
    EXPECT_EQ(ToldOf({{14, 8}, {0, 7}}), (Told{{8, 0}, {7, 0}}));
    EXPECT_EQ(ToldOf({{11, 3000}, {1, 1}, {2, 1}, {10, 1}, {13, 1}, {15, 1}, {0x10000, 1}}), Told{});
    EXPECT_EQ(ToldOf({{12, 1500}, {12, 1500}, {12, 3001}, {12, 99999}}), (Told{{7, 50}, {7, 50}, {7, 100}, {7, 100}}));
    EXPECT_EQ(ToldOf({{12, 42949673}}), (Told{{7, 0}})) << "times 100 it leaves 4 in 32 bits";
    EXPECT_EQ(ToldOf({{11, 2000}, {12, 1000}, {11, 0}, {12, 1}}), Told{});
    EXPECT_EQ(ToldOf({{11, 0xFFFFFFFF}, {12, 21474836}}), (Told{{7, 0}}));
}

}  // namespace tandekor::test
