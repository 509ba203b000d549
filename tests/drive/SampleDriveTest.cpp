// The sample drive as a whole: its counts and forms, its terms, its assignments and tasks, its colours.
#include "drive/SampleDrive.h"

#include "planner/rows/ClassLink.h"
#include "planner/study/StudyTimeAlert.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace fs = std::filesystem;
using namespace std::chrono;

namespace {

template <class Lists, std::size_t Count>
void ExpectEqualLength(const Lists& lists, const std::array<Field<Lists>, Count>& fields) {
    for (const Field<Lists>& field : fields) {
        EXPECT_EQ((lists.*field.list).Count(), lists.id.Count()) << field.tag;
    }
}

template <class Lists, std::size_t Count>
void ExpectDates(const Lists& lists, const std::array<Field<Lists>, Count>& fields) {
    for (const Field<Lists>& field : fields) {
        for (int i = 1; field.rule == FieldRule::DateText && i <= (lists.*field.list).Count(); ++i) {
            const std::string& text = (lists.*field.list).Item(i);
            ASSERT_TRUE(IsDate(text)) << field.tag << " of record " << i << ": " << text;
            EXPECT_EQ(StoredDate(DateValue(text)), text);
        }
    }
}

// The alarm is the moment made of its date and time.
void ExpectAlarm(const TextList& dates, const TextList& times, const TextList& alarms) {
    for (int i = 1; i <= alarms.Count(); ++i) {
        EXPECT_EQ(alarms.Item(i), StoredMoment(DateValue(dates.Item(i)) + TimeValue(times.Item(i)))) << i;
    }
}

void ExpectUniqueIds(const TextList& ids, int nextId) {
    std::set<int> seen;
    for (int i = 1; i <= ids.Count(); ++i) {
        EXPECT_TRUE(seen.insert(ToInt16(ids.Item(i))).second) << ids.Item(i);
    }
    EXPECT_EQ(nextId, *seen.rbegin() + 1);
}

TEST_P(SampleDriveTest, HoldsATermInFullSwing) {
    EXPECT_EQ(Store.Term.id.Count(), 2);
    EXPECT_EQ(Store.ClassRecord.id.Count(), 11);
    EXPECT_EQ(ActiveClasses.id.Count(), 6);
    EXPECT_EQ(Store.Assignment.id.Count(), 120);
    EXPECT_EQ(Store.TaskRecord.id.Count(), 40);
    EXPECT_EQ(Store.EventRecord.id.Count(), 60);
    EXPECT_EQ(CountWhere(Store.EventRecord.id, IsSeries), 25);
}

TEST_P(SampleDriveTest, TheListsOfAKindAreEquallyLong) {
    ExpectEqualLength(Store.Term, TermFields);
    ExpectEqualLength(Store.ClassRecord, ClassFields);
    ExpectEqualLength(Store.Assignment, AssignmentFields);
    ExpectEqualLength(Store.TaskRecord, TaskFields);
    ExpectEqualLength(Store.EventRecord, EventFields);
}

TEST_P(SampleDriveTest, IdsAreUniqueAndTheCountersStandBehindThem) {
    ExpectUniqueIds(Store.Term.id, NextTermID);
    ExpectUniqueIds(Store.ClassRecord.id, NextClassID);
    ExpectUniqueIds(Store.Assignment.id, NextAssignmentID);
    ExpectUniqueIds(Store.TaskRecord.id, NextTaskID);
    ExpectUniqueIds(Store.EventRecord.id, NextEventID);
}

TEST_P(SampleDriveTest, NoTokenIsLeft) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(laidOut / "Documents")) {
        if (entry.is_regular_file()) {
            EXPECT_EQ(BytesOf(entry.path()).find_first_of("{}"), std::string::npos) << entry.path();
        }
    }
}

TEST_P(SampleDriveTest, TheWritersWouldWriteTheSameBytes) {
    const auto files = [this] {
        std::string bytes;
        for (const char* name : {"terms.xml", "classes.xml", "assignments_1.xml", "assignments_2.xml",
                                 "tasks.xml", "events.xml", "Prefs.ini"}) {
            bytes += BytesOf(laidOut / "Documents/Planovarium/Data" / name);
        }
        return bytes;
    };
    const std::string before = files();
    WriteTermsAndClasses();
    WriteTasks();
    WriteEvents();
    WritePreferencesFile(preferences);
    for (int term = 1; term <= Store.Term.id.Count(); ++term) {
        ChooseActiveTerm(Store.Term.name.Item(term));
        ReadAssignments();
        WriteAssignments();
    }
    EXPECT_EQ(files(), before);
}

TEST_P(SampleDriveTest, EveryDateIsOne) {
    ExpectDates(Store.Term, TermFields);
    ExpectDates(Store.Assignment, AssignmentFields);
    ExpectDates(Store.TaskRecord, TaskFields);
    ExpectDates(Store.EventRecord, EventFields);
    ExpectAlarm(Store.Assignment.reminderdate, Store.Assignment.remindertime, Store.Assignment.reminderalarm);
    ExpectAlarm(Store.TaskRecord.reminder_date, Store.TaskRecord.reminder_time,
                Store.TaskRecord.reminder_alarm);
}

