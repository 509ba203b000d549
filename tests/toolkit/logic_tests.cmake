target_sources(logic_tests PRIVATE
  toolkit/layout/GridLayoutTest.cpp
  toolkit/layout/GridMovesTest.cpp
)
