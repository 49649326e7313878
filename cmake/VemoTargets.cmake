# How every target of the project is compiled, and the two ways of declaring one.

add_library(vemo_options INTERFACE)
target_include_directories(vemo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(vemo_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
if(VEMO_WERROR)
    target_compile_options(vemo_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 warns of overlapping copies inside its own std::string::operator+.
    target_compile_options(vemo_options INTERFACE -Wno-restrict)
endif()
if(VEMO_SANITIZE OR VEMO_FUZZ)
    target_compile_options(vemo_options INTERFACE -fsanitize=address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vemo_options INTERFACE -fsanitize=address,undefined)
endif()
if(VEMO_FUZZ)
    target_compile_options(vemo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(VEMO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Its time of writing would keep a compiler cache from finding anything again.
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

# vemo_precompile(TARGET HEADERS ...): these once for the target, where that is asked for.
function(vemo_precompile target)
    if(VEMO_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
set(VEMO_STANDARD_HEADERS <algorithm> <array> <filesystem> <functional> <memory> <optional> <span>
    <sstream> <string> <string_view> <thread> <vector>)

# vemo_library(NAME SOURCES ... [DEPENDS other folders' libraries])
function(vemo_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(vemo_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(vemo_${name} PUBLIC vemo_options)
    if(NOT name STREQUAL "qt")
        vemo_precompile(vemo_${name} ${VEMO_STANDARD_HEADERS})
    endif()
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(vemo_${name} PUBLIC vemo_${dependency})
    endforeach()
endfunction()

# vemo_test(NAME SOURCES ... DEPENDS libraries): one GoogleTest program, its tests listed one by one.
function(vemo_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        VEMO_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data" VEMO_ASSETS="${VEMO_BUILT_ASSETS}")
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(${name} PRIVATE vemo_${dependency})
    endforeach()
    target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
    vemo_precompile(${name} ${VEMO_STANDARD_HEADERS} <gtest/gtest.h>)
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})  # each start of an emulator takes its time
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60)
    endif()
endfunction()
