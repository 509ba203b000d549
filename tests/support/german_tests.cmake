# The logic and the window tests once more where the decimal sign is a comma, each suite in one process. The locale is
# made in the build folder, so the machine needs no more than the sources of its locales.
set(GERMAN "LOCPATH=${CMAKE_CURRENT_BINARY_DIR}/locale" LC_ALL=de_DE.UTF-8)

add_test(NAME german.locale COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/support/make-locale")
set_tests_properties(german.locale PROPERTIES
  LABELS "logic;windows;desktop" TIMEOUT 60 FIXTURES_SETUP german ENVIRONMENT "${GERMAN}")

# Runs the tests of the program but for those that the filter names.
function(add_german_test label program left_out)
  add_test(NAME german.${label} COMMAND ${program} --gtest_brief=1 "--gtest_filter=-${left_out}")
  set_tests_properties(german.${label} PROPERTIES
    LABELS ${label} TIMEOUT 600 FIXTURES_REQUIRED german
    ENVIRONMENT "${GERMAN};RC_PARAMS=max_success=5;QT_QPA_PLATFORM=offscreen")
endfunction()

# Left out are long walks over dates held as numbers, windows that only change their mode, the random walks, the
# simulated years and the cut files.
add_german_test(logic logic_tests
  "RecurrenceOracle.*:*ReminderYears*:ReminderSimulation.*:StudyOfDays.AgreesWith*")
if(PLANOVARIUM_WINDOWS)
  add_german_test(windows window_tests
    "Modes*:Reasons/*:Refresh.*:GridClicks.*:GridKeys.*:GridAccessible.*:CalendarSteps.*:ViewMenus.*:Commands.*:RandomWalk.*:*WindowWalk*:EventSeriesWalk.*:*ReminderYears*:*CutFiles*")
endif()
