# Shared by the scripts beside it. They are given HOST_FOLDER, WORK_FOLDER, CXX or TOOLCHAIN, and HOST_OPTIONS.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Configures, builds and runs the host in a fresh folder.
function(run_host folder)
    if(TOOLCHAIN)
        set(compiler -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
    else()
        set(compiler -DCMAKE_CXX_COMPILER=${CXX})
    endif()
    file(REMOVE_RECURSE ${folder})
    run(${CMAKE_COMMAND} -G Ninja -S ${HOST_FOLDER} -B ${folder} ${compiler} ${HOST_OPTIONS} ${ARGN})
    run(${CMAKE_COMMAND} --build ${folder})
    run(${CMAKE_CTEST_COMMAND} --test-dir ${folder} --output-on-failure --no-tests=error)
endfunction()

# The files below a folder, as a sorted list of relative paths.
function(list_files result folder)
    file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${folder} ${folder}/*)
    list(SORT files)
    set(${result} "${files}" PARENT_SCOPE)
endfunction()
