target_sources(planovarium_logic PRIVATE
  mainwindow/TermStatus.cpp
)
