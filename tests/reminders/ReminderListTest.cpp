// The reminder window as it is loaded, its list and the snooze time: what is drawn, clicked, sorted and
// typed.
#include "reminders/RemindersTest.h"
#include "toolkit/WindowColors.h"
#include "toolkit/grid/ListScroll.h"

#include <QAccessible>
#include <QLineEdit>

namespace {

class ReminderList : public RemindersTest {
protected:
    // Two tasks and an event that stand.
    void ShowThree() {
        AddTaskRecord({.date = "2009/10/16", .desc = "Bread", .type = "Home", .reminder_list = "True"});
        AddTaskRecord({.date = "2009/10/15", .desc = "apples", .type = "School", .reminder_list = "True"});
        AddEventRecord({.time = "12:30 PM", .desc = "Chess", .type = "Personal", .reminder_list = "True"});
        QuietTick();
    }

    // The texts drawn in a row, and the ground behind a point of it.
    QStringList TextsOfRow(int row) const {
        QStringList texts;
        for (const DrawnItem& item : list->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Text && item.top > RowTop(row) && item.top < RowTop(row + 1)) {
                texts.append(item.text);
            }
        }
        return texts;
    }

    QString PictureOfRow(int row) const {
        for (const DrawnItem& item : list->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Picture && item.top > RowTop(row) && item.top < RowTop(row + 1)) {
                return item.text;
            }
        }
        return {};
    }

    // The frames around selected rows, by their place.
    std::vector<int> FramedRows() const {
        std::vector<int> rows;
        for (const DrawnItem& item : list->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Frame && item.color == CurrentColor) {
                rows.push_back((item.top - TitleUnits) / RowUnits + 1);
            }
        }
        return rows;
    }

    std::string Normalised(const QString& text) const {
        list->ComboReminderTime->setCurrentText(text);
        QTest::keyClick(list->ComboReminderTime, Qt::Key_Return);
        return list->ComboReminderTime->currentText().toStdString();
    }

    std::vector<bool> Enabled() const {
        return {list->ButtonView->isEnabled(), list->ButtonRemove->isEnabled(),
                list->ButtonReset->isEnabled(), list->ButtonRemoveAll->isEnabled()};
    }
};

} // namespace

TEST_F(ReminderList, IsLoadedHiddenAndEmpty) {
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(list->windowTitle(), "Planovarium - Reminder List");
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_EQ(list->ReminderSelectedRow, 0);
    EXPECT_EQ(list->FirstRow, 1);
    EXPECT_EQ(RowHeight, 22);
    EXPECT_EQ(list->SortColumn, 4);
    EXPECT_EQ(list->SortDirection, Descending);
    EXPECT_FALSE(list->picGrid->Hover().has_value());
    EXPECT_TRUE(list->ReminderFirstTick);
    EXPECT_FALSE(list->ReminderShowWindow || list->ReminderBusy || list->ReminderHold ||
                 list->ReminderTasksChanged || list->ReminderHomeworkChanged || list->ReminderEventsChanged);
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
}

TEST_F(ReminderList, StandsAloneAndIsNeverModal) {
    EXPECT_EQ(list->parentWidget(), nullptr);
    EXPECT_TRUE(list->isWindow());
    EXPECT_FALSE(list->isModal());
}

TEST_F(ReminderList, HasItsCaptions) {
    const auto plain = [](QString text) { return text.remove(u'&'); };
    EXPECT_EQ(list->LabelDescription->text(),
              "Select an item to reset the time for later or remove it from the Reminder List.");
    EXPECT_EQ(plain(list->ButtonView->text()), "View this Item");
    EXPECT_EQ(plain(list->ButtonRemove->text()), "Remove from List");
    EXPECT_EQ(plain(list->ButtonRemoveAll->text()), "Remove All");
    EXPECT_EQ(plain(list->ButtonReset->text()), "Reset the Time");
    EXPECT_EQ(plain(list->Label2->text()), "Remind me about this again in:");
    QStringList titles;
    list->ShowByHand();
    for (const PictureBox* header : list->picColHeader) {
        titles.append(DrawnTexts(*header));
    }
    EXPECT_EQ(titles, (QStringList{"#", "Mode", "Type", "Name", "Time"}));
}

