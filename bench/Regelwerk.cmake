# Time of one card decision of the rule book player.
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/RegelwerkBench.cpp)
  add_executable(regelwerk_bench ${CMAKE_CURRENT_SOURCE_DIR}/RegelwerkBench.cpp)
  target_include_directories(regelwerk_bench PRIVATE ${PROJECT_SOURCE_DIR}/tests/players)
  target_link_libraries(regelwerk_bench PRIVATE players benchmark::benchmark trumpona_warnings)
endif()
