// A student who enters, changes, moves and gives up events and series at random, through the real dialogs,
// beside a model in plain values that knows nothing of the program's own rules.
#include "mainwindow/flows/EventFlow.h"

#include "core/DateText.h"
#include "editors/EventTest.h"
#include "persistence/modIO.h"
#include "planner/lists/EventMarks.h"

#include <algorithm>
#include <random>
#include <set>

namespace {

using std::chrono::days;

constexpr int Steps = 400;
constexpr int LongSteps = 4000;
constexpr int Months = 3;
constexpr std::size_t MostEvents = 12; // so that each is edited again and again

const Date FirstDay = DateValue("2009/09/27");

// What an event is to the model.
struct ModelEvent {
    int id = 0;
    Date date{};
    std::string kind = "None";
    std::string daily = "FFFFFFF";
    bool sameDate = false;
    bool end = false;
    Date endDate{};
    std::set<Date> givenUp{};
    int parent = 0;
};

int DayNumber(Date date) {
    return static_cast<int>(static_cast<unsigned>(std::chrono::year_month_day(date).day()));
}

int MonthNumber(Date date) {
    return static_cast<int>(static_cast<unsigned>(std::chrono::year_month_day(date).month()));
}

// From Monday 0 to Sunday 6.
std::size_t DayOfWeek(Date date) {
    return std::chrono::weekday(date).iso_encoding() - 1;
}

bool IsLastOfMonth(Date date) {
    return DayNumber(date + days{1}) == 1;
}

// The rule of a monthly or yearly series without its month.
bool FallsOnDay(const ModelEvent& event, Date day) {
    const int start = DayNumber(event.date);
    if (event.sameDate) {
        return DayNumber(day) == start || (start > 28 && IsLastOfMonth(day) && DayNumber(day) < start);
    }
    if (IsLastOfMonth(event.date)) {
        return IsLastOfMonth(day);
    }
    if (DayOfWeek(day) != DayOfWeek(event.date)) {
        return false;
    }
    return start > 28 ? DayNumber(day + days{7}) <= 7 : (DayNumber(day) - 1) / 7 == (start - 1) / 7;
}

bool Occurs(const ModelEvent& event, Date day) {
    if (event.givenUp.contains(day)) {
        return false;
    }
    if (day <= event.date || event.kind == "None") {
        return day == event.date;
    }
    if (event.end && day > event.endDate) {
        return false;
    }
    if (event.kind == "Day") {
        return event.daily[DayOfWeek(day)] == 'T';
    }
    return FallsOnDay(event, day) && (event.kind == "Month" || MonthNumber(day) == MonthNumber(event.date));
}

class EventSeriesWalk : public EventTest {
protected:
    int Roll(int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); }

    Date AnyDay() { return FirstDay + days{Roll(120)}; }

    void Step();
    void StepNew();
    void StepWhole(std::size_t index);
    void StepOccurrence(std::size_t index, Date day);

    void InFlow(const std::function<void()>& flow, const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        flow();
    }

    // Each does something at random in the dialog, and the same to the event and to what is void with it.
    void Change(ModelEvent& event, bool& exceptionsVoid);
    void MoveDate(ModelEvent& event, bool& exceptionsVoid);
    void ChangeRecurrence(ModelEvent& event, bool& exceptionsVoid);
    bool ActInRecurrence(ModelEvent& event, bool& monthly, bool& yearly);
    Date PickIn(DatePicker& picker, QWidget* button);

    void Cancel() {
        Script.answers = {Answer::Yes};
        Click(dialog->ButtonCancel);
        Script.answers.clear();
    }

    void Delete() {
        Script.answers = {Answer::Yes};
        Click(dialog->ButtonDelete);
        Script.answers.clear();
    }

    void RemoveChildren(int id) {
        std::erase_if(model, [id](const ModelEvent& event) { return event.parent == id; });
    }

    void ExpectAsModelled();
    void ExpectMarks();

    std::mt19937 dice{20091014};
    std::vector<ModelEvent> model;
    int nextId = 1;
    int occurrences = 0, deletedSeries = 0, movedSeries = 0, voided = 0;
};

void EventSeriesWalk::Step() {
    window->ClickedDate = AnyDay();
    window->EventClickedStartTime = "9:00 AM";
    if (model.empty() || (model.size() < MostEvents && Roll(3) == 0)) {
        return StepNew();
    }
    const auto index = static_cast<std::size_t>(Roll(static_cast<int>(model.size())));
    std::vector<Date> on;
    for (int day = 0; day < 42 * Months; ++day) {
        if (Occurs(model[index], FirstDay + days{day})) {
            on.push_back(FirstDay + days{day});
        }
    }
    if (model[index].kind != "None" && !on.empty() && Roll(2) == 0) {
        return StepOccurrence(index, on[static_cast<std::size_t>(Roll(static_cast<int>(on.size())))]);
    }
    StepWhole(index);
}

