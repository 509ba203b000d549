# plancheck: the check of a drive, on the rules and the files alone.
add_library(planovarium_check STATIC
  check/Commands.cpp
  check/Drive.cpp
  check/Generations.cpp
  check/Report.cpp
  check/Restore.cpp
  check/SessionDates.cpp
  check/faults/DataFiles.cpp
  check/faults/DriveCheck.cpp
  check/faults/FileAge.cpp
  check/faults/FileRecords.cpp
  check/faults/LinkCheck.cpp
  check/faults/PreferencesCheck.cpp
  check/faults/StructureCheck.cpp
  check/faults/ValueCheck.cpp
)
target_link_libraries(planovarium_check PUBLIC planovarium_logic)

add_executable(plancheck
  check/start/Main.cpp
  check/start/Platform.cpp
)
# The rules ask the platform, so the objects of the platform stand in front of them.
target_link_libraries(plancheck PRIVATE planovarium_check planovarium_logic planovarium_posix)
