target_sources(planovarium_bench PRIVATE
  ListBench.cpp
  RecurrenceBench.cpp
  StudyBench.cpp
)
