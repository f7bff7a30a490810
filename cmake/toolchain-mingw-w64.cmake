# Cross-builds for Windows x64 with mingw-w64 (posix threads) on Debian, and runs the
# results under wine.
#
#   cmake -S . -B build/windows -DCMAKE_TOOLCHAIN_FILE=$PWD/cmake/toolchain-mingw-w64.cmake
#
# Packages: g++-mingw-w64-x86-64-posix, libz-mingw-w64-dev, wine64, rapidjson-dev,
# libboost-dev, googletest (scripts/test-windows installs them).

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(HRM_MINGW_TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${HRM_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${HRM_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${HRM_MINGW_TRIPLE}-windres)

# Libraries and headers come from the mingw sysroot only, never from the Linux system.
set(CMAKE_FIND_ROOT_PATH /usr/${HRM_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# zlib goes into the DLL, so that it needs no zlib1.dll beside it.
set(ZLIB_USE_STATIC_LIBS ON)

get_property(HRM_IN_TRY_COMPILE GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT HRM_IN_TRY_COMPILE)
    # RapidJSON, CLI11 and the parts of Boost we use are header-only and the same for every target,
    # so the Linux copies serve; they are staged in a folder of their own, because putting all
    # of /usr/include on the include path would pull Linux system headers into the build.
    set(HRM_HOST_HEADERS ${CMAKE_BINARY_DIR}/host-headers)
    foreach(library rapidjson boost CLI)
        if(NOT EXISTS ${HRM_HOST_HEADERS}/${library})
            file(MAKE_DIRECTORY ${HRM_HOST_HEADERS})
            file(CREATE_LINK /usr/include/${library} ${HRM_HOST_HEADERS}/${library} SYMBOLIC)
        endif()
    endforeach()
    set(RAPIDJSON_INCLUDE_DIR ${HRM_HOST_HEADERS} CACHE PATH "RapidJSON headers")
    set(Boost_INCLUDE_DIR ${HRM_HOST_HEADERS} CACHE PATH "Boost headers")
    set(CLI11_INCLUDE_DIR ${HRM_HOST_HEADERS} CACHE PATH "CLI11 headers (the hrm tool)")
    set(Boost_NO_BOOST_CMAKE ON)

    # Windows executables (also those that gtest_discover_tests lists at build time) run
    # under wine, in a prefix of their own inside the build folder.
    set(HRM_WINEPREFIX ${CMAKE_BINARY_DIR}/wineprefix CACHE PATH "wine prefix for running the tests")
    find_program(HRM_WINE NAMES wine64 PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
    if(HRM_WINE)
        set(CMAKE_CROSSCOMPILING_EMULATOR
            env WINEPREFIX=${HRM_WINEPREFIX} WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= ${HRM_WINE})
    endif()
endif()
