# The few functions with which every folder's CMakeLists.txt is written.
#
#     quenvale_library(quenvale_core
#         SOURCES chance.cpp game_state.cpp
#         LINKS   quenvale_files quenvale_toolkit utf8::cpp)
#
#     quenvale_header_library(quenvale_look LINKS quenvale_toolkit)         a folder without .cpp files
#     quenvale_program(quenvale SOURCES main.cpp LINKS quenvale_app)        build/<preset>/quenvale
#     quenvale_test(core_test SOURCES chance_test.cpp LINKS quenvale_core)  GoogleTest, one ctest entry a TEST
#     quenvale_script_test(e2e_title COMMAND title.py --fast)               a script as a test
#     quenvale_bench(month_bench SOURCES month.cpp LINKS quenvale_app)      Google Benchmark, not a test
#     quenvale_fuzzer(records_fuzz SOURCES records.cpp LINKS quenvale_files READERS cards)
#
# Includes start at src/: #include "ui/toolkit/form.h". In tests/ and tools/ they also start there.
# LINKS names every folder of ours, and every library from outside, from which the files include something:
# tools/lint/includes fails when a file includes a header of a folder that its target does not name.

# The standard headers that most of our files include, compiled once and reused by every target.
function(quenvale_prepare_headers name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LINKS")
    file(WRITE "${PROJECT_BINARY_DIR}/${name}.cpp.new" "// Here only to carry the precompiled header.\n")
    file(COPY_FILE "${PROJECT_BINARY_DIR}/${name}.cpp.new" "${PROJECT_BINARY_DIR}/${name}.cpp" ONLY_IF_DIFFERENT)
    add_library(${name} OBJECT "${PROJECT_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE ${arg_LINKS})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

set(standard_headers
    <algorithm> <array> <chrono> <cstddef> <cstdint> <filesystem> <functional> <map> <memory> <optional>
    <span> <string> <string_view> <utility> <variant> <vector>)
quenvale_prepare_headers(quenvale_headers HEADERS ${standard_headers})
if(QUENVALE_DEVELOPER)
    quenvale_prepare_headers(quenvale_test_headers
        HEADERS ${standard_headers} <gmock/gmock.h> <gtest/gtest.h>
        LINKS   GTest::gmock)
endif()

# Refuses a link to what is not there yet, so that arrows between folders only point downward, and keeps the rest
# for tools/lint/includes.
function(quenvale_note_links target)
    foreach(link IN LISTS ARGN)
        if(NOT TARGET ${link})
            message(FATAL_ERROR "${target} links ${link}, which no folder before it in the top CMakeLists.txt "
                                "makes and cmake/Dependencies.cmake does not find.")
        endif()
    endforeach()
    file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
    set_property(GLOBAL APPEND_STRING PROPERTY QUENVALE_ARROWS "${target} ${folder} ${ARGN}\n")
endfunction()

# Where includes start for a folder: at src/, and for tests/core or tools/console also at tests/ or tools/.
function(quenvale_include_roots result)
    file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
    string(REGEX REPLACE "/.*" "" top "${folder}")
    set(roots "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/${top}")
    list(REMOVE_DUPLICATES roots)
    set(${result} "${roots}" PARENT_SCOPE)
endfunction()

# What all targets with sources have in common: includes, the precompiled header, links.
function(quenvale_set_up target scope headers)
    cmake_parse_arguments(PARSE_ARGV 3 arg "" "" "SOURCES;LINKS")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_SOURCES)
        message(FATAL_ERROR "${target}: expected SOURCES ... LINKS ..., found: ${ARGN}")
    endif()
    quenvale_note_links(${target} ${arg_LINKS})
    quenvale_include_roots(roots)
    target_sources(${target} PRIVATE ${arg_SOURCES})
    target_include_directories(${target} ${scope} ${roots})
    target_precompile_headers(${target} REUSE_FROM ${headers})
    target_link_libraries(${target} ${scope} ${arg_LINKS})
endfunction()

# A folder of src/ or of tools/ that others link.
function(quenvale_library target)
    add_library(${target} STATIC)
    quenvale_set_up(${target} PUBLIC quenvale_headers ${ARGN})
endfunction()

# A folder that is only headers; it links what the includes in them need.
function(quenvale_header_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
    quenvale_note_links(${target} ${arg_LINKS})
    quenvale_include_roots(roots)
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE ${roots})
    target_link_libraries(${target} INTERFACE ${arg_LINKS})
endfunction()

# A program in build/<preset>/.
function(quenvale_program target)
    add_executable(${target})
    quenvale_set_up(${target} PRIVATE quenvale_headers ${ARGN})
endfunction()

# What is compiled for a browser as a program for node, on the machine's own files.
function(quenvale_for_node target)
    target_link_options(${target} PRIVATE
        -sENVIRONMENT=node -sNODERAWFS -sALLOW_MEMORY_GROWTH -sEXIT_RUNTIME -sUSE_SDL=0
        --pre-js "${PROJECT_SOURCE_DIR}/tests/web/node.js")
endfunction()

# A program of GoogleTest cases in build/<preset>/tests/. It has main() already.
function(quenvale_test target)
    add_executable(${target})
    quenvale_set_up(${target} PRIVATE quenvale_test_headers ${ARGN})
    target_link_libraries(${target} PRIVATE GTest::gmock_main)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
    if(EMSCRIPTEN)
        quenvale_for_node(${target})
        add_dependencies(node_tests ${target})
        add_test(NAME ${target} COMMAND ${target} --gtest_brief=1 --gtest_filter=-${QUENVALE_NOT_FOR_NODE}
            WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
        set_tests_properties(${target} PROPERTIES TIMEOUT 120)
        return()
    endif()
    gtest_discover_tests(${target}
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        PROPERTIES TIMEOUT 120
        DISCOVERY_TIMEOUT 60)
endfunction()

# A script as a test; it passes when it ends with status 0, and is skipped when it ends with 77. A .py file is
# run by Python 3, anything else by itself. It starts in its own folder, with no display, and finds there:
#     QUENVALE           the game program (build/<preset>/quenvale)
#     QUENVALE_CONSOLE   the console program
#     QUENVALE_SOURCE    the top of the source tree
#     QUENVALE_BUILD     the build folder
function(quenvale_script_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "COMMAND;LABELS")
    list(POP_FRONT arg_COMMAND script)
    cmake_path(ABSOLUTE_PATH script BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    if(script MATCHES "\\.py$")
        set(script "${Python3_EXECUTABLE}" "${script}")
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    set(environment
        "QUENVALE=${PROJECT_BINARY_DIR}/quenvale"
        "QUENVALE_CONSOLE=${PROJECT_BINARY_DIR}/quenvale-console"
        "QUENVALE_SOURCE=${PROJECT_SOURCE_DIR}"
        "QUENVALE_BUILD=${PROJECT_BINARY_DIR}")
    add_test(NAME ${name} COMMAND ${script} ${arg_COMMAND} WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        SKIP_RETURN_CODE 77
        LABELS "${arg_LABELS}"
        ENVIRONMENT "${environment}"
        ENVIRONMENT_MODIFICATION "DISPLAY=unset:;WAYLAND_DISPLAY=unset:")
endfunction()

# A program of benchmarks in build/<preset>/bench/. It has main() already.
function(quenvale_bench target)
    add_executable(${target})
    quenvale_set_up(${target} PRIVATE quenvale_headers ${ARGN})
    target_link_libraries(${target} PRIVATE benchmark::benchmark_main)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bench")
endfunction()

# A fuzzer, which defines LLVMFuzzerInitialize and LLVMFuzzerTestOneInput. The preset fuzz makes it a libFuzzer
# program in build/fuzz/fuzz/; the others make it a test that tries each file of its folders once. fuzz/run knows
# which.
function(quenvale_fuzzer target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;READERS")
    if(NOT QUENVALE_FUZZ)
        list(APPEND arg_SOURCES replay.cpp)
    endif()
    add_executable(${target})
    quenvale_set_up(${target} PRIVATE quenvale_headers SOURCES ${arg_SOURCES} LINKS ${arg_LINKS})
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzz")
    if(QUENVALE_FUZZ)
        target_link_options(${target} PRIVATE -fsanitize=fuzzer)
        return()
    endif()
    foreach(reader IN LISTS arg_READERS)
        quenvale_script_test(fuzz_${reader} COMMAND run --replay ${reader})
    endforeach()
endfunction()

# Tells tools/lint/includes who links whom: one line a target, "name folder link;link".
function(quenvale_write_arrows)
    get_property(arrows GLOBAL PROPERTY QUENVALE_ARROWS)
    file(WRITE "${PROJECT_BINARY_DIR}/arrows.txt" "${arrows}")
endfunction()

if(QUENVALE_DEVELOPER)
    include(GoogleTest)
endif()
