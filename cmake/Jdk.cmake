# The JDK that the build uses: javac and jar, and the JNI and JVMTI headers that lie beside them. JAVA_HOME, where
# it is set, decides; otherwise the javac on the path does.
#
# Gives: JDK_HOME, JDK_INCLUDE_DIR, JDK_PLATFORM_INCLUDE_DIR, the target Jdk::headers and add_release_jar.

find_package(Java COMPONENTS Development REQUIRED)
include(UseJava)

file(REAL_PATH "${Java_JAVAC_EXECUTABLE}" javac)
cmake_path(GET javac PARENT_PATH javac_folder)
cmake_path(GET javac_folder PARENT_PATH JDK_HOME)
set(JDK_INCLUDE_DIR ${JDK_HOME}/include)

# Also for a macOS library that is built on Linux the JDK is that of the machine that builds: its jni_md.h says the same
# as the one for macOS.
if(CMAKE_HOST_APPLE)
    set(JDK_PLATFORM_INCLUDE_DIR ${JDK_INCLUDE_DIR}/darwin)
else()
    set(JDK_PLATFORM_INCLUDE_DIR ${JDK_INCLUDE_DIR}/linux)
endif()
foreach(header ${JDK_INCLUDE_DIR}/jni.h ${JDK_INCLUDE_DIR}/jvmti.h ${JDK_PLATFORM_INCLUDE_DIR}/jni_md.h)
    if(NOT EXISTS ${header})
        message(FATAL_ERROR "The JDK in ${JDK_HOME} has no ${header}. "
            "Set JAVA_HOME to a whole JDK, 17 or later (Debian: openjdk-17-jdk).")
    endif()
endforeach()

add_library(Jdk::headers INTERFACE IMPORTED)
target_include_directories(Jdk::headers INTERFACE ${JDK_INCLUDE_DIR} ${JDK_PLATFORM_INCLUDE_DIR})

# add_release_jar(NAME RELEASE ...): a jar for the VMs of a Java release and later. The arguments from the third on are
# those of UseJava's add_jar.
function(add_release_jar name release)
    set(CMAKE_JAVA_COMPILE_FLAGS --release ${release} -encoding UTF-8 -Xlint:all -Werror)
    if(release EQUAL 8)
        # Newer compilers warn that 8 is old.
        list(APPEND CMAKE_JAVA_COMPILE_FLAGS -Xlint:-options)
    endif()
    add_jar(${name} ${ARGN})
endfunction()
