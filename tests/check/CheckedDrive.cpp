// What the tests of the check share: a sound drive with records of every kind, and ways to damage it.
#include "check/CheckedDrive.h"

#include "core/Preferences.h"
#include "core/TextFiles.h"
#include "core/Values.h"
#include "support/CutDrive.h"

#include <algorithm>

void CheckedDrive::SetUp() {
    DataFolderTest::SetUp();
    FillCutDrive(3);
    WriteTermsAndClasses();
    WriteAssignments();
    WriteTasks();
    WriteEvents();
    WritePreferencesFile({.ActiveTerm = "Term 1"});
    ASSERT_EQ(Script.boxes, Boxes{});
}

void CheckedDrive::Edit(const std::string& name, const std::string& from, const std::string& to) {
    std::string bytes = DataFile(name);
    const std::size_t at = bytes.find(from);
    ASSERT_NE(at, std::string::npos) << name << " has no " << from;
    SetDataFile(name, bytes.replace(at, from.size(), to));
}

CheckResult CheckedDrive::Check() {
    ResetStore();
    CheckResult result = CheckDrive(Now());
    EXPECT_EQ(Script.boxes, Boxes{}) << "the check shows no box";
    return result;
}

int CheckedDrive::LineWith(const std::string& name, const std::string& text, int occurrence) {
    const std::string bytes = DataFile(name);
    int number = 0;
    for (std::string_view rest = bytes; const std::optional<std::string_view> line = TakeLine(rest);) {
        ++number;
        if (LeftTrim(*line).starts_with(text) && --occurrence == 0) {
            return number;
        }
    }
    return 0;
}

std::string Shown(const Finding& finding) {
    return finding.file + "|" + std::to_string(finding.line) + "|" + std::to_string(finding.record) + "|" +
           finding.name + "|" + finding.field + "|" + finding.fault + "|" + finding.meaning;
}

std::string Shown(const Findings& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        text += Shown(finding) + "\n";
    }
    return text;
}

bool HasFinding(const Findings& findings, const std::string& file, int record, const std::string& field) {
    return std::ranges::any_of(findings, [&](const Finding& finding) {
        return finding.file == file && finding.record == record && finding.field == field;
    });
}
