target_sources(logic_tests PRIVATE
  core/DateTextTest.cpp
  core/DecimalTest.cpp
  core/Module1Test.cpp
  core/PreferencesTest.cpp
  core/TextFilesTest.cpp
  core/ValuesTest.cpp
  core/WholeRecordsTest.cpp
)
