target_sources(logic_tests PRIVATE
  mainwindow/DayLayoutTest.cpp
  mainwindow/GridLayoutTest.cpp
  mainwindow/GridMovesTest.cpp
  mainwindow/LargeCalendarLayoutTest.cpp
  mainwindow/ModeTablesTest.cpp
  mainwindow/MonthCellsTest.cpp
  mainwindow/MonthMarksTest.cpp
  mainwindow/PopupCaptionsTest.cpp
  mainwindow/StartupShortcutTest.cpp
  mainwindow/StudyTimerClockTest.cpp
  mainwindow/TermStatusTest.cpp
  mainwindow/ViewMenuColorTest.cpp
)
