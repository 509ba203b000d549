target_sources(logic_tests PRIVATE
  mainwindow/day/DayLayoutTest.cpp
  mainwindow/dialogs/TipTextsTest.cpp
  mainwindow/grid/DateMovesTest.cpp
  mainwindow/list/ListColumnsTest.cpp
  mainwindow/menus/PopupCaptionsTest.cpp
  mainwindow/menus/StartupShortcutTest.cpp
  mainwindow/modes/ModeTablesTest.cpp
  mainwindow/month/MonthMarksTest.cpp
  mainwindow/panels/TermStatusTest.cpp
  mainwindow/state/LargeCalendarLayoutTest.cpp
  mainwindow/state/StudyTimerClockTest.cpp
)
