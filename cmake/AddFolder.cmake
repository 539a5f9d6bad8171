# SPDX-License-Identifier: MIT
# addFolder declares one folder of src/ as a static library, together with its tests.
#
#   addFolder(
#       SOURCES      Renderer.cpp Renderer.h     files of this folder and its subfolders ("linux/HomePanel.h")
#       USES         platform                    folders whose headers ours include (PUBLIC)
#       USES_INSIDE  engine                      folders that only our sources include (PRIVATE)
#       LIBRARIES    PkgConfig::PIPEWIRE         external libraries, for our sources only
#       OPTIONS      -ffp-contract=off           compile options of this folder only
#       TESTS        RendererTest.cpp            files of the same folder below tests/
#       TESTS_USE    platform/simulated          further folders that only the tests include
#       LONG_TESTS                               the tests compute a lot, and are worth optimizing
#   )
#
# A folder is named by its path below src/ ("platform/pipewire"); its target has underscores ("platform_pipewire"). Its
# headers are reached by that path, through a separate include root in the build tree that contains links to them and
# nothing else: including a folder that is not listed does not compile.
#
# Test suites whose names end in LongForm are compiled with the others, but run only by tools/runTests.py --long.
function(folderTarget path result)
    string(REPLACE "/" "_" target ${path})
    set(${result} ${target} PARENT_SCOPE)
endfunction()

# Most of a test source's compile time goes into the test framework's headers. They are precompiled once for all tests
# with the same compile options; Qt adds some of its own.
function(precompileTestHeaders tests settings)
    get_property(owner GLOBAL PROPERTY fadeloomTestHeaders)
    if(settings MATCHES "Qt6::|-f|TRUE")
        target_precompile_headers(${tests} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
    elseif(owner)
        target_precompile_headers(${tests} REUSE_FROM ${owner})
    else()
        target_precompile_headers(${tests} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
        set_property(GLOBAL PROPERTY fadeloomTestHeaders ${tests})
    endif()
endfunction()

function(addFolder)
    cmake_parse_arguments(PARSE_ARGV 0 folder "LONG_TESTS" "" "SOURCES;USES;USES_INSIDE;LIBRARIES;OPTIONS;TESTS;TESTS_USE")
    if(folder_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "addFolder does not know ${folder_UNPARSED_ARGUMENTS}")
    endif()
    file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    folderTarget(${path} target)

    set(includeRoot ${CMAKE_BINARY_DIR}/include/${target})
    file(REMOVE_RECURSE ${includeRoot})
    foreach(source IN LISTS folder_SOURCES)
        if(source MATCHES "\\.h$")
            get_filename_component(includeFolder ${includeRoot}/${path}/${source} DIRECTORY)
            file(MAKE_DIRECTORY ${includeFolder})
            file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${source} ${includeRoot}/${path}/${source} SYMBOLIC)
        endif()
    endforeach()

    add_library(${target} STATIC ${folder_SOURCES})
    target_include_directories(${target} PUBLIC ${includeRoot})
    target_compile_options(${target} PRIVATE ${folder_OPTIONS})
    if(folder_LONG_TESTS AND FADELOOM_SANITIZE)  # Sanitizer builds are not optimized elsewhere.
        target_compile_options(${target} PRIVATE -O1)
    endif()
    foreach(used IN LISTS folder_USES)
        folderTarget(${used} usedTarget)
        target_link_libraries(${target} PUBLIC ${usedTarget})
    endforeach()
    foreach(used IN LISTS folder_USES_INSIDE)
        folderTarget(${used} usedTarget)
        target_link_libraries(${target} PRIVATE ${usedTarget})
    endforeach()
    target_link_libraries(${target} PRIVATE ${folder_LIBRARIES})

    if(FADELOOM_TESTS AND folder_TESTS)
        list(TRANSFORM folder_TESTS PREPEND ${CMAKE_SOURCE_DIR}/tests/${path}/)
        set(tests ${target}Tests)
        add_executable(${tests} ${folder_TESTS})
        target_include_directories(${tests} PRIVATE ${CMAKE_SOURCE_DIR})  # for "tests/support/..."
        target_link_libraries(${tests} PRIVATE ${target} GTest::gtest GTest::gmock GTest::gtest_main ${folder_LIBRARIES})
        target_compile_options(${tests} PRIVATE ${folder_OPTIONS})
        # A test usually runs only once per compilation, so optimizing it rarely pays.
        if(folder_LONG_TESTS)
            target_compile_options(${tests} PRIVATE -O1)
        else()
            target_compile_options(${tests} PRIVATE -O0)
        endif()
        precompileTestHeaders(${tests} "${folder_OPTIONS};${folder_LIBRARIES};${folder_LONG_TESTS}")
        foreach(used IN LISTS folder_TESTS_USE)
            folderTarget(${used} usedTarget)
            target_link_libraries(${tests} PRIVATE ${usedTarget})
        endforeach()
        gtest_discover_tests(${tests} TEST_PREFIX ${path}. TEST_FILTER "-*LongForm.*" DISCOVERY_TIMEOUT 60
            PROPERTIES LABELS ${path})
    endif()
endfunction()
