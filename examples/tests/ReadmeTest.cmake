# The README holds the program word for word, and below it what the program prints.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

run_program()
require_success()
file(READ ${WORK_FOLDER}/output output)
string(REPLACE "\r\n" "\n" output "${output}") # a plain program has the line ends of its system
file(READ ${PROGRAM_SOURCE} source)
file(READ ${README} readme)
foreach(block IN ITEMS "```cpp\n${source}```\n" "```text\n${output}```\n")
    string(FIND "${readme}" "${block}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "README.md lacks this block:\n${block}")
    endif()
endforeach()
