// A student who does anything at all in the dialogs of assignments, tasks, events and terms. Whatever that
// is, what the program holds and what stands on the drive stay the same, and no record loses a field.
#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "persistence/modIO.h"

#include <QApplication>
#include <QRadioButton>
#include <QWhatsThis>

#include <algorithm>
#include <random>

namespace {

constexpr unsigned Seed = 20091014;
constexpr int Steps = 9000;

// What a box says, before and behind the student's own words.
struct ToldBox {
    Buttons buttons;
    std::string_view begin;
    std::string_view end{};
    Preset preset = Preset::First;
};

constexpr std::array ToldBoxes{
    ToldBox{Buttons::YesNo, "There is no Term selected. Do you want to start a new Term?"},
    ToldBox{Buttons::YesNo, "This Term has no classes. Do you want to edit the Class Schedule?"},
    ToldBox{Buttons::YesNo, "Cancel this assignment?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Cancel all changes to this assignment?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Are you sure you want to Delete this assignment?", {}, Preset::No},
    ToldBox{Buttons::Ok, "Select a Class for this assignment."},
    ToldBox{Buttons::Ok, "Enter the number score that you received on this ", "."},
    ToldBox{Buttons::Ok, "Enter the total number of points possible for this ", "."},
    ToldBox{Buttons::YesNo, "Cancel this Task?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Cancel all changes to this Task?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Are you sure you want to Delete this Task?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Cancel this Event?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Cancel all changes to this Event?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Are you sure you want to Delete this Event?", {}, Preset::No},
    ToldBox{Buttons::YesNoCancel,
            "This is a recurring event.\r\n\r\nClick 'Yes' to edit the series. Click 'No' to "
            "edit this specific event."},
    ToldBox{Buttons::YesNoCancel,
            "There are exceptions to this recurring event. If you make changes to the days on "
            "which this event recurs, the exceptions will be lost.\r\n\r\nClick 'Yes' to "
            "continue."},
    ToldBox{Buttons::Ok,
            "This event is an exception in a series of recurring events. It cannot be changed to a "
            "new recurring event."},
    ToldBox{Buttons::Ok,
            "This event is no longer recurring. Click the Change button to set recurrences for the new "
            "date."},
    ToldBox{Buttons::Ok,
            "Note: Events are limited to one day. Events that go beyond midnight do not appear in the "
            "next day's schedule."},
    ToldBox{Buttons::Ok, "The End Date is before the Event Date."},
    ToldBox{Buttons::YesNo, "Cancel all changes?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "You have changed the name of this class. If you have created assignments for '",
            "'.\r\n\r\nClick 'Yes' to rename this class."},
    ToldBox{Buttons::YesNo, "Delete this class?", {}, Preset::No},
    ToldBox{Buttons::YesNo, "Are you sure you want to Delete '", "', they will also be Deleted.", Preset::No},
    ToldBox{Buttons::Ok, "Enter a name for this class."},
    ToldBox{Buttons::Ok, "There is already a class with this name."},
    ToldBox{Buttons::Ok, "Enter the number of credits you will receive for this class. The number is used in "
                         "calculating your total GPA."},
    ToldBox{Buttons::Ok, "The Term End Date must be later then the Term Start Date."},
    ToldBox{Buttons::Ok, "Enter a name for the Term."},
    ToldBox{Buttons::Ok, "There is already a Term with this name."},
    ToldBox{Buttons::YesNo, "Cancel changes to this Term's Class Schedule?", {}, Preset::No},
    ToldBox{Buttons::YesNo,
            "Delete this Term? All assignments for classes in this Class Schedule will also "
            "be deleted.",
            {},
            Preset::No},
    ToldBox{Buttons::YesNo, "Are you sure? This action cannot be undone!", {}, Preset::No},
};

const QStringList Texts{
    "",        "x",         "Chapter 7 < 8 & \"more\"",
    "100",     "100%",      "40",
    "-5",      "85",        "1:5",
    "100:75",  "12:30 PM",  "11:45 PM",
    "2 hours", "soon",      "Latin",
    "algebra", " History ", "Fall 2009",
    "Spring",  "Summer ",   "A long word",
    "3.5",     "  ",        "0",
};

// Within what the files can hold, and outside of it.
const QString Foreign = QStringLiteral("\u20AC 5, \u0436");

// The fields of a record file as they stand on the drive.
std::vector<TextList> ReadAgain(RecordFile file) {
    std::vector<TextList> lists(file.fields.size());
    int nextId = 1;
    for (std::size_t field = 0; field < lists.size(); ++field) {
        file.fields[field].list = &lists[field];
    }
    file.nextId = &nextId;
    EXPECT_TRUE(ScanRecordFile(file));
    return lists;
}

class RandomWalk : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        NextTermID = 2;
        window->EventClickedStartTime = "11:30 PM";
        WriteTermsAndClasses();
        AwaitNextStep();
    }

    int Roll(int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); }

    Date AnyDay() { return window->ClickedDate + std::chrono::days{Roll(30)}; }

    // One of the dialog's controls of a kind that the student can reach; null where there is none.
    template <class Control>
    Control* AnyOf(const QDialog& dialog) {
        QList<Control*> controls = dialog.findChildren<Control*>();
        controls.removeIf([](Control* control) {
            const auto* box = qobject_cast<QLineEdit*>(control);
            const bool isFixed = box != nullptr && (box->isReadOnly() || box->focusProxy() != nullptr);
            return isFixed || !control->isVisible() || !control->isEnabled();
        });
        return controls.isEmpty() ? nullptr : controls.at(Roll(static_cast<int>(controls.size())));
    }

    void StartFlow();
    void AwaitNextStep();
    void TakeStep();
    void Act(QDialog& dialog);
    void TypeText(QDialog& dialog);
    void TypeIntoCombo(QDialog& dialog);
    void TypeNotes(QDialog& dialog);
    void ChooseRow(QDialog& dialog);
    void PickDate(QDialog& dialog);
    void TickBox(QDialog& dialog);
    void PressKey();
    void PressButton(QDialog& dialog);
    void WorkOnTerm();

    void ExpectInStep(const RecordFile& file) const;
    void ExpectAllInStep() const;
    void ExpectChildrenHaveTheirSeries() const;
    void ExpectOnlyToldBoxes();

    std::mt19937 dice{Seed};
    QObject hand; // acts whenever a dialog is open
    int steps = 0;
    std::array<int, ToldBoxes.size()> timesTold{};
};

