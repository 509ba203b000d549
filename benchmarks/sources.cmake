target_sources(planovarium_bench PRIVATE
  RecurrenceBench.cpp
)
