# What makes the installed client an application bundle that runs without a Qt beside it.
set(TRADECONFIG_SIGN_IDENTITY "-" CACHE STRING
    "Who signs the bundle: a Developer ID, or \"-\" for an ad hoc signature")

configure_file(cmake/Info.plist.in ${PROJECT_BINARY_DIR}/Info.plist @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/Info.plist DESTINATION ${bundle})
install(FILES client/icon/tradeclient.icns DESTINATION ${CMAKE_INSTALL_DATADIR})

# The one that belongs to the Qt that is linked.
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_programs ${qmake} DIRECTORY)
find_program(MACDEPLOYQT macdeployqt HINTS ${qt_programs} NO_DEFAULT_PATH)
find_program(CODESIGN codesign)

# The last rule of all: the bundle must be complete.
install(CODE "
    set(BUNDLE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/tradeclient.app\")
    set(MINIMUM \"${CMAKE_OSX_DEPLOYMENT_TARGET}\")
    set(IDENTITY \"${TRADECONFIG_SIGN_IDENTITY}\")
    set(MACDEPLOYQT \"${MACDEPLOYQT}\")
    set(OTOOL \"${CMAKE_OTOOL}\")
    set(CODESIGN \"${CODESIGN}\")
    include(\"${CMAKE_CURRENT_LIST_DIR}/FinishBundle.cmake\")")
