# How every target of the project is compiled, and the two ways of declaring one.

add_library(vemo_options INTERFACE)
target_include_directories(vemo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(vemo_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow)
if(VEMO_WERROR)
    target_compile_options(vemo_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 warns of overlapping copies and of wrong lengths inside its own std::string.
    target_compile_options(vemo_options INTERFACE -Wno-restrict -Wno-array-bounds
        -Wno-stringop-overflow)
endif()
if(VEMO_SANITIZE OR VEMO_FUZZ)
    # What the tests themselves compute is not worth the time of the second sanitizer.
    set(is_test $<BOOL:$<TARGET_PROPERTY:VEMO_IS_TEST>>)
    target_compile_options(vemo_options INTERFACE -fsanitize=address -fno-omit-frame-pointer
        $<$<NOT:${is_test}>:-fsanitize=undefined> -fno-sanitize-recover=all)
    target_link_options(vemo_options INTERFACE -fsanitize=address,undefined)
endif()
if(VEMO_FUZZ)
    target_compile_options(vemo_options INTERFACE $<$<NOT:${is_test}>:-fsanitize=fuzzer-no-link>)
endif()
if(VEMO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Its time of writing would keep a compiler cache from finding anything again.
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

# vemo_optimise(TARGET NAME): as the build type says, unless NAME is one of those that go without.
function(vemo_optimise target name)
    if(name IN_LIST VEMO_UNOPTIMISED)
        target_compile_options(${target} PRIVATE -O0)
    endif()
endfunction()

# vemo_precompile(TARGET HEADERS ...): the standard headers and these are compiled once. Targets that
# ask for the same, and are of the same type and options, share the result.
function(vemo_precompile target)
    if(NOT VEMO_PRECOMPILE)
        return()
    endif()
    get_target_property(type ${target} TYPE)
    get_target_property(options ${target} COMPILE_OPTIONS)
    string(MD5 key "${type} ${options} ${ARGN}")
    get_property(first GLOBAL PROPERTY VEMO_PRECOMPILED_${key})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
        return()
    endif()
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <filesystem> <functional> <memory>
        <optional> <span> <sstream> <string> <string_view> <thread> <vector> ${ARGN})
    set_property(GLOBAL PROPERTY VEMO_PRECOMPILED_${key} ${target})
endfunction()

# vemo_test_code(TARGET NAME HEADERS ...): compiled as tests are; NAME as for vemo_optimise.
function(vemo_test_code target name)
    vemo_optimise(${target} ${name})
    set_target_properties(${target} PROPERTIES VEMO_IS_TEST ON)
    vemo_precompile(${target} ${ARGN})
endfunction()

# vemo_library(NAME SOURCES ... [DEPENDS other folders' libraries] [PRECOMPILE headers])
function(vemo_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
    add_library(vemo_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(vemo_${name} PUBLIC vemo_options)
    vemo_optimise(vemo_${name} ${name})
    vemo_precompile(vemo_${name} ${ARG_PRECOMPILE})
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(vemo_${name} PUBLIC vemo_${dependency})
    endforeach()
endfunction()

# vemo_test(NAME SOURCES ... DEPENDS libraries [PRECOMPILE headers]): one GoogleTest program, its
# tests listed one by one.
function(vemo_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        VEMO_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data" VEMO_ASSETS="${VEMO_BUILT_ASSETS}")
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(${name} PRIVATE vemo_${dependency})
    endforeach()
    target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
    vemo_test_code(${name} ${name} <gtest/gtest.h> ${ARG_PRECOMPILE})
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})  # each start of an emulator takes its time
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60)
    endif()
endfunction()
