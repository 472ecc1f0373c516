# Read by CPack once for each kind of package: Debian's goes to /usr, the archive is a folder of its own.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()
