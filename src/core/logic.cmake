target_sources(planovarium_logic PRIVATE
  core/DateText.cpp
  core/Decimal.cpp
  core/Module1.cpp
  core/ProgramFacts.cpp
  core/Preferences.cpp
  core/RowLists.cpp
  core/TextFiles.cpp
  core/TypeDefaults.cpp
  core/TypeTable.cpp
  core/Values.cpp
)
