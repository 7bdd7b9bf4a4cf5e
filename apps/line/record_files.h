// The record folder: for each phone and run a JSON, a JUnit and an HTML file and the text log, of one name.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "record.h"

namespace tandekor::line
{

// Makes the folder if it is missing and writes in it once. Returns an empty text or what is wrong with it.
std::string PrepareRecordFolder(const std::filesystem::path& folder);

// The names that belong to one run.
struct RecordNames
{
    std::string problem;         // empty, or why the run cannot be recorded; the paths are empty then
    std::filesystem::path base;  // without extension, for WriteRecords
    std::filesystem::path log;
    std::filesystem::path json;
    std::filesystem::path junit;
    std::filesystem::path page;
};

// Takes a name that no other run has or will get, also of another process, and makes the (empty) log. The name is the
// time and what a file name can hold of the phone's; a second one of the same time gets a number.
RecordNames ReserveRecord(const std::filesystem::path& folder, const std::string& dut,
                          std::chrono::system_clock::time_point time);

// Writes the files of a run at the name that was reserved for it; each appears when it is complete. Returns an empty
// text or what went wrong.
std::string WriteRecords(const RunRecord& record, const std::filesystem::path& base);

// Writes a file under another name of the same disk, and renames it when it is complete. Returns an empty text or what
// went wrong.
std::string WriteWhole(const std::filesystem::path& path, const std::filesystem::path& unfinished,
                       const std::string& content);

}  // namespace tandekor::line
