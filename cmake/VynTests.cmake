# vyn_add_tests(<folder>)
#
# The tests of tests/<folder>: its .cpp files as one GoogleTest program vyn_test_<folder>, each case a
# CTest test "<folder>.<suite>.<case>"; each test_*.py a CTest test "<folder>.<file>", run by the
# system's own Python. All run in the source root.
function(vyn_add_tests folder)
    set(root ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${root}/*.cpp)
    if(sources)
        set(target vyn_test_${folder})
        add_executable(${target} ${sources})
        vyn_configure_test_target(${target})
        target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
        target_link_libraries(${target} PRIVATE vyn_test_support Vyn::interchange Vyn::document
                                                GTest::gtest_main)
        if(TARGET vyn_${folder})
            target_link_libraries(${target} PRIVATE vyn_${folder})
        endif()
        if(TARGET ${folder})
            add_dependencies(${target} ${folder})  # the program that its tests run
        endif()
        gtest_discover_tests(
            ${target}
            DISCOVERY_MODE PRE_TEST
            TEST_PREFIX ${folder}.
            NO_PRETTY_VALUES
            WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
            PROPERTIES TIMEOUT 120 LABELS ${folder})
    endif()

    file(GLOB scripts CONFIGURE_DEPENDS ${root}/test_*.py)
    foreach(script IN LISTS scripts)
        cmake_path(GET script STEM name)
        vyn_add_python_test(${folder}.${name} ${script} ${folder})
    endforeach()
endfunction()

# The Debian packages that the Python tests import belong to /usr/bin/python3, which another
# interpreter may hide on PATH.
function(vyn_add_python_test name script label)
    add_test(NAME ${name} COMMAND /usr/bin/python3 ${script}
             WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    set(environment VYN_SOURCE_DIR=${PROJECT_SOURCE_DIR})
    if(TARGET vynx)
        list(APPEND environment VYN_VYNX=$<TARGET_FILE:vynx>)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 120
                                            LABELS ${label})
endfunction()
