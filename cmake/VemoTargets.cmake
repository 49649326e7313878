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

# Programs are compiled as the libraries are, so that they share precompiled headers.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

# vemo_precompile(TARGET HEADERS ...): the standard headers and these are compiled once, where there
# are any. Targets that ask for the same and have the same options share the result.
function(vemo_precompile target)
    if(NOT VEMO_PRECOMPILE OR NOT ARGN)
        return()
    endif()
    get_target_property(is_test ${target} VEMO_IS_TEST)
    get_target_property(options ${target} COMPILE_OPTIONS)
    set(type)
    if(WIN32)
        get_target_property(type ${target} TYPE)  # Qt defines a macro there for programs alone
    endif()
    string(MD5 key "${type} ${is_test} ${options} ${ARGN}")
    get_property(first GLOBAL PROPERTY VEMO_PRECOMPILED_${key})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
        return()
    endif()
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <filesystem> <functional> <memory>
        <optional> <span> <sstream> <string> <string_view> <thread> <vector> ${ARGN})
    set_property(GLOBAL PROPERTY VEMO_PRECOMPILED_${key} ${target})
endfunction()

# vemo_compile(TARGET NAME HEADERS ...): with these precompiled, and optimised as the build type says
# unless NAME is one of those that go without.
function(vemo_compile target name)
    if(name IN_LIST VEMO_UNOPTIMISED)
        target_compile_options(${target} PRIVATE -O0)
    endif()
    vemo_precompile(${target} ${ARGN})
endfunction()

# vemo_test_code(TARGET NAME HEADERS ...): compiled as tests are; NAME is `tests` or `long_tests`.
function(vemo_test_code target name)
    set_target_properties(${target} PROPERTIES VEMO_IS_TEST ON)
    vemo_compile(${target} ${name} ${ARGN})
endfunction()

# vemo_library(NAME SOURCES ... [DEPENDS other folders' libraries] [PRECOMPILE headers])
function(vemo_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
    add_library(vemo_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(vemo_${name} PUBLIC vemo_options)
    vemo_compile(vemo_${name} ${name} ${ARG_PRECOMPILE})
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(vemo_${name} PUBLIC vemo_${dependency})
    endforeach()
endfunction()

# vemo_test(NAME [LONG] SOURCES ... DEPENDS libraries [PRECOMPILE headers]): one GoogleTest program,
# run test by test or in VEMO_TEST_SHARDS parts. A LONG one is worth optimising.
function(vemo_test name)
    cmake_parse_arguments(ARG "LONG" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
    set(kind tests)
    if(ARG_LONG)
        set(kind long_tests)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        VEMO_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data" VEMO_ASSETS="${VEMO_BUILT_ASSETS}")
    foreach(dependency ${ARG_DEPENDS})
        target_link_libraries(${name} PRIVATE vemo_${dependency})
    endforeach()
    target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
    vemo_test_code(${name} ${kind} <gtest/gtest.h> <solver/solver.h> ${ARG_PRECOMPILE})
    if(CMAKE_CROSSCOMPILING)
        add_test(NAME ${name} COMMAND ${name})  # each start of an emulator takes its time
    elseif(VEMO_TEST_SHARDS GREATER 0)
        foreach(shard RANGE 1 ${VEMO_TEST_SHARDS})
            math(EXPR index "${shard} - 1")
            add_test(NAME ${name}_${shard} COMMAND ${name})
            set_tests_properties(${name}_${shard} PROPERTIES ENVIRONMENT
                "GTEST_TOTAL_SHARDS=${VEMO_TEST_SHARDS};GTEST_SHARD_INDEX=${index}")
        endforeach()
    else()
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60)
    endif()
endfunction()
