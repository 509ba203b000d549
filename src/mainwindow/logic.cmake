target_sources(planovarium_logic PRIVATE
  mainwindow/day/DayLayout.cpp
  mainwindow/dialogs/TipTexts.cpp
  mainwindow/grid/GridLayout.cpp
  mainwindow/grid/GridMoves.cpp
  mainwindow/menus/PopupCaptions.cpp
  mainwindow/menus/StartupShortcut.cpp
  mainwindow/modes/ModeTables.cpp
  mainwindow/month/MonthMarks.cpp
  mainwindow/panels/TermStatus.cpp
  mainwindow/state/LargeCalendarLayout.cpp
  mainwindow/state/StudyTimerClock.cpp
)
