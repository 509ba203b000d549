// What the tests of the check share: a sound drive with records of every kind, and ways to damage it.
#pragma once

#include "check/faults/DriveCheck.h"
#include "persistence/DataFolderTest.h"

#include <string>

class CheckedDrive : public DataFolderTest {
protected:
    // Three terms; the first has three classes with assignments; tasks and events with reminders;
    // preferences.
    void SetUp() override;

    // Replaces the first occurrence in the file; fails the test where there is none.
    static void Edit(const std::string& name, const std::string& from, const std::string& to);

    // Checks the drive with an empty store.
    static CheckResult Check();

    // The line of the file that begins with the text, from 1 on; 0
    // where there are not so many.
    static int LineWith(const std::string& name, const std::string& text, int occurrence = 1);
};

// All of a finding in one line, as a failed test shows it.
std::string Shown(const Finding& finding);
std::string Shown(const Findings& findings);

// True when one of the findings is of the file, record and field.
bool HasFinding(const Findings& findings, const std::string& file, int record, const std::string& field);
