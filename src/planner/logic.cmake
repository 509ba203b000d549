target_sources(planovarium_logic PRIVATE
  planner/DateHelpers.cpp
)
