# Cross compiler for Windows, 64 bits: Debian's g++-mingw-w64-x86-64-win32.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(windows_name windows-x64)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
