target_sources(planovarium_logic PRIVATE
  persistence/BackupNames.cpp
  persistence/Backups.cpp
  persistence/DamagedFile.cpp
  persistence/FaultText.cpp
  persistence/FileMessages.cpp
  persistence/Folders.cpp
  persistence/ProcessMarker.cpp
  persistence/RecordFileText.cpp
  persistence/RecordFiles.cpp
  persistence/RecordScanner.cpp
  persistence/SafeSave.cpp
  persistence/ScanRecordFile.cpp
  persistence/modConvert.cpp
)
