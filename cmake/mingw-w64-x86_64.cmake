# Cross-compiles for 64-bit Windows with Debian's mingw-w64 (posix threads).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The libraries that scripts/windows-libs.sh builds.
if(NOT MINDLOFT_WINDOWS_LIBS AND DEFINED ENV{MINDLOFT_WINDOWS_LIBS})
  set(MINDLOFT_WINDOWS_LIBS "$ENV{MINDLOFT_WINDOWS_LIBS}")
endif()
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${MINDLOFT_WINDOWS_LIBS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# try_compile in the toolchain's projects must see the libraries too.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MINDLOFT_WINDOWS_LIBS)