// Enters the field as a student does; false where the field in hand does not let go.
bool Enter(QWidget* field) {
    QTest::mouseClick(field, Qt::LeftButton);
    return QApplication::focusWidget() == field;
}

void RandomWalk::StartFlow() {
    window->activateWindow(); // a dialog that opens twice in a row would not become active again
    QApplication::processEvents();
    const int assignments = Store.Assignment.id.Count();
    const int tasks = Store.TaskRecord.id.Count();
    const int events = Store.EventRecord.id.Count();
    switch (Roll(12)) {
    case 0:
    case 1:
        return NewAssignment(*window);
    case 2:
    case 3:
        return assignments > 0 ? EditAssignment(*window, Roll(assignments) + 1) : NewAssignment(*window);
    case 4:
        return NewTask(*window);
    case 5:
        return tasks > 0 ? EditTask(*window, Roll(tasks) + 1) : NewTask(*window);
    case 6:
        return NewEvent(*window);
    case 7:
    case 8:
    case 9:
        return events > 0 ? EditEvent(*window, Roll(events) + 1, AnyDay()) : NewEvent(*window);
    default:
        return ClassSchedule(*window);
    }
}

// A timer that fires again and again would wait for the dialog that its own step has opened.
void RandomWalk::AwaitNextStep() {
    QTimer::singleShot(0, &hand, [this] { TakeStep(); });
}

