# The target decNumber: the decimal arithmetic that GDB carries, in the densely packed encoding. Its sources are never
# part of this project; they come from Debian's package gdb-source or from VEK_DECNUMBER_ARCHIVE, or lie in
# DecNumber_SOURCE_DIR already (a folder with decNumber.c and dpd/).
set(DecNumber_SOURCE_DIR "" CACHE PATH "A libdecnumber source folder; empty: taken out of VEK_DECNUMBER_ARCHIVE")
set(VEK_DECNUMBER_ARCHIVE /usr/src/gdb.tar.xz CACHE FILEPATH "GDB's source archive; by default where Debian puts it")
set(VEK_DECNUMBER_FOLDER gdb/libdecnumber CACHE STRING "The folder in the archive that holds decNumber")

enable_language(C)

if(DecNumber_SOURCE_DIR)
    set(VEK_DECNUMBER_DIR ${DecNumber_SOURCE_DIR})
else()
    set(VEK_DECNUMBER_DIR ${PROJECT_BINARY_DIR}/decnumber/${VEK_DECNUMBER_FOLDER})
    if(NOT EXISTS ${VEK_DECNUMBER_DIR}/dpd/decimal128.c)
        if(NOT EXISTS ${VEK_DECNUMBER_ARCHIVE})
            message(FATAL_ERROR "decNumber's source is missing: install Debian's package gdb-source, or name a copy "
                "with -DDecNumber_SOURCE_DIR=FOLDER or GDB's archive with -DVEK_DECNUMBER_ARCHIVE=FILE")
        endif()
        cmake_path(GET VEK_DECNUMBER_FOLDER PARENT_PATH folder)
        file(ARCHIVE_EXTRACT INPUT ${VEK_DECNUMBER_ARCHIVE} DESTINATION ${PROJECT_BINARY_DIR}/decnumber
            PATTERNS "${VEK_DECNUMBER_FOLDER}/*" "${folder}/COPYING3")
    endif()
endif()

# The version and the content that the tests have seen; with another copy, run them.
set(VEK_DECNUMBER_SHA256 2e3c3bf440d0e21b3e2cd7632d4b16fc4bce1c0537a27faee4b2cf6d1fd9900c)
set(hashes)
foreach(file IN ITEMS dconfig.h decCommonSymbols.h decContext.c decContext.h decContextSymbols.h decDPD.h
        decDPDSymbols.h decNumber.c decNumber.h decNumberLocal.h decNumberSymbols.h dpd/decimal128.c dpd/decimal128.h
        dpd/decimal128Local.h dpd/decimal128Symbols.h dpd/decimal64.c dpd/decimal64.h dpd/decimal64Symbols.h)
    if(NOT EXISTS ${VEK_DECNUMBER_DIR}/${file})
        message(FATAL_ERROR "${VEK_DECNUMBER_DIR} holds no ${file}: it is not decNumber's source")
    endif()
    file(SHA256 ${VEK_DECNUMBER_DIR}/${file} hash)
    string(APPEND hashes ${hash})
endforeach()
string(SHA256 hash "${hashes}")
file(STRINGS ${VEK_DECNUMBER_DIR}/decNumberLocal.h version REGEX "define DECVERSION")
if(NOT version MATCHES "\"decNumber 3\\.61\"")
    message(WARNING "Tested with decNumber 3.61; ${VEK_DECNUMBER_DIR} says ${version}")
elseif(NOT hash STREQUAL VEK_DECNUMBER_SHA256)
    message(WARNING "The decNumber 3.61 in ${VEK_DECNUMBER_DIR} is another copy than the tested one: run the tests. "
        "Its sources give ${hash} instead of ${VEK_DECNUMBER_SHA256}")
endif()

# The licence goes where the library goes. In GDB's archive it lies beside the folder; another copy may have another one.
cmake_path(GET VEK_DECNUMBER_DIR PARENT_PATH VEK_DECNUMBER_LICENCE)
cmake_path(APPEND VEK_DECNUMBER_LICENCE COPYING3)
if(NOT EXISTS ${VEK_DECNUMBER_LICENCE})
    message(WARNING "${VEK_DECNUMBER_LICENCE} is missing: ship the licence of your copy of decNumber with the library")
    set(VEK_DECNUMBER_LICENCE)
endif()

# The two headers that its own build would make.
set(VEK_DECNUMBER_CONFIG ${PROJECT_BINARY_DIR}/decnumber/config)
file(CONFIGURE OUTPUT ${VEK_DECNUMBER_CONFIG}/config.h CONTENT "")
file(CONFIGURE OUTPUT ${VEK_DECNUMBER_CONFIG}/gstdint.h CONTENT "#include <stdint.h>\n")

# Makes an object library of some of its sources, so that they end up in whatever links it, a static library included.
function(vek_add_decnumber target)
    list(TRANSFORM ARGN PREPEND ${VEK_DECNUMBER_DIR}/)
    add_library(${target} OBJECT EXCLUDE_FROM_ALL ${ARGN})
    target_include_directories(${target} SYSTEM PUBLIC
        ${VEK_DECNUMBER_CONFIG} ${VEK_DECNUMBER_DIR} ${VEK_DECNUMBER_DIR}/dpd)
    # Without the digits, the size of a number would depend on the order in which its headers are included.
    target_compile_definitions(${target} PUBLIC DECNUMDIGITS=34)
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON C_VISIBILITY_PRESET hidden)
    target_compile_options(${target} PRIVATE $<$<NOT:$<C_COMPILER_ID:MSVC>>:-O2>)
    target_compile_options(${target} PRIVATE $<IF:$<C_COMPILER_ID:MSVC>,/W0,-w>) # it defines DECNUMDIGITS again
endfunction()

vek_add_decnumber(decNumber decContext.c decNumber.c dpd/decimal128.c dpd/decimal64.c)
