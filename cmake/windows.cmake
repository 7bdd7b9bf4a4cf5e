# What the cross compilers for Windows share; CMAKE_SYSTEM_PROCESSOR begins the names of their tools. The libraries are
# built with the thread model "win32", whose code is smaller and runs on older systems; it has no std::thread, so that
# programs are built with "posix".
set(CMAKE_SYSTEM_NAME Windows)
if(NOT DEFINED thread_model)
    set(thread_model win32)
endif()
set(prefix ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-${thread_model})
set(CMAKE_CXX_COMPILER ${prefix}-g++-${thread_model})
set(CMAKE_RC_COMPILER ${prefix}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
