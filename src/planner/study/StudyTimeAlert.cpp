// Is there enough study time? The balance of homework against study, and the alerts that it raises.
#include "planner/study/StudyTimeAlert.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>
#include <vector>

List<Date> AlertDays;
NumberList AlertNeed;
NumberList AlertStudy;
ScreenText AlertWhen;
std::string AlertAmount;
std::string AlertBefore;

namespace {

struct OpenHomework {
    int position; // in the store
    int daysAhead;
};

std::vector<OpenHomework> HomeworkNotDone(Date today) {
    const AssignmentLists& assignments = Store.Assignment;
    std::vector<OpenHomework> homework;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (!IsTrue(assignments.done.Item(position))) {
            homework.push_back({position, DayDiff(today, DateValue(assignments.date.Item(position)))});
        }
    }
    return homework;
}

// One entry for each day up to the last due date; none when all is late.
void ResetAlertLists(Date today, const std::vector<OpenHomework>& homework) {
    int days = 0;
    for (const OpenHomework& open : homework) {
        days = std::max(days, open.daysAhead + 1);
    }
    const auto count = static_cast<std::size_t>(days);
    AlertDays.values.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        AlertDays.values[i] = today + std::chrono::days{i};
    }
    AlertNeed.values.assign(count, 0);
    AlertStudy.values.assign(count, 0);
}

void FillAlertNeed(const std::vector<OpenHomework>& homework) {
    for (const OpenHomework& open : homework) {
        if (open.daysAhead >= 0) {
            const int day = open.daysAhead + 1;
            const int minutes = ClockToMinutes(Store.Assignment.time_left.Item(open.position));
            AlertNeed.Replace(day, Int16Of(AlertNeed.Item(day) + minutes));
        }
    }
}

// "1 hour", "2 hours"; empty for 0.
std::string Counted(long long number, std::string_view unit) {
    if (number == 0) {
        return {};
    }
    return std::to_string(number) + " " + std::string(unit) + (number == 1 ? "" : "s");
}

bool Announce(long long shortage, ScreenText when, std::string_view before) {
    const std::string hours = Counted(shortage / MinutesPerHour, "hour");
    const std::string minutes = Counted(shortage % MinutesPerHour, "minute");
    AlertWhen = std::move(when);
    AlertAmount = hours + (hours.empty() || minutes.empty() ? "" : " and ") + minutes;
    AlertBefore = before;
    return true;
}

// Asks the steps in their order and announces the first that is short of study.
bool StudyIsShort() {
    const int days = AlertDays.Count();
    if (days == 0) {
        return false;
    }
    int needed = AlertNeed.Item(1);
    const int studied = AlertStudy.Item(1);
    if (studied < needed) {
        return Announce(needed - studied, {"today"}, "today");
    }
    if (days == 1) {
        return false;
    }
    needed += AlertNeed.Item(2);
    if (studied < needed) { // the study of tomorrow does not help what is due tomorrow
        return Announce(needed - studied, {"tomorrow"}, "today");
    }
    long long balance = studied - needed;
    for (int day = 3; day <= days; ++day) {
        balance += AlertStudy.Item(day - 1) - AlertNeed.Item(day);
        if (balance < 0) {
            return Announce(-balance, FormatDate(AlertDays.Item(day), "dddd, mmm d"), "before then");
        }
    }
    return false;
}

} // namespace

AlertsShown StudyTimeAlertCheck() {
    const Moment now = Now();
    const Date today = std::chrono::floor<std::chrono::days>(now);
    const std::vector<OpenHomework> homework = HomeworkNotDone(today);
    ResetAlertLists(today, homework);
    FillAlertNeed(homework);
    if (AlertDays.Count() > 0) {
        StudyTimeByDay(now);
    }
    AlertsShown shown{};
    shown[StudyTimeAlert] = StudyIsShort();
    for (const OpenHomework& open : homework) {
        shown[HomeworkDueTomorrow] |= open.daysAhead == 1;
        shown[HomeworkDueToday] |= open.daysAhead == 0;
        shown[LateAssignment] |= open.daysAhead < 0;
    }
    return shown;
}
