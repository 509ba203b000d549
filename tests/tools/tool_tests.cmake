# The tests in Python of what lies beside the program: the tools, and what they make for the drive. None needs the
# program itself.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

function(add_tool_tests label)
  foreach(tool ${ARGN})
    add_test(NAME tools.test_${tool} COMMAND ${Python3_EXECUTABLE} -m unittest -v test_${tool}
      WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/tools")
    set_tests_properties(tools.test_${tool} PROPERTIES
      LABELS ${label} TIMEOUT 300 ENVIRONMENT PYTHONDONTWRITEBYTECODE=1)
  endforeach()
endfunction()

add_tool_tests(desktop bare check_budgets check_tidy rooms)
add_tool_tests(drive help_book sound)
