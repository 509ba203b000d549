// The items of the context menus and of the tray menu.
#include "mainwindow/menus/PopupCaptions.h"

#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/menus/CommandTable.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/RowTexts.h"

#include <array>
#include <span>

namespace {

// An item of a command, by its two words; words that no command has do not compile. Without words it is a
// separator.
struct FixedItem {
    std::string_view words;
    std::string_view caption;

    // NOLINTNEXTLINE(google-explicit-constructor): the words stand for the item
    consteval FixedItem(const char* text) : words(text), caption("-") {
        if (!words.empty()) {
            caption = RowOfWords(words)->popupCaption;
        }
    }
};

constexpr std::array<FixedItem, 7> CalendarMenu{"homework new",  "event new",  "task new", "",
                                                "homework view", "event view", "task view"};
constexpr std::array<FixedItem, 7> HomeworkListMenu{"homework new", "homework custom", "homework GPA", "",
                                                    "event view",   "task view",       "calendar view"};
constexpr std::array<FixedItem, 6> EventListMenu{"event new",     "event custom", "",
                                                 "homework view", "task view",    "calendar view"};
constexpr std::array<FixedItem, 6> TaskListMenu{"task new",      "task custom", "",
                                                "homework view", "event view",  "calendar view"};
constexpr std::array<FixedItem, 4> TrayMenu{"tray reminders", "", "tray view", "tray shutdown"};
constexpr std::string_view OpenWindowWords = TrayMenu[2].words;

// What stands in the menus of a day behind its rows.
constexpr std::array<FixedItem, 4> HomeworkDayEnd{"", "homework new", "homework view", "homework GPA"};
constexpr std::array<FixedItem, 3> TaskDayEnd{"", "task new", "task view"};
constexpr std::array<FixedItem, 3> EventDayEnd{"", "event new", "event view"};

constexpr std::string_view RecurrenceMark = "\xA7";
constexpr std::size_t CaptionLimit = 75;

PopupItem ItemOf(const FixedItem& item) {
    std::string caption(item.caption);
    std::erase(caption, '&');
    return {caption, std::string(item.words)};
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
    PopupItems items = ItemsOf(TrayMenu);
    if (windowIsOpen) {
        std::erase_if(items, [](const PopupItem& item) { return item.tag == OpenWindowWords; });
    }
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
