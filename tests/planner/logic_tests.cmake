target_sources(logic_tests PRIVATE
  planner/ClassLinkTest.cpp
  planner/DateHelpersTest.cpp
  planner/DecimalTest.cpp
  planner/EventFilterTest.cpp
  planner/EventMarksTest.cpp
  planner/EventOccursOnTest.cpp
  planner/EventWalkTest.cpp
  planner/GPATableTest.cpp
  planner/GradesTest.cpp
  planner/RecurrenceOracle.cpp
  planner/RecurrenceOracleTest.cpp
  planner/RowLookTest.cpp
  planner/SeriesEditsTest.cpp
)
