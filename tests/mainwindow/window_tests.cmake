target_sources(window_tests PRIVATE
  mainwindow/ProcessTest.cpp
)
