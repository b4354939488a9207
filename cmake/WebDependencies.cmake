# The same libraries for the browser, as tools/web/build has compiled them into QUENVALE_WEB_LIBRARIES: under the same
# names, so that no folder needs to know.
set(QUENVALE_WEB_LIBRARIES "${PROJECT_SOURCE_DIR}/build/web/libraries" CACHE PATH "Where tools/web/build put the libraries")

function(quenvale_web_library target file)
    add_library(${target} STATIC IMPORTED GLOBAL)
    set(path "${QUENVALE_WEB_LIBRARIES}/lib/lib${file}.a")
    if(NOT EXISTS "${path}")
        message(FATAL_ERROR "expected ${path}; tools/web/build makes it")
    endif()
    set_target_properties(${target} PROPERTIES IMPORTED_LOCATION "${path}")
    target_include_directories(${target} SYSTEM INTERFACE "${QUENVALE_WEB_LIBRARIES}/include"
                                                          "${QUENVALE_WEB_LIBRARIES}/include/SDL2")
    target_link_libraries(${target} INTERFACE ${ARGN})
endfunction()

quenvale_web_library(ZLIB::ZLIB z)
quenvale_web_library(PNG::PNG png ZLIB::ZLIB)
quenvale_web_library(web_freetype freetype ZLIB::ZLIB)
quenvale_web_library(web_harfbuzz harfbuzz web_freetype)
quenvale_web_library(SDL2::SDL2 SDL2)
quenvale_web_library(SDL2_ttf::SDL2_ttf SDL2_ttf SDL2::SDL2 web_harfbuzz web_freetype)

# Headers only, so the desktop's packages serve both.
add_library(utf8::cpp INTERFACE IMPORTED GLOBAL)
target_include_directories(utf8::cpp SYSTEM INTERFACE /usr/include/utf8cpp)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/headers")
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/headers")
file(CREATE_LINK /usr/include/nlohmann "${PROJECT_BINARY_DIR}/headers/nlohmann" SYMBOLIC)

# The tests and the console become programs for node where the test framework's sources are (tools/web/check brings them).
set(QUENVALE_DEVELOPER OFF)
set(googletest /usr/src/googletest)
if(EXISTS "${googletest}/CMakeLists.txt")
    set(QUENVALE_DEVELOPER ON)
    set(gtest_disable_pthreads ON CACHE BOOL "A page has one thread" FORCE)
    add_subdirectory(${googletest} "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
    foreach(target gtest gtest_main gmock gmock_main)
        set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR OFF)
        target_compile_options(${target} PRIVATE -w)
    endforeach()
endif()
