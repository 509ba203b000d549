// What mouse and keys must not do in any window: the second click of a double click, Enter held down, the
// wheel over a combo without the focus.
#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include <QApplication>
#include <QStyleHints>
#include <QWheelEvent>

namespace {

constexpr QPoint Spot{400, 300}; // on the screen
constexpr quint64 Quick = 100;   // milliseconds between the two presses of a double click

quint64 DoubleClickTime() {
    return static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

class InputRules : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        GoToDate(*window, Today());
        start += 100000; // no test's press is near another's in time
    }

    static void SendMouse(QEvent::Type type, QWidget* widget, QPoint point, QPoint screen, quint64 time) {
        const bool down = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, QPointF(point), QPointF(screen), Qt::LeftButton,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(start + time);
        QApplication::sendEvent(widget, &event);
    }

    // A click with the pointer there on the screen, so many milliseconds after the start of the test.
    // Whatever is named lies under it.
    static void ClickAt(QWidget* widget, QPoint point, quint64 time, QPoint screen = Spot) {
        SendMouse(QEvent::MouseButtonPress, widget, point, screen, time);
        SendMouse(QEvent::MouseButtonRelease, widget, point, screen, time);
    }

    static void ClickAt(QPushButton* button, quint64 time, QPoint screen = Spot) {
        ClickAt(button, button->rect().center(), time, screen);
    }

    // Clicks on the first row of the tasks at the start of the test; the action follows in the editor.
    void OpenTaskByClick(const std::function<void()>& action) {
        AddTaskRecord({.desc = "Call"});
        ShowTaskMode(*window);
        WhenDialogOpens([&](QWidget* /*editor*/) {
            action();
            TaskDialog->hide();
        });
        ClickAt(window->picGrid, {200, TitleHeight + RowHeight / 2}, 0);
    }

    // Clicks on the line of tasks of the selected day.
    void ClickTasksOfDay() {
        const auto icon = static_cast<std::size_t>(CalendarIcon::Tasks);
        const UnitRect& line = window->CalendarGrid.cell[SelectedCellOf(window->Month)].icon[icon];
        ASSERT_GT(line.width, 0);
        ClickAt(window->picGrid, QPoint(line.left + 60, line.top + 60) / UnitsPerPixel, 0);
    }

    static QPoint MiddleOf(const QMenu* menu, int item) {
        return menu->actionGeometry(menu->actions().at(item)).center();
    }

    // Enter as it comes from a key that is held down.
    static void RepeatEnter(QWidget* widget) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), true);
            QApplication::sendEvent(widget, &press);
        }
    }

    // The wheel turned down by a notch over the middle of the widget.
    static void TurnWheel(QWidget* widget) {
        const QPoint middle = widget->rect().center();
        QWheelEvent event(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(widget, &event);
    }

    // What lies under the pointer over a combo.
    static QWidget* Surface(QComboBox* combo) {
        return combo->isEditable() ? static_cast<QWidget*>(combo->lineEdit()) : combo;
    }

    static quint64 start;
};

quint64 InputRules::start = 1000000000;

} // namespace

// --- Double clicks ---

TEST_F(InputRules, SecondPressDoesNotFallOnTheDialogThatTheFirstOneOpened) {
    OpenTaskByClick([] {
        ClickAt(TaskDialog->CheckBoxDone, {6, TaskDialog->CheckBoxDone->height() / 2}, Quick);
        ClickAt(TaskDialog->LabelDeadline, {3, 3}, Quick); // where a release alone would do
        ClickAt(TaskDialog->ButtonDelete, Quick);
        ClickAt(TaskDialog->ButtonOK, DoubleClickTime() - 1, Spot + QPoint(2, 2));
        EXPECT_FALSE(TaskDialog->CheckBoxDone->isChecked());
        EXPECT_FALSE(TaskDialog->ChangeFlag);
        EXPECT_TRUE(Script.boxes.empty());
        EXPECT_TRUE(TaskDialog->isVisible());
    });
}

TEST_F(InputRules, QuickPressElsewhereInTheDialogCounts) {
    OpenTaskByClick([] {
        ClickAt(TaskDialog->ButtonOK, Quick, Spot + QPoint(40, 0));
        EXPECT_FALSE(TaskDialog->isVisible());
    });
}

TEST_F(InputRules, PressThatIsTooLateForADoubleClickCounts) {
    OpenTaskByClick([] {
        ClickAt(TaskDialog->ButtonOK, DoubleClickTime());
        EXPECT_FALSE(TaskDialog->isVisible());
    });
}

TEST_F(InputRules, DialogThatAKeyOpensTakesEveryPress) {
    AddTaskRecord({.desc = "Call"});
    ShowTaskMode(*window);
    SendMouse(QEvent::MouseButtonPress, window->LabelTop, {3, 3}, Spot, 0);
    WhenDialogOpens([](QWidget* /*editor*/) {
        ClickAt(TaskDialog->ButtonOK, Quick);
        EXPECT_FALSE(TaskDialog->isVisible());
        TaskDialog->hide();
    });
    QTest::keyClick(window->picGrid, Qt::Key_Down);
    QTest::keyClick(window->picGrid, Qt::Key_Return);
}

