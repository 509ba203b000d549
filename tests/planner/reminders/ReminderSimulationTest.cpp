// Reminders through simulated years of a student's work, held against a plain model and against what has to
// hold whatever happens. Ticks lie on a grid of 40 seconds; in the long runs most ticks between the student's
// actions are left out.
#include "core/DateText.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ClassLink.h"
#include "support/ReminderStudent.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

using std::chrono::days;
using Texts = std::vector<std::string>;

constexpr std::chrono::seconds TickInterval = 40s;
constexpr int TicksOfADay = 24h / TickInterval;
constexpr int SelectedRow = 1; // before each tick

template <class Lists, std::size_t Count>
void AddChanged(std::set<std::string>& changed, const std::string& mode, const Lists& before,
                const Lists& after, const std::array<Field<Lists>, Count>& fields) {
    for (const Field<Lists>& field : fields) {
        for (int i = 1; i <= before.id.Count(); ++i) {
            if ((before.*field.list).Item(i) != (after.*field.list).Item(i)) {
                changed.insert(mode + " " + before.id.Item(i));
            }
        }
    }
}

// The records that are not what they were, as "mode id". None was added or taken out.
std::set<std::string> ChangedSince(const PlannerStore& before) {
    std::set<std::string> changed;
    AddChanged(changed, "Task", before.TaskRecord, Store.TaskRecord, TaskFields);
    AddChanged(changed, "Homework", before.Assignment, Store.Assignment, AssignmentFields);
    AddChanged(changed, "Event", before.EventRecord, Store.EventRecord, EventFields);
    return changed;
}

Texts ShownRows(const ReminderWindow& window) {
    Texts rows = window.Standing();
    for (std::string& row : rows) {
        if (row.starts_with("Event ")) {
            const int index = ReminderPosition("Event", row.substr(6));
            if (Store.EventRecord.recurrence.Item(index) != "None") {
                row += " " + Store.EventRecord.reminder_currentday.Item(index);
            }
        }
    }
    return rows;
}

// What is armed and due has fired, or waits behind its own row, or for its term.
void ExpectNothingLost() {
    for (const std::string mode : {"Task", "Homework"}) {
        const ItemReminderLists items = ItemReminders(mode);
        for (int i = 1; i <= items.id.Count(); ++i) {
            ASSERT_FALSE(items.reminder.Item(i) == "True" &&
                         MomentValue(items.reminderAlarm.Item(i)) <= Now());
        }
    }
    const EventLists& events = Store.EventRecord;
    for (int i = 1; i <= events.id.Count(); ++i) {
        if (events.reminder.Item(i) == "True" && events.reminder_list.Item(i) == "False" &&
            BelongsToActiveTerm(events.type.Item(i))) {
            ASSERT_GT(MomentValue(events.reminder_alarm.Item(i)), Now());
            ASSERT_TRUE(events.recurrence.Item(i) == "None" ||
                        MomentValue(events.reminder_nextalarm.Item(i)) > Now());
        }
    }
}

// Nothing that was acted on stands again, unless it was snoozed or edited since or has a next occurrence.
void ExpectNothingRepeated(const Simulation& simulation, const Texts& rows) {
    for (const std::string& row : rows) {
        ASSERT_FALSE(simulation.dismissed.contains(row)) << row;
    }
}

// A series that has come onto the list shows an occurrence that it has not given up, and behind which none is
// due that it has not given up either.
void ExpectLatestShown(const TextList& listedBefore) {
    const EventLists& events = Store.EventRecord;
    for (int i = 1; i <= events.id.Count(); ++i) {
        const bool fired = events.reminder_list.Item(i) == "True" && listedBefore.Item(i) == "False";
        if (!fired || events.recurrence.Item(i) == "None") {
            continue;
        }
        const Date shown = DateValue(events.reminder_currentday.Item(i));
        ASSERT_TRUE(EventOccursOn(shown, i)) << StoredDate(shown);
        for (Date day = shown + days{1}; AlarmOfOccurrence(i, day) <= Now(); ++day) {
            ASSERT_FALSE(EventOccursOn(day, i)) << StoredDate(day) << " behind " << StoredDate(shown);
        }
    }
}

