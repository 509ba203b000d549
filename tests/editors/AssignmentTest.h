// The tests of the editor of assignments: the dialog, opened for a new assignment or on a set of fields.
#pragma once

#include "editors/EditorTest.h"

class AssignmentTest : public EditorTest {
protected:
    void SetUp() override;

    // Opens the dialog on the fields of an assignment that is half done, scored and reminded of.
    void OpenEdit();

    frmAssignment* dialog = nullptr;
};
