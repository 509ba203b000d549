target_sources(planovarium_bench PRIVATE
  CalendarLibrariesBench.cpp
  ExportBench.cpp
  ListBench.cpp
  RecordFilesBench.cpp
  RecurrenceBench.cpp
  RemindersBench.cpp
  StudyBench.cpp
  Yardsticks.cpp
)