// The window comes up for the first rows since the start and for what fires, and only what fires clears the
// selection.
void ExpectFlags(const ReminderFlags& flags, const std::vector<const ModelItem*>& fired, bool first,
                 bool rowsStand) {
    const auto any = [&](const std::string& mode) {
        return std::ranges::any_of(fired, [&](const ModelItem* item) { return item->mode == mode; });
    };
    ASSERT_EQ(flags.ReminderFirstTick, first && !rowsStand);
    ASSERT_EQ(flags.ReminderShowWindow, (first && rowsStand) || !fired.empty());
    ASSERT_EQ(flags.ReminderSelectedRow, fired.empty() ? SelectedRow : 0);
    ASSERT_EQ(flags.ReminderTasksChanged, any("Task"));
    ASSERT_EQ(flags.ReminderHomeworkChanged, any("Homework"));
    ASSERT_TRUE(flags.ReminderEventsChanged || !any("Event"));
}

// Only what fires changes, and a series that passes over an occurrence it has given up; their file is
// written.
void ExpectOnlyFiredRecordsChanged(const Simulation& simulation, const std::vector<const ModelItem*>& fired) {
    std::set<std::string> allowed;
    for (const ModelItem* item : fired) {
        allowed.insert(NameOf(*item));
    }
    bool eventsChanged = false;
    for (const std::string& changed : ChangedSince(simulation.before)) {
        const bool event = changed.starts_with("Event");
        const bool mayPassOver =
            event && !Store.EventRecord.exceptions.Item(ReminderPosition("Event", changed.substr(6))).empty();
        ASSERT_TRUE(allowed.contains(changed) || mayPassOver) << changed;
        eventsChanged = eventsChanged || event;
    }
    ASSERT_EQ(simulation.window.flags.ReminderEventsChanged, eventsChanged);
}

// One tick, and a second at once: what the first only passed over may uncover a snoozed occurrence. What has
// to hold of the store is asked before the model.
void Tick(Simulation& simulation) {
    const std::vector<const ModelItem*> fired = simulation.model.Tick(Now(), ActiveTermID);
    const bool first = simulation.window.flags.ReminderFirstTick;
    simulation.window.flags = {.ReminderFirstTick = first, .ReminderSelectedRow = SelectedRow};
    simulation.window.Tick();
    simulation.window.Tick();
    const Texts rows = ShownRows(simulation.window);
    ASSERT_NO_FATAL_FAILURE(ExpectNothingLost());
    ASSERT_NO_FATAL_FAILURE(ExpectNothingRepeated(simulation, rows));
    ASSERT_NO_FATAL_FAILURE(ExpectLatestShown(simulation.before.EventRecord.reminder_list));
    ASSERT_NO_FATAL_FAILURE(ExpectOnlyFiredRecordsChanged(simulation, fired));
    ASSERT_NO_FATAL_FAILURE(ExpectFlags(simulation.window.flags, fired, first, !rows.empty()));
    ASSERT_EQ(rows, simulation.model.Rows(ActiveTermID));
    simulation.rows = rows;
    simulation.fired += static_cast<int>(fired.size());
    if (!fired.empty() || simulation.window.flags.ReminderEventsChanged) {
        simulation.before = Store;
    }
}

// No action on one record changes another.
void ActOnOneRecordOnly(Simulation& simulation) {
    const std::string actedOn = Act(simulation);
    if (!actedOn.empty()) {
        for (const std::string& changed : ChangedSince(simulation.before)) {
            ASSERT_EQ(changed, actedOn);
        }
    }
    simulation.before = Store;
}

// Simulates so many ticks with up to so many left out between two, and an action at every so manieth on
// average. Gives how many reminders have fired.
int FiredInTicks(unsigned seed, int ticks, int ticksLeftOut, int ticksPerAction) {
    Simulation simulation{seed};
    Begin(simulation);
    simulation.before = Store;
    for (int tick = 0; tick < ticks && !testing::Test::HasFatalFailure(); ++tick) {
        Script.now += TickInterval * (1 + simulation.Below(ticksLeftOut + 1));
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + StoredMoment(Now()));
        Tick(simulation);
        if (!testing::Test::HasFatalFailure() && simulation.Below(ticksPerAction) == 0) {
            ActOnOneRecordOnly(simulation);
        }
    }
    ResetStore();
    return simulation.fired;
}

} // namespace

TEST(ReminderSimulation, OfAFortnightTickByTick) {
    EXPECT_GT(FiredInTicks(1, 14 * TicksOfADay, 0, 200), 50);
}

class ReminderYears : public testing::TestWithParam<unsigned> {};

// At an hour a tick on average for a year and a half, and the program closed now and then for up to two
// months.
TEST_P(ReminderYears, LoseNothingRepeatNothingAndShowTheLatest) {
    EXPECT_GT(FiredInTicks(GetParam(), 24 * 365 * 3 / 2, 180, 25), 150);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ReminderYears, testing::Range(100U, 105U), testing::PrintToStringParamName());
