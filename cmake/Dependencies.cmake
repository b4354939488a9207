# Every library from outside. Name the target on the right in a folder's LINKS:
#
#     window, events, audio   SDL2::SDL2
#     text                    SDL2_ttf::SDL2_ttf
#     pictures                PNG::PNG
#     finding fonts           Fontconfig::Fontconfig
#     display modes           X11::X11  X11::Xrandr
#     UTF-8                   utf8::cpp
#     JSON (console only)     nlohmann_json::nlohmann_json
#     tests, benchmarks       linked by quenvale_test and quenvale_bench
#
# CONTRIBUTING.md says why each is here, tools/setup/packages which Debian package brings it.

if(EMSCRIPTEN)
    include(WebDependencies)
    return()
endif()

find_package(SDL2 2.26 CONFIG REQUIRED)
find_package(SDL2_ttf CONFIG REQUIRED)
find_package(PNG REQUIRED)
find_package(Fontconfig REQUIRED)
find_package(X11 REQUIRED COMPONENTS Xrandr)
find_package(utf8cpp CONFIG REQUIRED)

# Who only plays needs none of these. Left to AUTO, the console, the tests and the benchmarks are built where
# all of it is installed; the presets for tests say ON and so refuse to go on without.
set(QUENVALE_DEVELOPER AUTO CACHE STRING "Build console, tests and benchmarks: ON, OFF or AUTO")
if(QUENVALE_DEVELOPER)
    set(required "")
    if(NOT QUENVALE_DEVELOPER STREQUAL "AUTO")
        set(required REQUIRED)
    endif()
    find_package(nlohmann_json CONFIG QUIET ${required})
    find_package(GTest CONFIG QUIET ${required})
    find_package(benchmark CONFIG QUIET ${required})
    find_package(Python3 QUIET ${required} COMPONENTS Interpreter)
    if(NOT (nlohmann_json_FOUND AND GTest_FOUND AND benchmark_FOUND AND Python3_FOUND))
        message(STATUS "Building the game only; tools/setup/install check brings what the tests need.")
        set(QUENVALE_DEVELOPER OFF)
    endif()
endif()