TEST_F(ReminderList, OffersTwentySnoozeTimesAndBeginsWithTheFirst) {
    QStringList rows;
    for (int row = 0; row < list->ComboReminderTime->count(); ++row) {
        rows.append(list->ComboReminderTime->itemText(row));
    }
    EXPECT_EQ(rows, (QStringList{"5 Minutes", "15 Minutes", "30 Minutes", "1 Hour",    "1.5 Hours",
                                 "2 Hours",   "2.5 Hours",  "3 Hours",    "3.5 Hours", "4 Hours",
                                 "5 Hours",   "6 Hours",    "7 Hours",    "8 Hours",   "9 Hours",
                                 "12 Hours",  "18 Hours",   "1 Day",      "2 Days",    "3 Days"}));
    EXPECT_TRUE(list->ComboReminderTime->isEditable());
    EXPECT_EQ(list->ComboReminderTime->currentText(), "5 Minutes");
    for (const QString& row : rows) {
        EXPECT_EQ(Normalised(row), row.toStdString());
    }
}

// --- Rows --------------------------------------------------------------------------------------------------

TEST_F(ReminderList, DrawsTheNumberTypeNameAndTimeOfEachRowBehindABlank) {
    ShowThree();
    EXPECT_EQ(Standing(), (Texts{"Event 1", "Task 1", "Task 2"}));
    EXPECT_EQ(TextsOfRow(1), (QStringList{"1", " Personal", " Chess", " 30 Minutes from Now"}));
    EXPECT_EQ(TextsOfRow(2), (QStringList{"2", " Home", " Bread", " 2 Days from Now"}));
    EXPECT_EQ(TextsOfRow(3), (QStringList{"3", " School", " apples", " Tomorrow"}));
}

TEST_F(ReminderList, DrawsAPictureForEachMode) {
    AddTaskRecord({.date = "2009/10/14", .reminder_list = "True"});
    AddAssignmentRecord({.date = "2009/10/13", .reminderlist = "True"});
    AddEventRecord({.time = "12:30 PM", .reminder_list = "True"});
    QuietTick();
    ASSERT_EQ(Standing(), (Texts{"Event 1", "Task 1", "Homework 1"}));
    EXPECT_EQ(PictureOfRow(1), "picStashCalEvent.svg");
    EXPECT_EQ(PictureOfRow(2), "picStashCalTask.svg");
    EXPECT_EQ(PictureOfRow(3), "picStashCalHomework.svg");
}

TEST_F(ReminderList, DrawsTypeNameAndTimeInTheColorsOfTheItem) {
    AddAssignmentRecord({.desc = "Essay", .reminderlist = "True"});
    QuietTick();
    int grounds = 0;
    for (const DrawnItem& item : list->picGrid->Drawn()) {
        const bool inRow = item.top > RowTop(1) && item.top < RowTop(2);
        grounds += item.kind == DrawnKind::Rectangle && inRow && item.color == 65280 ? 1 : 0;
        if (item.kind == DrawnKind::Text && inRow && item.left > RowNumberWidth * UnitsPerPixel) {
            EXPECT_EQ(item.color, 255) << item.text.toStdString();
            EXPECT_EQ(item.font.face, Face::List);
        }
    }
    EXPECT_EQ(grounds, 3);
}

TEST_F(ReminderList, IsATableForAScreenReader) {
    ShowThree();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(list->picGrid);
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->text(QAccessible::Name), "Reminders");
    EXPECT_EQ(table->tableInterface()->rowCount(), 3);
    EXPECT_EQ(table->tableInterface()->columnCount(), 5);
    EXPECT_EQ(table->tableInterface()->cellAt(0, 1)->text(QAccessible::Name), "Event");
    EXPECT_EQ(table->tableInterface()->cellAt(1, 3)->text(QAccessible::Name), "Bread");
}

// --- Selection ---------------------------------------------------------------------------------------------

