// The events of the sample drive: their patterns, exceptions, changed occurrences, reminders and class
// meetings.
#include "drive/SampleDrive.h"

#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/ClassLink.h"

#include <optional>
#include <set>

using namespace std::chrono;

namespace {

class SampleEventsTest : public SampleDriveTest {};

TEST_P(SampleEventsTest, EveryEventHasATimeALengthAndAKnownType) {
    const EventLists& lists = Store.EventRecord;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        const std::string& type = lists.type.Item(i);
        EXPECT_TRUE(IsTime(lists.time.Item(i))) << lists.time.Item(i);
        EXPECT_GE(DurationToMinutes(lists.duration.Item(i)), 0) << lists.duration.Item(i);
        const std::optional<ClassLink> meeting = ClassLinkIn(type);
        EXPECT_TRUE(meeting ? ClassPosition(*meeting) > 0 : type == "None" || TypeRow("Event", type) > 0)
            << type;
    }
}

TEST_P(SampleEventsTest, EveryEventKeepsTheRankOfItsDateInItsMonth) {
    constexpr const char* Ranks[] = {"First", "Second", "Third", "Fourth", "Last"};
    constexpr const char* Weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                        "Thursday", "Friday", "Saturday"};
    const EventLists& lists = Store.EventRecord;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        const DayFacts day = FactsOf(DateValue(lists.date.Item(i)));
        const bool isLast = day.number == day.daysInMonth;
        EXPECT_EQ(lists.repeat_number.Item(i), isLast ? "Last" : Ranks[(day.number - 1) / 7])
            << lists.desc.Item(i);
        EXPECT_EQ(lists.repeat_day.Item(i), isLast ? "Day" : Weekdays[day.weekday - 1]) << lists.desc.Item(i);
    }
}

TEST_P(SampleEventsTest, EveryReminderFieldOfAnEventIsADateOrAMoment) {
    const EventLists& lists = Store.EventRecord;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        for (const TextList* list : {&lists.reminder_currentday, &lists.reminder_nextday}) {
            EXPECT_EQ(StoredDate(DateValue(list->Item(i))), list->Item(i)) << lists.desc.Item(i);
        }
        for (const TextList* list : {&lists.reminder_alarm, &lists.reminder_nextalarm}) {
            EXPECT_EQ(StoredMoment(MomentValue(list->Item(i))), list->Item(i)) << lists.desc.Item(i);
        }
    }
}

TEST_P(SampleEventsTest, EverySeriesBeginsOnADayOfItsPattern) {
    const EventLists& lists = Store.EventRecord;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        const Date first = DateValue(lists.date.Item(i));
        const SeriesRule rule = ReadSeriesRule(i);
        ASSERT_NE(rule.recurrence, Recurrence::Unlisted);
        if (rule.recurrence == Recurrence::Day) {
            EXPECT_TRUE(HasWeekday(rule.weekdays, WeekdayNumber(first))) << lists.desc.Item(i);
        } else if (rule.recurrence != Recurrence::None && !rule.sameDate) {
            const year_month_day parts{first};
            const year_month month{parts.year(), parts.month()};
            EXPECT_EQ(first, rule.countsDays ? LastOfMonth(month) : RankDay(month, rule.rank, rule.weekday))
                << lists.desc.Item(i);
        }
        EXPECT_GE(DateValue(lists.end_date.Item(i)), IsSeries(i) ? first : Date{}) << lists.desc.Item(i);
    }
}

