# Table, calendar, separated values and document are what Python computes from the same list, byte for byte and in every
# time zone; bad lines are told as checked in, the rest is computed; every error ends with exit code 1, one message and
# no file.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)
string(REGEX REPLACE "^Z:" "" data ${DATA_FOLDER})

# Runs the program on a list of the data folder in the time zone; it must end with the exit code.
function(require_result_of_python list zone date percent expected_codes)
    execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/due_dates.py ${data}/${list} ${date} ${percent}
        ${WORK_FOLDER}/python.output ${WORK_FOLDER}/python.csv ${WORK_FOLDER}/python.xml COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{TZ} ${zone})
    run_program(${DATA_FOLDER}/${list} ${date} ${percent} result.csv result.xml)
    if(NOT exit_code MATCHES "^(${expected_codes})$")
        message(FATAL_ERROR "exit code ${exit_code} instead of ${expected_codes}\n${errors}")
    endif()
    require_same_bytes(${WORK_FOLDER}/python.output ${WORK_FOLDER}/output)
    foreach(file IN ITEMS csv xml)
        require_same_bytes(${WORK_FOLDER}/python.${file} ${WORK_FOLDER}/result.${file})
    endforeach()
    string(REPLACE "\r" "" errors "${errors}")
    file(WRITE ${WORK_FOLDER}/errors "${errors}")
endfunction()

foreach(zone IN ITEMS UTC Europe/Vienna America/New_York)
    require_result_of_python(payments.csv ${zone} 30.12.2024 9,2 0)
endforeach()
foreach(date IN ITEMS 1.5.2008 28.02.2027 31.10.2199) # two holidays in one, a month of four weeks, far away
    require_result_of_python(payments.csv UTC ${date} 9,125 "0|2")
endforeach()
require_result_of_python(payments-faulty.csv UTC 30.12.2024 9,2 2)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/payments-faulty.errors.expected ${WORK_FOLDER}/errors)

function(expect_no_result why pattern)
    expect_error("${why}" "${pattern}\n$" ${ARGN})
    if(EXISTS ${WORK_FOLDER}/error.csv OR EXISTS ${WORK_FOLDER}/error.xml)
        message(SEND_ERROR "${why}: a file is left behind")
    endif()
endfunction()

set(list ${DATA_FOLDER}/payments.csv)
file(WRITE ${WORK_FOLDER}/other.csv "Nummer;Betrag\n")
expect_no_result("no argument" "usage: DueDates FILE DATE PERCENT .RESULT_CSV RESULT_XML., or --help")
expect_no_result("one result only" "usage: .*" ${list} 1.1.2024 9 error.csv)
expect_no_result("missing file" "missing.csv does not exist or is not a file" missing.csv 1.1.2024 9 error.csv error.xml)
expect_no_result("other columns" "other.csv holds no payments: .*" other.csv 1.1.2024 9 error.csv error.xml)
expect_no_result("no such day" "the date, position 1: there is no such day" ${list} 29.2.2023 9 error.csv error.xml)
expect_no_result("no rate" "the rate, position 2: .*" ${list} 1.1.2024 9% error.csv error.xml)
expect_no_result("rate too high" "a rate lies between 0 and 100" ${list} 1.1.2024 101 error.csv error.xml)
expect_no_result("folder is missing" "error.csv cannot be written: .*" ${list} 30.12.2024 9 missing/error.csv error.xml)
