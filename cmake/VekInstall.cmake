# What `cmake --install` puts down. Component Runtime: what a program needs where it runs, licences included;
# Development: public headers, CMake package, pkg-config file, debugger views.
include(CMakePackageConfigHelpers)
include(VekLicences)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/FrameworkUtilities)
install(TARGETS FrameworkUtilities EXPORT FrameworkUtilitiesTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FrameworkUtilities COMPONENT Development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/FrameworkUtilities)
if(MSVC AND VEK_LIBRARY_TYPE STREQUAL SHARED)
    install(FILES $<TARGET_PDB_FILE:FrameworkUtilities>
        DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Development OPTIONAL)
endif()
if(VEK_RUNTIME_DLLS)
    install(FILES ${VEK_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
endif()
install(FILES LICENSE THIRD-PARTY-NOTICES.md ${VEK_LICENCES}
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Runtime)

install(EXPORT FrameworkUtilitiesTargets NAMESPACE Vek:: DESTINATION ${package_folder} COMPONENT Development)
configure_package_config_file(cmake/FrameworkUtilitiesConfig.cmake.in
    ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfig.cmake
    INSTALL_DESTINATION ${package_folder} PATH_VARS CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfig.cmake
    ${PROJECT_BINARY_DIR}/FrameworkUtilitiesConfigVersion.cmake
    DESTINATION ${package_folder} COMPONENT Development)

# The file finds its prefix from where it lies, so that an installed tree can be moved.
file(RELATIVE_PATH VEK_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" VEK_PC_PREFIX "\${pcfiledir}/${VEK_PC_PREFIX}")
set(VEK_PC_CFLAGS)
set(VEK_PC_LIBS)
if(VEK_LIBRARY_TYPE STREQUAL STATIC) # its program links the system's libraries and has no import to mark
    set(VEK_PC_CFLAGS " -DVEK_STATIC")
    get_target_property(libraries FrameworkUtilities LINK_LIBRARIES)
    list(FILTER libraries INCLUDE REGEX "^[A-Za-z0-9_]+$")
    list(TRANSFORM libraries PREPEND " -l")
    string(JOIN "" VEK_PC_LIBS ${libraries})
endif()
configure_file(cmake/FrameworkUtilities.pc.in FrameworkUtilities.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/FrameworkUtilities.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)


install(FILES tools/debugger/FrameworkUtilities-gdb.py tools/debugger/FrameworkUtilities.natvis
    DESTINATION ${CMAKE_INSTALL_DATADIR}/FrameworkUtilities COMPONENT Development)
# GDB loads a script by itself that lies beside the library under the library's name, from folders that its user trusts;
# what lies in its own folder it always trusts, and that one stands for the prefix /usr.
if(VEK_LIBRARY_TYPE STREQUAL SHARED AND NOT MSVC)
    set(library_folder ${CMAKE_INSTALL_LIBDIR})
    if(WIN32)
        set(library_folder ${CMAKE_INSTALL_BINDIR})
    endif()
    install(CODE "
        set(folder \"\${CMAKE_INSTALL_PREFIX}/${library_folder}\")
        if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
            set(folder \"/usr/share/gdb/auto-load\${folder}\")
        endif()
        file(INSTALL DESTINATION \"\${folder}\" TYPE FILE
            RENAME \"$<TARGET_FILE_NAME:FrameworkUtilities>-gdb.py\"
            FILES \"${PROJECT_SOURCE_DIR}/tools/debugger/FrameworkUtilities-gdb.py\")"
        COMPONENT Development)
endif()
