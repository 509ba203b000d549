// The items of the context menus and of the tray menu.
#include "mainwindow/menus/PopupCaptions.h"

#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/RowTexts.h"

#include <array>
#include <span>

namespace {

struct FixedItem {
    std::string_view caption;
    std::string_view tag;
};

constexpr FixedItem Separator{"-", ""};
constexpr FixedItem NewAssignmentItem{"Add new assignment...", "homework new"};
constexpr FixedItem NewEventItem{"Add new event...", "event new"};
constexpr FixedItem NewTaskItem{"Add new task...", "task new"};
constexpr FixedItem SeeAssignmentsItem{"See all assignments...", "homework view"};
constexpr FixedItem SeeEventsItem{"See this day's events...", "event view"};
constexpr FixedItem SeeTasksItem{"See all tasks...", "task view"};
constexpr FixedItem SeeCalendarItem{"See the Calendar...", "calendar view"};
constexpr FixedItem SeeGPAItem{"See GPA...", "homework GPA"};

constexpr std::array CalendarMenu{NewAssignmentItem,  NewEventItem,  NewTaskItem, Separator,
                                  SeeAssignmentsItem, SeeEventsItem, SeeTasksItem};

constexpr std::array HomeworkListMenu{
    NewAssignmentItem, FixedItem{"Customize colors...", "homework custom"},
    SeeGPAItem,        Separator,
    SeeEventsItem,     SeeTasksItem,
    SeeCalendarItem,
};

constexpr std::array EventListMenu{
    NewEventItem, FixedItem{"Customize colors...", "event custom"},
    Separator,    SeeAssignmentsItem,
    SeeTasksItem, SeeCalendarItem,
};

constexpr std::array TaskListMenu{
    NewTaskItem,   FixedItem{"Customize colors...", "task custom"},
    Separator,     SeeAssignmentsItem,
    SeeEventsItem, SeeCalendarItem,
};

// What stands in the menus of a day behind its rows.
constexpr std::array HomeworkDayEnd{Separator, NewAssignmentItem, SeeAssignmentsItem, SeeGPAItem};
constexpr std::array TaskDayEnd{Separator, NewTaskItem, SeeTasksItem};
constexpr std::array EventDayEnd{Separator, NewEventItem, SeeEventsItem};

constexpr std::string_view RecurrenceMark = "\xA7";
constexpr std::size_t CaptionLimit = 75;

PopupItem ItemOf(const FixedItem& item) {
    return {std::string(item.caption), std::string(item.tag)};
}

void Append(PopupItems& items, std::span<const FixedItem> fixed) {
    for (const FixedItem& item : fixed) {
        items.push_back(ItemOf(item));
    }
}

PopupItems ItemsOf(std::span<const FixedItem> fixed) {
    PopupItems items;
    Append(items, fixed);
    return items;
}

// The mark and a blank behind it, or nothing.
std::string MarkIf(bool shown, std::string_view mark) {
    return shown ? std::string(mark) + " " : std::string{};
}

std::string HomeworkCaption(int row) {
    const AssignmentLists& store = Store.Assignment;
    const int position = HomeworkRows.Item(row);
    std::string caption;
    caption += MarkIf(IsTrue(store.reminder.Item(position)), ReminderMark);
    caption += MarkIf(IsTrue(store.priority.Item(position)), PriorityMark);
    caption += IsTrue(store.done.Item(position))
                   ? "(Done)  "
                   : "(" + ShownClock(store.time_left.Item(position)) + " left)  ";
    caption += RowClass.Item(row) + " - ";
    caption += AssignmentName(position);
    return caption;
}

std::string TaskCaption(int row) {
    const TaskLists& store = Store.TaskRecord;
    const int position = TaskRows.Item(row);
    std::string caption = IsTrue(store.done.Item(position)) ? "(Done)  " : "(Not Done)  ";
    caption += MarkIf(IsTrue(store.reminder.Item(position)), ReminderMark);
    caption += TypeAndDescription(ShownChoice(TaskRowType.Item(row)), TaskName(position));
    return caption;
}

std::string EventCaption(int row) {
    const EventLists& store = Store.EventRecord;
    const int position = EventRows.Item(row);
    std::string caption;
    if (const std::string time = ShownTime(store.time.Item(position)); !time.empty()) {
        caption += "(" + time + ")  ";
    }
    caption += MarkIf(IsTrue(store.reminder.Item(position)), ReminderMark);
    caption += MarkIf(IsSeries(position), RecurrenceMark);
    caption += EventTitle(EventRowType.Item(row), store.desc.Item(position));
    return caption;
}

template <class CaptionOfRow>
PopupItems DayItems(std::string_view subject, int rows, CaptionOfRow captionOf,
                    std::span<const FixedItem> end) {
    PopupItems items;
    for (int row = 1; row <= rows; ++row) {
        items.push_back({captionOf(row).substr(0, CaptionLimit) + " ...",
                         std::string(subject) + " " + std::to_string(row)});
    }
    Append(items, end);
    return items;
}

} // namespace

PopupItems CalendarMenuItems() {
    return ItemsOf(CalendarMenu);
}

PopupItems HomeworkListMenuItems() {
    return ItemsOf(HomeworkListMenu);
}

PopupItems EventListMenuItems() {
    return ItemsOf(EventListMenu);
}

PopupItems TaskListMenuItems() {
    return ItemsOf(TaskListMenu);
}

PopupItems TrayMenuItems(bool windowIsOpen) {
    PopupItems items{{"Show Popup Reminders...", "tray reminders"}, {"-", ""}};
    if (!windowIsOpen) {
        items.push_back({"Open Planovarium...", "tray view"});
    }
    items.push_back({"Shutdown Planovarium", "tray shutdown"});
    return items;
}

PopupItems HomeworkDayMenuItems() {
    return DayItems("homework", HomeworkRows.Count(), &HomeworkCaption, HomeworkDayEnd);
}

PopupItems TaskDayMenuItems() {
    return DayItems("task", TaskRows.Count(), &TaskCaption, TaskDayEnd);
}

PopupItems EventDayMenuItems() {
    return DayItems("event", EventRows.Count(), &EventCaption, EventDayEnd);
}
