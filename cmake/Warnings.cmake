# Common warning flags for every target of the project.
add_library(trumpona_warnings INTERFACE)
target_compile_options(trumpona_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough)

# Adds a GoogleTest executable with a CTest label (unit, gui or integration).
function(trumpona_test name label)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main trumpona_warnings)
  gtest_discover_tests(${name} PROPERTIES LABELS ${label} DISCOVERY_TIMEOUT 60)
endfunction()
