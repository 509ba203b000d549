target_sources(logic_tests PRIVATE
  mainwindow/DayLayoutTest.cpp
  mainwindow/GridLayoutTest.cpp
  mainwindow/PopupCaptionsTest.cpp
)
