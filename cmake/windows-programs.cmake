# Cross compiler for Windows programs, 64 bits: Debian's g++-mingw-w64-x86-64-posix. What is built runs under Wine.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(thread_model posix)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)
