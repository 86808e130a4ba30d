# The whole output and the file that is written are the checked-in ones, the same on every target.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

file(WRITE ${WORK_FOLDER}/store.xml "old")
run_program(${DATA_FOLDER} store.xml)
require_success()
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/store-output.expected ${WORK_FOLDER}/output)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/store.xml.expected ${WORK_FOLDER}/store.xml)
file(GLOB temporaries ${WORK_FOLDER}/*.tmp)
if(temporaries)
    message(FATAL_ERROR "temporary files are left behind: ${temporaries}")
endif()
