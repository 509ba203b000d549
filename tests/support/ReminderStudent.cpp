// A student at work with reminders, for simulations.
#include "support/ReminderStudent.h"

#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/DurationEntry.h"
#include "planner/entries/RecurrenceEntry.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/SeriesEdits.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/reminders/ReminderItems.h"
#include "support/ScriptedPlatform.h"

#include <algorithm>
#include <sstream>

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::minutes;

constexpr int Terms = 2;
constexpr int RecordsOfAKind = 5;

// --- Records -----------------------------------------------------------------------------------------------

std::string TimeText(Moment moment) {
    return StoredTime(moment - floor<days>(moment));
}

EventTexts RandomEvent(Simulation& simulation) {
    const Moment moment = simulation.Soon();
    Date first = floor<days>(moment);
    if (simulation.Chance(40)) {
        first = LastOfMonth(MonthOf(first));
    }
    EventTexts event{.date = StoredDate(first), .time = TimeText(moment)};
    event.recurrence = simulation.OneOf({"None", "Day", "Day", "Month", "Month", "Year"});
    for (char& letter : event.repeat_daily) {
        letter = simulation.Chance(30) ? 'T' : 'F';
    }
    event.same_date = simulation.Chance(50) ? "True" : "False";
    event.repeat_number = RankOf(first).number;
    event.repeat_day = RankOf(first).day;
    event.end = simulation.Chance(40) ? "True" : "False";
    event.end_date = StoredDate(first + days{simulation.Below(120) - 5});
    event.reminder_time = simulation.OneOf({"0 Minutes", "15 Minutes", "1.5 Hours", ".33 Hours", "2 Days"});
    if (simulation.Chance(30)) {
        event.type = "TermID" + std::to_string(1 + simulation.Below(Terms)) + "-ClassID7";
    }
    return event;
}

void ArmInModel(Simulation& simulation, const std::string& id, int index) {
    ModelItem& item = simulation.model.Find("Event", id);
    if (item.series) {
        simulation.model.ArmSeries(item);
    } else {
        simulation.model.Arm(item, AlarmOfOccurrence(index, DateValue(Store.EventRecord.date.Item(index))));
    }
}

void AddEvent(Simulation& simulation) {
    const EventTexts event = RandomEvent(simulation);
    const int index = AddArmedEvent(event);
    ModelItem item{.mode = "Event", .id = Store.EventRecord.id.Item(index)};
    item.series = event.recurrence != "None";
    if (event.type != "None") {
        item.term = event.type[6] - '0';
    }
    simulation.model.items.push_back(item);
    ArmInModel(simulation, item.id, index);
}

void AddTask(Simulation& simulation) {
    const Moment moment = simulation.Soon();
    const int position = AddTaskRecord(ArmedTask({}, StoredDate(floor<days>(moment)), TimeText(moment)));
    ModelItem item{.mode = "Task", .id = Store.TaskRecord.id.Item(position)};
    simulation.model.Arm(item, moment);
    simulation.model.items.push_back(item);
}

void AddAssignment(Simulation& simulation) {
    const Moment moment = simulation.Soon();
    const int position =
        AddAssignmentRecord(ArmedAssignment({}, StoredDate(floor<days>(moment)), TimeText(moment)));
    ModelItem item{.mode = "Homework", .id = Store.Assignment.id.Item(position), .term = ActiveTermID};
    simulation.model.Arm(item, moment);
    simulation.model.items.push_back(item);
}

// The model keeps the order of the list: tasks, homework, events, each by its id.
void SortModel(ReminderModel& model) {
    const auto kind = [](const std::string& mode) { return mode == "Task" ? 0 : mode == "Homework" ? 1 : 2; };
    std::ranges::stable_sort(model.items, [&](const ModelItem& a, const ModelItem& b) {
        return std::pair{kind(a.mode), std::stoi(a.id)} < std::pair{kind(b.mode), std::stoi(b.id)};
    });
}

