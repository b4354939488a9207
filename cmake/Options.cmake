# How our own code is compiled. The presets in CMakePresets.json set the options below.

option(QUENVALE_IPO "Optimise across files when linking" OFF)
option(QUENVALE_COVERAGE "Count the lines that run (gcov)" OFF)
option(QUENVALE_FUZZ "Build the fuzzers (clang only)" OFF)
set(QUENVALE_SANITIZE "" CACHE STRING "Sanitizers, for example address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")

if(NOT DEFINED CMAKE_COMPILE_WARNING_AS_ERROR)
    set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
add_compile_options(-fno-math-errno)  # nobody asks errno about a rounding, so that it may be one instruction

# Nothing in what the player gets tells where it was built.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")

# What the system offers against a fault that somebody turns into a weapon; tools/lint/binary looks whether it
# is in the program. The sanitizers see more and do not go together with it.
set(CMAKE_SKIP_BUILD_RPATH ON)
if(EMSCRIPTEN)
    # The browser's sandbox stands in for all of it. Exceptions and setjmp are the engine's own.
    add_compile_options(-fwasm-exceptions -sSUPPORT_LONGJMP=wasm)
    add_link_options(-fwasm-exceptions -sSUPPORT_LONGJMP=wasm)
elseif(NOT QUENVALE_SANITIZE AND NOT QUENVALE_COVERAGE)
    add_compile_options(-fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS)
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
        add_compile_options(-fcf-protection=full)
    endif()
    add_link_options(-pie LINKER:-z,relro,-z,now LINKER:--as-needed)
endif()

if(QUENVALE_SANITIZE)
    add_compile_options(-fsanitize=${QUENVALE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUENVALE_SANITIZE})
endif()
if(QUENVALE_SANITIZE MATCHES "integer")
    # All places are listed in one run; UBSAN_OPTIONS=halt_on_error=1 stops at the first.
    add_compile_options(-fsanitize-recover=all "-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/MayWrap.txt")
endif()
if(QUENVALE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(QUENVALE_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
if(QUENVALE_IPO)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
endif()

# ccache makes the second build of the same text nearly free. It trusts a precompiled header only when it
# is told to, and the header must not carry the time at which it was made.
find_program(CCACHE ccache)
mark_as_advanced(CCACHE)
if(CCACHE AND NOT EMSCRIPTEN)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "${CCACHE}")
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    else()
        add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
    endif()
endif()
