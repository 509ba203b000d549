# The real program on a virtual desktop; one test a class of each file.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

function(add_desktop_tests file)
  foreach(class ${ARGN})
    add_test(NAME desktop.${file}.${class}
      COMMAND ${Python3_EXECUTABLE} -m unittest -v ${file}.${class}
      WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/desktop")
    set_tests_properties(desktop.${file}.${class} PROPERTIES
      LABELS desktop TIMEOUT 180
      ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PYTHONDONTWRITEBYTECODE=1")
  endforeach()
endfunction()

add_desktop_tests(test_homework_path ByKeyboard ByMouse)
add_desktop_tests(test_event_path ByKeyboard ByMouse)
add_desktop_tests(test_process
  Start StartMode SecondStart TwoStarts Tray NoTray Saving Idle Failure Tips Shutdown WindowPlace)
add_desktop_tests(test_recovery Damaged Older)
set_tests_properties(desktop.test_recovery.Damaged desktop.test_recovery.Older PROPERTIES
  ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PLANOVARIUM_PLANCHECK=$<TARGET_FILE:plancheck>;PYTHONDONTWRITEBYTECODE=1")
add_desktop_tests(test_help_pictures HelpPictures)
add_desktop_tests(test_locale German)
set_tests_properties(desktop.test_locale.German PROPERTIES FIXTURES_REQUIRED german
  ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PYTHONDONTWRITEBYTECODE=1;LOCPATH=${CMAKE_CURRENT_BINARY_DIR}/locale")
add_desktop_tests(test_reminders Reminders)
set_tests_properties(desktop.test_reminders.Reminders PROPERTIES
  ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PYTHONDONTWRITEBYTECODE=1;PLANOVARIUM_RECORDED_SOUND=$<TARGET_FILE_DIR:recorded_sound>")
add_desktop_tests(test_window Modes Size Steppers List Dialogs Midnight)
add_desktop_tests(test_export Export)

# A tray that asks for its icons over the session bus.
add_executable(tray_host support/TrayHost.cpp)
target_link_libraries(tray_host PRIVATE planovarium_flags Qt6::DBus)
add_desktop_tests(test_commands RightClicks TypeColors Help BusTray)
set_tests_properties(desktop.test_commands.BusTray PROPERTIES
  ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PYTHONDONTWRITEBYTECODE=1;PLANOVARIUM_TRAY_HOST=$<TARGET_FILE:tray_host>")

# The pages for printing, in a browser and before a validator.
add_desktop_tests(test_pages Validator Months Lists)
set_tests_properties(desktop.test_pages.Validator desktop.test_pages.Months desktop.test_pages.Lists PROPERTIES
  ENVIRONMENT "PLANOVARIUM_SAMPLE_PAGES=$<TARGET_FILE:sample_pages>;PYTHONDONTWRITEBYTECODE=1")

add_custom_target(desktop_programs DEPENDS planovarium plancheck recorded_sound sample_pages tray_host)

# The tool that shows the program's modes.
add_test(NAME tools.test_show_modes COMMAND ${Python3_EXECUTABLE} -m unittest -v test_show_modes
  WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/tools")
set_tests_properties(tools.test_show_modes PROPERTIES
  LABELS desktop TIMEOUT 300
  ENVIRONMENT "PLANOVARIUM_PROGRAM=$<TARGET_FILE:planovarium>;PYTHONDONTWRITEBYTECODE=1")