void EventSeriesWalk::StepNew() {
    ModelEvent event{.date = window->ClickedDate, .endDate = window->ClickedDate};
    const bool cancelled = Roll(6) == 0;
    bool exceptionsVoid = false;
    InFlow([this] { NewEvent(*window); },
           [&] {
               Change(event, exceptionsVoid);
               cancelled ? Cancel() : Click(dialog->ButtonOK);
           });
    if (!cancelled) {
        event.id = nextId++;
        model.push_back(event);
    }
}

void EventSeriesWalk::StepWhole(std::size_t index) {
    ModelEvent event = model[index];
    const int answer = Roll(8);
    bool exceptionsVoid = false;
    Script.answers.clear();
    if (event.kind != "None") {
        Script.answers = {Answer::Yes};
    }
    InFlow([&] { EditEvent(*window, static_cast<int>(index) + 1, window->ClickedDate); },
           [&] {
               Change(event, exceptionsVoid);
               answer == 0 ? Cancel() : answer == 1 ? Delete() : Click(dialog->ButtonOK);
           });
    if (answer == 1) {
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
        RemoveChildren(event.id);
        ++deletedSeries;
    } else if (answer > 1) {
        if (exceptionsVoid) {
            event.givenUp.clear();
            ++voided;
        }
        model[index] = event;
        if (exceptionsVoid) {
            RemoveChildren(event.id);
        }
    }
}

void EventSeriesWalk::StepOccurrence(std::size_t index, Date day) {
    ModelEvent child = model[index];
    child.date = day;
    child.kind = "None";
    child.givenUp.clear();
    child.parent = model[index].id;
    const int answer = Roll(5);
    bool exceptionsVoid = false;
    Script.answers = {Answer::No};
    InFlow([&] { EditEvent(*window, static_cast<int>(index) + 1, day); },
           [&] {
               Change(child, exceptionsVoid);
               answer == 0 ? Cancel() : answer == 1 ? Delete() : Click(dialog->ButtonOK);
           });
    if (answer == 0) {
        return;
    }
    ++occurrences;
    model[index].givenUp.insert(day);
    if (answer > 1) {
        child.id = nextId++;
        model.push_back(child);
    }
}

// --- In the dialogs ----------------------------------------------------------------------------------------

void EventSeriesWalk::Change(ModelEvent& event, bool& exceptionsVoid) {
    for (int change = Roll(3); change > 0; --change) {
        if (Roll(4) == 0) {
            MoveDate(event, exceptionsVoid);
        } else if (event.parent == 0) {
            ChangeRecurrence(event, exceptionsVoid);
        } else {
            Type(dialog->TextBoxEvent, "Moved");
        }
    }
}

Date EventSeriesWalk::PickIn(DatePicker& picker, QWidget* button) {
    FireTimer(picker.TimerCalendar);
    Click(button);
    EXPECT_TRUE(picker.isVisible());
    const auto cell = static_cast<std::size_t>(Roll(MonthCells));
    const Date picked = picker.Cells[cell].date;
    Click(picker.LabelCalDate[cell]);
    return picked;
}

void EventSeriesWalk::MoveDate(ModelEvent& event, bool& exceptionsVoid) {
    event.date = PickIn(*dialog->Picker, dialog->picButtonEventStartDate);
    if (event.kind != "None") {
        event = {.id = event.id, .date = event.date, .endDate = event.date, .givenUp = event.givenUp};
        exceptionsVoid = true;
        ++movedSeries;
    } else if (!event.end) {
        event.endDate = event.date;
    }
}

// What is not chosen now keeps its rule until the event is saved.
void EventSeriesWalk::ChangeRecurrence(ModelEvent& event, bool& exceptionsVoid) {
    const ModelEvent before = event;
    const bool cancelled = Roll(5) == 0;
    bool monthly = recurrence->RadioMonthlyThisDate->isChecked();
    bool yearly = recurrence->RadioYearlyThisDate->isChecked();
    bool touched = false;
    Script.answers.clear();
    if (!event.givenUp.empty()) {
        Script.answers = {Answer::Yes};
    }
    InRecurrence([&] {
        touched = ActInRecurrence(event, monthly, yearly);
        if (cancelled) {
            Script.answers = {Answer::Yes};
            Click(recurrence->ButtonCancel);
            Script.answers.clear();
            return;
        }
        Click(recurrence->ButtonOK);
        if (event.end && event.kind != "None" && event.endDate < event.date) {
            EXPECT_TRUE(recurrence->isVisible());
            Click(recurrence->CheckboxRepeatEndDate);
            event.end = false;
            Click(recurrence->ButtonOK);
        }
    });
    if (cancelled) {
        event = before;
        return;
    }
    event.sameDate = event.kind == "Month" ? monthly : yearly;
    exceptionsVoid = exceptionsVoid || (touched && !event.givenUp.empty());
}

