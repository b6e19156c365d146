# Flags that hold for every target. -ffp-contract=off: a fused multiply-add would give other last
# bits on processors that have it, and a result never depends on the processor.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

add_library(morvane_options INTERFACE)
target_compile_options(morvane_options INTERFACE
    -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # The vocabulary has names with a leading underscore.
    target_compile_options(morvane_options INTERFACE -Wno-reserved-identifier)
else()
    target_compile_options(morvane_options INTERFACE -Wduplicated-cond -Wlogical-op -Wuseless-cast)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 sees an overlap in every "text" + std::string at -O3 (its bug 105651).
        target_compile_options(morvane_options INTERFACE -Wno-restrict)
    endif()
endif()
if(MORVANE_SANITIZE)
    target_compile_options(morvane_options INTERFACE -fsanitize=${MORVANE_SANITIZE}
        -fno-omit-frame-pointer -fno-sanitize-recover=all)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
        # GCC's flow warnings misfire in instrumented code.
        target_compile_options(morvane_options INTERFACE -Wno-maybe-uninitialized)
    endif()
    target_link_options(morvane_options INTERFACE -fsanitize=${MORVANE_SANITIZE})
endif()
target_include_directories(morvane_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
