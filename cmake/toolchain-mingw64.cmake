# Cross build for 64-bit Windows with Debian's MinGW-w64 (POSIX thread model, which
# std::mutex and std::thread need), tests run through Wine:
#
#   cmake -S . -B build-windows -G Ninja -DSK_BUILD_GUI=OFF \
#         -DCMAKE_TOOLCHAIN_FILE=cmake/toolchain-mingw64.cmake
#
# Only the plain C++ half builds this way; the Qt half needs a Windows Qt.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(SK_MINGW_TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${SK_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${SK_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${SK_MINGW_TRIPLE}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${SK_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The runtime libraries go into every program, so the tests start under Wine without
# a search path for libstdc++, libgcc and winpthread DLLs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# Tests run through Wine. A CTest command naming a target gets this prefix.
find_program(SK_WINE NAMES wine wine64 REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${SK_WINE})

# Header-only packages of the build machine (nlohmann-json) hold nothing that depends
# on the target, but their config files point at /usr/include, which must never reach
# the cross compiler's include path (it would shadow the Windows C headers with glibc's).
# Give the search a private root that holds those packages and nothing else.
get_property(_sk_in_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT _sk_in_try_compile AND CMAKE_BINARY_DIR)
    set(_sk_host_root "${CMAKE_BINARY_DIR}/host-header-packages")
    if(EXISTS /usr/include/nlohmann AND NOT EXISTS "${_sk_host_root}/usr/include/nlohmann")
        file(COPY /usr/include/nlohmann DESTINATION "${_sk_host_root}/usr/include")
        foreach(_sk_dir /usr/share/cmake/nlohmann_json /usr/lib/cmake/nlohmann_json)
            if(EXISTS ${_sk_dir})
                file(COPY ${_sk_dir} DESTINATION "${_sk_host_root}/usr/share/cmake")
            endif()
        endforeach()
    endif()
    list(APPEND CMAKE_FIND_ROOT_PATH "${_sk_host_root}")
endif()
