# The runtime DLLs of MinGW-w64. Host and library share them, since std:: types and exceptions cross the boundary; they
# lie beside the built programs and are installed beside the library.

set(VEK_RUNTIME_DLLS)
foreach(dll IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
        find_file(VEK_${dll} ${dll} PATHS /usr/x86_64-w64-mingw32/lib REQUIRED)
        set(path ${VEK_${dll}})
    endif()
    list(APPEND VEK_RUNTIME_DLLS ${path})
endforeach()

add_custom_target(RuntimeDlls ALL)
foreach(dll IN LISTS VEK_RUNTIME_DLLS)
    get_filename_component(name ${dll} NAME)
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
    add_custom_command(OUTPUT ${copy} COMMAND ${CMAKE_STRIP} -o ${copy} ${dll} DEPENDS ${dll})
    set_property(TARGET RuntimeDlls APPEND PROPERTY SOURCES ${copy})
    install(FILES ${copy} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
add_dependencies(FrameworkUtilities RuntimeDlls)
