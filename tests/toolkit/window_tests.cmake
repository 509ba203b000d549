target_sources(window_tests PRIVATE
  toolkit/DialogFocusTest.cpp
  toolkit/ElidedLabelTest.cpp
  toolkit/HelpTopicsTest.cpp
  toolkit/InputRulesTest.cpp
)
