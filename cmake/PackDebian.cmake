# Read by CPack for each generator: only Debian's package wants its extra files.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PRE_BUILD_SCRIPTS "${CPACK_QUENVALE_SOURCE}/cmake/FinishDebian.cmake")
else()
    set(CPACK_STRIP_FILES OFF)
endif()
