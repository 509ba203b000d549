target_sources(window_tests PRIVATE
  editors/AssignmentEntriesTest.cpp
  editors/AssignmentFlowTest.cpp
  editors/AssignmentOpeningTest.cpp
  editors/ClassPanelTest.cpp
  editors/DatePickerStepsTest.cpp
  editors/DatePickerTest.cpp
  editors/EditorPartsTest.cpp
  editors/EditorTest.cpp
  editors/FlowRefreshTest.cpp
  editors/RandomWalkTest.cpp
  editors/TaskEditorTest.cpp
  editors/TaskFlowTest.cpp
  editors/TermEditorTest.cpp
  editors/TermFlowTest.cpp
  editors/UndoTest.cpp
)
