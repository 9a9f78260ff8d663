# How CMake builds 64-bit Windows programs on Debian. CSERKO_WINDOWS_PREFIX is where the libraries that were built this
# way are installed; nothing is taken from the system but the tools that run during the build.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(windows_tools x86_64-w64-mingw32)
# Only this variant of the compiler has std::thread.
set(CMAKE_C_COMPILER ${windows_tools}-gcc-posix)
set(CMAKE_CXX_COMPILER ${windows_tools}-g++-posix)
set(CMAKE_RC_COMPILER ${windows_tools}-windres)

# The checks of compiler and libraries are projects of their own and would not know it.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CSERKO_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH /usr/${windows_tools} ${CSERKO_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
