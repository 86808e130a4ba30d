# Tests that run on both targets. Under Wine they share one prefix and one server, which the fixture StartWine starts;
# started by a test, the server would keep that test's output open for seconds.

set(VEK_WINEPREFIX ${PROJECT_BINARY_DIR}/wineprefix CACHE PATH "The Wine prefix that the tests use")

if(WIN32 AND CMAKE_CROSSCOMPILING)
    # A host's LANG counts for nothing here: only LC_ALL reaches the programs under Wine.
    set(VEK_TEST_ENVIRONMENT
        WINEPREFIX=${VEK_WINEPREFIX}
        WINEDEBUG=-all
        WINEDLLOVERRIDES=winedbg.exe=d
        LC_ALL=de_DE.UTF-8)
    add_test(NAME StartWine COMMAND sh ${PROJECT_SOURCE_DIR}/cmake/start-wine.sh)
    set_tests_properties(StartWine PROPERTIES
        FIXTURES_SETUP Wine TIMEOUT 1800 ENVIRONMENT "${VEK_TEST_ENVIRONMENT}")
endif()

# Gives tests that add_test has made what they need on this target.
function(vek_set_up_tests)
    set_tests_properties(${ARGN} PROPERTIES TIMEOUT 1800) # a loaded machine is ten times slower
    if(VEK_TEST_ENVIRONMENT)
        set_tests_properties(${ARGN} PROPERTIES FIXTURES_REQUIRED Wine ENVIRONMENT "${VEK_TEST_ENVIRONMENT}")
    endif()
endfunction()

# What every source of a GoogleTest program begins with.
function(vek_use_prelude target)
    set(header ${PROJECT_SOURCE_DIR}/tests/Prelude.h)
    get_target_property(precompiled ${target} PRECOMPILE_HEADERS)
    if(precompiled)
        target_precompile_headers(${target} PRIVATE ${header})
    else()
        target_compile_options(${target} PRIVATE
            $<$<COMPILE_LANGUAGE:CXX>:$<IF:$<BOOL:${MSVC}>,/FI${header},-include${header}>>)
    endif()
endfunction()

# A GoogleTest program. Wine may end a crashed program with exit code 0, so there its last words count.
function(vek_add_gtest target)
    vek_use_prelude(${target})
    add_test(NAME ${target} COMMAND ${target})
    vek_set_up_tests(${target})
    if(VEK_TEST_ENVIRONMENT)
        set_tests_properties(${target} PROPERTIES
            PASS_REGULAR_EXPRESSION "\\[  PASSED  \\]" FAIL_REGULAR_EXPRESSION "\\[  FAILED  \\]")
    endif()
endfunction()

# A GoogleTest program that shows dialogs, under each of these drivers of the display: null, display. Wine's driver and
# resolution are values in the registry that a server reads once, so these tests have a prefix of their own and run one
# after the other. Those with DPI in their names also run at other resolutions.
function(vek_add_ui_test target)
    if(NOT CMAKE_CROSSCOMPILING)
        vek_add_gtest(${target})
        return()
    endif()
    vek_use_prelude(${target})
    find_program(VEK_XVFB_RUN xvfb-run REQUIRED)
    mark_as_advanced(VEK_XVFB_RUN)
    foreach(driver IN LISTS ARGN)
        add_test(NAME ${target}.${driver} COMMAND bash ${PROJECT_SOURCE_DIR}/tests/Utilities/UI/run-ui-tests.sh
            ${driver} "${CMAKE_CROSSCOMPILING_EMULATOR}" $<TARGET_FILE:${target}>)
        set_tests_properties(${target}.${driver} PROPERTIES
            TIMEOUT 1800
            RESOURCE_LOCK VekUIPrefix
            FAIL_REGULAR_EXPRESSION "\\[  FAILED  \\]"
            ENVIRONMENT "WINEPREFIX=${VEK_WINEPREFIX}-ui;WINEDEBUG=-all;WINEDLLOVERRIDES=winedbg.exe,mscoree,mshtml=d;LC_ALL=de_DE.UTF-8")
    endforeach()
endfunction()
