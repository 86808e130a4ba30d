# What only the shared library needs: how it is named, what leaves it, what it tells of itself.
if(WIN32)
    set_target_properties(FrameworkUtilities PROPERTIES PREFIX "")
    enable_language(RC)
    configure_file(Version.rc.in Version.rc @ONLY)
    target_sources(FrameworkUtilities PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/Version.rc)
endif()
if(MINGW)
    # The compiler's own start-up code brings debug sections, and the linker the time: without both, a release is small
    # and the same bytes whenever it is built.
    target_link_options(FrameworkUtilities PRIVATE
        LINKER:--no-insert-timestamp $<$<CONFIG:Release,MinSizeRel>:LINKER:--strip-debug>)
endif()
if(UNIX)
    # Instances of the standard library's templates stay inside, also because the system never unloads a library that
    # offers some kinds of them.
    set(exports ${CMAKE_CURRENT_SOURCE_DIR}/Exports.map)
    target_link_options(FrameworkUtilities PRIVATE LINKER:--version-script=${exports})
    set_property(TARGET FrameworkUtilities APPEND PROPERTY LINK_DEPENDS ${exports})
    if(NOT VEK_BUILD_FUZZERS) # clang keeps the sanitizers' runtime in the program
        target_link_options(FrameworkUtilities PRIVATE LINKER:-z,defs)
    endif()
endif()
