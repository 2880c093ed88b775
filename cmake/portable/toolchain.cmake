# Makes the library and the commands for old Linux distributions: cmake --preset portable. The C library's version is
# in c++, beside this file.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tools ${CMAKE_CURRENT_LIST_DIR}/../../build/cross-tools)
set(llvm /usr/lib/llvm-16/bin)
foreach(tool ${tools}/linux/libc_library.a ${llvm}/ld.lld ${llvm}/llvm-ar)
    if(NOT EXISTS ${tool})
        message(FATAL_ERROR "What makes the portable library is not here; scripts/setup portable installs it.")
    endif()
endforeach()

set(CMAKE_CXX_COMPILER ${CMAKE_CURRENT_LIST_DIR}/c++)
set(CMAKE_AR ${llvm}/llvm-ar)
set(CMAKE_RANLIB ${llvm}/llvm-ranlib)

# Other libraries are linked in: not every distribution has them, or the same.
set(VANTREL_STATIC_LIBRARIES ON)
