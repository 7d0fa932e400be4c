# SPDX-FileCopyrightText: 2026 the SuDoKu team
# SPDX-License-Identifier: MIT

add_library(boards STATIC board_call.cpp board_file.cpp drawn_cell.cpp)
target_link_libraries(boards PUBLIC sudoku_logic test_files)

add_executable(run_boards run_boards.cpp)
target_link_libraries(run_boards PRIVATE boards sudoku_command_line GTest::gtest)

# One test a file. A single case: run_boards FILE --gtest_filter=Boards/TECHNIQUE.CASE
file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/boards/*.txt)
foreach(file ${files})
  get_filename_component(name ${file} NAME_WE)
  add_test(NAME boards.${name} COMMAND run_boards ${file})
  set_tests_properties(boards.${name} PROPERTIES LABELS quick)
endforeach()
