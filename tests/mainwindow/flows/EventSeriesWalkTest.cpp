// A student who enters series one after the other and edits, moves, gives up and deletes them and their
// occurrences at random, through the real dialogs, beside a model in plain values. After each action the
// lists of the store are equally long and hold what the model says, the drive reads back the same, the days
// of three months have as many events as in the model, and no child is left without its series. With
// PLANOVARIUM_LONG_WALK set there are ten times as many series.
#include "mainwindow/flows/EventFlow.h"

#include "core/DateText.h"
#include "editors/EventTest.h"
#include "mainwindow/flows/SeriesModel.h"
#include "persistence/modIO.h"
#include "planner/lists/EventMarks.h"

#include <algorithm>
#include <map>
#include <optional>
#include <random>

namespace {

using std::chrono::days;
using std::chrono::months;

#ifdef __SANITIZE_ADDRESS__
constexpr int SeriesOfAShare = 125;
#else
constexpr int SeriesOfAShare = 500;
#endif
constexpr unsigned Shares = 4;
constexpr int LongFactor = 10;
constexpr std::size_t MostEvents = 12; // so that each is edited again and again
constexpr std::chrono::year_month FirstMonth{std::chrono::year(2007), std::chrono::January};
constexpr int MonthsToBeginIn = 72;
constexpr std::array ShownMonths{months{0}, months{1}, months{12}}; // from that in which the series begins

constexpr std::array<const char*, 4> KindNames{"None", "Day", "Month", "Year"};

enum class Close { Ok, Cancel, Delete };

// An event while its editor is open. What is not chosen now keeps its rule until the event is saved.
struct Edited {
    ModelEvent event;
    bool monthlySameDate = event.sameDate;
    bool yearlySameDate = event.sameDate;
    bool exceptionsVoid = false;
};

ModelEvent Saved(const Edited& edited) {
    ModelEvent event = edited.event;
    event.sameDate = event.kind == "Month" ? edited.monthlySameDate : edited.yearlySameDate;
    if (edited.exceptionsVoid) {
        event.givenUp.clear();
    }
    return event;
}

class EventSeriesWalk : public EventTest, public testing::WithParamInterface<unsigned> {
protected:
    void SetUp() override {
        EventTest::SetUp();
        window->EventClickedStartTime = "9:00 AM";
        dice.seed(GetParam());
        for (QWidget* painted : std::initializer_list<QWidget*>{window.get(), dialog, recurrence}) {
            painted->setUpdatesEnabled(false); // nobody looks at their pixels
        }
    }

    int Roll(int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); }

    std::size_t RollIndex(std::size_t count) {
        return static_cast<std::size_t>(Roll(static_cast<int>(count)));
    }

    // The actions, each with what the model makes of it.
    void EnterSeries();
    void EditSome();
    void EnterSome();
    void EditWhole(std::size_t index, Close close);
    void EditOccurrence(std::size_t index, Date day);
    std::vector<Date> ShownDaysOf(const ModelEvent& event) const;

    // What is done within an editor.
    void InEditor(const std::function<void()>& flow, const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        flow();
    }

    void CloseBy(Close close);
    void Change(Edited& edited);
    void MoveDate(Edited& edited);
    void ChangeRecurrence(Edited& edited, std::optional<std::size_t> kind);
    void ChangeRules(Edited& edited, bool& touched);
    Date PickIn(DatePicker& picker, QWidget* button);

    void RemoveChildren(int id) {
        std::erase_if(model, [id](const ModelEvent& event) { return event.parent == id; });
    }

    // Does it, and expects the four things to hold behind it.
    void Do(const std::function<void()>& action);
    void ExpectAsModelled();
    void ExpectMarks();

    std::mt19937 dice;
    std::vector<ModelEvent> model;
    std::chrono::year_month month = FirstMonth; // in which the last series begins
    int nextId = 1;
    int lastSeries = 0; // its id
    // How often each came about.
    std::map<std::string, int> done{{"kind", 0},          {"days", 0},           {"rank", 0},
                                    {"end", 0},           {"date moved", 0},     {"occurrence moved", 0},
                                    {"given up", 0},      {"series deleted", 0}, {"cancelled", 0},
                                    {"children void", 0}, {"end refused", 0}};
};

