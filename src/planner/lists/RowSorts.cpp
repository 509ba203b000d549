// The orders of the lists by their columns.
#include "planner/lists/RowSorts.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "planner/dates/DateHelpers.h"
#include "planner/dates/MonthGrid.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/RowOrder.h"
#include "planner/rows/RowTexts.h"

namespace {

// --- What a column's texts are for each row ---

auto TextOf(const TextList& rowTexts) {
    return [&rowTexts](int row) -> std::string_view { return rowTexts.Item(row); };
}

auto FieldOf(const TextList& field, const NumberList& rows) {
    return [&field, &rows](int row) -> std::string_view { return field.Item(rows.Item(row)); };
}

template <class TextOfRow>
auto Replacing(std::string_view replaced, std::string_view by, TextOfRow textOfRow) {
    return [=](int row) -> std::string_view {
        const std::string_view text = textOfRow(row);
        return text == replaced ? by : text;
    };
}

// --- What they are compared by ---

template <class TextOfRow>
auto ClockMinutesOf(TextOfRow textOfRow) {
    return [=](int row) -> double { return ClockToMinutes(textOfRow(row)); };
}

template <class TextOfRow>
auto MomentMinutesOf(TextOfRow textOfRow) {
    return [=](int row) {
        const auto minutes = std::chrono::floor<std::chrono::minutes>(MomentValue(textOfRow(row)));
        return static_cast<double>(minutes.time_since_epoch().count());
    };
}

double DayNumber(Date date) {
    return static_cast<double>(date.time_since_epoch().count());
}

// 0 where there is none.
double MinuteOfDay(std::string_view time) {
    const TimeOfDay seconds = TimeIn(time).value_or(TimeOfDay{0});
    return static_cast<double>(std::chrono::floor<std::chrono::minutes>(seconds).count());
}

std::string_view Sentinel(int direction, std::string_view ascending, std::string_view descending) {
    return direction == Descending ? descending : ascending;
}

// --- The order of each list ---

RowOrder HomeworkOrder(SortOrder order) {
    const AssignmentLists& store = Store.Assignment;
    const auto field = [](const TextList& list) { return FieldOf(list, HomeworkRows); };
    const int rows = HomeworkRows.Count();
    const int direction = order.direction;
    switch (HomeworkColumn{order.column}) {
    case HomeworkColumn::Reminder:
        return OrderByText(rows, direction, field(store.reminder));
    case HomeworkColumn::Priority:
        return OrderByText(rows, direction, field(store.priority), TextOrder::Bytes);
    case HomeworkColumn::Class:
        return OrderByText(rows, direction, TextOf(RowClass));
    case HomeworkColumn::Type:
        return OrderByText(rows, direction, field(store.type));
    case HomeworkColumn::Description:
        return OrderByText(rows, direction, [](int row) { return AssignmentName(HomeworkRows.Item(row)); });
    case HomeworkColumn::Time:
        return OrderByNumber(rows, direction, ClockMinutesOf(field(store.time_left)));
    case HomeworkColumn::Due:
        return OrderByNumber(rows, direction, MomentMinutesOf(field(store.date)));
    case HomeworkColumn::Done:
        return OrderByText(rows, direction, field(store.done), TextOrder::Bytes);
    case HomeworkColumn::Score:
        return OrderByNumber(rows, direction,
                             [&](int row) { return GradeNumber(store.grade.Item(HomeworkRows.Item(row))); });
    }
    return {};
}

RowOrder StudyOrder(SortOrder order) {
    const AssignmentLists& store = Store.Assignment;
    const StudySessionLists& log = Store.StudySessionRecord;
    const auto field = [](const TextList& list) { return FieldOf(list, HomeworkRows); };
    const int rows = HomeworkRows.Count();
    const int direction = order.direction;
    switch (StudyColumn{order.column}) {
    case StudyColumn::Class:
        return OrderByText(rows, direction, TextOf(RowClass));
    case StudyColumn::Type:
        return OrderByText(rows, direction, field(store.type));
    case StudyColumn::Description:
        return OrderByText(rows, direction, field(store.desc));
    case StudyColumn::Priority:
        return OrderByText(rows, direction, field(store.priority));
    case StudyColumn::Time:
        return OrderByNumber(rows, direction, ClockMinutesOf(FieldOf(log.time, StudyRowTime)));
    case StudyColumn::DoneOn:
        return OrderByNumber(rows, direction, MomentMinutesOf(FieldOf(log.date, StudyRowDate)));
    case StudyColumn::Due:
        return OrderByNumber(rows, direction, MomentMinutesOf(field(store.date)));
    }
    return {};
}

double TaskDay(int row, int direction) {
    const int task = TaskRows.Item(row);
    if (IsTrue(Store.TaskRecord.date_exists.Item(task))) {
        return DayNumber(DateValue(Store.TaskRecord.date.Item(task)));
    }
    return DayNumber(direction == Descending ? EarliestDate : LatestDate);
}

RowOrder TaskOrder(SortOrder order) {
    const TaskLists& store = Store.TaskRecord;
    const auto field = [](const TextList& list) { return FieldOf(list, TaskRows); };
    const int rows = TaskRows.Count();
    const int direction = order.direction;
    switch (TaskColumn{order.column}) {
    case TaskColumn::Reminder:
        return OrderByText(rows, direction, field(store.reminder));
    case TaskColumn::Name:
        return OrderByText(rows, direction, [](int row) { return TaskName(TaskRows.Item(row)); });
    case TaskColumn::Type: {
        const std::string_view sentinel = Sentinel(direction, "zzzzzz", "aaaaa");
        const auto type = Replacing("", sentinel, TextOf(TaskRowType));
        return OrderByText(rows, direction, Replacing("None", sentinel, type));
    }
    case TaskColumn::Priority: {
        const std::string_view sentinel = Sentinel(direction, "z", "a");
        return OrderByText(rows, direction, Replacing("None", sentinel, field(store.priority)));
    }
    case TaskColumn::Day:
        return OrderByNumber(rows, direction, [=](int row) { return TaskDay(row, direction); });
    case TaskColumn::Done:
        return OrderByText(rows, direction, field(store.done), TextOrder::Bytes);
    }
    return {};
}

RowOrder EventOrder(SortOrder order) {
    const EventLists& store = Store.EventRecord;
    const auto field = [](const TextList& list) { return FieldOf(list, EventRows); };
    const int rows = EventRows.Count();
    const int direction = order.direction;
    switch (EventColumn{order.column}) {
    case EventColumn::Name:
        return OrderByText(rows, direction, field(store.desc));
    case EventColumn::Type: {
        const std::string_view sentinel = Sentinel(direction, "zzzzz", "aaaaa");
        const auto type = Replacing("", sentinel, TextOf(EventRowType));
        return OrderByText(rows, direction, Replacing("None", sentinel, type));
    }
    case EventColumn::Day:
        return OrderByNumber(rows, direction, [](int row) { return DayNumber(EventRowDate.Item(row)); });
    case EventColumn::Time:
        return OrderByNumber(rows, direction,
                             [&](int row) { return MinuteOfDay(store.time.Item(EventRows.Item(row))); });
    case EventColumn::Recurrence: {
        const std::string_view sentinel = Sentinel(direction, "z", "a");
        return OrderByText(rows, direction, Replacing(NoRecurrence, sentinel, field(store.recurrence)));
    }
    }
    return {};
}

RowOrder ReminderOrder(SortOrder order) {
    const int rows = ReminderRows.Count();
    const int direction = order.direction;
    switch (ReminderColumn{order.column}) {
    case ReminderColumn::For:
        return OrderByText(rows, direction, TextOf(ReminderRowKind));
    case ReminderColumn::Class: {
        const std::string_view sentinel = Sentinel(direction, "zzzzzzzzzz", "          ");
        return OrderByText(rows, direction, Replacing("", sentinel, TextOf(ReminderRowClass)));
    }
    case ReminderColumn::Type:
        return OrderByText(rows, direction, TextOf(ReminderRowType));
    case ReminderColumn::Description:
        return OrderByText(rows, direction, TextOf(ReminderRowText));
    case ReminderColumn::When:
        return OrderByNumber(rows, direction, [](int row) -> double { return ReminderRowDays.Item(row); });
    case ReminderColumn::Day:
        return OrderByNumber(rows, direction, [](int row) { return DayNumber(ReminderRowDate.Item(row)); });
    }
    return {};
}

template <class... Lists>
void ReorderLists(const std::tuple<Lists&...>& table, const RowOrder& order) {
    ForEachList(table, [&order](auto& list) { Reorder(list, order); });
}

} // namespace

