target_sources(logic_tests PRIVATE
  planner/ClassLinkTest.cpp
  planner/DateHelpersTest.cpp
  planner/EventFilterTest.cpp
  planner/EventMarksTest.cpp
  planner/EventOccursOnTest.cpp
  planner/EventWalkTest.cpp
  planner/RecurrenceOracle.cpp
  planner/RecurrenceOracleTest.cpp
  planner/RowLookTest.cpp
  planner/SeriesEditsTest.cpp
)

# Millions of days are asked one by one, also in a debug build.
set_source_files_properties(planner/RecurrenceOracle.cpp planner/RecurrenceOracleTest.cpp PROPERTIES
  COMPILE_OPTIONS -O2)
