// The scheduled study of each day: which sessions count, when the count ends, and how far it reaches.
// The clock stands at 10:00 AM of Wednesday, 2009-10-14.
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/RecurrenceOracle.h"
#include "planner/study/StudyTimeAlert.h"
#include "support/CaseName.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

using namespace std::chrono_literals;

namespace {

using Minutes = std::vector<int>;

constexpr Date Wednesday{2009y / 10 / 14};

class StudyOfDays : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        SetClock(2009, 10, 14, 10, 0);
        ResetStore();
    }

    void TearDown() override { ResetStore(); }
};

int AddStudy(EventTexts event) {
    event.type = "Study Time";
    return AddEventRecord(event);
}

void SetAlertDays(Date first, int count) {
    AlertDays.Clear();
    for (int day = 0; day < count; ++day) {
        AlertDays.Add(first + std::chrono::days{day});
    }
    AlertStudy.values.assign(static_cast<std::size_t>(count), 0);
}

// The minutes of study of that many days from the Wednesday on.
Minutes StudyOf(int count) {
    SetAlertDays(Wednesday, count);
    StudyTimeByDay(Now());
    return AlertStudy.values;
}

} // namespace

TEST_F(StudyOfDays, CountsEventsOfThatTypeAlone) {
    AddEventRecord({.time = "08:00 PM", .duration = "1 Hour", .type = "Class"});
    AddEventRecord({.time = "08:00 PM", .duration = "1 Hour", .type = "study time"});
    EXPECT_EQ(StudyOf(1), (Minutes{0}));
    AddStudy({.time = "08:00 PM", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(1), (Minutes{60}));
}

TEST_F(StudyOfDays, LeavesDeletedSessionsOut) {
    AddStudy({.time = "08:00 AM", .duration = "1 Hour", .desc = "DELETED RECORD"});
    AddStudy({.date = "2009/10/15", .duration = "1 Hour", .desc = "DELETED RECORD"});
    AddStudy({.date = "never", .duration = "1 Hour", .desc = "DELETED RECORD", .exceptions = "never"});
    EXPECT_EQ(StudyOf(100), Minutes(100, 0));
}

TEST_F(StudyOfDays, EndsAtASessionOfTodayThatIsOver) {
    AddStudy({.time = "07:00 PM", .duration = "15 Minutes"});
    AddStudy({.time = "08:00 AM", .duration = "1 Hour"});
    AddStudy({.time = "08:00 PM", .duration = "45 Minutes"});
    AddStudy({.date = "2009/10/15", .duration = "2 Hours"});
    EXPECT_EQ(StudyOf(3), (Minutes{15, 0, 0}));
}

TEST_F(StudyOfDays, EndsBeforeTheLaterDaysOfSessionsThatStandInFront) {
    AddStudy({.date = "2009/10/15", .duration = "2 Hours"});
    AddStudy({.time = "08:00 AM", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(3), (Minutes{0, 0, 0}));
}

TEST_F(StudyOfDays, DoesNotEndAtASessionOfAnotherDay) {
    AddStudy({.date = "2009/10/13", .time = "08:00 AM", .duration = "1 Hour"});
    AddStudy({.date = "2009/10/15", .time = "08:00 AM", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(2), (Minutes{0, 60}));
}

TEST_F(StudyOfDays, CountsARunningSessionWhole) {
    AddStudy({.time = "09:30 AM", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(1), (Minutes{60}));
}

TEST_F(StudyOfDays, CountsASessionThatEndsThisVerySecond) {
    AddStudy({.time = "09:00 AM", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(1), (Minutes{60}));
    SetClock(2009, 10, 14, 10, 0, 1);
    EXPECT_EQ(StudyOf(1), (Minutes{0}));
}

TEST_F(StudyOfDays, TakesLengthsToTheSecond) {
    AddStudy({.time = "09:59:30 AM", .duration = "0.4 Minutes"}); // over six seconds before
    EXPECT_EQ(StudyOf(2), (Minutes{0, 0}));
    AddStudy({.date = "2009/10/15", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(2), (Minutes{0, 0}));
    SetClock(2009, 10, 14, 9, 59, 54);
    EXPECT_EQ(StudyOf(2), (Minutes{0, 60}));
}

TEST_F(StudyOfDays, TakesASessionOverMidnightAsOverInTheMorning) {
    AddStudy({.time = "11:00 PM", .duration = "2 Hours"});
    AddStudy({.date = "2009/10/15", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(2), (Minutes{0, 0}));
}

TEST_F(StudyOfDays, TakesASessionThroughMidnightToTheLateMorningAsYetToEnd) {
    AddStudy({.time = "11:00 PM", .duration = "12 Hours"});
    AddStudy({.date = "2009/10/15", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(2), (Minutes{720, 60}));
}

struct Length {
    const char* duration;
    int minutes;
};

class StudyLengths : public StudyOfDays, public testing::WithParamInterface<Length> {};

TEST_P(StudyLengths, GoByTheFirstLetterOfTheUnit) {
    AddStudy({.date = "2009/10/15", .duration = GetParam().duration});
    EXPECT_EQ(StudyOf(2), (Minutes{0, GetParam().minutes}));
}

INSTANTIATE_TEST_SUITE_P(Durations, StudyLengths,
                         testing::Values(Length{"1 Hour", 60}, Length{"2 Hours", 120},
                                         Length{"1.5 Hours", 90}, Length{"45 Minutes", 45},
                                         Length{"1 Day", 1}, Length{"20", 20}, Length{"0 Minutes", 0},
                                         Length{"2.5 Minutes", 2}, Length{"3.5 Minutes", 4}),
                         [](const auto& each) { return CaseName(each.param.duration); });

TEST_F(StudyOfDays, RoundsAfterEachSessionHalvesToEven) {
    AddStudy({.date = "2009/10/15", .duration = "22.5 Minutes"}); // 22
    AddStudy({.date = "2009/10/15", .duration = "1 Minutes"});    // 23
    AddStudy({.date = "2009/10/15", .duration = "0.5 Minutes"});  // 24
    AddStudy({.date = "2009/10/15", .duration = "0.5 Minutes"});  // 24
    EXPECT_EQ(StudyOf(2), (Minutes{0, 24}));
}

TEST_F(StudyOfDays, RoundsWeeklySessionsInStoreOrderToo) {
    AddStudy({.date = "2009/10/15", .duration = "1 Minutes", .recurrence = "Day", .repeat_daily = "FFFTFFF"});
    AddStudy(
        {.date = "2009/10/15", .duration = "0.5 Minutes", .recurrence = "Day", .repeat_daily = "FFFTFFF"});
    AddStudy({.date = "2009/10/15", .duration = "1 Minutes", .recurrence = "Day", .repeat_daily = "FFFTFFF"});
    const Minutes study = StudyOf(200);
    for (std::size_t day = 1; day < study.size(); day += 7) {
        ASSERT_EQ(study[day], 3) << day; // 1, 1.5 becomes 2, 3
    }
    EXPECT_EQ(std::accumulate(study.begin(), study.end(), 0), 29 * 3);
}

TEST_F(StudyOfDays, RoundsInStoreOrderWhereTheFirstWeeksAreGivenUp) {
    AddStudy({.date = "2009/10/15", .duration = "1 Minutes", .recurrence = "Day", .repeat_daily = "FFFTFFF"});
    std::string exceptions;
    for (int week = 0; week < 10; ++week) {
        exceptions += StoredDate(Wednesday + std::chrono::days{1 + 7 * week}) + " ";
    }
    AddStudy({.date = "2009/10/15",
              .duration = "0.5 Minutes",
              .recurrence = "Day",
              .exceptions = exceptions,
              .repeat_daily = "FFFTFFF"});
    const Minutes study = StudyOf(200);
    EXPECT_EQ(study[64], 1);
    EXPECT_EQ(study[71], 2); // 1, 1.5 becomes 2
    EXPECT_EQ(study[197], 2);
}

// Minutes below nothing can only come from a file. The first ten weeks are given up, so that all days that
// count lie far ahead.
TEST_F(StudyOfDays, OverflowsInStoreOrderAlsoFarAhead) {
    std::string exceptions;
    for (int week = 0; week < 10; ++week) {
        exceptions += StoredDate(Wednesday + std::chrono::days{1 + 7 * week}) + " ";
    }
    const auto addThursdays = [&exceptions](const std::string& duration) {
        AddStudy({.date = "2009/10/15",
                  .duration = duration,
                  .recurrence = "Day",
                  .exceptions = exceptions,
                  .repeat_daily = "FFFTFFF"});
    };
    addThursdays("32767 Minutes");
    addThursdays("-1 Minutes");
    addThursdays("1 Minutes");
    EXPECT_EQ(StudyOf(200)[197], 32767);
    addThursdays("1 Minutes");
    EXPECT_THROW(StudyOf(200), RunTimeError);
    addThursdays("-1 Minutes");
    EXPECT_THROW(StudyOf(200), RunTimeError);
    ResetStore();
    addThursdays("3000000000 Minutes");
    EXPECT_THROW(StudyOf(200), RunTimeError);
}

TEST_F(StudyOfDays, LeavesTheDatesOutThatASeriesHasGivenUp) {
    AddStudy({.date = "2009/10/12",
              .time = "08:00 PM",
              .duration = "1 Hour",
              .recurrence = "Day",
              .exceptions = "2009/10/16 2010/01/15",
              .repeat_daily = "TFTFTFF"});
    const Minutes study = StudyOf(120);
    EXPECT_EQ(study[0], 60);
    EXPECT_EQ(study[2], 0);
    EXPECT_EQ(study[5], 60);
    EXPECT_EQ(study[91], 60); // Wednesday, 2010-01-13
    EXPECT_EQ(study[93], 0);
    EXPECT_EQ(study[96], 60);
    EXPECT_EQ(std::accumulate(study.begin(), study.end(), 0), (52 - 2) * 60);
}

TEST_F(StudyOfDays, EndsASeriesWithItsEndDate) {
    AddStudy({.date = "2009/10/12",
              .time = "08:00 PM",
              .duration = "1 Hour",
              .recurrence = "Day",
              .repeat_daily = "TFTFTFF",
              .end = "True",
              .end_date = "2010/01/15"});
    const Minutes study = StudyOf(120);
    EXPECT_EQ(study[93], 60); // Friday, 2010-01-15
    EXPECT_EQ(study[96], 0);
}

TEST_F(StudyOfDays, EndInTheRunTimeErrorAtATimeThatIsNoneOnlyToday) {
    AddStudy({.date = "2009/10/15", .time = "noon", .duration = "1 Hour"});
    EXPECT_EQ(StudyOf(2), (Minutes{0, 60}));
    AddStudy({.time = "noon", .duration = "1 Hour"});
    EXPECT_THROW(StudyOf(2), RunTimeError);
}

TEST_F(StudyOfDays, DoNotReadTheDurationOfASessionThatDoesNotOccur) {
    AddStudy({.date = "2009/10/13", .duration = "soon"});
    AddStudy({.date = "2009/10/17", .duration = "soon"});
    EXPECT_EQ(StudyOf(3), (Minutes{0, 0, 0}));
    EXPECT_THROW(StudyOf(4), RunTimeError);
}

TEST_F(StudyOfDays, ReachWeeklySessionsAThousandYearsAhead) {
    AddStudy({.date = "2009/10/12",
              .time = "08:00 PM",
              .duration = "1 Hour",
              .recurrence = "Day",
              .exceptions = "2050/01/03",
              .repeat_daily = "TFFFFFF"});
    AddStudy({.date = "2010/01/31",
              .time = "08:00 PM",
              .duration = "30 Minutes",
              .recurrence = "Month",
              .same_date = "True"});
    const int count = DayDiff(Wednesday, Date{3100y / 12 / 31}) + 1;
    const Minutes study = StudyOf(count);
    int mondays = 0;
    int ends = 0;
    for (int day = 0; day < count; ++day) {
        const Date date = Wednesday + std::chrono::days{day};
        const bool monday = WeekdayNumber(date) == 2 && date != Date{2050y / 1 / 3};
        const std::chrono::year_month_day parts{date};
        const bool monthEnd =
            date >= Date{2010y / 1 / 31} && Date{parts.year() / parts.month() / std::chrono::last} == date;
        mondays += monday ? 1 : 0;
        ends += monthEnd ? 1 : 0;
        ASSERT_EQ(study[static_cast<std::size_t>(day)], (monday ? 60 : 0) + (monthEnd ? 30 : 0)) << day;
    }
    EXPECT_GT(mondays, 56000);
    EXPECT_EQ(ends, (3101 - 2010) * 12);
}

namespace {

constexpr std::array<const char*, 10> Durations{"1 Hour",  "1.5 Hours",    "30 Minutes", "22.5 Minutes",
                                                "1 Day",   "0.33 Minutes", "45 Minutes", "0.5 Minutes",
                                                "2 Hours", "7.77 Minutes"};
constexpr std::array<const char*, 6> Times{"09:00 PM", "08:00 AM", "09:30 AM",
                                           "11:30 PM", "12:00 PM", "09:45 AM"};

struct Session {
    OracleSeries series;
    std::string duration;
    std::string time;
};

int Uniform(std::mt19937& random, int least, int greatest) {
    return std::uniform_int_distribution<int>{least, greatest}(random);
}

std::vector<Session> RandomSessions(std::mt19937& random, Date today) {
    std::vector<Session> sessions;
    const int count = Uniform(random, 0, 12);
    for (int i = 0; i < count; ++i) {
        Session session{RandomSeries(random, today),
                        Durations[static_cast<std::size_t>(Uniform(random, 0, 9))],
                        Times[static_cast<std::size_t>(Uniform(random, 0, 5))]};
        if (Uniform(random, 0, 2) > 0) { // keep sessions that are over rare enough
            session.time = "11:00 PM";
            session.duration = "30 Minutes";
        }
        sessions.push_back(session);
    }
    return sessions;
}

void StoreSessions(const std::vector<Session>& sessions) {
    std::vector<OracleSeries> series;
    series.reserve(sessions.size());
    for (const Session& session : sessions) {
        series.push_back(session.series);
    }
    FillStore(series);
    EventLists& events = Store.EventRecord;
    events.type.Clear();
    events.duration.Clear();
    events.time.Clear();
    for (const Session& session : sessions) {
        events.type.Add("Study Time");
        events.duration.Add(session.duration);
        events.time.Add(session.time);
    }
}

// The rule day by day and session by session.
Minutes NaiveStudy(const std::vector<Session>& sessions, const std::vector<OracleDay>& days,
                   TimeOfDay present) {
    Minutes study(days.size(), 0);
    for (std::size_t n = 0; n < days.size(); ++n) {
        for (const Session& session : sessions) {
            if (!OracleOccurs(session.series, days[n])) {
                continue;
            }
            const double length =
                std::stod(session.duration) * (session.duration.find("Hour") != std::string::npos ? 60 : 1);
            const auto end = (TimeValue(session.time) + std::chrono::seconds{std::lround(length * 60)}) % 24h;
            if (n == 0 && end < present) {
                return study;
            }
            study[n] = static_cast<int>(std::nearbyint(study[n] + length));
        }
    }
    return study;
}

} // namespace

TEST_F(StudyOfDays, AgreesWithACountOfTheDaysOneByOne) {
    std::mt19937 random{20091014};
    int endedEarly = 0;
    for (int round = 0; round < 3000; ++round) {
        const Date today = RandomAnchor(random);
        const int count = Uniform(random, 1, round % 10 == 0 ? 900 : 150);
        Script.now = Moment{today} + 10h;
        const std::vector<OracleDay> days = OracleDays(today, today + std::chrono::days{count - 1});
        const std::vector<Session> sessions = RandomSessions(random, today);
        StoreSessions(sessions);
        SetAlertDays(today, count);
        StudyTimeByDay(Now());
        const Minutes wanted = NaiveStudy(sessions, days, 10h);
        ASSERT_EQ(AlertStudy.values, wanted) << "round " << round;
        const Minutes inTheMorning = NaiveStudy(sessions, days, 0h);
        endedEarly += wanted != inTheMorning ? 1 : 0;
    }
    EXPECT_GT(endedEarly, 100); // the early end was among what was tried
}

TEST_F(StudyOfDays, ConservesTheMinutes) {
    std::mt19937 random{14};
    for (int round = 0; round < 300; ++round) {
        const Date today = RandomAnchor(random);
        Script.now = Moment{today}; // at midnight no session is over
        const std::vector<OracleDay> days = OracleDays(today, today + std::chrono::days{149});
        std::vector<Session> sessions = RandomSessions(random, today);
        int scheduled = 0;
        for (Session& session : sessions) {
            const int length = Uniform(random, 0, 240);
            session.duration = std::to_string(length) + " Minutes";
            session.time = "07:00 PM";
            for (const OracleDay& day : days) {
                scheduled += OracleOccurs(session.series, day) ? length : 0;
            }
        }
        StoreSessions(sessions);
        SetAlertDays(today, 150);
        StudyTimeByDay(Now());
        ASSERT_EQ(std::accumulate(AlertStudy.begin(), AlertStudy.end(), 0), scheduled) << "round " << round;
    }
}
