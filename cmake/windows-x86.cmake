# Cross compiler for Windows, 32 bits: Debian's g++-mingw-w64-i686-win32.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(windows_name windows-x86)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
