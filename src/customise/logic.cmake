target_sources(planovarium_logic PRIVATE
  customise/ColorRows.cpp
)
