// Every procedure against the record of what it does: as it is, with each of its host calls refused in turn, and on
// each phone model. transcripts.txt holds the way of a run as text where no other has the same, and a digest of
// everything; the test program's option --update-transcripts writes it anew, to be read by a person.
#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "tests/procedures/procedure_test.h"
#include "tests/procedures/transcript.h"

namespace tandekor::test
{

namespace
{

class Digest
{
public:
    void Add(const std::string& text)
    {
        for (const char character : text + '\n')
            value = (value ^ static_cast<uint8_t>(character)) * 1099511628211U;
    }
    uint64_t value = 14695981039346656037U;
};

// One phone of each model, with the models that have no supply, display or camera of their own.
const std::pair<uint32_t, uint16_t> phones[]
    = {{0x40, 0},   {0x40, 2},   {0x40, 5},  {0x40, 8},  {0x40, 12},  {0x405, 0},  {0x405, 1},
       {0x405, 2},  {0x405, 3},  {0x405, 7}, {0x405, 9}, {0x405, 10}, {0x405, 11}, {0x405, 12},
       {0x405, 13}, {0x405, 14}, {0x60, 0},  {0x60, 12}, {0xC0, 1},   {0xC0, 4},   {1, 0}};

// Refusals that do not end a procedure with a failure line of that call: the record says what they do instead.
const std::set<std::pair<std::string, std::string>> excused{
    {"DIAG_DISABLE_48KHz", "QLIB_DIAG_MEMORY_PEEK_DWORD_F"},  // writes no log
    {"DIAG_DISABLE_48KHz", "QLIB_SendSync"},                  // its result is not looked at
    {"DIAG_FREEZE_PHONE", ""},                                // has words of its own for all of them
    {"SpecialMmcTest", "QLIB_SendSync"},                      // the request's own line is the last
    {"FTM_I2C_GetCameraId", ""},                              // stops the camera, and closes with a remark
    {"Virtual_SIM", "QLIB_IsFTM_Mode"},                       // no answer counts as no: the phone is forced
    {"Virtual_SIM", "QLIB_FTM_PMIC_RTC_SET_GET_TIME"},        // a failed clock is passed over
};

bool IsExcused(const std::string& run, const std::string& operation)
{
    // Runs with more words in their names have a fault of their own.
    return run.find(' ') != std::string::npos || excused.contains({run, operation}) || excused.contains({run, ""});
}

// Every way of a run.
class Ways
{
public:
    explicit Ways(const ProcedureRun& theRun, bool tells = false) : run(theRun), told(tells)
    {
        const Call* good = nullptr;
        for (size_t i = 0; i < run.calls.size(); ++i)
        {
            const Observation seen = Observe(run, run.calls[i]);
            Add(plain, "call " + std::to_string(i + 1), seen);
            if (i == 0 && run.readable)
                text = ShortForm(seen.events);
            if (good == nullptr && seen.call.result != 0)
                AddRefusals(*(good = &run.calls[i]), seen.calls);
            if (std::ranges::find(seen.calls, "QLIB_DIAG_EXT_BUILD_ID_F()") != seen.calls.end())
                AddModels(run.calls[i]);
        }
    }

    std::string Section() const
    {
        std::ostringstream section;
        section << run.name << ": " << std::hex << plain.value << ' ' << refusals.value << ' ' << models.value << '\n';
        return section.str() + text;
    }
    const std::string& All() const { return all; }

private:
    void Add(Digest& digest, const std::string& heading, const Observation& seen)
    {
        for (const std::string& event : seen.events)
            digest.Add(event);
        if (told)
            all += "--- " + heading + '\n' + ShortForm(seen.events);
    }

