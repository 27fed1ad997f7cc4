# `cpack` in the build directory makes two .debs on Debian, one with the client and one with what
# developers of hosts need, and a disk image with the application bundle on macOS.
set(CPACK_PACKAGE_NAME tradeclient)
set(CPACK_PACKAGE_VENDOR "KivoTrade")
set(CPACK_PACKAGE_CONTACT "KivoTrade <maintainers@kivotrade.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop stock-trading client")
set(CPACK_STRIP_FILES ON)

if(APPLE)
    set(CPACK_GENERATOR DragNDrop)
    set(CPACK_COMPONENTS_ALL runtime)
    set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_COMPONENTS_ALL runtime sdk)
    set(CPACK_COMPONENTS_GROUPING IGNORE)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME tradeclient)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION misc)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-noto-cjk)
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
        "Shows the trading parameters of a stock-trading desk and lets a trader change
them: what an order starts with, how large orders are split, which hotkeys do
what.")
    # The loader's list of libraries is renewed.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/client/linux/triggers)
    set(CPACK_DEBIAN_SDK_PACKAGE_NAME tradeclient-sdk)
    set(CPACK_DEBIAN_SDK_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_SDK_PACKAGE_DEPENDS "tradeclient (= ${PROJECT_VERSION}), qtbase5-dev")
    set(CPACK_COMPONENT_SDK_DESCRIPTION
        "What a program needs that loads the settings module of the trading client:
headers of module and skin service, CMake package and pkg-config file,
translations, the plugin for Qt Designer, and a small host as an example.")
endif()
include(CPack)
