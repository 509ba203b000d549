target_sources(window_tests PRIVATE
  mainwindow/AlertsTest.cpp
  mainwindow/AutoStartTest.cpp
  mainwindow/BringForwardTest.cpp
  mainwindow/CalendarStepsTest.cpp
  mainwindow/CommandsTest.cpp
  mainwindow/ElidedLabelTest.cpp
  mainwindow/HelpTopicsTest.cpp
  mainwindow/ModesTest.cpp
  mainwindow/ProcessTest.cpp
  mainwindow/SmallCalendarTest.cpp
  mainwindow/StatusPanelsTest.cpp
  mainwindow/StudyTimerTest.cpp
  mainwindow/ViewMenusTest.cpp
)
