// The rows of the Reminders list: all that is due by a day, homework, tasks and events together.
#include "planner/lists/ReminderSelection.h"

#include "core/DateText.h"
#include "core/FetchAhead.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventWalk.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/Colors.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/RowTexts.h"

#include <array>
#include <unordered_map>
#include <vector>

namespace {

struct DueItem {
    std::string_view kind;
    int position; // in the lists of its kind
    Date date;
};

// The looks of the types and classes met so far, by the texts of the records that name them.
struct MetLooks {
    std::unordered_map<std::string_view, RowLook> tasks, homework, events;
    ClassPositions classes = ClassPositionsById();
};

template <class MakeLook>
const RowLook& MetLook(std::unordered_map<std::string_view, RowLook>& met, std::string_view text,
                       MakeLook make) {
    const auto found = met.find(text);
    return found != met.end() ? found->second : met.emplace(text, make(text)).first->second;
}

bool IsDue(Date date, std::string_view reminder, Date day) {
    return date - std::chrono::days{LeadDays(reminder)} <= day;
}

void FindTasks(Date day, std::vector<DueItem>& due) {
    const TaskLists& tasks = Store.TaskRecord;
    for (int position = 1, records = WholeRecords(tasks); position <= records; ++position) {
        if (tasks.desc.Item(position) == DeletedRecord || IsTrue(tasks.done.Item(position)) ||
            !IsTrue(tasks.date_exists.Item(position))) {
            continue;
        }
        const Date date = DateValue(tasks.date.Item(position));
        if (IsDue(date, tasks.reminder.Item(position), day)) {
            due.push_back({TaskMode, position, date});
        }
    }
}

void FindHomework(Date day, std::vector<DueItem>& due) {
    const AssignmentLists& assignments = Store.Assignment;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) == DeletedRecord || IsTrue(assignments.done.Item(position))) {
            continue;
        }
        const Date date = DateValue(assignments.date.Item(position));
        if (IsDue(date, assignments.reminder.Item(position), day)) {
            due.push_back({HomeworkMode, position, date});
        }
    }
}

void FindEvents(Date day, std::vector<DueItem>& due) {
    for (const EventReminder& reminder : SelectEventReminders(day)) {
        due.push_back({EventMode, reminder.position, reminder.date});
    }
}

void WriteLook(std::size_t row, const RowLook& look, std::string_view className, std::string_view type) {
    ReminderRowClass.values[row] = className;
    ReminderRowType.values[row] = type;
    ReminderRowForeColor.values[row] = look.forecolor;
    ReminderRowBackColor.values[row] = look.backcolor;
}

void WriteTask(std::size_t row, int position, MetLooks& met) {
    FetchAhead(Store.TaskRecord.desc, position);
    const RowLook& look = MetLook(met.tasks, Store.TaskRecord.type.Item(position), TaskTypeLook);
    WriteLook(row, look, "", look.name);
    ReminderRowText.values[row] = TaskName(position);
}

void WriteHomework(std::size_t row, int position, MetLooks& met) {
    FetchAhead(Store.Assignment.desc, position);
    const AssignmentLists& assignments = Store.Assignment;
    const RowLook& look =
        MetLook(met.homework, assignments.class_.Item(position),
                [&met](std::string_view id) { return ClassLook(ClassPositionOf(met.classes, id)); });
    WriteLook(row, look, look.name, assignments.type.Item(position));
    ReminderRowText.values[row] = AssignmentName(position);
}

void WriteEvent(std::size_t row, int position, MetLooks& met) {
    FetchAhead(Store.EventRecord.desc, position);
    const std::string& type = Store.EventRecord.type.Item(position);
    const RowLook& look = MetLook(met.events, type, EventTypeLook);
    WriteLook(row, look, IsClassMeeting(type) ? look.name : "", look.name);
    ReminderRowText.values[row] = EventName(position);
}

// Writes the rows over those of the last selection, so that their texts stay allocated.
void WriteRows(const std::vector<DueItem>& due, Date day) {
    ForEachList(ReminderRowLists, [&due](auto& list) { list.values.resize(due.size()); });
    MetLooks met;
    for (std::size_t row = 0; row < due.size(); ++row) {
        const auto& [kind, position, date] = due[row];
        ReminderRows.values[row] = position;
        ReminderRowKind.values[row] = kind;
        ReminderRowDays.values[row] = DayDiff(day, date);
        ReminderRowDate.values[row] = date;
        if (kind == TaskMode) {
            WriteTask(row, position, met);
        } else if (kind == HomeworkMode) {
            WriteHomework(row, position, met);
        } else {
            WriteEvent(row, position, met);
        }
    }
}

struct Source {
    std::string_view comboList;
    void (*find)(Date day, std::vector<DueItem>& due);
    int& count;
};

BoxText OpenItems(int count) {
    return {std::to_string(count), count != 0 ? ColorNotDone : ColorWhite};
}

} // namespace

ReminderBoxes SelectReminders(Date day, const ListFilter& filter) {
    static const std::array<Source, 3> sources{{{"Tasks", FindTasks, ReminderTaskCount},
                                                {"Homework", FindHomework, ReminderHomeworkCount},
                                                {"Events", FindEvents, ReminderEventCount}}};
    std::vector<DueItem> due;
    for (const Source& source : sources) {
        const std::size_t before = due.size();
        source.find(day, due);
        source.count = static_cast<int>(due.size() - before);
        if (filter.comboList != "All" && filter.comboList != source.comboList) {
            due.resize(before);
        }
    }
    WriteRows(due, day);
    return {OpenItems(ReminderHomeworkCount),
            OpenItems(ReminderTaskCount),
            {std::to_string(ReminderEventCount), ColorWhite}};
}
