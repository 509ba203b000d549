// The sorts against a bubble sort by full passes, on random rows by every column both ways.
#include "core/DateText.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/SortedRows.h"

#include <cmath>
#include <rapidcheck.h>

namespace {

using Numbers = std::vector<int>;

// What the value of a row is compared by, each told anew from its texts.
struct Value {
    std::string text;
    double number = 0;
    bool folded = true;
};

int Compare(const Value& a, const Value& b) {
    if (a.number != b.number) {
        return a.number < b.number ? -1 : 1;
    }
    return a.folded ? CompareFolded(a.text, b.text) : a.text.compare(b.text);
}

Value Bytes(const std::string& text) {
    return {text, 0, false};
}

Value Number(double number) {
    return {"", number};
}

std::string Or(const std::string& text, const std::string& replaced, const std::string& by) {
    return text == replaced ? by : text;
}

// The rows in the order to which passes over neighbours lead. The values are those of the rows from 1 on.
Numbers BubbleSorted(Numbers rows, int direction, const std::vector<Value>& values) {
    const auto value = [&values](int row) { return values[static_cast<std::size_t>(row) - 1]; };
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
            const int order = Compare(value(rows[i]), value(rows[i + 1]));
            if (direction == Ascending ? order > 0 : order < 0) {
                std::swap(rows[i], rows[i + 1]);
                swapped = true;
            }
        }
    }
    return rows;
}

// Sorts by one column after another, and by one before and one behind them that are none, both ways, and each
// time from the order that the last sort has left. The colours show that the other lists go along.
template <class Sort, class ValueOfRow>
void CheckSorts(int columns, const NumberList& rows, const NumberList& colors, Sort sort,
                ValueOfRow valueOfRow) {
    for (int column = 0; column <= columns + 1; ++column) {
        for (const int direction : {Ascending, Descending}) {
            std::vector<Value> values;
            for (int row = 1; row <= rows.Count(); ++row) {
                values.push_back(valueOfRow(column, row, direction));
            }
            const Numbers wanted = BubbleSorted(rows.values, direction, values);
            sort({column, direction});
            RC_ASSERT(rows.values == wanted);
            RC_ASSERT(colors.values == wanted);
        }
    }
}

std::string RandomText() {
    return *rc::gen::element<std::string>("", "a", "A", "b", "Essay", "essay 2", "None", "zzzzz", "zzzzzz",
                                          "zzzzzzz", "aaaaa", "New Assignment", "new task", "\xC4rger",
                                          "\xE4rger", "a ", " ", " a");
}

std::string RandomBoolean() {
    return *rc::gen::element<std::string>("True", "False", "true", "false");
}

std::string RandomDate() {
    return StoredDate(Wednesday +
                      std::chrono::days{*rc::gen::inRange(-3, 4) * *rc::gen::element(1, 1, 100000)});
}

std::string RandomClock() {
    return MinutesToClock(*rc::gen::inRange(0, 130)) + *rc::gen::element<std::string>("", "  1", " 59");
}

int RandomCount() {
    return *rc::gen::element(0, 1, 2, 3, 10, 40);
}

Value HomeworkValue(int column, int row, int) {
    const AssignmentLists& store = Store.Assignment;
    const std::string& grade = store.grade.Item(row);
    switch (column) {
    case 1:
        return {store.reminder.Item(row)};
    case 2:
        return Bytes(store.priority.Item(row));
    case 3:
        return {"class " + std::to_string(row % 3)};
    case 4:
        return {store.type.Item(row)};
    case 5:
        return {Or(store.desc.Item(row), "", "New Assignment")};
    case 6:
        return Number(ClockToMinutes(store.time_left.Item(row)));
    case 7:
        return Number(DayDiff(Wednesday, DateValue(store.date.Item(row))));
    case 8:
        return Bytes(store.done.Item(row));
    case 9:
        return Number(grade.empty() ? -1 : std::stod(grade));
    default:
        return {};
    }
}

Value StudyValue(int column, int row, int) {
    const AssignmentLists& store = Store.Assignment;
    const StudySessionLists& log = Store.StudySessionRecord;
    switch (column) {
    case 1:
        return {"class " + std::to_string(row % 3)};
    case 2:
        return {store.type.Item(row)};
    case 3:
        return {store.desc.Item(row)};
    case 4:
        return {store.priority.Item(row)};
    case 5:
        return Number(ClockToMinutes(log.time.Item(row)));
    case 6:
        return Number(DayDiff(Wednesday, DateValue(log.date.Item(row))));
    case 7:
        return Number(DayDiff(Wednesday, DateValue(store.date.Item(row))));
    default:
        return {};
    }
}

Value TaskValue(int column, int row, int direction) {
    const TaskLists& store = Store.TaskRecord;
    const bool up = direction == Ascending;
    const std::string typeSentinel = up ? "zzzzzz" : "aaaaa";
    switch (column) {
    case 1:
        return {store.reminder.Item(row)};
    case 2:
        return {Or(store.desc.Item(row), "", "New Task")};
    case 3:
        return {Or(Or(store.type.Item(row), "None", typeSentinel), "", typeSentinel)};
    case 4:
        return {Or(store.priority.Item(row), "None", up ? "z" : "a")};
    case 5:
        return Number(DayDiff(Wednesday, IsTrue(store.date_exists.Item(row)) ? DateValue(store.date.Item(row))
                                         : up                                ? DateValue("3100/12/31")
                                                                             : DateValue("1600/01/01")));
    case 6:
        return Bytes(store.done.Item(row));
    default:
        return {};
    }
}

