target_sources(window_tests PRIVATE
  customise/ColorsFlowTest.cpp
  customise/ColorsNameTest.cpp
  customise/ColorsTest.cpp
)