TEST_P(SampleDriveTest, TheTermsFollowEachOtherAndTheActiveOneHoldsTheDay) {
    EXPECT_EQ(ActiveTermID, 2);
    const int begun = DayDiff(ActiveTermStart, Today());
    EXPECT_GE(begun, 9 * 7);
    EXPECT_LT(begun, 10 * 7);
    const int left = DayDiff(Today(), ActiveTermEnd);
    EXPECT_GT(left, 6 * 7);
    EXPECT_LT(left, 8 * 7);
    EXPECT_NE(Store.Term.name.Item(1), Store.Term.name.Item(2));
    EXPECT_LT(DateValue(Store.Term.end.Item(1)), ActiveTermStart);
}

TEST_P(SampleDriveTest, EveryAssignmentIsForAClassOfItsTermAndDueInIt) {
    const AssignmentLists& lists = Store.Assignment;
    for (int term = 1; term <= Store.Term.id.Count(); ++term) {
        ChooseActiveTerm(Store.Term.name.Item(term));
        ReadAssignments();
        for (int i = 1; i <= lists.id.Count(); ++i) {
            EXPECT_GT(ClassPosition({ActiveTermID, ToInt16(lists.class_.Item(i))}), 0) << lists.desc.Item(i);
            EXPECT_GE(DateValue(lists.date.Item(i)), ActiveTermStart) << lists.desc.Item(i);
            EXPECT_LE(DateValue(lists.date.Item(i)), ActiveTermEnd) << lists.desc.Item(i);
        }
    }
}

TEST_P(SampleDriveTest, TheTimeLeftIsWhatTheEstimateAndThePercentageLeave) {
    const AssignmentLists& lists = Store.Assignment;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        const std::string& percentText = lists.percent_complete.Item(i);
        ASSERT_EQ(percentText.back(), '%');
        const double percent = ToNumber(percentText.substr(0, percentText.size() - 1));
        EXPECT_EQ(IsTrue(lists.done.Item(i)), percent == 100) << lists.desc.Item(i);
        const int estimate = ClockToMinutes(lists.est_time.Item(i));
        const int left = static_cast<int>(std::nearbyint(estimate - estimate * percent / 100));
        EXPECT_EQ(ClockToMinutes(lists.time_left.Item(i)), percent == 100 ? 0 : std::max(left, 1))
            << lists.desc.Item(i);
    }
}

TEST_P(SampleDriveTest, TheGradeIsTheScoreInPercentOfTheTotal) {
    const AssignmentLists& lists = Store.Assignment;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        if (lists.score.Item(i).empty()) {
            EXPECT_EQ(lists.total.Item(i), "") << lists.desc.Item(i);
            EXPECT_EQ(lists.grade.Item(i), "") << lists.desc.Item(i);
            continue;
        }
        const double percent = ToNumber(lists.score.Item(i)) / ToNumber(lists.total.Item(i)) * 100;
        EXPECT_EQ(lists.grade.Item(i), std::to_string(std::lround(percent)) + "%") << lists.desc.Item(i);
    }
}

TEST_P(SampleDriveTest, AssignmentsStandInEveryState) {
    const AssignmentLists& lists = Store.Assignment;
    const auto days = [&](int i) { return DayDiff(Today(), DateValue(lists.date.Item(i))); };
    const auto open = [&](int i) { return !IsTrue(lists.done.Item(i)); };
    EXPECT_EQ(CountWhere(lists.id, [&](int i) { return open(i) && days(i) < 0; }), 3) << "late";
    EXPECT_EQ(CountWhere(lists.id, [&](int i) { return open(i) && days(i) == 0; }), 1) << "due today";
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return open(i) && days(i) == 1; }), 1) << "due tomorrow";
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return open(i) && days(i) > 7; }), 30) << "later";
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return !open(i); }), 60) << "done";
    EXPECT_EQ(CountWhere(lists.id, [&](int i) { return !open(i) && days(i) > 0; }), 0)
        << "done before its day";
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return !lists.score.Item(i).empty(); }), 40) << "scored";
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return open(i) && lists.percent_complete.Item(i) != "0%"; }),
              6);
    EXPECT_GE(
        CountWhere(lists.id, [&](int i) { return lists.notes.Item(i).find("\r\n") != std::string::npos; }),
        10);
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return IsTrue(lists.priority.Item(i)); }), 10);
    EXPECT_GE(CountWhere(lists.id, [&](int i) { return IsTrue(lists.reminder.Item(i)); }), 8)
        << "reminder waiting";
    EXPECT_EQ(CountWhere(lists.id, [&](int i) { return IsTrue(lists.reminderlist.Item(i)); }), 2)
        << "reminder shown";
}