void ChangeTerm(Simulation& simulation) {
    simulation.hands.changeTerm("Term " + std::to_string(ActiveTermID % Terms + 1));
}

// --- The student -------------------------------------------------------------------------------------------

// What was edited or snoozed may fire again.
void Allow(Simulation& simulation, const ModelItem& item) {
    std::erase_if(simulation.dismissed,
                  [&](const std::string& row) { return (row + " ").starts_with(NameOf(item) + " "); });
}

ModelItem* ItemOfRandomRow(Simulation& simulation) {
    if (simulation.rows.empty()) {
        return nullptr;
    }
    std::istringstream row(
        simulation
            .rows[static_cast<std::size_t>(simulation.Below(static_cast<int>(simulation.rows.size())))]);
    std::string mode;
    std::string id;
    row >> mode >> id;
    return &simulation.model.Find(mode, id, ActiveTermID);
}

void SnoozeRow(Simulation& simulation, ModelItem& item) {
    const std::string interval =
        simulation.OneOf({"5 Minutes", "1.5 Hours", "12 Hours", "1 Day", "3 Days", ".33 Hours"});
    simulation.hands.snooze(item, interval);
    simulation.model.Snooze(item, Now() + SnoozeInterval(interval));
    Allow(simulation, item);
}

// The last occurrence of a series stays its next one. Snoozed, it fires again at once, or later where the
// clock has been set back before its alarm.
bool MayComeAgain(const ModelItem& item) {
    return item.series && item.armed && item.from <= item.shown;
}

void RemoveRow(Simulation& simulation, ModelItem& item) {
    if (!MayComeAgain(item)) {
        simulation.dismissed.insert(RowOf(item));
    }
    simulation.hands.remove(item);
    simulation.model.Remove(item);
}

void SwitchOff(ModelItem& item, int position) {
    if (item.mode == "Event") {
        Store.EventRecord.reminder.Replace(position, "False");
    } else {
        ItemReminders(item.mode).reminder.Replace(position, "False");
    }
    item.alarm.reset();
    item.armed = false;
}

// Saved in its editor with the reminder on, at another time.
void Rearm(Simulation& simulation, ModelItem& item, int position) {
    const Moment moment = simulation.Soon();
    if (item.mode == "Event") {
        Store.EventRecord.time.Replace(position, TimeText(moment));
        ArmEvent(position);
        ArmInModel(simulation, item.id, position);
        return;
    }
    const ItemReminderLists items = ItemReminders(item.mode);
    items.reminder.Replace(position, "True");
    items.reminderAlarm.Replace(position, StoredMoment(moment));
    items.reminderList.Replace(position, "False");
    simulation.model.Arm(item, moment);
}

void Edit(Simulation& simulation, ModelItem& item) {
    const int position = ReminderPosition(item.mode, item.id);
    if (simulation.Chance(30)) {
        SwitchOff(item, position);
        return;
    }
    Rearm(simulation, item, position);
    Allow(simulation, item);
}

void GiveUp(Simulation& simulation, ModelItem& item) {
    const int index = ReminderPosition(item.mode, item.id);
    Date day = simulation.Chance(30) ? item.shown : item.from + days{simulation.Below(3)};
    while (!EventOccursOn(day, index) && day < item.from + days{40}) {
        ++day;
    }
    GiveUpOccurrence(index, day);
    simulation.model.ForgetNextAlarm(item);
}

ModelItem& RandomItem(Simulation& simulation) {
    while (true) {
        ModelItem& item = simulation.model.items[static_cast<std::size_t>(
            simulation.Below(static_cast<int>(simulation.model.items.size())))];
        if (item.mode != "Homework" || item.term == ActiveTermID) {
            return item;
        }
    }
}

