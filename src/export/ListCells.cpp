// The cells of a list's rows on its page.
#include "export/ListCells.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/dates/DaysAway.h"
#include "planner/rows/RowTexts.h"

namespace {

using Cells = std::vector<std::string>;

constexpr const char* NoDeadline = " ";

std::string Trimmed(std::string_view text) {
    return std::string(Trim(text));
}

std::string Choice(std::string_view text) {
    return std::string(ShownChoice(text));
}

std::string DateCell(std::string_view moment) {
    return PageDate(std::chrono::floor<std::chrono::days>(MomentValue(moment)));
}

std::string DoneCell(std::string_view flag) {
    return IsTrue(flag) ? "Yes" : "";
}

Cells HomeworkCells(int row) {
    const AssignmentLists& store = Store.Assignment;
    const int position = HomeworkRows.Item(row);
    return {RowClass.Item(row),
            Trimmed(store.type.Item(position)),
            store.desc.Item(position),
            Trimmed(store.time_left.Item(position)),
            DateCell(store.date.Item(position)),
            DoneCell(store.done.Item(position))};
}

Cells StudyCells(int row) {
    const AssignmentLists& store = Store.Assignment;
    const StudySessionLists& log = Store.StudySessionRecord;
    const int position = HomeworkRows.Item(row);
    return {RowClass.Item(row),
            Trimmed(store.type.Item(position)),
            store.desc.Item(position),
            ShownClock(log.time.Item(StudyRowTime.Item(row))),
            DateCell(log.date.Item(StudyRowDate.Item(row))),
            DateCell(store.date.Item(position))};
}

Cells TaskCells(int row) {
    const TaskLists& store = Store.TaskRecord;
    const int position = TaskRows.Item(row);
    const bool dated = IsTrue(store.date_exists.Item(position));
    return {std::string(TaskName(position)), Choice(TaskRowType.Item(row)),
            Trimmed(store.priority.Item(position)),
            dated ? DateCell(store.date.Item(position)) : std::string(NoDeadline),
            DoneCell(store.done.Item(position))};
}

Cells ReminderCells(int row) {
    return {OrElse(ReminderRowClass.Item(row), ReminderRowKind.Item(row)), Choice(ReminderRowType.Item(row)),
            ReminderRowText.Item(row), DaysAway(ReminderRowDays.Item(row)), ""};
}

Cells EventCells(int row) {
    const EventLists& store = Store.EventRecord;
    const int position = EventRows.Item(row);
    return {store.desc.Item(position), EventRowType.Item(row), PageDate(EventRowDate.Item(row)),
            ShownTime(store.time.Item(position)), Choice(store.recurrence.Item(position))};
}

} // namespace

int RowsOnPage(ListPage page) {
    switch (page) {
    case ListPage::Homework:
        return HomeworkRows.Count();
    case ListPage::StudySessions:
        return StudyRowTime.Count();
    case ListPage::Tasks:
        return TaskRows.Count();
    case ListPage::Reminders:
        return ReminderRows.Count();
    case ListPage::Events:
        return EventRows.Count();
    }
    return 0;
}

std::vector<std::string> CellsOnPage(ListPage page, int row) {
    switch (page) {
    case ListPage::Homework:
        return HomeworkCells(row);
    case ListPage::StudySessions:
        return StudyCells(row);
    case ListPage::Tasks:
        return TaskCells(row);
    case ListPage::Reminders:
        return ReminderCells(row);
    case ListPage::Events:
        return EventCells(row);
    }
    return {};
}
