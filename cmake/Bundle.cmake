# What makes the installed client an application bundle.
configure_file(cmake/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/Info.plist DESTINATION ${bundle})
install(FILES client/icon/tradeclient.icns DESTINATION ${CMAKE_INSTALL_DATADIR})
