# Run by CPack in the folder that becomes the package: what Debian wants besides what cmake --install puts there.
set(root "${CPACK_TEMPORARY_DIRECTORY}/usr")
set(doc "${root}/share/doc/quenvale")
file(MAKE_DIRECTORY "${doc}")
file(COPY "${CPACK_QUENVALE_SOURCE}/packaging/copyright" DESTINATION "${doc}"
     FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(COPY_FILE "${CPACK_QUENVALE_SOURCE}/packaging/debian/changelog" "${doc}/changelog.Debian")
file(COPY_FILE "${CPACK_QUENVALE_SOURCE}/CHANGELOG.md" "${doc}/changelog")
execute_process(
    COMMAND gzip -9nf "${doc}/changelog.Debian" "${doc}/changelog" "${root}/share/man/man6/quenvale.6"
    COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY "${root}/share/lintian/overrides")
file(COPY_FILE "${CPACK_QUENVALE_SOURCE}/packaging/debian/quenvale.lintian-overrides"
     "${root}/share/lintian/overrides/quenvale")
execute_process(
    COMMAND strip --remove-section=.comment --remove-section=.note "${root}/games/quenvale"
    COMMAND_ERROR_IS_FATAL ANY)