// --- The actions -------------------------------------------------------------------------------------------

void EventSeriesWalk::EnterSeries() {
    month = FirstMonth + months{Roll(MonthsToBeginIn)};
    window->ClickedDate = std::chrono::local_days(month / 1) + days{Roll(31)};
    Edited edited{{.id = nextId, .date = window->ClickedDate, .endDate = window->ClickedDate}};
    InEditor([this] { NewEvent(*window); },
             [&] {
                 ChangeRecurrence(edited, 1 + RollIndex(KindNames.size() - 1));
                 CloseBy(Close::Ok);
             });
    model.push_back(Saved(edited));
    lastSeries = nextId++;
}

void EventSeriesWalk::EditSome() {
    const auto last = std::ranges::find(model, lastSeries, &ModelEvent::id);
    if (model.empty() || Roll(10) == 0) {
        return EnterSome();
    }
    const std::size_t index = last == model.end() || Roll(3) == 0
                                  ? RollIndex(model.size())
                                  : static_cast<std::size_t>(last - model.begin());
    const std::vector<Date> shown = ShownDaysOf(model[index]);
    if (model[index].kind != "None" && !shown.empty() && Roll(2) == 0) {
        return EditOccurrence(index, shown[RollIndex(shown.size())]);
    }
    const int close = Roll(8);
    EditWhole(index, close == 0 ? Close::Cancel : close == 1 ? Close::Delete : Close::Ok);
}

void EventSeriesWalk::EnterSome() {
    Edited edited{{.id = nextId, .date = window->ClickedDate, .endDate = window->ClickedDate}};
    const Close close = Roll(2) == 0 ? Close::Cancel : Close::Ok;
    InEditor([this] { NewEvent(*window); },
             [&] {
                 Change(edited);
                 CloseBy(close);
             });
    if (close == Close::Ok) {
        model.push_back(Saved(edited));
        ++nextId;
    }
}

void EventSeriesWalk::EditWhole(std::size_t index, Close close) {
    Edited edited{model[index]};
    const bool wasSeries = edited.event.kind != "None";
    Script.answers.clear();
    if (wasSeries) {
        Script.answers = {Answer::Yes};
    }
    InEditor([&] { EditEvent(*window, static_cast<int>(index) + 1, window->ClickedDate); },
             [&] {
                 Change(edited);
                 CloseBy(close);
             });
    if (close == Close::Delete) {
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
        done["series deleted"] += wasSeries ? 1 : 0;
    } else if (close == Close::Ok) {
        model[index] = Saved(edited);
    }
    if (close == Close::Delete || (close == Close::Ok && edited.exceptionsVoid)) {
        const std::size_t before = model.size();
        RemoveChildren(edited.event.id);
        done["children void"] += before > model.size() ? 1 : 0;
    }
}

void EventSeriesWalk::EditOccurrence(std::size_t index, Date day) {
    Edited child{model[index]};
    child.event.date = day;
    child.event.kind = "None";
    child.event.givenUp.clear();
    child.event.parent = model[index].id;
    const Close close = std::array{Close::Cancel, Close::Delete, Close::Ok, Close::Ok}[RollIndex(4)];
    Script.answers = {Answer::No};
    InEditor([&] { EditEvent(*window, static_cast<int>(index) + 1, day); },
             [&] {
                 Change(child);
                 CloseBy(close);
             });
    if (close == Close::Cancel) {
        return;
    }
    model[index].givenUp.push_back(day);
    done["given up"] += close == Close::Delete ? 1 : 0;
    if (close == Close::Ok) {
        done["occurrence moved"] += child.event.date != day ? 1 : 0;
        child.event.id = nextId++;
        model.push_back(Saved(child));
    }
}

// The days of the months that are looked at on which the event is, so that one can be clicked there.
std::vector<Date> EventSeriesWalk::ShownDaysOf(const ModelEvent& event) const {
    std::vector<Date> on;
    for (const months ahead : ShownMonths) {
        const auto cells = CellsOf(month + ahead);
        std::ranges::copy_if(cells, std::back_inserter(on), [&](Date day) { return Occurs(event, day); });
    }
    return on;
}

