# What the build needs besides the compiler and the JDK; scripts/setup installs it on Debian.
#
# Gives: Cli11::headers, Xcb_INCLUDE_DIRS (not on macOS); without VANTREL_SYSTEM_ONLY: PkgConfig::Deflate,
# PkgConfig::Zlib, Threads::Threads (static libraries, with VANTREL_STATIC_LIBRARIES); and where the tests are built:
# GTest::gmock, GTest::gtest_main, PkgConfig::Zip, PkgConfig::XcbTest, and the files JUNIT4_JAR, HAMCREST_JAR,
# MIGLAYOUT_SWING_JAR and MIGLAYOUT_CORE_JAR.

if(NOT APPLE)
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(Xcb REQUIRED xcb)
endif()

find_path(CLI11_INCLUDE_DIR CLI/CLI.hpp REQUIRED)
add_library(Cli11::headers INTERFACE IMPORTED)
target_include_directories(Cli11::headers SYSTEM INTERFACE ${CLI11_INCLUDE_DIR})
if(VANTREL_SYSTEM_ONLY)
    return()
endif()

find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
if(VANTREL_STATIC_LIBRARIES)
    set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
endif()
pkg_check_modules(Deflate REQUIRED IMPORTED_TARGET libdeflate)
pkg_check_modules(Zlib REQUIRED IMPORTED_TARGET zlib)

if(VANTREL_TESTS)
    find_package(GTest REQUIRED)
    pkg_check_modules(Zip REQUIRED IMPORTED_TARGET libzip)
    pkg_check_modules(XcbTest REQUIRED IMPORTED_TARGET xcb xcb-xtest)
    find_file(JUNIT4_JAR junit4.jar PATHS /usr/share/java REQUIRED)
    find_file(HAMCREST_JAR hamcrest.jar PATHS /usr/share/java REQUIRED)
    find_file(MIGLAYOUT_SWING_JAR miglayout-swing.jar PATHS /usr/share/java REQUIRED)
    find_file(MIGLAYOUT_CORE_JAR miglayout-core.jar PATHS /usr/share/java REQUIRED)
endif()
