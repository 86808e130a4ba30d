# What `cmake --install` puts down: library, public headers, CMake package, pkg-config file, licences.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/FrameworkUtilities)
install(TARGETS FrameworkUtilities EXPORT FrameworkUtilitiesTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FrameworkUtilities
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FrameworkUtilities)
install(EXPORT FrameworkUtilitiesTargets NAMESPACE Vek:: DESTINATION ${package_folder})

configure_package_config_file(cmake/FrameworkUtilitiesConfig.cmake.in
    ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfig.cmake
    INSTALL_DESTINATION ${package_folder} PATH_VARS CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfig.cmake
    ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfigVersion.cmake DESTINATION ${package_folder})

# The file finds its prefix from where it lies, so that an installed tree can be moved.
file(RELATIVE_PATH VEK_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" VEK_PC_PREFIX "\${pcfiledir}/${VEK_PC_PREFIX}")
configure_file(cmake/FrameworkUtilities.pc.in FrameworkUtilities.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/FrameworkUtilities.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(FILES tools/debugger/FrameworkUtilities-gdb.py tools/debugger/FrameworkUtilities.natvis
    DESTINATION ${CMAKE_INSTALL_DATADIR}/FrameworkUtilities)
install(FILES LICENSE THIRD-PARTY-NOTICES.md ${VEK_DECNUMBER_LICENCE} DESTINATION ${CMAKE_INSTALL_DOCDIR})