void ReplaceRecord(Simulation& simulation, const ModelItem& item) {
    const std::string mode = item.mode;
    const int position = ReminderPosition(mode, item.id);
    Allow(simulation, item);
    std::erase_if(simulation.model.items, [name = NameOf(item), term = item.term](const ModelItem& other) {
        return NameOf(other) == name && other.term == term; // ids of homework are one term's own
    });
    if (mode == "Task") {
        RemoveRecord(Store.TaskRecord, TaskFields, position);
        AddTask(simulation);
    } else if (mode == "Homework") {
        RemoveRecord(Store.Assignment, AssignmentFields, position);
        AddAssignment(simulation);
    } else {
        RemoveRecord(Store.EventRecord, EventFields, position);
        AddEvent(simulation);
    }
    SortModel(simulation.model);
}

// A row of another term stands unseen.
bool IsOnTheList(const Simulation& simulation, const ModelItem& item) {
    return item.stands && std::ranges::find(simulation.rows, RowOf(item)) != simulation.rows.end();
}

// Acts on one record and gives its name.
std::string ActOnRecord(Simulation& simulation) {
    ModelItem* const row = ItemOfRandomRow(simulation);
    ModelItem& item = row != nullptr && simulation.Chance(75) ? *row : RandomItem(simulation);
    const int choice = simulation.Below(100);
    const bool listed = IsOnTheList(simulation, item);
    if (listed && choice < 40) {
        SnoozeRow(simulation, item);
    } else if (listed && choice < 80) {
        RemoveRow(simulation, item);
    } else if (item.series && choice < 95) {
        GiveUp(simulation, item);
    } else {
        Edit(simulation, item);
    }
    return NameOf(item);
}

} // namespace

StudentsHands HandsOnTheRules(Simulation& simulation) {
    return {.snooze =
                [&simulation](const ModelItem& item, const std::string& interval) {
                    SnoozeReminder(item.mode, item.id, interval, Now(), simulation.window.flags);
                },
            .remove =
                [&simulation](const ModelItem& item) {
                    RemoveReminder(item.mode, item.id, simulation.window.flags);
                },
            .changeTerm =
                [&simulation](const std::string& term) {
                    simulation.closedTerms[ActiveTermID] = Store.Assignment;
                    ChooseActiveTerm(term);
                    Store.Assignment = simulation.closedTerms[ActiveTermID];
                },
            .restart = [&simulation] { simulation.window = {}; }};
}

void Begin(Simulation& simulation) {
    ResetScript();
    ResetStore();
    SetClock(2009, 1, 1);
    for (int term = 1; term <= Terms; ++term) {
        Store.Term.id.Add(std::to_string(term));
        Store.Term.name.Add("Term " + std::to_string(term));
        Store.Term.start.Add("2009/01/01");
        Store.Term.end.Add("2012/01/01");
        AddClassRecord({.id = "7", .term = std::to_string(term)});
    }
    for (int term = 1; term <= Terms; ++term) {
        ChooseActiveTerm("Term " + std::to_string(term));
        for (int i = 0; i < RecordsOfAKind; ++i) {
            AddAssignment(simulation);
        }
        simulation.closedTerms[term] = Store.Assignment;
    }
    for (int i = 0; i < RecordsOfAKind; ++i) {
        AddTask(simulation);
        AddEvent(simulation);
        AddEvent(simulation);
    }
    SortModel(simulation.model);
}

std::string Act(Simulation& simulation) {
    const int choice = simulation.Below(100);
    if (choice < 70) {
        return ActOnRecord(simulation);
    }
    if (choice < 76) {
        ReplaceRecord(simulation, RandomItem(simulation));
    } else if (choice < 84) {
        ChangeTerm(simulation);
    } else if (choice < 92) { // closed for up to two months, and started again
        Script.now += minutes{simulation.Below(60 * 24 * 60)};
        simulation.hands.restart();
        simulation.rows.clear();
    } else { // the clock is set
        Script.now += minutes{simulation.Below(60 * 24 * 10) - 60 * 24 * 5};
    }
    return {};
}

std::string NameOf(const ModelItem& item) {
    return item.mode + " " + item.id;
}

std::string RowOf(const ModelItem& item) {
    return NameOf(item) + (item.series ? " " + StoredDate(item.shown) : "");
}
