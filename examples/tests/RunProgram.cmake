# Shared by the test scripts, which are run as: cmake -DNAME=... -DWORK_FOLDER=... -P SCRIPT.cmake -- PROGRAM...
set(program)
set(is_program FALSE)
foreach(index RANGE 1 ${CMAKE_ARGC})
    if(is_program AND index LESS CMAKE_ARGC)
        list(APPEND program "${CMAKE_ARGV${index}}")
    elseif("${CMAKE_ARGV${index}}" STREQUAL "--")
        set(is_program TRUE)
    endif()
endforeach()

file(REMOVE_RECURSE ${WORK_FOLDER})
file(MAKE_DIRECTORY ${WORK_FOLDER})

# Runs the program with the given arguments in the work folder; its output goes to the file `output` there, its errors
# and exit code to the variables `errors` and `exit_code`.
macro(run_program)
    execute_process(COMMAND ${program} ${ARGN} WORKING_DIRECTORY ${WORK_FOLDER} INPUT_FILE /dev/null
        OUTPUT_FILE ${WORK_FOLDER}/output ERROR_VARIABLE errors RESULT_VARIABLE exit_code)
endmacro()

macro(require_success)
    if(NOT exit_code STREQUAL "0")
        message(FATAL_ERROR "exit code ${exit_code}\n${errors}")
    endif()
endmacro()

# The program must end with exit code 1 and tell an error that begins with its own name, perhaps a folder, and `pattern`.
function(expect_error why pattern)
    run_program(${ARGN})
    if(NOT exit_code STREQUAL "1")
        message(SEND_ERROR "${why}: exit code ${exit_code} instead of 1\n${errors}")
    endif()
    string(REPLACE "\r" "" errors "${errors}")
    if(NOT errors MATCHES "^${NAME}: ([A-Z]?:?[/\\\\][^\n]*[/\\\\])?${pattern}")
        message(SEND_ERROR "${why}: expected ${pattern}, told\n${errors}")
    endif()
    set(errors "${errors}" PARENT_SCOPE)
endfunction()

function(require_same_bytes expected actual)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${expected} ${actual} RESULT_VARIABLE differ
        OUTPUT_QUIET ERROR_QUIET)
    if(differ)
        execute_process(COMMAND diff -u ${expected} ${actual} OUTPUT_VARIABLE difference)
        message(FATAL_ERROR "${actual} is not as expected:\n${difference}")
    endif()
endfunction()