TEST_P(SampleDriveTest, TasksStandInEveryState) {
    const TaskLists& lists = Store.TaskRecord;
    std::set<std::string> types, priorities;
    int undated = 0, done = 0, late = 0, today = 0, tomorrow = 0;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        types.insert(lists.type.Item(i));
        priorities.insert(lists.priority.Item(i));
        EXPECT_TRUE(lists.type.Item(i) == "None" || TypeRow("Task", lists.type.Item(i)) > 0)
            << lists.type.Item(i);
        EXPECT_EQ(IsTrue(lists.done.Item(i)), lists.percent_complete.Item(i) == "100%") << lists.desc.Item(i);
        const bool dated = IsTrue(lists.date_exists.Item(i));
        const bool open = dated && !IsTrue(lists.done.Item(i));
        const int days = DayDiff(Today(), DateValue(lists.date.Item(i)));
        undated += dated ? 0 : 1;
        done += IsTrue(lists.done.Item(i)) ? 1 : 0;
        late += open && days < 0 ? 1 : 0;
        today += open && days == 0 ? 1 : 0;
        tomorrow += open && days == 1 ? 1 : 0;
    }
    EXPECT_EQ(types.size(), 14U) << "all 13 types and none";
    EXPECT_EQ(priorities, (std::set<std::string>{"None", "Low", "Medium", "High"}));
    EXPECT_GE(undated, 10);
    EXPECT_GE(done, 10);
    EXPECT_GE(late, 2);
    EXPECT_GE(today, 2);
    EXPECT_GE(tomorrow, 2);
}

TEST_P(SampleDriveTest, AReminderThatWaitsLiesAheadAndOneThatIsShownIsNotArmed) {
    const Moment endOfToday = Today() + days{1};
    const auto check = [endOfToday](const TextList& armed, const TextList& shown, const TextList& alarm,
                                    int i) {
        if (IsTrue(armed.Item(i))) {
            EXPECT_GE(MomentValue(alarm.Item(i)), endOfToday) << alarm.Item(i);
            EXPECT_FALSE(IsTrue(shown.Item(i)));
        }
        if (IsTrue(shown.Item(i))) {
            EXPECT_LE(MomentValue(alarm.Item(i)), Now()) << alarm.Item(i);
        }
    };
    const AssignmentLists& work = Store.Assignment;
    for (int i = 1; i <= work.id.Count(); ++i) {
        check(work.reminder, work.reminderlist, work.reminderalarm, i);
    }
    const TaskLists& tasks = Store.TaskRecord;
    for (int i = 1; i <= tasks.id.Count(); ++i) {
        check(tasks.reminder, tasks.reminder_list, tasks.reminder_alarm, i);
    }
}

TEST_P(SampleDriveTest, ThePreferencesGiveTypesTheirOwnNames) {
    EXPECT_EQ(preferences.ActiveTerm, Store.Term.name.Item(2));
    EXPECT_EQ(TypeDisplayName(TypeRow("Task", "Custom1")), "Errands");
    EXPECT_EQ(TypeDisplayName(TypeRow("Event", "Custom2")), "Volunteering");
    EXPECT_EQ(TypeDisplayName(TypeRow("Event", "Work")), "Caf\xE9");
    EXPECT_EQ(TypeDisplayName(TypeRow("Event", "Study Time")), "Study Time");
}

TEST_P(SampleDriveTest, StudyTimeSufficesForTheFirstDaysAndFallsShortLater) {
    const AlertsShown shown = StudyTimeAlertCheck();
    EXPECT_EQ(shown, (AlertsShown{true, true, true, true}));
    EXPECT_EQ(AlertBefore, "before then") << "neither today's nor tomorrow's homework is short";
    int study = 0;
    int need = 0;
    for (int day = 1; day <= AlertDays.Count(); ++day) {
        study += AlertStudy.Item(day);
        need += AlertNeed.Item(day);
    }
    EXPECT_GE(study, need / 2) << "most of the work is scheduled";
}

// The contrast of two colours by the Web Content Accessibility Guidelines 2: 1 to 21.
double Luminance(int color) {
    const auto part = [color](int shift) {
        const double value = ((color >> shift) & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

double Contrast(int first, int second) {
    const double light = std::max(Luminance(first), Luminance(second));
    const double dark = std::min(Luminance(first), Luminance(second));
    return (light + 0.05) / (dark + 0.05);
}

TEST_P(SampleDriveTest, TheTextOfEveryClassAndTypeIsEasyToReadOnItsGround) {
    for (int i = 1; i <= Store.ClassRecord.id.Count(); ++i) {
        EXPECT_GE(Contrast(ToColor(Store.ClassRecord.forecolor.Item(i)),
                           ToColor(Store.ClassRecord.backcolor.Item(i))),
                  7)
            << Store.ClassRecord.name.Item(i);
    }
    for (int row = 1; row <= TypeRows; ++row) {
        EXPECT_GE(Contrast(ToColor(TypeTable.forecolor.Item(row)), ToColor(TypeTable.backcolor.Item(row))), 7)
            << TypeTable.key.Item(row);
    }
}

INSTANTIATE_TEST_SUITE_P(LaidOut, SampleDriveTest, testing::ValuesIn(LayoutDays), DayName);

} // namespace
