target_sources(planovarium_bench PRIVATE
  CalendarLibrariesBench.cpp
  ListBench.cpp
  RecordFilesBench.cpp
  RecurrenceBench.cpp
  RemindersBench.cpp
  StudyBench.cpp
)