TEST_F(ReminderList, AClickSelectsItsRowAndEnablesTheButtons) {
    ShowThree();
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, true}));
    ClickRow(2);
    EXPECT_EQ(list->ReminderSelectedRow, 2);
    EXPECT_EQ(FramedRows(), (std::vector<int>{2}));
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, true, true, true}));
}

TEST_F(ReminderList, AClickBelowTheLastRowChangesNothing) {
    ShowThree();
    ClickRow(2);
    ClickRow(4);
    EXPECT_EQ(list->ReminderSelectedRow, 2);
    EXPECT_EQ(FramedRows(), (std::vector<int>{2}));
}

TEST_F(ReminderList, TheRightButtonSelectsAsTheLeftOne) {
    ShowThree();
    QTest::mouseClick(list->picGrid, Qt::RightButton, {}, PointOfRow(3));
    EXPECT_EQ(list->ReminderSelectedRow, 3);
}

TEST_F(ReminderList, AReleaseOnAnotherRowSelectsNothing) {
    ShowThree();
    QTest::mousePress(list->picGrid, Qt::LeftButton, {}, PointOfRow(1));
    QTest::mouseRelease(list->picGrid, Qt::LeftButton, {}, PointOfRow(2));
    EXPECT_EQ(list->ReminderSelectedRow, 0);
}

TEST_F(ReminderList, ThePointerTintsTheRowUnderIt) {
    ShowThree();
    PointAt(2);
    ASSERT_TRUE(list->picGrid->Hover().has_value());
    EXPECT_EQ(list->picGrid->Hover()->top, RowTop(2));
}

TEST_F(ReminderList, ArrowsHomeAndEndMoveTheSelection) {
    ShowThree();
    const auto selectedBy = [this](int key) {
        Press(key);
        EXPECT_EQ(list->CurrentRow, list->ReminderSelectedRow);
        return list->ReminderSelectedRow;
    };
    EXPECT_EQ(selectedBy(Qt::Key_Down), 1);
    EXPECT_TRUE(list->ButtonView->isEnabled());
    EXPECT_EQ(selectedBy(Qt::Key_Down), 2);
    EXPECT_EQ(selectedBy(Qt::Key_End), 3);
    EXPECT_EQ(selectedBy(Qt::Key_Down), 3);
    EXPECT_EQ(selectedBy(Qt::Key_Up), 2);
    EXPECT_EQ(selectedBy(Qt::Key_Home), 1);
}

TEST_F(ReminderList, AnArrowThatIsHeldMovesTheSelectionOn) {
    ShowThree();
    Press(Qt::Key_Down);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(list->picGrid, &held);
    EXPECT_EQ(list->ReminderSelectedRow, 2);
}

TEST_F(ReminderList, TheBarAndTheWheelMoveTheFirstRowAndLeaveTheSelection) {
    for (int i = 0; i < 100; ++i) {
        AddTaskRecord({.reminder_list = "True"});
    }
    QuietTick();
    ClickRow(2);
    list->VSGridScroll->setValue(11);
    EXPECT_EQ(list->FirstRow, 11);
    MouseWheel(*list, -1);
    EXPECT_EQ(list->FirstRow, 14);
    EXPECT_EQ(list->ReminderSelectedRow, 2);
    ClickRow(15);
    EXPECT_EQ(list->ReminderSelectedRow, 15);
}

// --- Sorting -----------------------------------------------------------------------------------------------

