# With a clock that is read and not measured, output, log and picture are the checked-in ones, byte for byte; the sums
# are those that Python finds in the bookings; a stopped job has as many rows everywhere.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)
set(ENV{LC_ALL} de_DE.UTF-8) # for the report's separators

# The table must be what Python makes of the bookings.
function(require_sums_of_python)
    execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/booking_totals.py ${WORK_FOLDER}/bookings.csv
        OUTPUT_FILE ${WORK_FOLDER}/python.output COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${WORK_FOLDER}/python.output table)
    file(READ ${WORK_FOLDER}/output output)
    string(FIND "${output}" "${table}" place)
    if(NOT place EQUAL 0)
        message(FATAL_ERROR "Python's sums are\n${table}those of the program\n${output}")
    endif()
endfunction()

function(require_stopped count)
    if(NOT exit_code STREQUAL "2")
        message(FATAL_ERROR "exit code ${exit_code} instead of 2\n${errors}")
    endif()
    require_sums_of_python()
    file(STRINGS ${WORK_FOLDER}/bookings.csv lines)
    list(LENGTH lines rows)
    file(READ ${WORK_FOLDER}/batch.log log)
    if(NOT rows MATCHES "^(${count})$" OR
       NOT log MATCHES " WARN Stopped on request: what is there is complete up to row ${rows}\n")
        message(FATAL_ERROR "${rows} rows instead of ${count}, or a log that does not say so:\n${log}")
    endif()
endfunction()

run_program(20000 2024 . --clock 1000000)
require_success()
require_sums_of_python()
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/batch-output.expected ${WORK_FOLDER}/output)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/batch-log.expected ${WORK_FOLDER}/batch.log)
file(READ ${CMAKE_CURRENT_LIST_DIR}/batch-picture.sha256 expected_picture)
file(SHA256 ${WORK_FOLDER}/sections.bmp picture)
if(NOT "${picture}\n" STREQUAL expected_picture)
    message(FATAL_ERROR "the picture ${WORK_FOLDER}/sections.bmp is another one: ${picture}")
endif()

run_program(1000 7 . --stop-after 123)
require_stopped(123)
run_program(1000 7 . --stop-after 0)
require_stopped(0)
run_program(1000 7 .)
require_success()
require_sums_of_python()

expect_error("usage" "usage: .*" 1000 7)
expect_error("no number" "\"-1\" is no number from 0" -1 7 .)
expect_error("no option" "--fast is no option" 1 7 . --fast 1)
expect_error("missing folder" ".*" 1 7 missing)

if(NOT DATA_FOLDER MATCHES "^Z:") # Wine passes no signals on
    file(REMOVE ${WORK_FOLDER}/batch.log)
    set(program sh ${CMAKE_CURRENT_LIST_DIR}/interrupt.sh batch.log ${program})
    run_program(100000000 7 .)
    require_stopped("[0-9]+")
endif()
