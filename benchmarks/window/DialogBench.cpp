// The dialogs over a planner of the greatest size: each from the student's wish to the first picture of it,
// and from OK in it to the refreshed view. The drive stands in memory, so no save waits for a device.
#include "DialogBench.h"

#include "core/FieldTables.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/Modes.h"
#include "support/ScriptedPlatform.h"

#include <QApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <functional>
#include <utility>

namespace {

using Step = std::function<void()>;

// Tells of a dialog's first picture since it was last asked for one.
class FirstPicture : public QObject {
public:
    explicit FirstPicture(QDialog* dialog) { dialog->installEventFilter(this); }

    // Calls the step once the dialog has been painted whole.
    void Then(const Step& step) { next = step; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && next) {
            QMetaObject::invokeMethod(this, std::exchange(next, nullptr), Qt::QueuedConnection);
        }
        return false;
    }

private:
    Step next;
};

// The time since the dialog was wished for.
QElapsedTimer SinceWish;

// Measures from the wish to the picture; the dialog is closed again unmeasured.
void Opening(benchmark::State& state, QDialog& dialog, const Step& wish) {
    FirstPicture picture(&dialog);
    for (auto _ : state) {
        double seconds = 0;
        picture.Then([&] {
            seconds = static_cast<double>(SinceWish.nsecsElapsed()) / 1e9;
            dialog.close();
        });
        SinceWish.start();
        wish();
        state.SetIterationTime(seconds);
    }
    if (!Script.boxes.empty()) {
        state.SkipWithError("A box came between");
    }
}

// The same for a dialog that opens by a button of the first, which is wished for unmeasured and closed again
// unless the button has closed it.
void OpeningFrom(benchmark::State& state, QDialog& first, QPushButton& button, QDialog& dialog,
                 const Step& wish) {
    FirstPicture picture(&first);
    Opening(state, dialog, [&] {
        picture.Then([&] {
            SinceWish.start();
            button.click();
            if (first.isVisible()) {
                first.close();
            }
        });
        wish();
    });
}

void ShowWholeTerm(frmMain& window) {
    ShowHomeworkMode(window);
    window.ComboDateRange->setCurrentText(QStringLiteral("Term"));
}

// Measures from OK until the flow has saved, refreshed and painted the view that is shown before.
void OkToView(benchmark::State& state, void (*show)(frmMain&), QDialog& dialog, QPushButton& ok,
              const Step& wish) {
    show(*MainWindow);
    FirstPicture picture(&dialog);
    QElapsedTimer clock;
    for (auto _ : state) {
        picture.Then([&] {
            clock.start();
            ok.click();
        });
        wish();
        QApplication::processEvents();
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
    }
    if (!Script.boxes.empty()) {
        state.SkipWithError("A box came between");
    }
}

void Register(const char* name, const std::function<void(benchmark::State&)>& measure) {
    benchmark::RegisterBenchmark(name, measure)->UseManualTime()->Unit(benchmark::kMillisecond);
}

// The term's dialog opens behind the chooser, whose button is pressed at its picture.
void EditTerm(FirstPicture& chooser) {
    chooser.Then([] { TermChooser->ButtonEdit->click(); });
    ClassSchedule(*MainWindow);
}

// A single event; a series would be asked for.
void EditSingleEvent() {
    int position = 1;
    while (Store.EventRecord.recurrence.Item(position) != "None") {
        ++position;
    }
    EditEvent(*MainWindow, position);
}

// In the place of the last event of all that there can be, which goes before.
void NewLastEvent() {
    NextEventID = ToInt16(Store.EventRecord.id.Item(Store.EventRecord.id.Count()));
    RemoveRecord(Store.EventRecord, EventFields, Store.EventRecord.id.Count());
    NewMorningEvent(*MainWindow);
}

} // namespace

void RegisterDialogBenchmarks() {
    AssignmentDialog->MakeControls(); // whose buttons are pressed below
    TermDialog->MakeControls();
    TaskDialog->MakeControls();
    EventDialog->MakeControls();
    Register("Open/NewAssignment", [](benchmark::State& state) {
        Opening(state, *AssignmentDialog, [] { NewAssignment(*MainWindow); });
    });
    Register("Open/EditAssignment", [](benchmark::State& state) {
        Opening(state, *AssignmentDialog, [] { EditAssignment(*MainWindow, 1); });
    });
    Register("Open/NewTask",
             [](benchmark::State& state) { Opening(state, *TaskDialog, [] { NewTask(*MainWindow); }); });
    Register("Open/EditTask",
             [](benchmark::State& state) { Opening(state, *TaskDialog, [] { EditTask(*MainWindow, 1); }); });
    Register("Open/NewEvent", [](benchmark::State& state) {
        Opening(state, *EventDialog, [] { NewMorningEvent(*MainWindow); });
    });
    Register("Open/EditEvent",
             [](benchmark::State& state) { Opening(state, *EventDialog, &EditSingleEvent); });
    Register("Open/Recurrence", [](benchmark::State& state) {
        OpeningFrom(state, *EventDialog, *EventDialog->ButtonOpenRecur, *RecurrenceDialog,
                    [] { NewMorningEvent(*MainWindow); });
    });
    Register("Open/ClassSchedule", [](benchmark::State& state) {
        Opening(state, *TermChooser, [] { ClassSchedule(*MainWindow); });
    });
    Register("Open/Term", [](benchmark::State& state) {
        OpeningFrom(state, *TermChooser, *TermChooser->ButtonEdit, *TermDialog,
                    [] { ClassSchedule(*MainWindow); });
    });
    Register("Ok/EditAssignment", [](benchmark::State& state) {
        OkToView(state, &ShowWholeTerm, *AssignmentDialog, *AssignmentDialog->ButtonOK,
                 [] { EditAssignment(*MainWindow, 1); });
    });
    Register("Ok/EditTask", [](benchmark::State& state) {
        OkToView(state, &ShowWholeTerm, *TaskDialog, *TaskDialog->ButtonOK, [] { EditTask(*MainWindow, 1); });
    });
    Register("Ok/EditEvent", [](benchmark::State& state) {
        OkToView(state, &ShowEventMode, *EventDialog, *EventDialog->ButtonOK, &EditSingleEvent);
    });
    Register("Ok/NewEvent", [](benchmark::State& state) {
        OkToView(state, &ShowEventMode, *EventDialog, *EventDialog->ButtonOK, &NewLastEvent);
    });
    Register("Ok/Term", [](benchmark::State& state) {
        FirstPicture chooser(TermChooser);
        OkToView(state, &ShowWholeTerm, *TermDialog, *TermDialog->ButtonOK,
                 [&chooser] { EditTerm(chooser); });
    });
}
