target_sources(window_tests PRIVATE
  mainwindow/HelpTopicsTest.cpp
  mainwindow/ProcessTest.cpp
)
