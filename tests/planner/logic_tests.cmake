target_sources(logic_tests PRIVATE
  planner/ClassLinkTest.cpp
  planner/DateHelpersTest.cpp
  planner/EventOccursOnTest.cpp
  planner/EventWalkTest.cpp
  planner/RowLookTest.cpp
)