TEST_F(ReminderList, ATitleSortsByItsColumnAndClearsTheSelection) {
    ShowThree();
    const auto sortedBy = [this](ReminderListColumn column) {
        ClickRow(1);
        ClickTitle(column);
        EXPECT_EQ(list->ReminderSelectedRow, 0);
        EXPECT_EQ(FramedRows(), std::vector<int>{});
        EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, true}));
        EXPECT_EQ(list->SortColumn, static_cast<int>(column));
        return Standing();
    };
    EXPECT_EQ(sortedBy(ReminderListColumn::Name), (Texts{"Event 1", "Task 1", "Task 2"}));
    EXPECT_EQ(list->SortDirection, Descending);
    EXPECT_EQ(sortedBy(ReminderListColumn::Name), (Texts{"Task 2", "Task 1", "Event 1"}));
    EXPECT_EQ(list->SortDirection, Ascending);
    EXPECT_EQ(TextsOfRow(1), (QStringList{"1", " School", " apples", " Tomorrow"}));
    EXPECT_EQ(sortedBy(ReminderListColumn::Type), (Texts{"Task 1", "Event 1", "Task 2"}));
    EXPECT_EQ(list->SortDirection, Ascending);
    EXPECT_EQ(sortedBy(ReminderListColumn::Mode), (Texts{"Event 1", "Task 1", "Task 2"}));
    EXPECT_EQ(sortedBy(ReminderListColumn::Time), (Texts{"Task 2", "Task 1", "Event 1"}));
}

TEST_F(ReminderList, TheTitleOfTheNumbersDoesNothing) {
    ShowThree();
    ClickRow(1);
    list->picColHeader[0]->Press();
    EXPECT_EQ(list->ReminderSelectedRow, 1);
    EXPECT_EQ(list->SortColumn, 4);
    EXPECT_EQ(list->SortDirection, Descending);
}

// --- The snooze time ---------------------------------------------------------------------------------------

TEST_F(ReminderList, WhatIsTypedAsATimeIsPutRight) {
    list->ShowByHand();
    EXPECT_EQ(Normalised("45m"), "45 Minutes");
    EXPECT_EQ(Normalised("2.50 hrs"), "2.5 Hours");
    EXPECT_EQ(Normalised("1 day"), "1 Day");
    EXPECT_EQ(Normalised("soon"), "30 Minutes");
    EXPECT_EQ(Normalised("10"), "30 Minutes");
    EXPECT_EQ(Normalised("9999 d"), "9999 Days");
    EXPECT_EQ(Normalised("10000 d"), "30 Minutes");
    EXPECT_EQ(Normalised("0 h"), "0 Minutes");
}

TEST_F(ReminderList, ATimeIsPutRightAsItIsLeft) {
    list->ShowByHand();
    ASSERT_TRUE(QTest::qWaitForWindowActive(list));
    list->ComboReminderTime->setFocus();
    list->ComboReminderTime->setCurrentText("45m");
    list->picGrid->setFocus();
    EXPECT_EQ(list->ComboReminderTime->currentText(), "45 Minutes");
}

TEST_F(ReminderList, EnterInTheTimePressesNothing) {
    ShowThree();
    ClickRow(1);
    list->ComboReminderTime->setFocus();
    EXPECT_EQ(Normalised("2h"), "2 Hours");
    EXPECT_EQ(Standing().size(), 3U);
    EXPECT_FALSE(CalledFromReminders);
    EXPECT_EQ(saved, Texts{});
}

// --- Keys of the window ------------------------------------------------------------------------------------

TEST_F(ReminderList, EscapeHidesItFromEveryControl) {
    ShowThree();
    ClickRow(1);
    for (QWidget* control : std::initializer_list<QWidget*>{list->picGrid, list->ButtonView,
                                                            list->ComboReminderTime, list->ButtonRemoveAll}) {
        list->ShowByHand();
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Escape);
        EXPECT_FALSE(list->isVisible()) << control->objectName().toStdString();
    }
    EXPECT_EQ(Standing().size(), 3U);
}

TEST_F(ReminderList, EnterPressesTheButtonThatHasTheFocus) {
    ShowThree();
    ClickRow(1);
    list->ButtonRemove->setFocus();
    QTest::keyClick(list->ButtonRemove, Qt::Key_Return);
    EXPECT_EQ(Standing().size(), 2U);
}

TEST_F(ReminderList, TakesTheFocusFromAButtonThatIsDisabled) {
    AddDueTask();
    QuietTick();
    ClickRow(1);
    list->ButtonRemove->setFocus();
    Click(list->ButtonRemove);
    EXPECT_EQ(list->focusWidget(), list->picGrid);
}