void RandomWalk::TakeStep() {
    AwaitNextStep();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
        return;
    }
    if (QApplication::activeWindow() != dialog) {
        dialog->activateWindow();
        return;
    }
    if (steps >= Steps || HasFailure()) {
        dialog->close();
        return;
    }
    ++steps;
    Script.answers.clear();
    for (int box = 0; box < 3; ++box) {
        Script.answers.push_back(Roll(3) > 0 ? Answer::Yes : Answer::No);
    }
    Act(*dialog);
    ExpectOnlyToldBoxes();
    ExpectAllInStep();
}

void RandomWalk::Act(QDialog& dialog) {
    if (const auto* picker = dialog.findChild<DatePicker*>()) {
        FireTimer(picker->TimerCalendar); // the guard after the last pick; on its own it ends sooner or later
    }
    if (&dialog == TermDialog && Roll(4) == 0) {
        return WorkOnTerm();
    }
    if (&dialog == RecurrenceDialog && Roll(2) == 0) {
        return TickBox(dialog);
    }
    switch (Roll(12)) {
    case 0:
    case 1:
        return TypeText(dialog);
    case 2:
        return TypeIntoCombo(dialog);
    case 3:
        return TypeNotes(dialog);
    case 4:
    case 5:
        return ChooseRow(dialog);
    case 6:
        return TickBox(dialog);
    case 7:
        return PickDate(dialog);
    case 8:
        return PressKey();
    default:
        return PressButton(dialog);
    }
}

void RandomWalk::TypeText(QDialog& dialog) {
    auto* box = AnyOf<QLineEdit>(dialog);
    const QString text = Texts.at(Roll(static_cast<int>(Texts.size())));
    if (box != nullptr && Enter(box)) {
        Type(box, text);
        if (Roll(4) == 0) {
            box->insert(Foreign);
        }
    }
}

void RandomWalk::TypeIntoCombo(QDialog& dialog) {
    auto* combo = AnyOf<QComboBox>(dialog);
    const QString text = Texts.at(Roll(static_cast<int>(Texts.size())));
    if (combo != nullptr && combo->isEditable()) {
        GoTo(combo);
        if (QApplication::focusWidget() == combo) {
            Type(combo, text);
        }
    }
}

void RandomWalk::TypeNotes(QDialog& dialog) {
    auto* notes = AnyOf<QPlainTextEdit>(dialog);
    const QString text = Texts.at(Roll(static_cast<int>(Texts.size())));
    if (notes != nullptr && Enter(notes)) {
        QTest::keyClicks(notes, text);
        QTest::keyClick(notes, Qt::Key_Return);
        notes->insertPlainText(Foreign);
    }
}

void RandomWalk::ChooseRow(QDialog& dialog) {
    auto* combo = AnyOf<QComboBox>(dialog);
    if (combo == nullptr || combo->count() == 0) {
        return;
    }
    const int row = Roll(std::min(combo->count(), 8));
    GoTo(combo);
    if (QApplication::focusWidget() == combo) {
        Choose(combo, row);
    }
}

// By a press on a small button; a day of the panel, "Today" or "Tomorrow", and at times none.
void RandomWalk::PickDate(QDialog& dialog) {
    auto* picker = dialog.findChild<DatePicker*>();
    auto* button = AnyOf<QToolButton>(dialog);
    if (picker == nullptr || button == nullptr) {
        return;
    }
    Click(button);
    QWhatsThis::leaveWhatsThisMode();
    if (!picker->isVisible()) {
        return;
    }
    for (int months = Roll(3); months > 0; --months) {
        Click(picker->LabelCalMonthUp);
    }
    switch (Roll(4)) {
    case 0:
        return Click(picker->LabelToday);
    case 1:
        return Click(picker->LabelTomorrow);
    case 2:
        return QTest::keyClick(picker, Qt::Key_Escape);
    default:
        return Click(picker->LabelCalDate[static_cast<std::size_t>(Roll(MonthCells))]);
    }
}

// Or chooses one of several.
void RandomWalk::TickBox(QDialog& dialog) {
    if (auto* radio = AnyOf<QRadioButton>(dialog); radio != nullptr && Roll(2) == 0) {
        Click(radio);
    } else if (auto* box = AnyOf<QCheckBox>(dialog)) {
        Click(box);
    }
}