// --- In the dialogs ----------------------------------------------------------------------------------------

void EventSeriesWalk::CloseBy(Close close) {
    Script.answers.clear();
    if (close != Close::Ok) {
        Script.answers = {Answer::Yes};
    }
    done["cancelled"] += close == Close::Cancel ? 1 : 0;
    Click(close == Close::Ok       ? dialog->ButtonOK
          : close == Close::Cancel ? dialog->ButtonCancel
                                   : dialog->ButtonDelete);
    ExpectClosed(*dialog);
}

void EventSeriesWalk::Change(Edited& edited) {
    for (int change = Roll(3); change > 0; --change) {
        if (Roll(edited.event.parent == 0 ? 4 : 2) == 0) {
            MoveDate(edited);
        } else if (edited.event.parent == 0) {
            ChangeRecurrence(edited,
                             Roll(3) == 0 ? std::nullopt : std::optional(RollIndex(KindNames.size())));
        } else {
            edited.event.desc = "Moved " + std::to_string(Roll(100));
            Type(dialog->TextBoxEvent, QString::fromStdString(edited.event.desc));
        }
    }
}

Date EventSeriesWalk::PickIn(DatePicker& picker, QWidget* button) {
    FireTimer(picker.TimerCalendar);
    Click(button);
    EXPECT_TRUE(picker.isVisible());
    const std::size_t cell = RollIndex(picker.Cells.size());
    const Date picked = picker.Cells[cell].date;
    Click(picker.LabelCalDate[cell]);
    return picked;
}

void EventSeriesWalk::MoveDate(Edited& edited) {
    ModelEvent& event = edited.event;
    event.date = PickIn(*dialog->Picker, dialog->picButtonEventStartDate);
    if (event.kind != "None") {
        event.kind = "None";
        event.daily = "FFFFFFF";
        event.end = edited.monthlySameDate = edited.yearlySameDate = false;
        edited.exceptionsVoid = true;
        ++done["date moved"];
    }
    if (!event.end) {
        event.endDate = event.date;
    }
}

void EventSeriesWalk::ChangeRecurrence(Edited& edited, std::optional<std::size_t> kind) {
    const std::array radios{recurrence->RadioRepeatNone, recurrence->RadioRepeatDaily,
                            recurrence->RadioRepeatMonthly, recurrence->RadioRepeatYearly};
    const bool cancelled = edited.event.id != nextId && Roll(5) == 0;
    const Edited before = edited;
    bool touched = false;
    Script.answers.clear();
    if (!edited.event.givenUp.empty()) {
        Script.answers = {Answer::Yes};
    }
    InRecurrence([&] {
        if (kind) {
            Click(radios[*kind]);
            edited.event.kind = KindNames[*kind];
            touched = true;
            ++done["kind"];
        }
        ChangeRules(edited, touched);
        if (cancelled) {
            Script.answers = {Answer::Yes};
            Click(recurrence->ButtonCancel);
            Script.answers.clear();
            return;
        }
        Click(recurrence->ButtonOK);
        if (edited.event.end && edited.event.kind != "None" && edited.event.endDate < edited.event.date) {
            EXPECT_TRUE(recurrence->isVisible());
            Click(recurrence->CheckboxRepeatEndDate);
            edited.event.end = false;
            ++done["end refused"];
            Click(recurrence->ButtonOK);
        }
    });
    if (cancelled) {
        edited = before;
    } else {
        edited.exceptionsVoid |= touched && !edited.event.givenUp.empty();
    }
}

