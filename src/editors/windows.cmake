target_sources(planovarium_windows PRIVATE
  editors/DatePicker.cpp
  editors/DatePicker.h
  editors/DatePickerSetup.cpp
  editors/EditorParts.cpp
  editors/EditorParts.h
  editors/FrmTask.cpp
  editors/FrmTask.h
  editors/FrmTask.ui
  editors/ItemParts.cpp
  editors/frmAssignment.cpp
  editors/frmAssignment.h
  editors/frmAssignment.ui
)
