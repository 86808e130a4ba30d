# The statement goes through byte for byte, the filtered one gives the checked-in output, document and values, and every
# error ends with exit code 1, one message and no file.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

string(REGEX REPLACE "^Z:" "" data ${DATA_FOLDER})
run_program(${DATA_FOLDER}/statement.csv "beleg >= 0" all.xml all.csv)
require_success()
require_same_bytes(${data}/statement.csv ${WORK_FOLDER}/all.csv)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/exchange-all.expected ${WORK_FOLDER}/output)

run_program(${DATA_FOLDER}/statement-bad-lines.csv "betrag > 100 && waehrung == \"EUR\"" chosen.xml chosen.csv)
require_success()
foreach(file IN ITEMS output chosen.xml chosen.csv)
    require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/exchange-${file}.expected ${WORK_FOLDER}/${file})
endforeach()

function(expect_exchange_error why pattern statement filter)
    expect_error("${why}" "${pattern}" ${statement} "${filter}" error.xml error.csv)
    string(REGEX MATCHALL "\n" lines "${errors}")
    list(LENGTH lines count)
    if(NOT count EQUAL 1 OR EXISTS ${WORK_FOLDER}/error.xml OR EXISTS ${WORK_FOLDER}/error.csv)
        message(SEND_ERROR "${why}: more than one line is told, or a file is left behind\n${errors}")
    endif()
endfunction()

set(header "datum;betrag;waehrung;text;beleg;\n")
file(WRITE ${WORK_FOLDER}/cut.csv "${header}01.02.2025;1,00;EUR;;QUJD;\n02.02.2025;1,00;EUR;;QUJDRA=")
file(WRITE ${WORK_FOLDER}/other.csv "a;b;\n")
file(MAKE_DIRECTORY ${WORK_FOLDER}/folder)
expect_exchange_error("missing file" "missing.csv does not exist or is not a file\n$" missing.csv "beleg >= 0")
expect_exchange_error("directory" "folder does not exist or is not a file\n$" folder "beleg >= 0")
expect_exchange_error("other file" "other.csv is no bank statement: its first line is not" other.csv "beleg >= 0")
expect_exchange_error("attachment cut off"
    "cut.csv, line 3: the attachment is cut off .size must be multiple of 4.\n$" cut.csv "beleg >= 0")
if(NOT DATA_FOLDER MATCHES "^Z:") # Wine shows no file that opens but cannot be read
    expect_exchange_error("unreadable file" "mem cannot be read\n$" /proc/self/mem "beleg >= 0")
endif()
expect_error("usage" "usage: " statement.csv)
expect_error("folder of the target is missing" "error.xml cannot be written"
    ${DATA_FOLDER}/statement.csv "beleg >= 0" missing/error.xml error.csv)
file(COPY ${data}/statement-bad-lines.csv DESTINATION ${WORK_FOLDER})
foreach(targets IN ITEMS "error.xml|./statement-bad-lines.csv" "statement-bad-lines.csv|error.csv")
    string(REPLACE "|" ";" targets ${targets})
    expect_error("a target is the statement" "statement-bad-lines.csv is the statement itself and is not replaced\n$"
        statement-bad-lines.csv "beleg >= 0" ${targets})
    require_same_bytes(${data}/statement-bad-lines.csv ${WORK_FOLDER}/statement-bad-lines.csv)
endforeach()
expect_error("both targets are one file" "one cannot hold the XML and the separated values as well\n$"
    statement-bad-lines.csv "beleg >= 0" one ./one)

# Every rule of the expression, broken; columns count as SimpleParser counts them.
foreach(row IN ITEMS
        "betrag >|: a column, a number or a text is missing in front of the end" "betrag = 1|: .*"
        "(betrag > 1| \"\\)\" is missing in front of the end" "foo == 1| in line 1, column 1: \"foo\" is neither"
        "betrag == \"x\"| in line 1, column 13: a text, a number and a date cannot"
        "betrag > 1 text| in line 1, column 12: \"&&\" or"
        "datum > \"31.2.2025\"| in line 1, column 19: a date such as"
        "text == \"abc| in line 1, column 13: the closing quote is missing"
        "betrag > 1 &&\n  foo == 2| in line 2, column 3: \"foo\" is neither"
        "betrag > 12,50| in line 1, column 10: \"12,50\" is neither"
        "betrag > -| in line 1, column 10: \"-\" is no number")
    string(REGEX MATCH "^(.*[^|])\\|([^|].*)$" parts "${row}")
    set(pattern "${CMAKE_MATCH_2}")
    expect_exchange_error("filter ${CMAKE_MATCH_1}" "the filter is wrong.*${pattern}" ${DATA_FOLDER}/statement.csv
        "${CMAKE_MATCH_1}")
endforeach()

# File names and a filter beyond every 8-bit code page. The locale is one that the machine has: without, Wine refuses such
# names.
set(ENV{LC_ALL} C.UTF-8)
set(name "Umsatz € ž Ω 😀")
configure_file(${data}/statement.csv "${WORK_FOLDER}/${name}.csv" COPYONLY)
run_program("${name}.csv" "text == \"Genau 100 €, nicht mehr\"" "${name}.xml" "${name} neu.csv")
require_success()
file(READ ${WORK_FOLDER}/output output)
if(NOT output MATCHES "^${name}.csv: [0-9]+ bookings, .*\n1 booking is chosen by text == .Genau 100 €, nicht mehr.\n"
        OR NOT EXISTS "${WORK_FOLDER}/${name}.xml" OR NOT EXISTS "${WORK_FOLDER}/${name} neu.csv")
    message(SEND_ERROR "an argument did not arrive whole:\n${output}")
endif()
expect_error("missing file" "Ελλάδα €.csv does not exist" "Ελλάδα €.csv" "beleg >= 0" error.xml error.csv)
