target_sources(planovarium_logic PRIVATE
  mainwindow/DayLayout.cpp
  mainwindow/GridLayout.cpp
  mainwindow/GridMoves.cpp
  mainwindow/LargeCalendarLayout.cpp
  mainwindow/ModeTables.cpp
  mainwindow/MonthCells.cpp
  mainwindow/MonthMarks.cpp
  mainwindow/PopupCaptions.cpp
  mainwindow/StartupShortcut.cpp
  mainwindow/StudyTimerClock.cpp
  mainwindow/TermStatus.cpp
  mainwindow/ViewMenuColor.cpp
)
