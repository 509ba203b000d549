target_sources(logic_tests PRIVATE
  customise/ColorRowsTest.cpp
)
