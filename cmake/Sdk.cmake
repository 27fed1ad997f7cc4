# The component "sdk": headers, CMake package, pkg-config file; translations/ and designer/ add
# theirs. Its libraries are those of the component "runtime", but on macOS.
include(CMakePackageConfigHelpers)

install(FILES
    tradeConfig/ITrade.h
    tradeConfig/ModuleEntry.h
    tradeConfig/platform/HostPlatform.h
    tradeConfig/skin/CSkin.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tradeConfig COMPONENT sdk)
# What is not in tradeConfig/ itself is found under its name in this tree too, by a header that
# includes the one above: a compiler takes two copies of one header for two headers.
foreach(header platform/HostPlatform.h skin/CSkin.h)
    get_filename_component(directory ${header} DIRECTORY)
    get_filename_component(name ${header} NAME)
    set(forwarding ${PROJECT_BINARY_DIR}/sdk/${header})
    file(CONFIGURE OUTPUT ${forwarding} CONTENT "#include \"../${name}\"\n" @ONLY)
    install(FILES ${forwarding}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tradeConfig/${directory} COMPONENT sdk)
endforeach()
install(FILES tradeConfig/skin/SkinKeys.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tradeConfig/skin COMPONENT sdk)
install(FILES libskin/SkinExport.h libskin/SkinLibrary.h libskin/SkinTable.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/libskin COMPONENT sdk)

if(APPLE)
    # The libraries in the bundle load the Qt in the bundle. A host has a Qt of its own.
    install(TARGETS tradeConfig skin EXPORT tradeConfigTargets
        LIBRARY DESTINATION ${SDK_LIBDIR} COMPONENT sdk)
    install(DIRECTORY libskin/skins/ DESTINATION ${SDK_DATADIR}/tradeConfig/skins COMPONENT sdk)
endif()

set(package_directory ${SDK_LIBDIR}/cmake/tradeConfig)
install(EXPORT tradeConfigTargets NAMESPACE tradeConfig::
    DESTINATION ${package_directory} COMPONENT sdk)
configure_package_config_file(cmake/tradeConfigConfig.cmake.in
    ${PROJECT_BINARY_DIR}/tradeConfigConfig.cmake
    INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tradeConfigConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/tradeConfigConfig.cmake
    ${PROJECT_BINARY_DIR}/tradeConfigConfigVersion.cmake
    DESTINATION ${package_directory} COMPONENT sdk)

file(RELATIVE_PATH PC_PREFIX_FROM_PCDIR
    /prefix/${SDK_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" PC_PREFIX_FROM_PCDIR "${PC_PREFIX_FROM_PCDIR}")
configure_file(cmake/tradeConfig.pc.in ${PROJECT_BINARY_DIR}/tradeConfig.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tradeConfig.pc
    DESTINATION ${SDK_LIBDIR}/pkgconfig COMPONENT sdk)

install(DIRECTORY docs/host-example DESTINATION ${SDK_DATADIR}/tradeConfig COMPONENT sdk)
