// What the rules make of the store: the lists, the marks, the totals, the alerts, the reminders, the grades.
#include "support/RuleResults.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "mainwindow/month/MonthMarks.h"
#include "planner/grades/Grades.h"
#include "planner/lists/DayTotals.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/ReminderSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/EventWalk.h"
#include "planner/reminders/ReminderEngine.h"
#include "planner/study/StudyTimeAlert.h"
#include "planner/study/StudyTimeToday.h"

namespace {

using std::chrono::days;

std::string Shown(const std::string& text) {
    return text;
}

std::string Shown(int number) {
    return std::to_string(number);
}

std::string Shown(Date date) {
    return StoredDate(date);
}

std::string Shown(const BoxText& box) {
    return box.text + "#" + std::to_string(box.backcolor);
}

template <class... Values>
void Tell(std::string& results, const Values&... values) {
    ((results += Shown(values) + "|"), ...);
    results += '\n';
}

template <class... Lists>
void TellLists(std::string& results, const Lists&... lists) {
    const auto tell = [&results](const auto& list) {
        for (const auto& value : list) {
            results += Shown(value) + "|";
        }
        results += '\n';
    };
    (tell(lists), ...);
}

template <class... Lists>
void TellRows(std::string& results, const std::tuple<Lists&...>& table) {
    ForEachList(table, [&results](const auto& list) { TellLists(results, list); });
}

void TellHomework(std::string& results, const ListFilter& filter, Date today) {
    const HomeworkCounts counts = SelectHomeworkRows(filter);
    SortHomeworkRows({static_cast<int>(HomeworkColumn::Due), Ascending});
    Tell(results, counts.total, counts.left);
    TellRows(results, HomeworkRowLists);
    const HomeworkDayBoxes day = HomeworkDayTotals(today);
    Tell(results, day.TextBoxTotalAssignments, day.TextBoxFinishedAssignments, day.TextBoxTimeRemaining);
    const StudyTimeBoxes study = StudyTimeToday(today);
    Tell(results, study.TextBoxMinimum, study.TextBoxSuggested);
    StudySessionDayList(today);
}

void TellTasks(std::string& results, const ListFilter& filter, Date today) {
    SelectTasks(AllDates, filter);
    SortTaskRows({static_cast<int>(TaskColumn::Day), Ascending});
    TellRows(results, TaskRowLists);
    SelectTasksForDay(today);
    TellLists(results, TaskRows);
    const TaskBoxes boxes = CountTasks(today);
    Tell(results, boxes.TextBoxTotalTasks, boxes.TextBoxFinishedTasks, boxes.TextBoxUndatedTasks);
}

void TellEvents(std::string& results, const ListFilter& filter, Date today) {
    SelectEventRows(filter);
    SortEventRows({static_cast<int>(EventColumn::Name), Ascending});
    TellRows(results, EventRowLists);
    const std::vector<int> eventsOfDay = EventsOn(today);
    SelectEventsForDay(today, eventsOfDay, filter);
    TellLists(results, EventRows);
    const EventDayBoxes boxes = EventDayTotals(eventsOfDay);
    Tell(results, boxes.TextBoxSchedStudy, boxes.TextBoxClasses, boxes.TextBoxOtherEvents);
}

void TellMonth(std::string& results, ListFilter filter, Date today) {
    SelectReminders(today, filter);
    TellRows(results, ReminderRowLists);
    filter.calendarMode = true;
    CalendarMonth month;
    MarkMonth(month, today - days{20}, Mode::Calendar, filter);
    TellLists(results, month.CellMarked, month.HomeworkDoneCount, month.HomeworkLeftCount,
              month.TaskDoneCountByDay, month.TaskLeftCountByDay, month.EventCountByDay);
}

void TellAlerts(std::string& results) {
    TellLists(results, StudyTimeAlertCheck());
    TellLists(results, AlertDays, AlertNeed, AlertStudy);
    const GPATable grades = BuildGPATable(true);
    TellLists(results, grades.GPANames, grades.GPACredits, grades.GPALetters, grades.GPAPercents,
              grades.GPAAssignments, grades.GPAMinutes);
}

void TellReminders(std::string& results) {
    const PlannerStore before = Store;
    ReminderFlags flags;
    ReminderListRows rows;
    CheckReminders(Now(), flags, rows);
    Store = before;
    Tell(results, flags.ReminderTasksChanged, flags.ReminderHomeworkChanged, flags.ReminderEventsChanged);
    TellLists(results, rows.ReminderIds, rows.ReminderModes, rows.ReminderNames, rows.ReminderTypes,
              rows.ReminderWhens);
}

} // namespace

std::string RuleResults() {
    std::string results;
    const ListFilter filter{"All", "All", Today(), false};
    SetupActiveClasses();
    TellLists(results, ActiveClasses.id, ActiveClasses.name, ActiveClasses.credits, ActiveClasses.forecolor,
              ActiveClasses.backcolor);
    TellHomework(results, filter, Today());
    TellTasks(results, filter, Today());
    TellEvents(results, filter, Today());
    TellMonth(results, filter, Today());
    TellAlerts(results);
    TellReminders(results);
    return results;
}
