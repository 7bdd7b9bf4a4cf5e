// The C face, on the state that control.h shows.
#include <algorithm>
#include <cstring>

#include "simulator/operation.h"
#include "simulator/script.h"
#include "simulator/state.h"
#include "simulator/values.h"
#include "tandekor/simulator.h"

using namespace simulator;

namespace
{

std::string lastError;

uint8_t Fail(const std::string& why)
{
    lastError = why;
    return 0;
}

// Empty for success.
uint8_t Outcome(const std::string& error) { return error.empty() ? uint8_t{1} : Fail(error); }

bool Knows(const std::string& operation)
{
    return IsOperation(operation)
           || Fail('"' + operation + "\" is no operation of the host library that is counted or can be refused") != 0;
}

// An n-th call that a script may speak of.
bool Knows(const std::string& operation, uint32_t call)
{
    if (call == 0 || call > INT32_MAX)
        return Fail("calls are counted from 1 to " + std::to_string(INT32_MAX)) != 0;
    return Knows(operation);
}

void PutText(const std::string& text, char* buffer, uint32_t size)
{
    if (size == 0)
        return;
    const size_t length = std::min<size_t>(text.size(), size - 1);
    *std::copy_n(text.begin(), length, buffer) = '\0';
}

void PutBytes(const Bytes& content, uint8_t* buffer, uint32_t size, uint32_t* length)
{
    *length = static_cast<uint32_t>(content.size());
    if (buffer != nullptr)
        std::copy_n(content.begin(), std::min<size_t>(content.size(), size), buffer);
}

// Paths as in "Pictures/Holiday/beach.jpg".
bool IsPath(const std::string& path)
{
    return !path.empty() && path.front() != '/' && path.back() != '/' && path.find("//") == std::string::npos
           && path.find('\\') == std::string::npos;
}

std::string MissingFile(const std::string& path) { return "the phone has no file \"" + path + '"'; }

}  // namespace

const char* PHONE_LastError() { return lastError.c_str(); }

uint8_t PHONE_Reset()
{
    ResetPhone();
    return 1;
}

uint8_t PHONE_Run(const char* sLine) { return Outcome(RunLine(sLine)); }
uint8_t PHONE_RunScript(const char* sFile) { return Outcome(RunScript(sFile)); }

uint8_t PHONE_SetModel(uint32_t iModel)
{
    const std::optional<Phone> phone = MakePhone(iModel);
    if (!phone)
        return Fail("there is no model " + std::to_string(iModel));
    TheState().phone = PhoneState();
    ThePhone() = *phone;
    return 1;
}

uint8_t PHONE_Set(const char* sName, const char* sValue) { return Outcome(SetValue(sName, sValue)); }

uint8_t PHONE_Get(const char* sName, char* sValue, uint32_t iSize)
{
    const std::optional<std::string> value = ValueOf(sName);
    if (!value)
        return Fail(std::string("there is no value ") + sName);
    PutText(*value, sValue, iSize);
    return 1;
}

uint8_t PHONE_SetNvItem(uint16_t iItem, const uint8_t* pBytes, uint32_t iLength)
{
    ThePhone().nvItems[iItem] = BytesAt(pBytes, iLength);
    return 1;
}

uint8_t PHONE_GetNvItem(uint16_t iItem, uint8_t* pBytes, uint32_t iSize, uint32_t* piLength)
{
    const auto item = ThePhone().nvItems.find(iItem);
    PutBytes(item == ThePhone().nvItems.end() ? Bytes() : item->second, pBytes, iSize, piLength);
    return 1;
}

uint8_t PHONE_SetNvStatus(uint16_t iItem, uint16_t iStatus)
{
    ThePhone().nvStatus[iItem] = iStatus;
    return 1;
}

uint8_t PHONE_SetMemory(uint32_t iAddress, const uint8_t* pBytes, uint32_t iLength)
{
    for (const uint8_t byte : BytesAt(pBytes, iLength))
        ThePhone().memory[iAddress++] = byte;
    return 1;
}

uint8_t PHONE_GetMemory(uint32_t iAddress, uint8_t* pBytes, uint32_t iLength)
{
    const auto& memory = ThePhone().memory;
    for (uint32_t i = 0; i < iLength; ++i)
    {
        const auto byte = memory.find(iAddress + i);
        pBytes[i] = byte == memory.end() ? uint8_t{0} : byte->second;
    }
    return 1;
}

uint8_t PHONE_SetI2cRegister(uint8_t iDevice, uint16_t iRegister, const uint8_t* pBytes, uint32_t iLength)
{
    ThePhone().factory.i2c[{iDevice, iRegister}] = BytesAt(pBytes, iLength);
    return 1;
}

uint8_t PHONE_SetAdc(uint16_t iChannel, uint16_t iValue)
{
    ThePhone().radio.adc[iChannel] = iValue;
    return 1;
}

uint8_t PHONE_SetPin(uint8_t iPin, uint8_t iLevel)
{
    if (iLevel > 1)
        return Fail("the level of a pin is 0 or 1, not " + std::to_string(iLevel));
    ThePhone().factory.pins[iPin].in = iLevel;
    return 1;
}

uint8_t PHONE_GetPin(uint8_t iPin, uint8_t* piOutput)
{
    *piOutput = ThePhone().factory.pins[iPin].out;
    return 1;
}

uint8_t PHONE_QueueKey(uint16_t iKey, uint8_t iEvent)
{
    ThePhone().keypad.queue.push_back({iKey, iEvent});
    return 1;
}

