# mingw-w64 for KORVANE_CPU, with the POSIX thread model: the other variant has no std::mutex, so GoogleTest does not
# build with it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${KORVANE_CPU})
set(CMAKE_C_COMPILER ${KORVANE_CPU}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${KORVANE_CPU}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${KORVANE_CPU}-w64-mingw32-windres)
# Resource scripts are UTF-8.
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")
set(CMAKE_FIND_ROOT_PATH /usr/${KORVANE_CPU}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/wine)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
