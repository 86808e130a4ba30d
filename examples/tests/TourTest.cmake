# The whole output of the tour is the checked-in text, with the account tree that an independent reader finds, and the
# file that it writes is the checked-in one.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/account_tree.py ${ACCOUNT_CHART}
    OUTPUT_VARIABLE account_tree RESULT_VARIABLE exit_code ERROR_VARIABLE errors)
require_success()
file(READ ${CMAKE_CURRENT_LIST_DIR}/tour.expected expected)
string(REPLACE "@ACCOUNT_TREE@\n" "${account_tree}" expected "${expected}")
file(WRITE ${WORK_FOLDER}/expected "${expected}")

# A file that is there already is replaced.
file(WRITE ${WORK_FOLDER}/written.xml "old")
if(DATA_FOLDER MATCHES "^Z:")
    string(PREPEND ACCOUNT_CHART Z:)
endif()
run_program(${DATA_FOLDER} written.xml ${ACCOUNT_CHART})
require_success()
file(READ ${WORK_FOLDER}/output output)
string(REGEX REPLACE "\n[^\n]*[/\\\\](settings-broken.xml is no)" "\n\\1" output "${output}") # the folder is the machine's
file(WRITE ${WORK_FOLDER}/output "${output}")
require_same_bytes(${WORK_FOLDER}/expected ${WORK_FOLDER}/output)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/written.expected ${WORK_FOLDER}/written.xml)
if(EXISTS ${WORK_FOLDER}/written.xml.1.tmp)
    message(FATAL_ERROR "the temporary file is left behind")
endif()
