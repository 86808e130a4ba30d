# Installs the built library into a fresh folder and runs the host project against it.
set(prefix ${WORK_FOLDER}/prefix)
set(build ${WORK_FOLDER}/host)
file(REMOVE_RECURSE ${prefix} ${build})

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_FOLDER} --config ${CONFIG} --prefix ${prefix})

set(options -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Debug)
if(TOOLCHAIN)
    list(APPEND options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
else()
    list(APPEND options -DCMAKE_CXX_COMPILER=${CXX})
endif()
if(SANITIZE)
    list(APPEND options "-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined")
endif()
run(${CMAKE_COMMAND} -G Ninja -S ${HOST_FOLDER} -B ${build} ${options})
run(${CMAKE_COMMAND} --build ${build})
run(${CMAKE_CTEST_COMMAND} --test-dir ${build} --output-on-failure)
