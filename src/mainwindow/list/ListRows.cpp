// What the lists show in their rows: the cells that several of them have.
#include "mainwindow/list/ListRows.h"

#include "core/DateText.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/rows/RowTexts.h"
#include "toolkit/Text.h"

int RowsInList(ListKind kind) {
    switch (kind) {
    case ListKind::Homework:
        return HomeworkRows.Count();
    case ListKind::StudySessions:
        return StudyRowTime.Count();
    case ListKind::Tasks:
        return TaskRows.Count();
    case ListKind::Events:
        return EventRows.Count();
    case ListKind::Reminders:
        return ReminderRows.Count();
    }
    return 0;
}

GridRow RowOfList(ListKind kind, int row) {
    switch (kind) {
    case ListKind::Homework:
        return HomeworkGridRow(row);
    case ListKind::StudySessions:
        return StudyGridRow(row);
    case ListKind::Tasks:
        return TaskGridRow(row);
    case ListKind::Events:
        return EventGridRow(row);
    case ListKind::Reminders:
        return ReminderGridRow(row);
    }
    return {};
}

GridCell TextCell(std::string_view text) {
    return {FromStore(text)};
}

GridCell TrimmedCell(std::string_view text) {
    return TextCell(Trim(text));
}

GridCell NameCell(std::string_view text, std::string_view instead) {
    return TextCell(text.empty() ? std::string(instead) : std::string(text) + " ");
}

GridCell ClockCell(std::string_view clock) {
    return TextCell(ShownClock(clock));
}

GridCell TimeCell(std::string_view time) {
    return TextCell(ShownTime(time));
}

GridCell DateCell(Date date) {
    return {FromScreen(FormatDate(date, "Medium Date"))};
}

GridCell DateCell(std::string_view date) {
    return DateCell(std::chrono::floor<std::chrono::days>(MomentValue(date)));
}

GridCell ReminderCell(std::string_view flag) {
    return TextCell(IsTrue(flag) ? ReminderMark : "");
}

GridCell PriorityCell(std::string_view flag) {
    return TextCell(IsTrue(flag) ? PriorityMark : "");
}

GridCell CheckCell(std::string_view flag) {
    return {{}, IsTrue(flag) ? CellKind::Checked : CellKind::Unchecked};
}