    void AddRefusals(const Call& call, const Texts& hostCalls)
    {
        int n = 0;
        for (size_t i = 0; i < hostCalls.size(); ++i)
        {
            const std::string operation = hostCalls[i].substr(0, hostCalls[i].find('('));
            if (operation == "QLIB_GetLibraryVersion" || operation == "QLIB_ConfigureCallBacks")
                continue;  // they have no result
            const std::string heading = "refused " + std::to_string(++n) + ", " + hostCalls[i];
            const Observation seen = Observe(run, call, [n] { simulator::RefuseAnyCall(n); });
            Add(refusals, heading, seen);
            const bool ends
                = seen.call.result == 0 && seen.calls.size() == i + 1 && seen.lastLogText.ends_with(" - Failure\n");
            // A check counts its third answer alone, and the build is asked where there is a second way.
            const bool mayGoOn = operation == "QLIB_IsPhoneConnected" || operation == "QLIB_DIAG_EXT_BUILD_ID_F";
            if (!ends && !(mayGoOn && seen.call.result != 0) && !IsExcused(run.name, operation))
                ADD_FAILURE() << run.name << ", " << heading << ": does not end it with a failure line";
        }
    }

    void AddModels(const Call& call)
    {
        for (const auto& [chip, id] : phones)
        {
            Add(models, "phone " + std::to_string(chip) + '/' + std::to_string(id),
                Observe(run, call, BecomePhone(chip, id)));
        }
    }

    const ProcedureRun& run;
    bool told;
    Digest plain, refusals, models;
    std::string text, all;
};

// The recorded sections by the name of their run.
std::map<std::string, std::string> Recorded()
{
    std::map<std::string, std::string> sections;
    std::ifstream file(TRANSCRIPTS);
    std::string line, name;
    while (std::getline(file, line))
    {
        if (!line.starts_with(' '))
            name = line.substr(0, line.find(':'));
        sections[name] += line + '\n';
    }
    return sections;
}

}  // namespace

void PrintTo(const ProcedureRun& run, std::ostream* out) { *out << run.name; }

class TranscriptTest : public ProcedureTest, public ::testing::WithParamInterface<ProcedureRun>
{
};

TEST_P(TranscriptTest, IsAsRecorded)
{
    const Ways ways(GetParam());
    const std::string recorded = Recorded()[GetParam().name];
    if (ways.Section() == recorded)
        return;
    std::string file = GetParam().name;
    std::ranges::replace(file, ' ', '_');
    file = ::testing::TempDir() + file + ".transcript";
    const std::string all = Ways(GetParam(), true).All();
    std::ofstream(file) << all;
    ADD_FAILURE() << "It went another way than is recorded. All its ways are in " << file << "\nrecorded:\n"
                  << recorded << "actual:\n"
                  << ways.Section() << all.substr(0, 10000);
}

TEST_P(TranscriptTest, UnknownHandleDoesNothing)
{
    simulator::ForgetTimeline();
    for (const Call& call : GetParam().calls)
    {
        const CallResult result = call(unknownHandle);
        EXPECT_EQ(result.result, 0);
        EXPECT_EQ(result.written, std::vector<bool>(result.outs.size()));
    }
    EXPECT_EQ(simulator::Timeline(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Procedures, TranscriptTest, ::testing::ValuesIn(Runs()),
                         [](const auto& row) { return std::to_string(row.index); });

TEST(TranscriptsTest, RecordIsOfTheseRunsAndNoOthers)
{
    const std::vector<std::string> arguments = testing::internal::GetArgvs();
    if (std::ranges::find(arguments, "--update-transcripts") != arguments.end())
    {
        std::ofstream file(TRANSCRIPTS);
        for (const ProcedureRun& run : Runs())
            file << Ways(run).Section();
    }
    std::set<std::string> names, recorded;
    for (const ProcedureRun& run : Runs())
        EXPECT_TRUE(names.insert(run.name).second) << run.name << " stands twice";
    for (const auto& [name, section] : Recorded())
        recorded.insert(name);
    EXPECT_EQ(recorded, names);
}

}  // namespace tandekor::test
