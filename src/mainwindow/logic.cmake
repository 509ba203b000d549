target_sources(planovarium_logic PRIVATE
  mainwindow/day/DayLayout.cpp
  mainwindow/dialogs/TipTexts.cpp
  mainwindow/grid/DateMoves.cpp
  mainwindow/list/ListColumns.cpp
  mainwindow/menus/PopupCaptions.cpp
  mainwindow/menus/StartupShortcut.cpp
  mainwindow/modes/ModeTables.cpp
  mainwindow/month/MonthMarks.cpp
  mainwindow/panels/TermStatus.cpp
  mainwindow/state/LargeCalendarLayout.cpp
  mainwindow/state/StudyTimerClock.cpp
)
