target_sources(window_tests PRIVATE
  reminders/ReminderButtonsTest.cpp
  reminders/ReminderListTest.cpp
  reminders/ReminderTickTest.cpp
  reminders/ReminderYearsTest.cpp
  reminders/RemindersTest.cpp
  reminders/ShowRemindersTest.cpp
  reminders/ViewedReminderTest.cpp
)
