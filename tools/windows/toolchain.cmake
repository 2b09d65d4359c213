# Debian's MinGW-w64 compilers, for CMake. QUILLMETRA_WINDOWS_LIBRARIES, of the environment, names the folder of the
# libraries that build.sh makes; programs that run while building are the machine's own.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 $ENV{QUILLMETRA_WINDOWS_LIBRARIES}/prefix)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's own build tools are those of the machine's Qt, of the same version.
set(QT_HOST_PATH /usr)
file(GLOB host_packages /usr/lib/*/cmake/Qt6HostInfo)
if(host_packages)
  get_filename_component(QT_HOST_PATH_CMAKE_DIR ${host_packages} DIRECTORY)
  set(Qt6HostInfo_DIR ${host_packages})
endif()

# A test program is asked for its tests when they are played, not at the end of every build.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
set(CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE PRE_TEST)
