# Where everything goes on a player's machine, and how it is packed.
#
#     cmake --install build/release --prefix ~/quenvale     program, data, manual page, menu entry, icons
#     cmake --preset portable                               one folder instead; tools/release/portable fills it
#     cd build/release && cpack -G DEB                      a package for Debian
#     cpack -G TGZ --config CPackSourceConfig.cmake         the sources, which build without git
#
# tools/release makes all of it, and the portable folder too.
#
# Debian keeps games in /usr/games and their data in /usr/share/games; elsewhere they live in bin and share. The
# program finds its data from its own place, so it may be moved together with it.

include(GNUInstallDirs)

if(EXISTS /usr/games)
    set(games_default ON)
else()
    set(games_default OFF)
endif()
option(QUENVALE_GAMES_FOLDERS "Install to games and share/games, not to bin and share" ${games_default})
option(QUENVALE_PORTABLE "Install one folder that plays from anywhere, with libraries in lib" OFF)
if(QUENVALE_PORTABLE)
    set(program_folder .)
    set(data_folder .)
    # Not a RUNPATH, which would not count for the libraries that SDL loads while it runs.
    set_target_properties(quenvale PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
    target_link_options(quenvale PRIVATE LINKER:--disable-new-dtags)
elseif(QUENVALE_GAMES_FOLDERS)
    set(program_folder games)
    set(data_folder ${CMAKE_INSTALL_DATADIR}/games/quenvale)
else()
    set(program_folder ${CMAKE_INSTALL_BINDIR})
    set(data_folder ${CMAKE_INSTALL_DATADIR}/quenvale)
endif()
set(packaging "${PROJECT_SOURCE_DIR}/packaging")

# The metainfo's list of releases is the changelog's: its headings read "## 0.2.0 (2026-11-23)".
function(quenvale_write_metainfo to)
    file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" headings REGEX "^## [0-9]")
    set(QUENVALE_RELEASES "")
    foreach(heading IN LISTS headings)
        if(NOT heading MATCHES "^## ([0-9.]+) \\(([0-9-]+)\\)$")
            message(FATAL_ERROR "CHANGELOG.md: expected \"## VERSION (YYYY-MM-DD)\", found \"${heading}\"")
        endif()
        string(APPEND QUENVALE_RELEASES "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>\n")
    endforeach()
    configure_file("${packaging}/org.quenvale.Quenvale.metainfo.xml.in" "${to}" @ONLY)
endfunction()

set(made "${PROJECT_BINARY_DIR}/packaging")
quenvale_write_metainfo("${made}/org.quenvale.Quenvale.metainfo.xml")

install(TARGETS quenvale DESTINATION ${program_folder})
foreach(folder Actions data Data images sound)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/assets/${folder}" DESTINATION ${data_folder})
endforeach()
if(QUENVALE_PORTABLE)
    return()
endif()
install(FILES "${packaging}/quenvale.6" DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES "${packaging}/org.quenvale.Quenvale.desktop" DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES "${made}/org.quenvale.Quenvale.metainfo.xml" DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY "${packaging}/icons/hicolor" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

# The package of Debian ------------------------------------------------------------------------------------

set(CPACK_PACKAGE_VENDOR "The Quenvale developers")
set(CPACK_PACKAGE_CONTACT "The Quenvale developers <maintainers@quenvale.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn-based satire about staying in power")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://quenvale.example/)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# What a package of Debian has besides: its own words on copyright, its changelog, compressed manual pages. What
# it recommends and how it describes itself stands once, in packaging/debian/control.
file(READ "${packaging}/debian/control" control)
string(REGEX MATCH "\nRecommends:\n(( [^\n]*\n)+)" found "${control}")
string(REGEX REPLACE "[ \n]+" " " recommends "${CMAKE_MATCH_1}")
string(STRIP "${recommends}" recommends)
string(REGEX REPLACE ",$" "" CPACK_DEBIAN_PACKAGE_RECOMMENDS "${recommends}")
string(REGEX MATCH "\nDescription: [^\n]*\n(( [^\n]*\n?)+)" found "${control}")
string(REGEX REPLACE "(^|\n) \\.?" "\\1" CPACK_PACKAGE_DESCRIPTION "${CMAKE_MATCH_1}")
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackDebian.cmake")
set(CPACK_QUENVALE_SOURCE "${PROJECT_SOURCE_DIR}")

# The sources -----------------------------------------------------------------------------------------------

set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "quenvale-${PROJECT_VERSION}")
set(CPACK_SOURCE_IGNORE_FILES "/build/" "/\\\\.git/" "/__pycache__/" "\\\\.swp$" "/\\\\.cache/")

include(CPack)
