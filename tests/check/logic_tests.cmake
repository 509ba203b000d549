target_sources(logic_tests PRIVATE
  check/AgreementTest.cpp
  check/CheckedDrive.cpp
  check/CommandsTest.cpp
  check/CheckedCutsTest.cpp
  check/FileRecordsTest.cpp
  check/FindingsTest.cpp
  check/PassedOverTest.cpp
  check/PreferencesFindingsTest.cpp
  check/RestoreTest.cpp
)
target_link_libraries(logic_tests PRIVATE planovarium_check planovarium_locks)