double GradeNumber(std::string grade) {
    if (grade.empty()) {
        return -1;
    }
    std::erase(grade, '%');
    return ToNumber(grade);
}

void SortHomeworkRows(SortOrder order) {
    ReorderLists(HomeworkRowLists, HomeworkOrder(order));
}

void SortStudyRows(SortOrder order) {
    ReorderLists(StudyRowLists, StudyOrder(order));
}

void SortTaskRows(SortOrder order) {
    ReorderLists(TaskRowLists, TaskOrder(order));
}

void SortEventRows(SortOrder order) {
    ReorderLists(EventRowLists, EventOrder(order));
}

void SortReminderRows(SortOrder order) {
    ReorderLists(ReminderRowLists, ReminderOrder(order));
}

void SortEventRowsByDuration(int direction) {
    ReorderLists(EventRowLists, OrderByNumber(EventRows.Count(), direction, [](int row) {
                     return EventLength(Store.EventRecord.duration.Item(EventRows.Item(row)));
                 }));
}

void SortEventRowsByColumn() {
    const RowOrder order = OrderByNumber(EventRows.Count(), Ascending,
                                         [](int row) -> double { return EventBoxColumn.Item(row); });
    ReorderLists(EventRowLists, order);
    ReorderLists(EventBoxLists, order);
}
