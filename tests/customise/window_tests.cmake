target_sources(window_tests PRIVATE
  customise/ColorsNameTest.cpp
  customise/ColorsTest.cpp
)
