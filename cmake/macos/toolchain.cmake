# Makes the macOS library on Linux: cmake --preset macos-cross. docs/macos.md says how.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tools ${CMAKE_CURRENT_LIST_DIR}/../../build/cross-tools)
set(llvm /usr/lib/llvm-16/bin)
foreach(tool ${tools}/arm64/libc++.a ${llvm}/ld64.lld ${llvm}/llvm-lipo)
    if(NOT EXISTS ${tool})
        message(FATAL_ERROR "What makes the macOS library is not here; scripts/setup macos installs it.")
    endif()
endforeach()

set(CMAKE_CXX_COMPILER ${CMAKE_CURRENT_LIST_DIR}/c++)
set(CMAKE_AR ${llvm}/llvm-ar)
set(CMAKE_RANLIB ${llvm}/llvm-ranlib)
# libtool makes static libraries, because ar makes no index of universal files.
set(CMAKE_CXX_ARCHIVE_CREATE "${llvm}/llvm-libtool-darwin -static -o <TARGET> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_APPEND "")
set(CMAKE_CXX_ARCHIVE_FINISH "")
set(CMAKE_INSTALL_NAME_TOOL ${llvm}/llvm-install-name-tool)
# CMake tries the compiler by making a program and running it. Programs for macOS do not run here, so it makes a
# library.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# Instead of Apple's SDK: the names that the linker has to know of two frameworks.
set(CMAKE_OSX_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/sdk CACHE PATH "")
# The compiler is to see CLI11's headers and no other ones of this system.
set(CLI11_INCLUDE_DIR ${CMAKE_CURRENT_LIST_DIR}/../../build/macos-headers CACHE PATH "")
file(MAKE_DIRECTORY ${CLI11_INCLUDE_DIR})
file(CREATE_LINK /usr/include/CLI ${CLI11_INCLUDE_DIR}/CLI SYMBOLIC)
# The declarations of Carbon and Quartz that the keyboard's tests have.
set(CMAKE_CXX_FLAGS_INIT "-isystem ${CMAKE_CURRENT_LIST_DIR}/../../tests/carbon")
# An arm64 Mac runs no code without a signature. Without -S the linker would add a map to debug information with the
# times of the C++ library's files in it, and two builds would differ.
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,-adhoc_codesign -Wl,-S")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${CMAKE_SHARED_LINKER_FLAGS_INIT})
