# What differs between the packages.

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL Unspecified games system-fonts)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(CPACK_COMPONENTS_ALL Unspecified programs own-fonts)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON) # it unpacks into a folder of its own
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()