uint8_t PHONE_SetSimFile(uint16_t iFile, const char* sDigits)
{
    const std::string digits = sDigits;
    if (digits.find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos || digits.size() % 2 != 0)
        return Fail('"' + digits + "\" is not pairs of hexadecimal digits");
    ThePhone().card.files[iFile] = digits;
    return 1;
}

uint8_t PHONE_SetCardFile(const char* sName, const uint8_t* pBytes, uint32_t iLength)
{
    constexpr size_t longestName = 127;
    const std::string name = sName;
    if (name.empty() || name.size() > longestName)
        return Fail("a name on the memory card has 1 to " + std::to_string(longestName) + " characters");
    ThePhone().factory.card[name] = BytesAt(pBytes, iLength);
    return 1;
}

uint8_t PHONE_SetFile(const char* sPath, const uint8_t* pBytes, uint32_t iLength)
{
    const std::string path = sPath;
    auto& files = ThePhone().files;
    if (!IsPath(path))
        return Fail('"' + path + "\" is no path as in Pictures/Holiday/beach.jpg");
    if (const auto old = files.find(path); old != files.end() && old->second.folder)
        return Fail('"' + path + "\" is a folder");
    for (size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1))
    {
        const auto [folder, isNew] = files.try_emplace(path.substr(0, slash), SimulatedFile{.folder = true});
        if (!folder->second.folder)
            return Fail('"' + folder->first + "\" is a file");
    }
    files[path].content = BytesAt(pBytes, iLength);
    return 1;
}

uint8_t PHONE_GetFile(const char* sPath, uint8_t* pBytes, uint32_t iSize, uint32_t* piLength)
{
    const auto file = ThePhone().files.find(sPath);
    if (file == ThePhone().files.end() || file->second.folder)
        return Fail(MissingFile(sPath));
    PutBytes(file->second.content, pBytes, iSize, piLength);
    return 1;
}

uint8_t PHONE_DeleteFile(const char* sPath)
{
    const std::string path = sPath;
    const auto isThere = [&](const auto& file) { return file.first == path || file.first.starts_with(path + '/'); };
    return std::erase_if(ThePhone().files, isThere) == 0 ? Fail(MissingFile(path)) : uint8_t{1};
}

uint8_t PHONE_Refuse(const char* sOperation, uint32_t iCall)
{
    if (!Knows(sOperation, iCall))
        return 0;
    RefuseCall(sOperation, static_cast<int>(iCall));
    return 1;
}

uint8_t PHONE_RefuseFrom(const char* sOperation, uint32_t iCall)
{
    if (!Knows(sOperation, iCall))
        return 0;
    RefuseCallsFrom(sOperation, static_cast<int>(iCall));
    return 1;
}

uint8_t PHONE_Delay(const char* sOperation, uint32_t iCall, uint32_t iMilliseconds)
{
    if (!Knows(sOperation, iCall))
        return 0;
    BeforeCall(sOperation, static_cast<int>(iCall), [iMilliseconds] { TakeTime(iMilliseconds); });
    return 1;
}

uint8_t PHONE_Silence(uint32_t iExchanges)
{
    Silence(iExchanges);
    return 1;
}

uint8_t PHONE_QueueReply(const char* sOperation, uint8_t iResult, int32_t iClaimedLength, const uint8_t* pBytes,
                         uint32_t iLength)
{
    const std::string operation = sOperation;
    if (operation != "QLIB_SendRAW" && operation != "QLIB_SendSync")
        return Fail("replies are those of QLIB_SendRAW or QLIB_SendSync, not of \"" + operation + '"');
    if (iClaimedLength < -1 || iClaimedLength > UINT16_MAX || iLength > UINT16_MAX)
        return Fail("the length of a reply is 0 to 65535");
    Reply reply{BytesAt(pBytes, iLength), iResult, std::nullopt, operation};
    if (iClaimedLength >= 0)
        reply.claimedLength = static_cast<uint16_t>(iClaimedLength);
    QueueReply(reply);
    return 1;
}

uint8_t PHONE_SetObexResponse(uint8_t iOperation, uint8_t iResponse)
{
    if (iResponse == 0)
        ThePhone().obexResponses.erase(iOperation);
    else
        ThePhone().obexResponses[iOperation] = iResponse;
    return 1;
}

uint8_t PHONE_Record(uint32_t iMost)
{
    Record(iMost);
    return 1;
}

uint32_t PHONE_CountCalls(const char* sOperation)
{
    return Knows(sOperation) ? static_cast<uint32_t>(CountCalls(sOperation)) : UINT32_MAX;
}

uint8_t PHONE_LastCall(const char* sOperation, char* sCall, uint32_t iSize)
{
    const std::string operation = sOperation;
    if (!operation.empty() && !Knows(operation))
        return 0;
    const auto isMeant
        = [&](const std::string& call) { return operation.empty() || call.starts_with(operation + '('); };
    const auto last = std::find_if(Calls().rbegin(), Calls().rend(), isMeant);
    if (last == Calls().rend())
        return Fail("no call of " + (operation.empty() ? "any operation" : operation) + " is recorded");
    PutText(*last, sCall, iSize);
    return 1;
}

uint32_t PHONE_CountLogTexts() { return static_cast<uint32_t>(LogTexts().size()); }

uint8_t PHONE_GetLogText(uint32_t iText, char* sText, uint32_t iSize)
{
    if (iText == 0 || iText > LogTexts().size())
        return Fail(std::to_string(LogTexts().size()) + " texts are recorded, counted from 1");
    PutText(LogTexts()[iText - 1], sText, iSize);
    return 1;
}
