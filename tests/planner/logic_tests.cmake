target_sources(logic_tests PRIVATE
  planner/DateHelpersTest.cpp
)
