target_sources(planovarium_windows PRIVATE
  editors/DatePicker.cpp
  editors/DatePicker.h
  editors/DatePickerSetup.cpp
)
