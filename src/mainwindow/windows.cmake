target_sources(planovarium_windows PRIVATE
  mainwindow/ActiveTerm.cpp
  mainwindow/BringForward.cpp
  mainwindow/ListGrid.cpp
  mainwindow/Load.cpp
  mainwindow/PopupMenus.cpp
  mainwindow/PreferencesFlow.cpp
  mainwindow/ProcessMarker.cpp
  mainwindow/Unload.cpp
  mainwindow/frmMain.cpp
)
