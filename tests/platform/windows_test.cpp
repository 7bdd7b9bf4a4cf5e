// The machine's own files and serial port on Windows. The entries of the import table below lead the calls that
// concern a port to a played one.
#define WIN32_LEAN_AND_MEAN
#include <gtest/gtest.h>
#include <windows.h>
#include <winioctl.h>

#include <cstring>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/host_file.h"
#include "platform/serial_port.h"

namespace
{

struct Port
{
    std::vector<std::string> opened;
    DWORD access = 0;
    DWORD sharing = 0;
    DCB settings{};
    std::vector<DWORD> functions;
    DWORD purged = 0;
    int closed = 0;
    BOOL works = TRUE;
};
Port port;

const HANDLE portHandle = reinterpret_cast<HANDLE>(0x12340);

template <typename Call>
Call Original(const char* name)
{
    return reinterpret_cast<Call>(reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kernel32.dll"), name)));
}

HANDLE WINAPI CreateOrOpen(LPCSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security, DWORD disposition,
                           DWORD attributes, HANDLE likeFile)
{
    if (std::strstr(path, "COM") == nullptr)
        return Original<decltype(&::CreateFileA)>("CreateFileA")(path, access, sharing, security, disposition,
                                                                 attributes, likeFile);
    port.opened.emplace_back(path);
    port.access = access;
    port.sharing = sharing;
    return port.works != FALSE ? portHandle : INVALID_HANDLE_VALUE;
}

BOOL WINAPI Close(HANDLE file)
{
    if (file != portHandle)
        return Original<decltype(&::CloseHandle)>("CloseHandle")(file);
    ++port.closed;
    return port.works;
}

BOOL WINAPI GetSettings(HANDLE file, LPDCB settings)
{
    *settings = port.settings;
    return file == portHandle ? port.works : FALSE;
}

BOOL WINAPI SetSettings(HANDLE file, LPDCB settings)
{
    port.settings = *settings;
    return file == portHandle ? port.works : FALSE;
}

BOOL WINAPI Purge(HANDLE file, DWORD what)
{
    port.purged = what;
    return file == portHandle ? port.works : FALSE;
}

BOOL WINAPI MoveLine(HANDLE file, DWORD function)
{
    port.functions.push_back(function);
    return file == portHandle ? port.works : FALSE;
}

}  // namespace

extern "C"
{
    decltype(&CreateOrOpen) __imp_CreateFileA = CreateOrOpen;
    decltype(&Close) __imp_CloseHandle = Close;
    decltype(&GetSettings) __imp_GetCommState = GetSettings;
    decltype(&SetSettings) __imp_SetCommState = SetSettings;
    decltype(&Purge) __imp_PurgeComm = Purge;
    decltype(&MoveLine) __imp_EscapeCommFunction = MoveLine;
}

namespace tandekor::platform
{

namespace
{

class NativeSerialPortTest : public ::testing::Test
{
protected:
    NativeSerialPortTest() { port = Port(); }
};

class NativeHostFileTest : public ::testing::Test
{
protected:
    NativeHostFileTest() { std::filesystem::create_directory(folder); }
    ~NativeHostFileTest() override { std::filesystem::remove_all(folder); }

