// Diagnostics: the phone's mode, NV items, memory, identification.
#include <algorithm>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

constexpr uint16_t nvOk = 0;
constexpr uint16_t nvNotActive = 5;
constexpr uint32_t batchOk = 0;
constexpr uint32_t batchFailed = 1;

constexpr size_t longestBuildText = 511;
constexpr size_t longestVersionText = 31;

uint16_t NvStatus(uint16_t item)
{
    const auto forced = ThePhone().nvStatus.find(item);
    return forced == ThePhone().nvStatus.end() ? nvOk : forced->second;
}

uint16_t ReadItem(uint16_t item, uint8_t* data, size_t length)
{
    const auto found = ThePhone().nvItems.find(item);
    if (const uint16_t status = NvStatus(item); status != nvOk)
        return status;
    if (found == ThePhone().nvItems.end())
        return nvNotActive;
    if (data != nullptr)
    {
        std::fill_n(data, length, uint8_t{0});
        std::copy_n(found->second.begin(), std::min(length, found->second.size()), data);
    }
    return nvOk;
}

uint16_t WriteItem(uint16_t item, const Bytes& data)
{
    const uint16_t status = NvStatus(item);
    if (status == nvOk)
        ThePhone().nvItems[item] = data;
    return status;
}

uint8_t ByteAt(uint32_t address)
{
    const auto found = ThePhone().memory.find(address);
    return found == ThePhone().memory.end() ? uint8_t{0} : found->second;
}

// A text with its NUL, cut to what the callers' areas hold.
void PutText(char* argument, const std::string& text, size_t longest)
{
    const size_t length = std::min(text.size(), longest);
    if (argument != nullptr)
        *std::copy_n(text.begin(), length, argument) = '\0';
}

}  // namespace

uint8_t QLIB_IsPhoneConnected(ResourceContext hResourceContext) { return Reaches(hResourceContext, __func__); }

uint8_t QLIB_IsFTM_Mode(ResourceContext hResourceContext, uint8_t* pbIsFTMMode)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    Put(pbIsFTMMode, ThePhone().mode == Mode::Ftm);
    return 1;
}

uint8_t QLIB_DIAG_STATUS_F(ResourceContext hResourceContext, uint8_t* iTMC_State)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    Put(iTMC_State, static_cast<uint8_t>(ThePhone().mode));  // 0 offline, 1 online, and 2 for neither
    return 1;
}

uint8_t QLIB_DIAG_CONTROL_F(ResourceContext hResourceContext, uint32_t eMode)
{
    if (!Reaches(hResourceContext, __func__, eMode))
        return 0;
    Phone& phone = ThePhone();
    switch (eMode)
    {
        case 0:
            phone.mode = phone.goesOffline ? Mode::Offline : phone.mode;
            return 1;
        case 2:
            StartPhone();
            return 1;
        case 3:
            phone.mode = phone.switchesModeDirectly ? Mode::Ftm : phone.mode;
            return 1;
        case 4:
            phone.mode = phone.switchesModeDirectly ? Mode::Online : phone.mode;
            return 1;
        case 6:
            PowerDown();
            return 1;
        default:
            ReportNotSimulated("QLIB_DIAG_CONTROL_F(" + Shown(eMode) + ')');
            return 0;
    }
}

uint8_t QLIB_DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData, int32_t iLength,
                            uint16_t* iNvStatus)
{
    if (!Reaches(hResourceContext, __func__, iItemID, iLength) || iLength < 0)
        return 0;
    Put(iNvStatus, ReadItem(iItemID, pItemData, static_cast<size_t>(iLength)));
    return 1;
}

uint8_t QLIB_DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData,
                             int32_t iLength, uint16_t* iNvStatus)
{
    const Bytes data = BytesAt(pItemData, iLength);
    if (!Reaches(hResourceContext, __func__, iItemID, data, iLength) || iLength < 0)
        return 0;
    LibraryState& library = TheState().library;
    if (library.batchMode)
        library.batch.emplace_back(iItemID, data);
    Put(iNvStatus, library.batchMode ? nvOk : WriteItem(iItemID, data));
    return 1;
}

uint8_t QLIB_DIAG_NV_WRITE_SetBatchMode(ResourceContext hResourceContext, uint8_t bStartBatchMode)
{
    if (!Reaches(hResourceContext, __func__, bStartBatchMode))
        return 0;
    TheState().library.batchMode = bStartBatchMode != 0;
    TheState().library.batch.clear();
    return 1;
}

