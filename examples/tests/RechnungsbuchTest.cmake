# The report and the separated values of the sample are as checked in, the same with filters and in both format versions;
# every error ends with exit code 1 and one German message, and leaves all files alone.
include(${CMAKE_CURRENT_LIST_DIR}/RunProgram.cmake)
set(book ${DATA_FOLDER}/Rechnungen.xml)
string(REGEX REPLACE "^Z:" "" local_book ${book})

function(require_report expected)
    run_program(${ARGN})
    require_success()
    require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/${expected} ${WORK_FOLDER}/output)
endfunction()

require_report(rechnungsbuch-all.expected ${book} --date 31.3.2025 --csv result.csv)
require_same_bytes(${CMAKE_CURRENT_LIST_DIR}/rechnungsbuch.csv.expected ${WORK_FOLDER}/result.csv)
require_report(rechnungsbuch-chosen.expected --filter "überfällig oder Betrag > 1.000" --date 31.3.2025 ${book})

# Version 1 does not know what is paid.
file(READ ${local_book} text)
string(REPLACE "version=\"2\"" "version=\"1\"" text "${text}")
string(REGEX REPLACE " paidOn=\"[0-9-]*\"" "" text "${text}")
file(WRITE ${WORK_FOLDER}/version1.xml "${text}")
require_report(rechnungsbuch-version1.expected version1.xml --date 31.3.2025 --filter "Nummer 2024")

run_program(--help)
require_success()

set(usage "Aufruf: RechnungsbuchReport FILE .--filter F. .--csv OUT. .--date D., oder --help\n")
string(REPLACE "<line " "<item " damaged "${text}")
file(WRITE ${WORK_FOLDER}/damaged.xml "${damaged}")
file(COPY_FILE ${local_book} ${WORK_FOLDER}/own.xml)
file(MAKE_DIRECTORY ${WORK_FOLDER}/folder)
expect_error("no argument" "${usage}")
expect_error("no value" "Hinter --csv fehlt der Wert.\n" ${book} --csv)
expect_error("twice" "--date steht zweimal da.\n" ${book} --date 1.1.2025 --date 1.1.2025)
expect_error("unknown option" "Die Option --all gibt es nicht.\n" ${book} --all)
expect_error("two files" "Nur eine Datei .* b.xml.\n" ${book} b.xml)
expect_error("no such day" "--date, Stelle 1: Diesen Tag gibt es nicht.\n" ${book} --date 29.2.2025)
expect_error("bad filter" "--filter, Stelle 7: Hinter „Betrag“ wird =, .*\n" ${book} --filter Betrag)
expect_error("missing file" "„missing.xml“ kann nicht gelesen werden.\nDie Datei ist nicht vorhanden .*Fehler 100" missing.xml)
expect_error("damaged" "„damaged.xml“ .*\nUnbekanntes Element: item .Fehler 102.\nZeile 4, Spalte 4, in /invoiceBook/invoice/item\n"
    damaged.xml)
expect_error("the book itself" "--csv nennt das Rechnungsbuch selbst" own.xml --csv ./own.xml)
expect_error("target is a folder" "„folder“ kann nicht gespeichert werden" ${book} --csv folder)
require_same_bytes(${local_book} ${WORK_FOLDER}/own.xml)
