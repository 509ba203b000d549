target_sources(window_tests PRIVATE
  toolkit/DialogFocusTest.cpp
  toolkit/ElidedLabelTest.cpp
  toolkit/FacesTest.cpp
  toolkit/HelpTopicsTest.cpp
  toolkit/InputRulesTest.cpp
  toolkit/ProgramIconsTest.cpp
  toolkit/grid/ListAccessibleTest.cpp
  toolkit/grid/ListInputTest.cpp
  toolkit/grid/ListPaintingTest.cpp
  toolkit/grid/ListPointerTest.cpp
  toolkit/grid/SampleList.cpp
)
