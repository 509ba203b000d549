// The study alert against a student who works through the homework day by day, on random plans.
#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"
#include "planner/study/StudyTimeAlert.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>
#include <numeric>
#include <rapidcheck.h>
#include <sstream>

using namespace std::chrono_literals;

namespace {

constexpr Date Wednesday{2009y / 10 / 14};
constexpr int LastMinuteOfDay = 1439;

struct Portion {
    int daysAhead;
    int minutes;
};

struct Plan {
    std::vector<Portion> homework;
    std::vector<Portion> study;
};

struct Outcome {
    int dueIn = -1; // days to the due date that fails; below 0 for none
    int shortage = 0;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

std::vector<Portion> Portions(int leastAhead, int greatestAhead, int greatestMinutes, int step) {
    const auto pairs = *rc::gen::container<std::vector<std::pair<int, int>>>(rc::gen::pair(
        rc::gen::inRange(leastAhead, greatestAhead + 1), rc::gen::inRange(0, greatestMinutes + 1)));
    std::vector<Portion> portions;
    portions.reserve(pairs.size());
    for (const auto& [daysAhead, minutes] : pairs) {
        portions.push_back({daysAhead, minutes / step * step});
    }
    return portions;
}

Plan RandomPlan() {
    const int horizon = *rc::gen::element(1, 2, 3, 10, 40);
    const int firstDue = std::min(horizon, *rc::gen::element(-3, 0, 2, 3));
    const int step = *rc::gen::element(1, 60); // whole hours often leave nothing over
    return {Portions(firstDue, horizon, 300, step), Portions(0, horizon, *rc::gen::element(60, 400), step)};
}

std::string DateAhead(int days) {
    return StoredDate(Wednesday + std::chrono::days{days});
}

// A session that ends with the last minute of its day is never over, however long it is.
void StoreStudy(const Portion& session) {
    const int start = ((LastMinuteOfDay - session.minutes) % 1440 + 1440) % 1440;
    AddEventRecord({.date = DateAhead(session.daysAhead),
                    .time = MinutesToClock(start),
                    .duration = std::to_string(session.minutes) + " Minutes",
                    .type = "Study Time"});
}

void StorePlan(const Plan& plan) {
    ResetStore();
    for (const Portion& work : plan.homework) {
        AddAssignmentRecord({.date = DateAhead(work.daysAhead), .time_left = MinutesToClock(work.minutes)});
    }
    for (const Portion& session : plan.study) {
        StoreStudy(session);
    }
}

// What a student has left of each day's homework who spends every session on what is due first.
struct Student {
    std::vector<int> left;
    int spent = 0;
    int idle = 0;

    void Study(int minutes) {
        for (int& work : left) {
            const int portion = std::min(work, minutes);
            work -= portion;
            minutes -= portion;
            spent += portion;
        }
        idle += minutes;
    }

    int LeftOf(std::size_t lastDueDay) const {
        return std::accumulate(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(lastDueDay) + 1, 0);
    }
};

Student StudentOf(const Plan& plan) {
    Student student;
    for (const Portion& work : plan.homework) {
        const auto day = static_cast<std::size_t>(std::max(0, work.daysAhead));
        student.left.resize(std::max(student.left.size(), work.daysAhead < 0 ? 0 : day + 1));
        if (work.daysAhead >= 0) {
            student.left[day] += work.minutes;
        }
    }
    return student;
}

// Lives through the days one by one. What is due today may be done today, all else is to be done the day
// before.
Outcome Simulated(const Plan& plan) {
    Student student = StudentOf(plan);
    for (std::size_t day = 0; day < student.left.size(); ++day) {
        for (const Portion& session : plan.study) {
            student.Study(session.daysAhead == static_cast<int>(day) ? session.minutes : 0);
        }
        const std::size_t next = std::min(day + 1, student.left.size() - 1);
        for (const std::size_t due : {day == 0 ? day : next, next}) {
            if (student.LeftOf(due) > 0) {
                return {static_cast<int>(due), student.LeftOf(due)};
            }
        }
    }
    return {};
}

int MinutesIn(const std::string& amount) {
    int minutes = 0;
    int number = 0;
    std::istringstream words{amount};
    for (std::string word; words >> word;) {
        if (word.starts_with("hour")) {
            minutes += number * 60;
        } else if (word.starts_with("minute")) {
            minutes += number;
        } else if (word != "and") {
            number = std::stoi(word);
        }
    }
    return minutes;
}

Outcome Checked() {
    if (!StudyTimeAlertCheck()[StudyTimeAlert]) {
        return {};
    }
    for (int day = 0; day < AlertDays.Count(); ++day) {
        const std::string dated = FormatDate(AlertDays.Item(day + 1), "dddd, mmm d").utf8;
        const std::string when = day == 0 ? "today" : day == 1 ? "tomorrow" : dated;
        if (AlertWhen.utf8 == when) {
            return {day, MinutesIn(AlertAmount)};
        }
    }
    return {};
}

class StudyBalance : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        SetClock(2009, 10, 14, 10, 0);
    }

    void TearDown() override { ResetStore(); }
};

} // namespace

TEST_F(StudyBalance, FailsWhereAndByHowMuchAStudentWouldFallBehind) {
    EXPECT_TRUE(rc::check([] {
        const Plan plan = RandomPlan();
        StorePlan(plan);
        const Outcome checked = Checked();
        RC_CLASSIFY(checked.dueIn < 0, "no alert");
        RC_CLASSIFY(checked.dueIn == 0, "today");
        RC_CLASSIFY(checked.dueIn == 1, "tomorrow");
        RC_CLASSIFY(checked.dueIn > 1, "a later day");
        RC_ASSERT(checked == Simulated(plan));
    }));
}

TEST_F(StudyBalance, IsSilencedByItsShortageTodayAndNotByAMinuteLess) {
    EXPECT_TRUE(rc::check([] {
        const Plan plan = RandomPlan();
        StorePlan(plan);
        const Outcome fired = Checked();
        RC_PRE(fired.dueIn >= 0);
        StoreStudy({0, fired.shortage - 1});
        RC_ASSERT(Checked() == (Outcome{fired.dueIn, 1}));
        StorePlan(plan);
        StoreStudy({0, fired.shortage});
        const Outcome after = Checked();
        RC_ASSERT(after.dueIn < 0 || after.dueIn > fired.dueIn);
    }));
}

TEST_F(StudyBalance, SpendsOrLeavesEveryMinuteOnce) {
    EXPECT_TRUE(rc::check([] {
        const Plan plan = RandomPlan();
        StorePlan(plan);
        Checked();
        int needed = 0;
        int studied = 0;
        const int days = AlertDays.Count();
        for (const Portion& work : plan.homework) {
            needed += work.daysAhead >= 0 ? work.minutes : 0;
        }
        for (const Portion& session : plan.study) {
            studied += session.daysAhead < days ? session.minutes : 0;
        }
        RC_ASSERT(std::accumulate(AlertNeed.begin(), AlertNeed.end(), 0) == needed);
        RC_ASSERT(std::accumulate(AlertStudy.begin(), AlertStudy.end(), 0) == studied);
        Student student = StudentOf(plan);
        for (const int minutes : AlertStudy) {
            student.Study(minutes);
        }
        RC_ASSERT(student.spent + student.idle == studied);
        RC_ASSERT(student.spent + std::accumulate(student.left.begin(), student.left.end(), 0) == needed);
    }));
}
