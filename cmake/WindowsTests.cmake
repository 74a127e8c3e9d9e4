# Test programs for Windows. What runs them here is Wine; where there is none, they say so and count as skipped.
#   tarnwise_windows_test(NAME SOURCE... [LIBRARIES LIBRARY...] [DEFINITIONS NAME=VALUE...] [OWN_MAIN])
#   add_wine_test(NAME COMMAND...)
# A program has the test framework and the options of all; with OWN_MAIN a source has the main. add_wine_test makes one
# of ctest's tests, Wine.NAME, of a command that runs in a Windows of its own.

# Built from the distribution's sources, since there is no package of it for the cross compilers.
set(googletest /usr/src/googletest/googletest CACHE PATH "Sources of the test framework")
add_library(gtest STATIC EXCLUDE_FROM_ALL ${googletest}/src/gtest-all.cc)
add_library(gtest_main STATIC EXCLUDE_FROM_ALL ${googletest}/src/gtest_main.cc)
foreach(library gtest gtest_main)
  target_include_directories(${library} SYSTEM PUBLIC ${googletest}/include PRIVATE ${googletest})
  target_compile_features(${library} PUBLIC cxx_std_20)
  add_library(GTest::${library} ALIAS ${library})
endforeach()
target_link_libraries(gtest_main PUBLIC gtest)

set(TARNWISE_WITH_WINE ${PROJECT_SOURCE_DIR}/tests/wine/with-wine)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(TARNWISE_WINE32_ROOT ${PROJECT_SOURCE_DIR}/build/wine32-root CACHE PATH "What tests/wine/make-wine32-root made")
  set(TARNWISE_WITH_WINE ${PROJECT_SOURCE_DIR}/tests/wine/with-wine32 ${TARNWISE_WINE32_ROOT})
endif()

# COM's own interfaces have no virtual destructor. An option of the target's would come before the common ones.
function(allow_com_interfaces)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -Wno-non-virtual-dtor)
endfunction()

function(tarnwise_windows_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "OWN_MAIN" "" "LIBRARIES;DEFINITIONS")
  add_executable(${name} ${test_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR}/src)
  target_compile_definitions(${name} PRIVATE ${test_DEFINITIONS})
  target_link_libraries(${name} PRIVATE tarnwise_options ${test_LIBRARIES})
  if(test_OWN_MAIN)
    target_link_libraries(${name} PRIVATE GTest::gtest)
  else()
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
endfunction()

function(add_wine_test name)
  add_test(NAME Wine.${name} COMMAND ${TARNWISE_WITH_WINE} --template ${PROJECT_BINARY_DIR}/wine/template
    ${PROJECT_BINARY_DIR}/wine/${name} ${ARGN})
  set_tests_properties(Wine.${name} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 3000)
endfunction()