void EventSeriesWalk::ChangeRules(Edited& edited, bool& touched) {
    const std::array boxes{recurrence->CheckBoxMonday,    recurrence->CheckBoxTuesday,
                           recurrence->CheckBoxWednesday, recurrence->CheckBoxThursday,
                           recurrence->CheckBoxFriday,    recurrence->CheckBoxSaturday,
                           recurrence->CheckBoxSunday};
    ModelEvent& event = edited.event;
    if (event.kind == "Day") {
        const std::size_t start = DayOfWeek(event.date);
        if (touched && event.daily == "FFFFFFF") {
            event.daily[start] = 'T';
        }
        for (int click = Roll(4); click > 0; --click) {
            const std::size_t day = RollIndex(boxes.size());
            Click(boxes[day]);
            event.daily[day] = event.daily[day] == 'F' || day == start ? 'T' : 'F';
            touched = true;
            ++done["days"];
        }
    } else if (event.kind == "Month" && Roll(2) == 0) {
        edited.monthlySameDate = Roll(2) == 0;
        Click(edited.monthlySameDate ? recurrence->RadioMonthlyThisDate : recurrence->RadioMonthlyUser);
        touched = true;
        ++done["rank"];
    } else if (event.kind == "Year" && Roll(2) == 0) {
        edited.yearlySameDate = Roll(2) == 0;
        Click(edited.yearlySameDate ? recurrence->RadioYearlyThisDate : recurrence->RadioYearlyUser);
        ++done["rank"];
    }
    if (Roll(3) == 0) {
        event.endDate = PickIn(*recurrence->Picker, recurrence->picButtonRepeatEndDate);
        event.end = true;
        ++done["end"];
    }
}

// --- What is expected --------------------------------------------------------------------------------------

void EventSeriesWalk::Do(const std::function<void()>& action) {
    window->activateWindow();
    QCoreApplication::processEvents();
    action();
    ASSERT_NO_FATAL_FAILURE(ExpectAsModelled());
    ASSERT_NO_FATAL_FAILURE(ExpectMarks());
    ASSERT_FALSE(HasFailure());
}

void EventSeriesWalk::ExpectAsModelled() {
    const EventLists kept = Store.EventRecord;
    for (const Field<EventLists>& field : EventFields) {
        ASSERT_EQ((kept.*field.list).Count(), static_cast<int>(model.size())) << field.tag;
    }
    for (std::size_t i = 0; i < model.size(); ++i) {
        for (const auto& [list, text] : TextsOf(model[i])) {
            ASSERT_EQ((kept.*list).Item(static_cast<int>(i) + 1), text) << "event " << model[i].id;
        }
        ASSERT_TRUE(model[i].parent == 0 || std::ranges::count(kept.id.values, kept.parent_id.values[i]) == 1)
            << "a child is left without its series";
    }
    ASSERT_EQ(NextEventID, nextId);
    Store.EventRecord = {};
    ReadEvents();
    NextEventID = nextId;
    for (const Field<EventLists>& field : EventFields) {
        ASSERT_EQ(Store.EventRecord.*field.list, kept.*field.list) << "on the drive: " << field.tag;
    }
}

void EventSeriesWalk::ExpectMarks() {
    for (const months ahead : ShownMonths) {
        const auto cells = CellsOf(month + ahead);
        const EventMarks marks = MarkEventDays(cells.front(), window->CurrentFilter());
        for (std::size_t cell = 0; cell < cells.size(); ++cell) {
            const auto on = std::ranges::count_if(
                model, [&](const ModelEvent& event) { return Occurs(event, cells[cell]); });
            ASSERT_EQ(marks.count[cell], on) << StoredDate(cells[cell]);
            ASSERT_EQ(marks.marked[cell], on > 0) << StoredDate(cells[cell]);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Share, EventSeriesWalk, testing::Range(1U, Shares + 1));

} // namespace

TEST_P(EventSeriesWalk, StoreDriveAndMonthsAgreeWithANaiveModelAfterEachAction) {
    const int count = SeriesOfAShare * (qEnvironmentVariableIsSet("PLANOVARIUM_LONG_WALK") ? LongFactor : 1);
    for (int series = 1; series <= count; ++series) {
        SCOPED_TRACE("series " + std::to_string(series));
        ASSERT_NO_FATAL_FAILURE(Do([this] { EnterSeries(); }));
        for (int action = 2 + Roll(4); action > 0; --action) {
            ASSERT_NO_FATAL_FAILURE(Do([this] { EditSome(); }));
        }
        while (model.size() > MostEvents) {
            ASSERT_NO_FATAL_FAILURE(Do([this] { EditWhole(0, Close::Delete); }));
        }
    }
    for (const auto& [what, times] : done) {
        EXPECT_GT(times, count / 10) << what;
    }
    EXPECT_TRUE(Script.fatalErrors.empty());
}
