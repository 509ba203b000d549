target_sources(planovarium_logic PRIVATE
  planner/ClassLink.cpp
  planner/DateHelpers.cpp
  planner/Decimal.cpp
  planner/EventFilter.cpp
  planner/EventMarks.cpp
  planner/EventOccursOn.cpp
  planner/EventWalk.cpp
  planner/Grades.cpp
  planner/RowLook.cpp
  planner/SeriesEdits.cpp
  planner/SeriesRule.cpp
)
