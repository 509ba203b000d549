target_sources(planovarium_logic PRIVATE
  mainwindow/DayLayout.cpp
  mainwindow/GridLayout.cpp
  mainwindow/PopupCaptions.cpp
  mainwindow/TermStatus.cpp
)
