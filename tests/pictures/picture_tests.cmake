# The pictures of the main window and of the event's dialogs. The scale holds for a whole process, so each scale is a test of its own.
add_executable(picture_tests
  pictures/DialogPicturesTest.cpp
  pictures/ModePicturesTest.cpp
  pictures/PictureMain.cpp
  pictures/PicturePlanner.cpp
  pictures/Pictures.cpp
  support/WindowTest.cpp
  ../src/resources/planovarium.qrc
)
set_target_properties(picture_tests PROPERTIES AUTORCC ON)
target_compile_definitions(picture_tests PRIVATE
  PLANOVARIUM_FAILED="${CMAKE_CURRENT_BINARY_DIR}/failed-pictures"
  PLANOVARIUM_FONTS="${CMAKE_CURRENT_SOURCE_DIR}/pictures/fonts.conf"
  PLANOVARIUM_PICTURES="${CMAKE_CURRENT_SOURCE_DIR}/pictures/stored")
target_link_libraries(picture_tests PRIVATE
  planovarium_windows planovarium_logic planovarium_scripted planovarium_toolkit
  Qt6::Widgets Qt6::Test GTest::gtest)
add_dependencies(windows_programs picture_tests)
foreach(scale 1 2)
  add_test(NAME pictures_at_scale_${scale} COMMAND picture_tests --scale=${scale})
  set_tests_properties(pictures_at_scale_${scale} PROPERTIES LABELS windows TIMEOUT 300)
endforeach()

# Takes what is painted now as what is to be painted.
add_custom_target(store_pictures
  COMMAND picture_tests --scale=1 --store --gtest_brief=1 --gtest_filter=*AreAsStored*
  COMMAND picture_tests --scale=2 --store --gtest_brief=1 --gtest_filter=*AreAsStored*)
