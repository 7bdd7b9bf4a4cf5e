// The files of the record folder, read back by other means than those that wrote them; records_read looks at what this
// program leaves in RECORDS_FOLDER.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "record_files.h"
#include "summary.h"

using namespace tandekor::line;
namespace fs = std::filesystem;

namespace
{

const std::chrono::system_clock::time_point start
    = std::chrono::sys_days{std::chrono::July / 1 / 2026} + std::chrono::hours{9};

fs::path NewFolder(const char* name)
{
    fs::path folder = fs::path{RECORDS_FOLDER} / name;
    fs::remove_all(folder);
    EXPECT_EQ(PrepareRecordFolder(folder), "");
    EXPECT_TRUE(fs::is_empty(folder));
    return folder;
}

TestRecord TestOf(const char* group, const char* name, Verdict verdict)
{
    TestRecord test;
    test.group = group;
    test.name = name;
    test.verdict = verdict;
    test.attempts = 1;
    return test;
}

// A run of one test with one measure, between 0 and 10.
RunRecord RunOf(const char* dut, Verdict verdict, double value)
{
    RunRecord run;
    run.dut = dut;
    run.start = start;
    run.verdict = verdict;
    run.tests.push_back(TestOf("radio", "tx", verdict));
    run.tests[0].measures.push_back({"level", value, "dBm", {0, 10, {}}, verdict});
    return run;
}

RecordNames Write(const fs::path& folder, RunRecord run)
{
    RecordNames names = ReserveRecord(folder, run.dut, run.start);
    run.logFile = names.log.string();
    EXPECT_EQ(names.problem + WriteRecords(run, names.base), "");
    return names;
}

}  // namespace

TEST(Records, TellWhatIsKnownOfARunWhateverItsTextsHold)
{
    RunRecord run = RunOf("SN/<1> & \"2\"", Verdict::Failed, 12.5);
    run.start += std::chrono::milliseconds{7};
    run.interrupted = true;
    run.tests.push_back(TestOf("radio", "rx", Verdict::NotJudged));
    run.tests.push_back(TestOf("end", "off", Verdict::Passed));
    run.tests.back().durationMs = 1500;
    TestRecord& failed = run.tests[0];
    failed.text = "<script>alert(1)</script>\x1B[31m \xC3\xA9 \xC3( \xED\xA0\x80 \xEF\xBF\xBF ]]>";
    failed.failedStep = "QLIB_X() - Failure";
    failed.failedFunction = "TANDEKOR_X";
    failed.logLines = {"\tQLIB_X() start", "\tQLIB_X() - Failure", "\"last\" line"};
    failed.measures.push_back({"id", std::string{"<b>"}, "", {{}, {}, "a&b"}, Verdict::Passed});
    failed.measures.push_back({"noise", std::nan(""), "", {}, Verdict::NotJudged});
    const RecordNames names = Write(NewFolder("run"), run);

    EXPECT_EQ(names.base.filename(), "20260701T090000Z_SN__1_____2_");
    nlohmann::json json;
    std::ifstream(names.json) >> json;
    EXPECT_EQ(json["dut"], run.dut);
    EXPECT_EQ(json["start"], "2026-07-01T09:00:00.007Z");
    EXPECT_EQ(json["verdict"], "failed");
    EXPECT_EQ(json["interrupted"], true);
    EXPECT_EQ(json["log_file"], names.log.filename().string());
    const auto& test = json["tests"][0];
    EXPECT_EQ(test["text"], "<script>alert(1)</script>\\x1B[31m \xC3\xA9 \\xC3( \\xED\\xA0\\x80 \\xEF\\xBF\\xBF ]]>");
    EXPECT_EQ(test["failed_step"], failed.failedStep);
    EXPECT_EQ(test["measures"][0], nlohmann::json::parse(R"({"name": "level", "value": 12.5, "unit": "dBm", "low": 0.0,
                                                             "high": 10.0, "verdict": "failed"})"));
    EXPECT_EQ(test["measures"][1]["expected"], "a&b");
    EXPECT_TRUE(test["measures"][2]["value"].is_null());
    EXPECT_EQ(json["log"], nlohmann::json({{{"group", "radio"}, {"test", "tx"}, {"lines", failed.logLines}}}));
}

TEST(Records, NeverShareAName)
{
    const fs::path folder = NewFolder("names");
    const RecordNames first = ReserveRecord(folder, "../x", start);
    const RecordNames second = ReserveRecord(folder, "../x", start);
    EXPECT_EQ(first.log.parent_path(), folder);
    EXPECT_EQ(second.base, fs::path{first.base} += "-2");
    EXPECT_TRUE(fs::exists(second.log));

    // What anybody else left there counts as taken.
    std::ofstream(fs::path{first.base} += "-3.xml") << "theirs";
    EXPECT_EQ(Write(folder, RunOf("../x", Verdict::Passed, 1)).base, fs::path{first.base} += "-4");
    EXPECT_FALSE(fs::exists(fs::path{first.base} += "-4.part"));

    EXPECT_NE(PrepareRecordFolder(first.log), "");
    EXPECT_NE(ReserveRecord(first.log, "x", start).problem, "");
    EXPECT_NE(WriteRecords({}, first.log / "x"), "");
}

TEST(Summary, CountsPhonesByTheirFirstAndLatestRun)
{
    const fs::path folder = NewFolder("many");
    std::vector<RunRecord> runs{RunOf("A", Verdict::Failed, -1), RunOf("B", Verdict::Passed, 2),
                                RunOf("A", Verdict::Passed, 5), RunOf("C", Verdict::Passed, std::nan("")),
                                RunOf("", Verdict::Failed, 4)};
    runs[1].tests[0].attempts = 2;
    runs[2].tests[0].measures[0].limit.low = 1;
    runs[4].interrupted = true;
    for (RunRecord& run : runs)
    {
        run.start += std::chrono::seconds{&run - runs.data()};
        Write(folder, run);
    }
    std::ofstream(folder / "other.json") << R"({"format": 1, "dut": "no record"})";
    std::ofstream(folder / "half.json")
        << R"({"format": 1, "verdict": "passed", "start": "2026", "tests": [{"name": ")";

    const Summary summary = ReadRecords(folder);
    EXPECT_EQ(summary.unreadable, (std::vector<std::string>{"half.json", "other.json"}));
    const Yield yield = YieldOf(summary.runs);
    EXPECT_EQ((std::array{yield.runs, yield.phones, yield.goodAtLast, yield.goodAtFirst}),
              (std::array<size_t, 4>{5, 3, 3, 1}));
    EXPECT_EQ(FailuresByTest(summary), (std::vector<std::pair<std::string, size_t>>{{"tx", 2}}));

    // -1, 2, 5 and 4: mean 2.5, squares 12.25 + 0.25 + 6.25 + 2.25 = 21 over 3, so sigma is the root of 7; the nearer
    // limit is the low one, 2.5 below.
    const Series& series = summary.series.at({"tx.level", "dBm"});
    EXPECT_TRUE(series.limitChanged);
    EXPECT_NEAR(SpreadOf(series).cpk.value_or(0), 2.5 / (3 * std::sqrt(7.0)), 1e-12);

    std::string text;
    EXPECT_EQ(WriteSummary(folder, text), "");
    EXPECT_NE(text.find("yield 100.0 %, first pass 33.3 %"), std::string::npos) << text;
}
