target_sources(planovarium_windows PRIVATE
  reminders/ReminderButtons.cpp
  reminders/ReminderTick.cpp
  reminders/ShowReminders.cpp
  reminders/frmReminders.cpp
  reminders/frmReminders.h
  reminders/frmReminders.ui
)