TEST_F(InputRules, DoubleClickOnADayChoosesNothingFromItsMenu) {
    AddTaskRecord({.desc = "Call"});
    window->RefreshFor(ReasonNewRecord);
    CancelDialogsAsTheyOpen(window.get());
    WhenPopupOpens([](QMenu* menu) {
        ClickAt(menu, MiddleOf(menu, 0), Quick);
        EXPECT_TRUE(menu->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    ClickTasksOfDay();
}

TEST_F(InputRules, DoubleClickOnAPopupsItemDoesNotFallOnItsDialog) {
    constexpr quint64 Later = 5000;
    AddTaskRecord({.desc = "Call"});
    window->RefreshFor(ReasonNewRecord);
    WhenPopupOpens([](QMenu* menu) {
        QTimer::singleShot(0, qApp, [menu] { ClickAt(menu, MiddleOf(menu, 0), Later); });
        WhenDialogOpens([](QWidget* editor) {
            EXPECT_EQ(editor, TaskDialog);
            ClickAt(TaskDialog->ButtonOK, Later + Quick);
            EXPECT_TRUE(TaskDialog->isVisible());
            TaskDialog->hide();
        });
        ASSERT_TRUE(WaitUntil([menu] { return !menu->isVisible(); }));
    });
    ClickTasksOfDay();
}

// --- Enter held down ---

TEST_F(InputRules, EnterHeldDownOpensNoRow) {
    AddTaskRecord({.desc = "Call"});
    ShowTaskMode(*window);
    CancelDialogsAsTheyOpen(window.get());
    QTest::keyClick(window->picGrid, Qt::Key_Down);
    ASSERT_EQ(window->CurrentRow, 1);
    TaskDialog->EditMode.clear();
    RepeatEnter(window->picGrid);
    EXPECT_EQ(TaskDialog->EditMode, ""); // no flow has begun
}

TEST_F(InputRules, EnterHeldDownDoesNotPressOK) {
    Open(*TaskDialog, "New");
    for (QWidget* field : std::initializer_list<QWidget*>{TaskDialog->TextBoxDescription,
                                                          TaskDialog->CheckBoxDone, TaskDialog->ButtonOK}) {
        RepeatEnter(field);
        EXPECT_TRUE(TaskDialog->isVisible());
    }
    QTest::keyClick(TaskDialog->TextBoxDescription, Qt::Key_Return);
    EXPECT_FALSE(TaskDialog->isVisible());
}

TEST_F(InputRules, EnterHeldDownMakesLinesInABoxOfSeveral) {
    Open(*TaskDialog, "New");
    TaskDialog->TextBoxNotes->setFocus();
    RepeatEnter(TaskDialog->TextBoxNotes);
    EXPECT_EQ(TaskDialog->TextBoxNotes->toPlainText(), "\n\n");
}

TEST_F(InputRules, EnterHeldDownChoosesNothingFromAMenu) {
    AddTaskRecord({.desc = "Call"});
    window->RefreshFor(ReasonNewRecord);
    CancelDialogsAsTheyOpen(window.get());
    TaskDialog->EditMode.clear();
    WhenPopupOpens([](QMenu* menu) {
        menu->setActiveAction(menu->actions().first());
        RepeatEnter(menu);
        EXPECT_TRUE(menu->isVisible());
    });
    QTest::keyClick(window->picGrid, Qt::Key_Return); // the first of the day's menus
    EXPECT_EQ(TaskDialog->EditMode, "");
}

TEST_F(InputRules, EnterHeldDownPicksNoDay) {
    Open(*TaskDialog, "New");
    QTest::keyClick(TaskDialog->TextboxTaskDate, Qt::Key_Space);
    ASSERT_TRUE(TaskDialog->Picker->isVisible());
    RepeatEnter(TaskDialog->Picker);
    EXPECT_TRUE(TaskDialog->Picker->isVisible());
    EXPECT_FALSE(TaskDialog->ChangeFlag);
}

// --- The wheel ---

TEST_F(InputRules, WheelOverAComboOfADialogWithoutTheFocusLeavesIt) {
    MakeAllDialogs(*window);
    for (QDialog* dialog :
         std::initializer_list<QDialog*>{AssignmentDialog, TaskDialog, TermChooser, TermDialog}) {
        ShowAlone(*dialog);
        const QList<QComboBox*> combos = dialog->findChildren<QComboBox*>();
        ASSERT_FALSE(combos.isEmpty());
        for (QComboBox* combo : combos) {
            combo->setEnabled(true);
            combo->addItems({"One", "Two"});
            combo->setCurrentIndex(0);
            dialog->findChild<QPushButton*>("ButtonCancel")->setFocus();
            TurnWheel(Surface(combo));
            EXPECT_EQ(combo->currentIndex(), 0) << combo->objectName().toStdString();
            EXPECT_FALSE(combo->hasFocus()) << combo->objectName().toStdString();
        }
        dialog->hide();
    }
}

TEST_F(InputRules, WheelOverAComboWithTheFocusTurnsIt) {
    Open(*TaskDialog, "New");
    TaskDialog->ComboPriority->setFocus();
    ASSERT_EQ(TaskDialog->ComboPriority->currentIndex(), 0);
    TurnWheel(TaskDialog->ComboPriority->lineEdit());
    EXPECT_EQ(TaskDialog->ComboPriority->currentIndex(), 1);
}

TEST_F(InputRules, WheelOverAFilterWithoutTheFocusScrollsTheList) {
    for (int i = 0; i < 60; ++i) {
        AddTaskRecord({});
    }
    ShowTaskMode(*window);
    window->picGrid->setFocus();
    ASSERT_EQ(window->VSGridScroll->value(), 1);
    TurnWheel(window->ComboList);
    EXPECT_EQ(window->VSGridScroll->value(), 4);
    TurnWheel(window->ComboDateRange);
    EXPECT_EQ(window->VSGridScroll->value(), 7);
    EXPECT_EQ(window->ComboList->currentText(), "All");
    EXPECT_EQ(window->ComboDateRange->currentText(), "All");
    window->ComboList->setFocus();
    TurnWheel(window->ComboList);
    EXPECT_EQ(window->ComboList->currentText(), "Done");
}
