target_sources(planovarium_logic PRIVATE
  toolkit/layout/GridLayout.cpp
  toolkit/layout/GridMoves.cpp
)
