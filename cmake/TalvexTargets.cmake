# The kinds of targets that the project is made of.

# A folder as a library. Sources include by folder ("numeric/DYXnan.h"), and a folder can be
# included only by targets that link it: each folder has an include root of its own, a directory
# that holds nothing but a link to the folder.
function(talvex_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    set(include_root ${PROJECT_BINARY_DIR}/include/${name})
    file(MAKE_DIRECTORY ${include_root})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_root}/${name} SYMBOLIC)

    add_library(talvex_${name} STATIC ${arg_SOURCES})
    add_library(talvex::${name} ALIAS talvex_${name})
    target_include_directories(talvex_${name} PUBLIC ${include_root})
    target_link_libraries(talvex_${name} PUBLIC talvex_compiler)
    foreach(dependency IN LISTS arg_DEPENDS)
        target_link_libraries(talvex_${name} PUBLIC talvex::${dependency})
    endforeach()
endfunction()

# A program of GoogleTest cases, each of them a test of its own.
function(talvex_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS;ENVIRONMENT")
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    # What is tested is optimised; what tests it needs not be.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1>)
    target_link_libraries(${name} PRIVATE talvex_compiler GTest::gtest_main)
    foreach(dependency IN LISTS arg_DEPENDS)
        target_link_libraries(${name} PRIVATE talvex::${dependency})
    endforeach()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT 300 ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()

function(talvex_benchmark name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE talvex_compiler benchmark::benchmark)
    foreach(dependency IN LISTS arg_DEPENDS)
        target_link_libraries(${name} PRIVATE talvex::${dependency})
    endforeach()
endfunction()

# A fuzz target: one source with LLVMFuzzerTestOneInput. Without a coverage-guided fuzzer it gets a
# driver that feeds it random bytes, and a bounded run of it is one of the tests.
function(talvex_fuzzer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "RUNS" "SOURCES;DEPENDS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE talvex_compiler)
    foreach(dependency IN LISTS arg_DEPENDS)
        target_link_libraries(${name} PRIVATE talvex::${dependency})
    endforeach()
    if(TALVEX_FUZZ)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    else()
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/fuzz/standalone_driver.cpp)
        if(TALVEX_TESTS)
            add_test(NAME fuzz.${name} COMMAND ${name} ${arg_RUNS})
        endif()
    endif()
endfunction()
