# The installed SDK: headers, CMake package, pkg-config file.
include(CMakePackageConfigHelpers)

if(APPLE)
    set(package_root lib)
else()
    set(package_root ${CMAKE_INSTALL_LIBDIR})
endif()
set(package_directory ${package_root}/cmake/tradeConfig)

install(FILES
    tradeConfig/ITrade.h
    tradeConfig/ModuleEntry.h
    tradeConfig/platform/HostPlatform.h
    tradeConfig/skin/CSkin.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tradeConfig)

install(EXPORT tradeConfigTargets NAMESPACE tradeConfig:: DESTINATION ${package_directory})
configure_package_config_file(cmake/tradeConfigConfig.cmake.in
    ${PROJECT_BINARY_DIR}/tradeConfigConfig.cmake
    INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tradeConfigConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/tradeConfigConfig.cmake
    ${PROJECT_BINARY_DIR}/tradeConfigConfigVersion.cmake
    DESTINATION ${package_directory})

file(RELATIVE_PATH PC_PREFIX_FROM_PCDIR
    /prefix/${package_root}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" PC_PREFIX_FROM_PCDIR "${PC_PREFIX_FROM_PCDIR}")
configure_file(cmake/tradeConfig.pc.in ${PROJECT_BINARY_DIR}/tradeConfig.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tradeConfig.pc
    DESTINATION ${package_root}/pkgconfig)
