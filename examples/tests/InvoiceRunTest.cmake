# The sums of 100,000 generated lines and of a file full of bad amounts are the checked-in ones, which Python's decimal has
# found; bad lines are told as checked in; and every error ends with exit code 1, one message and no file.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

# A stale checked-in file shows here, not as a fault of the program.
function(require_sums_of_python csv expected)
    execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/invoice_totals.py
        ${csv} ${WORK_FOLDER}/python.output ${WORK_FOLDER}/python.xml COMMAND_ERROR_IS_FATAL ANY)
    foreach(file IN ITEMS output xml)
        require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/${expected}.${file}.expected ${WORK_FOLDER}/python.${file})
    endforeach()
endfunction()

macro(require_sums expected)
    require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/${expected}.output.expected ${WORK_FOLDER}/output)
    require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/${expected}.xml.expected ${WORK_FOLDER}/sums.xml)
endmacro()

# The program must end with exit code 2 and tell exactly the skipped lines that the file `expected` holds.
function(require_skipped_lines expected)
    string(REPLACE "\r" "" errors "${errors}")
    file(WRITE ${WORK_FOLDER}/errors "${errors}")
    require_same_bytes(${expected} ${WORK_FOLDER}/errors)
    if(NOT exit_code STREQUAL "2")
        message(FATAL_ERROR "exit code ${exit_code} instead of 2")
    endif()
endfunction()

execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/invoice_lines.py 100000
    OUTPUT_FILE ${WORK_FOLDER}/invoices.csv COMMAND_ERROR_IS_FATAL ANY)
require_sums_of_python(${WORK_FOLDER}/invoices.csv invoices)
run_program(invoices.csv sums.xml)
require_success()
require_sums(invoices)

string(REGEX REPLACE "^Z:" "" data ${DATA_FOLDER})
require_sums_of_python(${data}/invoices-faulty.csv invoices-faulty)
run_program(${DATA_FOLDER}/invoices-faulty.csv sums.xml)
require_skipped_lines(${CMAKE_CURRENT_LIST_DIR}/invoices-faulty.errors.expected)
require_sums(invoices-faulty)

# Lines up to 4,095 bytes are read; what is longer is skipped as far as it goes, also when it ends the file.
set(header "Rechnung;Datum;Text;Menge;Preis;Rabatt;Steuersatz")
string(REPEAT "x" 4079 text) # with the 16 bytes of the other values, what just fits
string(REPEAT "x" 20000 long)
file(WRITE ${WORK_FOLDER}/long.csv
    "${header}\nR;D;${text};1;0,015;;20\nR;D;x${text};1;7,000;;20\nR;D;;1;0,015;;20\nR;D;${long};1;7,00;;20")
file(WRITE ${WORK_FOLDER}/long.expected
    "line 3, position 4096: the line is too long\nline 5, position 4096: the line is too long\n")
run_program(long.csv)
require_skipped_lines(${WORK_FOLDER}/long.expected)
file(READ ${WORK_FOLDER}/output output)
if(NOT output MATCHES "\nSumme +2 +0,04 +0,00 +0,04\n")
    message(SEND_ERROR "the lines between the too long ones are not those added up:\n${output}")
endif()

function(expect_no_sums why pattern)
    expect_error("${why}" "${pattern}\n$" ${ARGN})
    if(EXISTS ${WORK_FOLDER}/error.xml)
        message(SEND_ERROR "${why}: a file is left behind")
    endif()
endfunction()

file(MAKE_DIRECTORY ${WORK_FOLDER}/folder)
file(WRITE ${WORK_FOLDER}/empty.csv "")
file(WRITE ${WORK_FOLDER}/header.csv "${header}")
file(WRITE ${WORK_FOLDER}/other.csv "Rechnung;Datum;Text;Preis;Menge;Rabatt;Steuersatz\n")
expect_no_sums("no argument" "usage: InvoiceRun FILE .SUMMARY_XML., or --help")
expect_no_sums("too many arguments" "usage: .*" invoices.csv error.xml more)
expect_no_sums("missing file" "missing.csv does not exist or is not a file" missing.csv error.xml)
expect_no_sums("directory" "folder does not exist or is not a file" folder error.xml)
expect_no_sums("empty file" "empty.csv holds no invoice lines: .*" empty.csv error.xml)
expect_no_sums("columns in another order" "other.csv holds no invoice lines: .*" other.csv error.xml)
expect_no_sums("folder of the target is missing" "error.xml cannot be written: .*" header.csv missing/error.xml)
expect_no_sums("target is a folder" "folder cannot be replaced" header.csv folder)
if(NOT DATA_FOLDER MATCHES "^Z:") # Wine shows no file that opens but cannot be read
    expect_no_sums("unreadable file" "mem cannot be read" /proc/self/mem error.xml)
endif()
