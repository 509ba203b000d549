target_sources(logic_tests PRIVATE
  planner/ClassLinkTest.cpp
  planner/DateHelpersTest.cpp
  planner/EventOccursOnTest.cpp
  planner/RowLookTest.cpp
)
