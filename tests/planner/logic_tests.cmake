target_sources(logic_tests PRIVATE
  planner/ClassLinkTest.cpp
  planner/DateHelpersTest.cpp
  planner/EventFilterTest.cpp
  planner/EventMarksTest.cpp
  planner/EventOccursOnTest.cpp
  planner/EventWalkTest.cpp
  planner/RowLookTest.cpp
  planner/SeriesEditsTest.cpp
)