Value EventValue(int column, int row, int direction) {
    const EventLists& store = Store.EventRecord;
    const bool up = direction == Ascending;
    const std::string typeSentinel = up ? "zzzzz" : "aaaaa";
    const std::string& time = store.time.Item(row);
    switch (column) {
    case 1:
        return {store.desc.Item(row)};
    case 2:
        return {Or(Or(store.type.Item(row), "None", typeSentinel), "", typeSentinel)};
    case 3:
        return Number(DayDiff(Wednesday, DateValue(store.date.Item(row))));
    case 4:
        return Number(IsTime(time) ? std::floor(static_cast<double>(TimeValue(time).count()) / 60) : 0);
    case 5:
        return {Or(store.recurrence.Item(row), "None", up ? "z" : "a")};
    default:
        return {};
    }
}

// The text of a row is that of the event of its number.
Value ReminderValue(int column, int row, int direction) {
    const EventLists& store = Store.EventRecord;
    const std::string& text = store.desc.Item(row);
    switch (column) {
    case 1:
    case 3:
    case 4:
        return {text};
    case 2:
        return {Or(text, "", direction == Ascending ? "zzzzzzzzzz" : "          ")};
    case 5:
    case 6:
        return Number(DayDiff(Wednesday, DateValue(store.date.Item(row))));
    default:
        return {};
    }
}

AssignmentTexts RandomHomework() {
    return {.date = RandomDate(),
            .desc = RandomText(),
            .type = RandomText(),
            .priority = RandomBoolean(),
            .time_left = RandomClock(),
            .done = RandomBoolean(),
            .grade = *rc::gen::element<std::string>("", "0%", "85%", "8.5%", "100%", " 85 %"),
            .reminder = RandomBoolean()};
}

void AddRandomTask() {
    const std::string type = RandomText();
    AddTaskRow({.date = RandomDate(),
                .desc = RandomText(),
                .date_exists = RandomBoolean(),
                .type = type,
                .priority = *rc::gen::element<std::string>("None", "Low", "Medium", "High", ""),
                .done = RandomBoolean(),
                .reminder = RandomBoolean()},
               type);
}

void AddRandomEvent() {
    const std::string type = RandomText();
    const std::string date = RandomDate();
    AddEventRowOf(
        {.date = date,
         .time = *rc::gen::element<std::string>("09:00 AM", "9:00:30 AM", "None", "11:30PM", "12:00 AM"),
         .duration = *rc::gen::element<std::string>("1 Hour", "60 Minutes", "1 Day", "0.5 Hours"),
         .desc = RandomText(),
         .type = type,
         .recurrence = *rc::gen::element<std::string>("None", "Day", "Month", "Year")},
        type, DateValue(date));
}

class RandomRowSorts : public RowSorts {};

} // namespace

TEST_F(RandomRowSorts, OfHomeworkAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddHomeworkRow(RandomHomework(), "class " + std::to_string(row % 3));
        }
        CheckSorts(9, HomeworkRows, RowForeColor, SortHomeworkRows, HomeworkValue);
    }));
}

TEST_F(RandomRowSorts, OfStudySessionsAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddStudyRow(RandomHomework(), "class " + std::to_string(row % 3), RandomClock(), RandomDate());
        }
        CheckSorts(7, StudyRowTime, RowForeColor, SortStudyRows, StudyValue);
        RC_ASSERT(HomeworkRows.values == StudyRowTime.values);
    }));
}

TEST_F(RandomRowSorts, OfTasksAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddRandomTask();
        }
        CheckSorts(6, TaskRows, TaskRowForeColor, SortTaskRows, TaskValue);
    }));
}

TEST_F(RandomRowSorts, OfEventsAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddRandomEvent();
        }
        CheckSorts(5, EventRows, EventRowForeColor, SortEventRows, EventValue);
    }));
}

TEST_F(RandomRowSorts, OfEventsByDurationAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddRandomEvent();
        }
        const auto sort = [](SortOrder order) { SortEventRowsByDuration(order.direction); };
        CheckSorts(0, EventRows, EventRowForeColor, sort, [](int, int row, int) {
            const std::string& duration = Store.EventRecord.duration.Item(row);
            const double unit = duration.ends_with("Day") ? 1440 : duration.ends_with("Minutes") ? 1 : 60;
            return Number(std::stod(duration) * unit);
        });
    }));
}

TEST_F(RandomRowSorts, OfRemindersAreThoseOfABubbleSort) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const int count = RandomCount();
        for (int row = 1; row <= count; ++row) {
            AddRandomEvent();
            const std::string& text = Store.EventRecord.desc.Item(row);
            AddReminderRow(text, text, text, text, DayDiff(Wednesday, EventRowDate.Item(row)));
        }
        CheckSorts(6, ReminderRows, ReminderRowForeColor, SortReminderRows, ReminderValue);
    }));
}
