# Every failure ends with exit code 1 and says what is wrong, and nothing that was there is lost.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)

# Reads `content` as settings: the error must have the code, stand in the line and column and in the open elements.
function(expect_document_error why code place path content)
    file(WRITE ${WORK_FOLDER}/document.xml "${content}")
    expect_error("${why}" "document.xml is not a valid document:\n  code +${code}\n.*  place +${place}\n  in +${path}\n"
        --read document.xml)
endfunction()

set(start "<?xml version=\"1.0\"?>\n<settings version=\"")
expect_document_error("empty file" 6 "line 1, column 1" "/" "")
expect_document_error("no declaration" 6 "line 1, column 12" "/" "<settings/>")
expect_document_error("other root" 3 "line 2, column 2" "/" "<?xml version=\"1.0\"?>\n<html/>")
expect_document_error("cut short" 6 "line 3, column 1" "/settings/printers" "${start}1\"><printers>\n")
expect_document_error("unknown format version" 5 "line 2, column 21" "/settings" "${start}3\">")
expect_document_error("tray is no number" 5 "line 3, column 14" "/settings/printers/printer/tray"
    "${start}2\"><printers><printer>\n<tray>oben II</tray>")
expect_document_error("more than everything" 5 "line 2, column [0-9]+" "/settings/vatRates/vatRate/rate"
    "${start}1\"><vatRates><vatRate><rate>101</rate>")
expect_document_error("1 is no answer in version 1" 5 "line 2, column [0-9]+" "/settings/printers/printer/duplex"
    "${start}1\"><printers><printer><duplex>1</duplex>")
expect_document_error("ja is no flag in version 2" 5 "line 2, column [0-9]+" "/settings/printers/printer/duplex"
    "${start}2\"><printers><printer><duplex>ja</duplex>")
expect_document_error("hexadecimal code" 8 "line 2, column 32" "/settings" "${start}1\" company=\"&#x41;\">")

file(MAKE_DIRECTORY ${WORK_FOLDER}/folder)
expect_error("missing file" "missing.xml does not exist or is not a file" --read missing.xml)
expect_error("directory" "folder does not exist or is not a file" --read folder)
expect_error("no file name" "usage: " --read)
expect_error("missing data" "settings-v1.xml does not exist" folder)
expect_error("missing account chart" "missing.xea does not exist" ${DATA_FOLDER} written.xml missing.xea)
expect_error("folder of the target is missing" "written.xml cannot be written" ${DATA_FOLDER} missing/written.xml)
expect_error("target is a folder" "folder cannot be replaced" ${DATA_FOLDER} folder)
if(EXISTS ${WORK_FOLDER}/folder.1.tmp OR NOT IS_DIRECTORY ${WORK_FOLDER}/folder)
    message(SEND_ERROR "a target that cannot be replaced is not left as it was")
endif()
file(WRITE ${WORK_FOLDER}/taken.xml.1.tmp "theirs")
expect_error("no account chart" ".*missing.xea does not exist" ${DATA_FOLDER} taken.xml missing.xea)
file(READ ${WORK_FOLDER}/taken.xml.1.tmp taken)
if(NOT taken STREQUAL "theirs" OR NOT EXISTS ${WORK_FOLDER}/taken.xml)
    message(SEND_ERROR "a temporary file that was left there is lost, or it stands in the way")
endif()
run_program(--help)
file(READ ${WORK_FOLDER}/output output)
if(NOT exit_code STREQUAL "0" OR NOT output MATCHES "^SettingsDocument .data folder")
    message(SEND_ERROR "no help, but exit code ${exit_code}\n${output}${errors}")
endif()

foreach(chart IN ITEMS "<act:id>a</act:id><act:parent>b</act:parent>" "<act:id>a</act:id><act:parent>a</act:parent>")
    file(WRITE ${WORK_FOLDER}/chart.xea
        "<?xml version=\"1.0\"?><gnc-account-example><gnc:account>${chart}</gnc:account></gnc-account-example>")
    expect_error("account outside the tree" "the account chart holds accounts that hang below no top account"
        ${DATA_FOLDER} written.xml chart.xea)
endforeach()

string(ASCII 255 no_utf8)
file(WRITE ${WORK_FOLDER}/chart.xea
    "<?xml version=\"1.0\"?>\n<gnc-account-example><gnc:account><act:name>${no_utf8}</act:name>")
expect_error("no UTF-8" "chart.xea is not a valid document:\n  code +5\n.*  place +line 2, column 46\n"
    ${DATA_FOLDER} written.xml chart.xea)

# What only Linux can stage: a file that opens but cannot be read, a target that is a pipe, an output that takes
# nothing, a disk that is full.
if(NOT DATA_FOLDER MATCHES "^Z:")
    expect_error("unreadable stream" "mem cannot be read" --read /proc/self/mem)

    execute_process(COMMAND mkfifo ${WORK_FOLDER}/pipe)
    expect_error("target is no file" "pipe cannot be replaced" ${DATA_FOLDER} pipe)
    file(REMOVE ${WORK_FOLDER}/pipe)

    set(plain_program ${program})
    set(program bash -c "exec \"$@\" > /dev/full" bash ${plain_program})
    expect_error("output is not taken" "standard output does not take" --read ${DATA_FOLDER}/settings-v1.xml)

    file(WRITE ${WORK_FOLDER}/kept.xml "old")
    set(program bash -c "trap '' XFSZ && ulimit -f 1 && exec \"$@\" > /dev/null" bash ${plain_program})
    expect_error("full disk" "kept.xml cannot be written completely" ${DATA_FOLDER} kept.xml)
    file(READ ${WORK_FOLDER}/kept.xml kept)
    if(NOT kept STREQUAL "old" OR EXISTS ${WORK_FOLDER}/kept.xml.1.tmp)
        message(SEND_ERROR "a full disk does not leave the old file alone")
    endif()
endif()
