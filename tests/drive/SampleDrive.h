// The smart drive that comes with the program, laid out for several days and read by the program's own
// readers.
#pragma once

#include "drive/DriveLayout.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Preferences.h"
#include "core/Values.h"
#include "persistence/modIO.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/SeriesRule.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <string>

struct LayoutDay {
    int year;
    int month;
    int day;
};

// Each day of the week, ends of months and years, and a leap day.
inline constexpr LayoutDay LayoutDays[] = {{2026, 11, 16}, {2028, 2, 29}, {2025, 12, 31}, {2026, 10, 1},
                                           {2027, 1, 1},   {2024, 3, 2},  {2026, 5, 31}};

inline std::ostream& operator<<(std::ostream& out, const LayoutDay& day) {
    return out << day.year << "-" << day.month << "-" << day.day;
}

inline std::string DayName(const testing::TestParamInfo<LayoutDay>& info) {
    return std::to_string(info.param.year * 10000 + info.param.month * 100 + info.param.day);
}

class SampleDriveTest : public testing::TestWithParam<LayoutDay> {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        const auto [year, month, day] = GetParam();
        SetClock(year, month, day, 10);
        Script.screen = {1920, 1080};
        std::string text = StoredDate(Today());
        text[4] = text[7] = '-';
        const LayoutResult result = LayOutDrive(SampleDrive, laidOut, text);
        ASSERT_TRUE(result.succeeded) << result.output;
        ::setenv("U3_DEVICE_PATH", laidOut.c_str(), 1);
        ::setenv("U3_DEVICE_DOCUMENT_PATH", (laidOut / "Documents").c_str(), 1);
        ::setenv("U3_DEVICE_EXEC_PATH", (laidOut / "Planovarium").c_str(), 1);
        ASSERT_TRUE(SetupFolders());
        ReadTermsAndClasses();
        ReadTasks();
        ReadEvents();
        preferences = ReadPreferencesFile(Script.screen);
        ChooseActiveTerm(preferences.ActiveTerm);
        ReadAssignments();
        SetupActiveClasses();
    }

    // No reader had anything to tell.
    void TearDown() override { EXPECT_TRUE(Script.boxes.empty()); }

    TemporaryDrive drive;
    std::filesystem::path laidOut = drive.root / "drive";
    PreferenceValues preferences;
};

// How many positions of a list hold for the question.
template <class Question>
int CountWhere(const TextList& list, Question holds) {
    int count = 0;
    for (int i = 1; i <= list.Count(); ++i) {
        count += holds(i) ? 1 : 0;
    }
    return count;
}
