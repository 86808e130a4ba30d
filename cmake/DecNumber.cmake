# The target decNumber: the decimal arithmetic that GDB carries, in the densely packed encoding. Its sources are never
# part of this project; they come from Debian's package gdb-source or from VEK_DECNUMBER_ARCHIVE, or lie in
# DecNumber_SOURCE_DIR already (a folder with decNumber.c and dpd/).
set(DecNumber_SOURCE_DIR "" CACHE PATH "A libdecnumber source folder; empty: taken out of VEK_DECNUMBER_ARCHIVE")
set(VEK_DECNUMBER_ARCHIVE /usr/src/gdb.tar.xz CACHE FILEPATH "GDB's source archive; by default where Debian puts it")

enable_language(C)

if(DecNumber_SOURCE_DIR)
    set(VEK_DECNUMBER_DIR ${DecNumber_SOURCE_DIR})
else()
    set(VEK_DECNUMBER_DIR ${PROJECT_BINARY_DIR}/decnumber/gdb/libdecnumber)
    if(NOT EXISTS ${VEK_DECNUMBER_DIR}/dpd/decimal128.c)
        if(NOT EXISTS ${VEK_DECNUMBER_ARCHIVE})
            message(FATAL_ERROR "decNumber's source is missing: install Debian's package gdb-source, or name a copy "
                "with -DDecNumber_SOURCE_DIR=FOLDER or GDB's archive with -DVEK_DECNUMBER_ARCHIVE=FILE")
        endif()
        file(ARCHIVE_EXTRACT INPUT ${VEK_DECNUMBER_ARCHIVE} DESTINATION ${PROJECT_BINARY_DIR}/decnumber
            PATTERNS "gdb/libdecnumber/*" "gdb/COPYING3")
    endif()
endif()
if(NOT EXISTS ${VEK_DECNUMBER_DIR}/dpd/decimal128.c)
    message(FATAL_ERROR "${VEK_DECNUMBER_DIR} holds no dpd/decimal128.c: it is not decNumber's source")
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