// Writes what is queued and ends the batch mode. The three values describe the last item that the phone refused.
uint8_t QLIB_DIAG_NV_WRITE_FlushBatchQueue(ResourceContext hResourceContext, uint32_t* piLastErrorNvId,
                                           uint32_t* piLastTotalStatus, uint8_t* piLastItemStatus)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    uint16_t refusedItem = 0;
    uint16_t refusal = nvOk;
    for (const auto& [item, data] : TheState().library.batch)
    {
        if (const uint16_t status = WriteItem(item, data); status != nvOk)
        {
            refusedItem = item;
            refusal = status;
        }
    }
    TheState().library.batchMode = false;
    TheState().library.batch.clear();
    Put(piLastErrorNvId, refusedItem);
    Put(piLastTotalStatus, refusal == nvOk ? batchOk : batchFailed);
    Put(piLastItemStatus, static_cast<uint8_t>(refusal));
    return 1;
}

uint8_t QLIB_DIAG_MEMORY_PEEK_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                uint8_t* pItemArray)
{
    if (!Reaches(hResourceContext, __func__, iAddress, iNumItems) || pItemArray == nullptr)
        return 0;
    for (uint32_t i = 0; i < iNumItems; ++i)
        pItemArray[i] = ByteAt(iAddress++);
    return 1;
}

uint8_t QLIB_DIAG_MEMORY_POKE_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                const uint8_t* pItemArray)
{
    const Bytes bytes = BytesAt(pItemArray, iNumItems);
    if (!Reaches(hResourceContext, __func__, iAddress, iNumItems, bytes))
        return 0;
    for (const uint8_t byte : bytes)
        ThePhone().memory[iAddress++] = byte;
    return 1;
}

uint8_t QLIB_DIAG_MEMORY_PEEK_DWORD_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                      uint32_t* pItemArray)
{
    if (!Reaches(hResourceContext, __func__, iAddress, iNumItems) || pItemArray == nullptr)
        return 0;
    for (uint32_t i = 0; i < iNumItems; ++i)
    {
        pItemArray[i] = 0;
        for (int shift = 0; shift < 32; shift += 8)
            pItemArray[i] |= uint32_t{ByteAt(iAddress++)} << shift;
    }
    return 1;
}

uint8_t QLIB_DIAG_MEMORY_POKE_DWORD_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                      const uint32_t* pItemArray)
{
    const std::vector<uint32_t> words(pItemArray, pItemArray + (pItemArray == nullptr ? 0 : iNumItems));
    if (!Reaches(hResourceContext, __func__, iAddress, iNumItems, words))
        return 0;
    for (const uint32_t word : words)
        for (int shift = 0; shift < 32; shift += 8)
            ThePhone().memory[iAddress++] = static_cast<uint8_t>(word >> shift);
    return 1;
}

uint8_t QLIB_DIAG_EXT_BUILD_ID_F(ResourceContext hResourceContext, uint32_t* iMSMHardwareVersion,
                                 uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    const Phone& phone = ThePhone();
    Put(iMSMHardwareVersion, phone.msmHardwareVersion);
    Put(iBuildMobModel, phone.buildMobModel);
    PutText(sBuildId, phone.buildId, longestBuildText);
    PutText(sBuildModel, phone.buildModel, longestBuildText);
    return 1;
}

// Of the seven fields after the texts nothing is known here but their order, so each gets its number, in one byte.
uint8_t QLIB_DIAG_VERNO_F(ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime, char* sReleaseDate,
                          char* sReleaseTime, char* sVersionDir, void* pField6, void* pField7, void* pField8,
                          void* pField9, void* pField10, void* pField11, void* pField12)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    const Phone& phone = ThePhone();
    PutText(sCompileDate, phone.compileDate, longestVersionText);
    PutText(sCompileTime, phone.compileTime, longestVersionText);
    PutText(sReleaseDate, phone.releaseDate, longestVersionText);
    PutText(sReleaseTime, phone.releaseTime, longestVersionText);
    PutText(sVersionDir, phone.versionDir, longestVersionText);
    uint8_t number = 6;
    for (void* field : {pField6, pField7, pField8, pField9, pField10, pField11, pField12})
        Put(static_cast<uint8_t*>(field), number++);
    return 1;
}