void RandomWalk::PressKey() {
    constexpr std::array keys{Qt::Key_Tab,    Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space,
                              Qt::Key_Delete, Qt::Key_Up,     Qt::Key_Down};
    const Qt::Key key = keys[static_cast<std::size_t>(Roll(static_cast<int>(keys.size())))];
    if (QWidget* field = QApplication::focusWidget()) {
        QTest::keyClick(field, key);
    }
}

// The close box is one of the buttons.
void RandomWalk::PressButton(QDialog& dialog) {
    auto* button = AnyOf<QPushButton>(dialog);
    if (button == nullptr || Roll(20) == 0) {
        PressCloseBox(dialog);
    } else {
        Click(button);
    }
}

// Names the open class, or deletes the term: what chance alone brings about too seldom.
void RandomWalk::WorkOnTerm() {
    const QStringList names{"Latin", "algebra", "History"};
    if (TermDialog->ButtonOKClass->isEnabled()) {
        Type(TermDialog->TextBoxClassName, names.at(Roll(3)));
        Click(TermDialog->ButtonOKClass);
    } else if (Roll(2) == 0) {
        Click(TermDialog->ButtonDelete);
    } else {
        Click(Roll(2) == 0 ? TermDialog->ButtonAddClass : TermDialog->ButtonEditClass);
    }
}

void RandomWalk::ExpectInStep(const RecordFile& file) const {
    const std::vector<TextList> read = ReadAgain(file);
    for (std::size_t field = 0; field < read.size(); ++field) {
        ASSERT_EQ(file.fields[field].list->Count(), file.fields.front().list->Count())
            << file.name << " " << file.fields[field].tag << " after " << steps;
        ASSERT_EQ(*file.fields[field].list, read[field])
            << file.name << " " << file.fields[field].tag << " after " << steps;
    }
}

// The term of the assignments may have gone.
void RandomWalk::ExpectAllInStep() const {
    for (const RecordFile& file : {TermFile(), ClassFile(), TaskFile(), EventFile()}) {
        ExpectInStep(file);
    }
    if (ActiveTermID != 0) {
        ExpectInStep(AssignmentFile());
    }
    for (const std::string& id : Store.Assignment.class_) {
        EXPECT_NE(std::ranges::find(ActiveClasses.id, id), ActiveClasses.id.end())
            << id << " after " << steps;
    }
    ExpectChildrenHaveTheirSeries();
    EXPECT_TRUE(Script.fatalErrors.empty());
}

void RandomWalk::ExpectChildrenHaveTheirSeries() const {
    for (const std::string& parent : Store.EventRecord.parent_id) {
        EXPECT_TRUE(parent.empty() || std::ranges::count(Store.EventRecord.id, parent) == 1)
            << parent << " after " << steps;
    }
}

void RandomWalk::ExpectOnlyToldBoxes() {
    for (const ShownBox& box : Script.boxes) {
        const auto told = std::ranges::find_if(ToldBoxes, [&box](const ToldBox& known) {
            return known.end.empty() ? box.text == known.begin
                                     : box.text.starts_with(known.begin) && box.text.ends_with(known.end);
        });
        ASSERT_NE(told, ToldBoxes.end()) << box.text;
        EXPECT_EQ(box, (ShownBox{"Planovarium", box.text, told->buttons, Icon::Information, told->preset}));
        ++timesTold[static_cast<std::size_t>(told - ToldBoxes.begin())];
    }
    Script.boxes.clear();
}

} // namespace

TEST_F(RandomWalk, StoreAndDriveAgreeAfterEveryStep) {
    while (steps < Steps && !HasFailure()) {
        StartFlow();
        ExpectOnlyToldBoxes();
        ExpectAllInStep();
    }
    for (std::size_t box = 0; box < ToldBoxes.size(); ++box) {
        EXPECT_GT(timesTold[box], 0) << ToldBoxes[box].begin;
    }
}
