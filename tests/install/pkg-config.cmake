# The same host, compiled with what pkg-config says of the installed package.
set(prefix ${WORK_FOLDER}/prefix)
set(ENV{PKG_CONFIG_PATH} "")
file(GLOB_RECURSE file ${prefix}/FrameworkUtilities.pc)
cmake_path(GET file PARENT_PATH folder)
set(ENV{PKG_CONFIG_PATH} ${folder})
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs FrameworkUtilities
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
if(SANITIZE)
    list(APPEND flags -fsanitize=address,undefined)
endif()

set(program ${WORK_FOLDER}/pkg-config-host)
execute_process(COMMAND ${CXX} -std=c++20 ${HOST_FOLDER}/main.cpp ${flags} -o ${program} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE library ${prefix}/libFrameworkUtilities.so)
cmake_path(GET library PARENT_PATH folder)
set(ENV{LD_LIBRARY_PATH} ${folder})
execute_process(COMMAND ${program} COMMAND_ERROR_IS_FATAL ANY)
