# Tests of one module: one GoogleTest program, of which ctest runs every test by itself.

include(GoogleTest)

# vellark_add_tests(MODULE LINKS target... [DEFINITIONS definition...])
#
# Builds all sources below the caller's Tests folder into MODULETests. Helpers that several modules' tests share stand
# in Projects/Core/VellarkFoundation/Tests/Support.
function(vellark_add_tests module)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;DEFINITIONS")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/Tests/*.cpp")
    set(target ${module}Tests)
    add_executable(${target} ${sources})
    vellark_configure_target(${target})
    # Most of what a run of the suite under sanitizers takes is compiling, and most of that is the tests themselves.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Checked>:-O0>)
    target_include_directories(${target} PRIVATE
        "${PROJECT_SOURCE_DIR}/Projects/Core/VellarkFoundation/Tests" "${CMAKE_CURRENT_SOURCE_DIR}/Tests")
    target_compile_definitions(${target} PRIVATE
        VELLARK_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/Tests/Data" ${arg_DEFINITIONS})
    target_link_libraries(${target} PRIVATE ${arg_LINKS} GTest::gtest GTest::gtest_main)
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600)
endfunction()
