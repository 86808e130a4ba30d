# The runtime DLLs of MinGW-w64. Host and library share them, since std:: types and exceptions cross the boundary; they
# lie beside the built programs and are installed beside the library.

set(folder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
if(NOT folder)
    set(folder ${PROJECT_BINARY_DIR})
endif()
set(VEK_RUNTIME_DLLS)
foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE dll OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${dll}")
        find_file(VEK_${name} ${name} PATHS /usr/x86_64-w64-mingw32/lib REQUIRED)
        mark_as_advanced(VEK_${name})
        set(dll ${VEK_${name}})
    endif()
    # -p keeps the time inside the DLL, so that every build makes the same bytes.
    add_custom_command(OUTPUT ${folder}/${name} COMMAND ${CMAKE_STRIP} -p -o ${folder}/${name} ${dll} DEPENDS ${dll})
    list(APPEND VEK_RUNTIME_DLLS ${folder}/${name})
endforeach()
add_custom_target(VekRuntimeDlls DEPENDS ${VEK_RUNTIME_DLLS})
add_dependencies(FrameworkUtilities VekRuntimeDlls)
