# The JDK that the build uses: javac and jar, and the JNI and JVMTI headers that lie beside them. JAVA_HOME, where
# it is set, decides; otherwise the javac on the path does.
#
# Gives: UseJava's add_jar, JDK_HOME, JDK_INCLUDE_DIR and the target Jdk::headers.

find_package(Java COMPONENTS Development REQUIRED)
include(UseJava)

file(REAL_PATH "${Java_JAVAC_EXECUTABLE}" javac)
cmake_path(GET javac PARENT_PATH javac_folder)
cmake_path(GET javac_folder PARENT_PATH JDK_HOME)
set(JDK_INCLUDE_DIR ${JDK_HOME}/include)

if(APPLE)
    set(jdk_platform_headers ${JDK_INCLUDE_DIR}/darwin)
else()
    set(jdk_platform_headers ${JDK_INCLUDE_DIR}/linux)
endif()
foreach(header ${JDK_INCLUDE_DIR}/jni.h ${JDK_INCLUDE_DIR}/jvmti.h ${jdk_platform_headers}/jni_md.h)
    if(NOT EXISTS ${header})
        message(FATAL_ERROR "The JDK in ${JDK_HOME} has no ${header}. "
            "Set JAVA_HOME to a whole JDK, 17 or later (Debian: openjdk-17-jdk).")
    endif()
endforeach()

add_library(Jdk::headers INTERFACE IMPORTED)
target_include_directories(Jdk::headers INTERFACE ${JDK_INCLUDE_DIR} ${jdk_platform_headers})

# Java sources are compiled for Java 8, whatever the JDK; newer ones remark on the age of that, hence -options.
set(CMAKE_JAVA_COMPILE_FLAGS --release 8 -encoding UTF-8 -Xlint:all,-options -Werror)
