target_sources(logic_tests PRIVATE
  core/DateTextTest.cpp
  core/Module1Test.cpp
  core/PreferencesTest.cpp
  core/TextFilesTest.cpp
  core/ValuesTest.cpp
)
# GCC 12 takes the insertion that this test expects to be refused for one that happens.
set_source_files_properties(core/ValuesTest.cpp PROPERTIES COMPILE_OPTIONS -Wno-array-bounds)
