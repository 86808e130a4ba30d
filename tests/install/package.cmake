# Installs the built library into a fresh folder and runs the host project against it.
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
set(prefix ${WORK_FOLDER}/prefix)
file(REMOVE_RECURSE ${prefix} ${WORK_FOLDER}/components)

run(${CMAKE_COMMAND} --install ${BUILD_FOLDER} --config ${CONFIG} --prefix ${prefix})
if(SANITIZE)
    list(APPEND HOST_OPTIONS "-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined")
endif()
run_host(${WORK_FOLDER}/host -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Debug)

# The components: for running it takes the library, runtime DLLs and licences; both together are all.
foreach(component IN ITEMS Runtime Development)
    run(${CMAKE_COMMAND} --install ${BUILD_FOLDER} --config ${CONFIG} --component ${component}
        --prefix ${WORK_FOLDER}/components/${component})
    list_files(${component} ${WORK_FOLDER}/components/${component})
endforeach()
list_files(all ${prefix})
set(both ${Runtime} ${Development})
list(SORT both)
if(NOT "${both}" STREQUAL "${all}")
    message(FATAL_ERROR "The components hold\n${both}\ninstead of\n${all}")
endif()
foreach(licence IN ITEMS LICENSE COPYING3 GCC-RUNTIME-LIBRARY-EXCEPTION ${LICENCES})
    if(NOT "share/doc/FrameworkUtilities/${licence}" IN_LIST Runtime)
        message(FATAL_ERROR "${licence} is missing in ${Runtime}")
    endif()
endforeach()
list(FILTER Runtime EXCLUDE REGEX "^(bin/.*\\.dll|lib.*/libFrameworkUtilities\\.so\\.[0-9.]+|share/doc/.*)$")
if(Runtime OR NOT "${Development}" MATCHES "include/FrameworkUtilities/VekApi.h"
        OR NOT "${Development}" MATCHES "/(FrameworkUtilities.dll|libFrameworkUtilities.so.[0-9.]+)-gdb.py")
    message(FATAL_ERROR "What is for running holds ${Runtime}; for development: ${Development}")
endif()
