# One way to make a test program:
#   tarnwise_test(NAME SOURCE... [LIBRARIES LIBRARY...] [DEFINITIONS NAME=VALUE...] [ENVIRONMENT NAME=VALUE...]
#                 [HEADERS HEADER...] [OPTIMISED] [OWN_MAIN] [ONE_TEST])
# It has the test framework, its properties and a main, what tests share (tests/support) and the options of all; each of
# its tests is one of ctest's. HEADERS are precompiled besides the framework's; with OWN_MAIN a source has the main; with
# ONE_TEST ctest gets nothing here. Test programs aren't optimised, whatever the library is: that takes three times as
# long to compile. OPTIMISED is for those that calculate much themselves.

# Against hangs alone: more than ten times what any test takes on an idle machine under the sanitizers.
set(TARNWISE_HANGS_AFTER 3000)

# The framework's headers are most of what a test's compilation takes, so all test programs share them precompiled.
# An executable, because a library's code is position independent in another way.
set(framework_headers <gtest/gtest.h> <rapidcheck/gtest.h> <functional> <map> <string> <vector>)
file(WRITE ${PROJECT_BINARY_DIR}/test_headers.cpp "int main() {}\n")
add_executable(test_headers EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/test_headers.cpp)
target_compile_options(test_headers PRIVATE -O0)
target_link_libraries(test_headers PRIVATE tarnwise_options rapidcheck_gtest GTest::gtest)
target_precompile_headers(test_headers PRIVATE ${framework_headers})

function(tarnwise_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "OPTIMISED;OWN_MAIN;ONE_TEST" "" "LIBRARIES;DEFINITIONS;ENVIRONMENT;HEADERS")
  add_executable(${name} ${test_UNPARSED_ARGUMENTS})
  target_compile_definitions(${name} PRIVATE ${test_DEFINITIONS})
  target_link_libraries(${name} PRIVATE tarnwise_test_support ${test_LIBRARIES} tarnwise_options rapidcheck_gtest GTest::gtest)
  if(NOT test_OWN_MAIN)
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  if(test_OPTIMISED)
    target_compile_options(${name} PRIVATE ${TARNWISE_SOME_OPTIMISATION})
  else()
    target_compile_options(${name} PRIVATE -O0)
  endif()
  if(test_OPTIMISED OR test_HEADERS)
    target_precompile_headers(${name} PRIVATE ${framework_headers} ${test_HEADERS})
  else()
    target_precompile_headers(${name} REUSE_FROM test_headers)
  endif()
  if(NOT test_ONE_TEST)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 300
      PROPERTIES TIMEOUT ${TARNWISE_HANGS_AFTER} ENVIRONMENT "${test_ENVIRONMENT}")
  endif()
endfunction()