bool EventSeriesWalk::ActInRecurrence(ModelEvent& event, bool& monthly, bool& yearly) {
    const std::vector<std::pair<const char*, QRadioButton*>> kinds{{"None", recurrence->RadioRepeatNone},
                                                                   {"Day", recurrence->RadioRepeatDaily},
                                                                   {"Month", recurrence->RadioRepeatMonthly},
                                                                   {"Year", recurrence->RadioRepeatYearly}};
    const std::vector<QCheckBox*> boxes{recurrence->CheckBoxMonday,    recurrence->CheckBoxTuesday,
                                        recurrence->CheckBoxWednesday, recurrence->CheckBoxThursday,
                                        recurrence->CheckBoxFriday,    recurrence->CheckBoxSaturday,
                                        recurrence->CheckBoxSunday};
    const std::size_t start = DayOfWeek(event.date);
    bool touched = false;
    if (Roll(3) > 0) {
        const auto& [kind, radio] = kinds[static_cast<std::size_t>(Roll(4))];
        Click(radio);
        event.kind = kind;
        if (event.kind == "Day" && event.daily == "FFFFFFF") {
            event.daily[start] = 'T';
        }
        touched = true;
    }
    if (event.kind == "Day") {
        for (int click = Roll(4); click > 0; --click) {
            const auto day = static_cast<std::size_t>(Roll(7));
            Click(boxes[day]);
            event.daily[day] = event.daily[day] == 'F' || day == start ? 'T' : 'F';
            touched = true;
        }
    } else if (event.kind == "Month" && Roll(2) == 0) {
        monthly = Roll(2) == 0;
        Click(monthly ? recurrence->RadioMonthlyThisDate : recurrence->RadioMonthlyUser);
        touched = true;
    } else if (event.kind == "Year" && Roll(2) == 0) {
        yearly = Roll(2) == 0;
        Click(yearly ? recurrence->RadioYearlyThisDate : recurrence->RadioYearlyUser);
    }
    if (Roll(3) == 0) {
        event.endDate = PickIn(*recurrence->Picker, recurrence->picButtonRepeatEndDate);
        event.end = true;
    }
    return touched;
}

// --- What is expected --------------------------------------------------------------------------------------

void EventSeriesWalk::ExpectAsModelled() {
    const EventLists& events = Store.EventRecord;
    for (const Field<EventLists>& field : EventFields) {
        ASSERT_EQ((events.*field.list).Count(), static_cast<int>(model.size())) << field.tag;
    }
    for (std::size_t i = 0; i < model.size(); ++i) {
        const int position = static_cast<int>(i) + 1;
        const ModelEvent& event = model[i];
        ASSERT_EQ(events.id.Item(position), std::to_string(event.id));
        ASSERT_EQ(events.date.Item(position), StoredDate(event.date));
        ASSERT_EQ(events.recurrence.Item(position), event.kind);
        ASSERT_EQ(events.repeat_daily.Item(position), event.daily);
        ASSERT_EQ(events.same_date.Item(position), event.sameDate ? "True" : "False");
        ASSERT_EQ(events.end.Item(position), event.end ? "True" : "False");
        ASSERT_EQ(events.end_date.Item(position), StoredDate(event.endDate));
        ASSERT_EQ(events.parent_id.Item(position), event.parent == 0 ? "" : std::to_string(event.parent));
        ASSERT_TRUE(event.parent == 0 || std::ranges::count(model, event.parent, &ModelEvent::id) == 1)
            << "a child is left without its series";
    }
    const EventLists kept = events;
    Store.EventRecord = {};
    ReadEvents();
    for (const Field<EventLists>& field : EventFields) {
        ASSERT_EQ(Store.EventRecord.*field.list, kept.*field.list) << "on the drive: " << field.tag;
    }
    ASSERT_EQ(NextEventID <= nextId, true);
    NextEventID = nextId;
    ExpectMarks();
}

void EventSeriesWalk::ExpectMarks() {
    for (int month = 0; month < Months; ++month) {
        const Date first = FirstDay + days{month * MonthCells};
        const EventMarks marks = MarkEventDays(first, window->CurrentFilter());
        for (int cell = 0; cell < MonthCells; ++cell) {
            const Date day = first + days{cell};
            ASSERT_EQ(
                marks.count[static_cast<std::size_t>(cell)],
                std::ranges::count_if(model, [day](const ModelEvent& event) { return Occurs(event, day); }))
                << StoredDate(day);
        }
    }
}

} // namespace

TEST_F(EventSeriesWalk, StoreDriveAndMonthAgreeWithANaiveModel) {
    const int steps = qEnvironmentVariableIsSet("PLANOVARIUM_LONG_WALK") ? LongSteps : Steps;
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        window->activateWindow();
        QCoreApplication::processEvents();
        Step();
        if (!FileWrittenFlags.events) {
            continue; // nothing was saved yet
        }
        ASSERT_NO_FATAL_FAILURE(ExpectAsModelled());
    }
    EXPECT_GT(occurrences, steps / 20);
    EXPECT_GT(deletedSeries, steps / 40);
    EXPECT_GT(movedSeries, steps / 40);
    EXPECT_GT(voided, steps / 40);
    EXPECT_TRUE(Script.fatalErrors.empty());
}
