# A host that takes the library in as a part of its own build, and hands it on as a package.
#
#   cmake -DWORK_FOLDER=... -DCXX=...|-DTOOLCHAIN=... [-DSTATIC=ON] [-DHOST_OPTIONS=...] -P subproject.cmake
#
# For Windows and static, the programs need no DLL beside them.
set(HOST_FOLDER ${CMAKE_CURRENT_LIST_DIR}/host)
include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)
cmake_path(SET library NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../..)
set(prefix ${WORK_FOLDER}/prefix)
file(REMOVE_RECURSE ${prefix})
list(APPEND HOST_OPTIONS -DCMAKE_BUILD_TYPE=Release)
if(STATIC)
    list(APPEND HOST_OPTIONS -DBUILD_SHARED_LIBS=OFF)
    if(TOOLCHAIN)
        list(APPEND HOST_OPTIONS -DSINGLE_FILE=ON)
    endif()
endif()

# Nothing of ours is installed with the host unless it asks for it.
run_host(${WORK_FOLDER}/whole -DLIBRARY_FOLDER=${library} -DVEK_CHECK_HEADERS=ON -DVEK_WARNINGS_AS_ERRORS=ON)
run(${CMAKE_COMMAND} --install ${WORK_FOLDER}/whole --prefix ${prefix})
list_files(installed ${prefix})
if(installed)
    message(FATAL_ERROR "Installed without being asked for: ${installed}")
endif()

run(${CMAKE_COMMAND} -DVEK_INSTALL=ON ${WORK_FOLDER}/whole)
run(${CMAKE_COMMAND} --install ${WORK_FOLDER}/whole --prefix ${prefix})
run_host(${WORK_FOLDER}/package -DCMAKE_PREFIX_PATH=${prefix})