    const std::filesystem::path folder
        = std::filesystem::temp_directory_path() / ("tandekor-" + std::to_string(::GetCurrentProcessId()));
    const std::string file = (folder / "f").string();
    const char* const path = file.c_str();
    uint64_t size = 0;
    char bytes[8] = {};
};

}  // namespace

TEST_F(NativeSerialPortTest, IsOpenedByItsNumberForOneUserAlone)
{
    for (const uint16_t number : std::initializer_list<uint16_t>{1, 9, 10, 65535})
        EXPECT_NE(OpenSerialPort(number), invalidSerialHandle);
    EXPECT_EQ(port.opened, (std::vector<std::string>{"COM1", "COM9", R"(\\.\COM10)", R"(\\.\COM65535)"}));
    EXPECT_EQ(port.access, GENERIC_READ | GENERIC_WRITE);
    EXPECT_EQ(port.sharing, 0U);
}

TEST_F(NativeSerialPortTest, IsSetToItsSpeedWithoutFlowControlAndKeepsTheRest)
{
    std::memset(&port.settings, 0xFF, sizeof port.settings);
    EXPECT_TRUE(ConfigureSerialPort(OpenSerialPort(4)));
    const DCB& set = port.settings;
    EXPECT_EQ(set.BaudRate, DWORD{CBR_115200});
    EXPECT_EQ(std::vector<int>({set.ByteSize, set.Parity, set.StopBits}),
              std::vector<int>({8, NOPARITY, ONE5STOPBITS}));
    EXPECT_EQ(set.fOutxCtsFlow | set.fOutxDsrFlow | set.fDsrSensitivity | set.fOutX | set.fInX | set.fNull, 0U);
    EXPECT_EQ(set.fDtrControl, DWORD{DTR_CONTROL_DISABLE});
    EXPECT_EQ(set.fRtsControl, DWORD{RTS_CONTROL_ENABLE});
    EXPECT_EQ(set.XonChar, '\xFF');
}

TEST_F(NativeSerialPortTest, MovesEachLineByItself)
{
    const SerialHandle opened = OpenSerialPort(4);
    EXPECT_TRUE(SetSerialLine(opened, SerialLine::Dtr, true));
    EXPECT_TRUE(SetSerialLine(opened, SerialLine::Dtr, false));
    EXPECT_TRUE(SetSerialLine(opened, SerialLine::Rts, true));
    EXPECT_TRUE(SetSerialLine(opened, SerialLine::Rts, false));
    EXPECT_EQ(port.functions, (std::vector<DWORD>{SETDTR, CLRDTR, SETRTS, CLRRTS}));
    EXPECT_TRUE(PurgeSerialPort(opened));
    EXPECT_EQ(port.purged, DWORD{PURGE_TXCLEAR | PURGE_RXCLEAR});
    EXPECT_TRUE(CloseSerialPort(opened));
    EXPECT_EQ(port.closed, 1);
}

TEST_F(NativeSerialPortTest, ReportsWhatTheSystemRefuses)
{
    for (const SerialHandle refused : {OpenSerialPort(4), invalidSerialHandle})
    {
        port.works = FALSE;
        EXPECT_FALSE(ConfigureSerialPort(refused));
        EXPECT_FALSE(PurgeSerialPort(refused));
        EXPECT_FALSE(SetSerialLine(refused, SerialLine::Dtr, true));
    }
    EXPECT_FALSE(CloseSerialPort(reinterpret_cast<SerialHandle>(portHandle)));
    EXPECT_EQ(OpenSerialPort(4), invalidSerialHandle);
}

TEST_F(NativeHostFileTest, MayBeLargerThanFourGigabytes)
{
    constexpr uint64_t position = (uint64_t{1} << 32) + 3;
    const HANDLE large = ::CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD count = 0;
    ::DeviceIoControl(large, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &count, nullptr);
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(position);
    EXPECT_NE(::SetFilePointerEx(large, place, nullptr, FILE_BEGIN), FALSE);
    EXPECT_NE(::WriteFile(large, "end", 3, &count, nullptr), FALSE);
    ::CloseHandle(large);
    EXPECT_TRUE(FileSize(path, &size));
    EXPECT_EQ(size, position + 3);
    EXPECT_EQ(ReadFromFile(path, position + 1, bytes, sizeof bytes), 2U);
    EXPECT_STREQ(bytes, "nd");
}

TEST_F(NativeHostFileTest, ThatIsHeldByAnotherIsRefused)
{
    EXPECT_TRUE(OverwriteFile(path, "ab", 2));
    const HANDLE held = ::CreateFileA(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_EQ(ReadFromFile(path, 0, bytes, sizeof bytes), 0U);
    EXPECT_FALSE(AppendToFile(path, "cd", 2));
    EXPECT_TRUE(FileSize(path, &size)) << "which may be asked for all the same";
    EXPECT_EQ(size, 2U);
    ::CloseHandle(held);
}

TEST_F(NativeHostFileTest, FoldersAndDevicesAreNoFiles)
{
    const std::string name = folder.string();
    for (const char* special : {"NUL", "COM1", R"(\\.\COM12)", name.c_str()})
    {
        port = Port();
        EXPECT_FALSE(OverwriteFile(special, "ab", 2)) << special;
        EXPECT_FALSE(AppendToFile(special, "ab", 2)) << special;
        EXPECT_FALSE(FileSize(special, &size)) << special;
        EXPECT_EQ(ReadFromFile(special, 0, bytes, sizeof bytes), 0U) << special;
        EXPECT_TRUE(port.opened.empty()) << "opening it moves its lines";
    }
}

}  // namespace tandekor::platform
