target_sources(logic_tests PRIVATE
  persistence/BackupsTest.cpp
  persistence/CountedListsTest.cpp
  persistence/CutFilesTest.cpp
  persistence/DamagedFilesTest.cpp
  persistence/DamagedRecordsTest.cpp
  persistence/DeviceOrderTest.cpp
  persistence/FaultTextTest.cpp
  persistence/FoldersTest.cpp
  persistence/RecordPropertiesTest.cpp
  persistence/SaveUnderFaultTest.cpp
  persistence/SaveWhenKilledTest.cpp
  persistence/ScanRecordFileTest.cpp
  persistence/TaskAndEventFilesTest.cpp
  persistence/TermFilesTest.cpp
)