TEST_P(SampleEventsTest, SeriesAreOfEveryKind) {
    const EventLists& lists = Store.EventRecord;
    std::set<std::string> kinds;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        const SeriesRule rule = ReadSeriesRule(i);
        if (rule.recurrence == Recurrence::Day) {
            kinds.insert(lists.repeat_daily.Item(i));
        } else if (rule.recurrence != Recurrence::None) {
            kinds.insert(lists.recurrence.Item(i) + " " +
                         (rule.sameDate     ? "same date"
                          : rule.countsDays ? "last day"
                                            : lists.repeat_number.Item(i)));
        }
    }
    for (const char* kind :
         {"TTTTTTT", "TTTTTFF", "TFTFTFF", "FTFTFFF", "FFFFFFT", "Month same date", "Month Second",
          "Month last day", "Month Last", "Year same date", "Year Second"}) {
        EXPECT_TRUE(kinds.contains(kind)) << kind;
    }
}

TEST_P(SampleEventsTest, ExceptionsAreDaysOfTheirSeriesAndChangedOccurrencesNameIt) {
    const EventLists& lists = Store.EventRecord;
    int exceptions = 0;
    std::set<std::string> parents;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        if (!lists.parent_id.Item(i).empty()) {
            EXPECT_FALSE(IsSeries(i)) << lists.desc.Item(i);
            parents.insert(lists.parent_id.Item(i));
        }
        const std::string text = lists.exceptions.Item(i);
        Store.EventRecord.exceptions.Replace(i, ""); // to ask whether the series would have occurred
        std::string_view rest = text;
        while (const std::optional<Date> day = TakeException(rest)) {
            EXPECT_TRUE(EventOccursOn(*day, i)) << lists.desc.Item(i) << " on " << StoredDate(*day);
            ++exceptions;
        }
    }
    EXPECT_GE(exceptions, 25);
    EXPECT_GE(parents.size(), 5U);
    const auto isParent = [&](int i) { return IsSeries(i) && parents.contains(lists.id.Item(i)); };
    EXPECT_EQ(CountWhere(lists.id, isParent), static_cast<int>(parents.size()));
}

TEST_P(SampleEventsTest, TheReminderOfASeriesIsOneOfItsDaysAndAhead) {
    const EventLists& lists = Store.EventRecord;
    int reminded = 0;
    for (int i = 1; i <= lists.id.Count(); ++i) {
        if (!IsTrue(lists.reminder.Item(i))) {
            continue;
        }
        ++reminded;
        EXPECT_GT(MomentValue(lists.reminder_nextalarm.Item(i)), Today() + days{1} - seconds{1})
            << lists.desc.Item(i);
        EXPECT_TRUE(EventOccursOn(DateValue(lists.reminder_nextday.Item(i)), i)) << lists.desc.Item(i);
        EXPECT_TRUE(EventOccursOn(DateValue(lists.reminder_currentday.Item(i)), i)) << lists.desc.Item(i);
        const Moment next = DateValue(lists.reminder_nextday.Item(i)) + TimeValue(lists.time.Item(i));
        EXPECT_LE(MomentValue(lists.reminder_nextalarm.Item(i)), next) << lists.desc.Item(i);
    }
    EXPECT_GE(reminded, 10);
}

TEST_P(SampleEventsTest, TheClassesMeetOnTheirDays) {
    const auto meetingsInWeek = [](Date monday) {
        int meetings = 0;
        for (int day = 0; day < 7; ++day) {
            meetings += CountWhere(Store.EventRecord.id, [&](int i) {
                const std::string& type = Store.EventRecord.type.Item(i);
                return IsClassMeeting(type) && BelongsToActiveTerm(type) &&
                       EventOccursOn(monday + days{day}, i);
            });
        }
        return meetings;
    };
    EXPECT_EQ(WeekdayNumber(ActiveTermStart), 2);
    EXPECT_EQ(meetingsInWeek(ActiveTermStart + weeks{2}), 18) << "an ordinary week";
    EXPECT_EQ(meetingsInWeek(ActiveTermStart + weeks{7}), 0) << "the break";
    EXPECT_EQ(meetingsInWeek(ActiveTermEnd + days{3}), 0) << "after the term";
}

INSTANTIATE_TEST_SUITE_P(LaidOut, SampleEventsTest, testing::ValuesIn(LayoutDays), DayName);

} // namespace
