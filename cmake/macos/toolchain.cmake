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
# ar makes no index of universal files.
set(CMAKE_CXX_ARCHIVE_CREATE "${llvm}/llvm-libtool-darwin -static -o <TARGET> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_APPEND "")
set(CMAKE_CXX_ARCHIVE_FINISH "")
set(CMAKE_INSTALL_NAME_TOOL ${llvm}/llvm-install-name-tool)
# What runs on this machine is not for macOS.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# In the place of Apple's SDK: what the linker has to know of two frameworks.
set(CMAKE_OSX_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/sdk CACHE PATH "")
# Of this system's headers, CLI11's and no others.
set(CLI11_INCLUDE_DIR ${CMAKE_CURRENT_LIST_DIR}/../../build/macos-headers CACHE PATH "")
file(MAKE_DIRECTORY ${CLI11_INCLUDE_DIR})
file(CREATE_LINK /usr/include/CLI ${CLI11_INCLUDE_DIR}/CLI SYMBOLIC)
# The declarations of Carbon and Quartz that the keyboard's tests have.
set(CMAKE_CXX_FLAGS_INIT "-isystem ${CMAKE_CURRENT_LIST_DIR}/../../tests/carbon")
# An arm64 Mac runs no code without a signature. The map to debug information, which the C++ library's files would get,
# has their times in it.
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,-adhoc_codesign -Wl,-S")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${CMAKE_SHARED_LINKER_FLAGS_INIT})
