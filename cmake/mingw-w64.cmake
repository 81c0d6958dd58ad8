# Builds for 64-bit Windows with Debian's MinGW-w64, see platform/windows/test.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The one of its variants that has threads as C++ wants them.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Programs that need no libraries beside them, as they run from the build folder.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(ZLIB_USE_STATIC_LIBS ON)

# Nothing of this computer's own; what platform/windows/test builds lies in CMAKE_PREFIX_PATH.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(TARNEL_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(TARNEL_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${TARNEL_WINE})
endif()
