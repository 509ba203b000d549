target_sources(planovarium_logic PRIVATE
  persistence/Backups.cpp
  persistence/FileDialogs.cpp
  persistence/Folders.cpp
  persistence/RecordFileText.cpp
  persistence/RecordFiles.cpp
  persistence/SafeSave.cpp
  persistence/ScanRecordFile.cpp
)
