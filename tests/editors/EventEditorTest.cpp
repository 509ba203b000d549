// The editor of events: what it shows as it opens, what follows each entry, and how it closes.
#include "editors/EventTest.h"

#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "mainwindow/flows/TermFlow.h"
#include "planner/entries/ComboRows.h"

#include <QAbstractItemView>
#include <QWheelEvent>

namespace {

constexpr const char* DayLimitNote =
    "Note: Events are limited to one day. Events that go beyond midnight do not appear in the next day's "
    "schedule.";

class EventEditor : public EventTest {
protected:
    // Expects the reminder strip of one that is on, or off.
    void ExpectReminder(bool on) const {
        EXPECT_EQ(BackColorOf(dialog->LabelRemBG), 0x39425A);
        EXPECT_EQ(TextColorOf(dialog->CheckboxReminder), 0xFFFFFF);
        EXPECT_EQ(dialog->ComboReminderTime->isEnabled(), on);
        EXPECT_EQ(TextColorOf(dialog->LabelRemTime), on ? 0xFFFFFF : 0xC0C0C0);
        EXPECT_EQ(BackColorOf(dialog->LabelRemBG2), on ? 0xFFFFFF : 0xC0C0C0);
    }

    void ExpectClosedByOk() const {
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_TRUE(dialog->CloseOK);
        EXPECT_FALSE(dialog->CancelledFlag);
        EXPECT_FALSE(dialog->DeleteFlag);
    }

    QStringList TypeRows() const {
        QStringList rows;
        for (int row = 0; row < dialog->ComboType->count(); ++row) {
            rows.append(dialog->ComboType->itemText(row));
        }
        return rows;
    }

    // A press of the mouse on a row of the open list.
    void ClickRow(int row) const {
        QAbstractItemView* const view = dialog->ComboType->view();
        const QRect place = view->visualRect(dialog->ComboType->model()->index(row, 0));
        QTest::mouseMove(view->viewport(), place.center());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
    }

    const QString Separator = "------------------------------";
};

} // namespace

// --- Opening -----------------------------------------------------------------------------------------------

TEST_F(EventEditor, NewEventOpensAtTheClickedDayAndTime) {
    OpenNew();
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - New Event");
    EXPECT_EQ(dialog->TextBoxEvent->text(), "");
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_EQ(dialog->ComboStartTime->currentText(), "2:30 PM");
    EXPECT_EQ(dialog->ComboDuration->currentText(), "30 Minutes");
    EXPECT_EQ(dialog->ComboDuration->currentIndex(), 2);
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "30 Minutes");
    EXPECT_EQ(dialog->ComboReminderTime->currentIndex(), 2);
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
    EXPECT_EQ(dialog->TextboxEventStartDate->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(dialog->StoreEventStartDate, DateValue("2009/10/20"));
    EXPECT_EQ(dialog->StoreEventEndDate, DateValue("2009/10/20"));
    EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/10/20"));
    EXPECT_FALSE(dialog->CheckboxReminder->isChecked());
    EXPECT_EQ(dialog->tempEventReminderList, "False");
    ExpectReminder(false);
    EXPECT_EQ(dialog->LabelRecurStatus->text(), "No");
    EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xE2E8F0);
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->focusWidget(), dialog->TextBoxEvent);
    EXPECT_FALSE(dialog->Picker->isVisible());
    EXPECT_FALSE(dialog->ChangeFlag || dialog->CancelledFlag || dialog->DeleteFlag || dialog->CloseOK);
}

TEST_F(EventEditor, NewEventHasTheDefaultsOfAnEventThatHappensOnce) {
    OpenNew();
    EXPECT_EQ(dialog->tempEventRecurrence, "None");
    EXPECT_EQ(dialog->tempEventSameDate, "False");
    EXPECT_EQ(dialog->tempEventRepeatNumber, "First");
    EXPECT_EQ(dialog->tempEventRepeatDay, "Day");
    EXPECT_EQ(dialog->tempEventRepeatDaily, "FFFFFFF");
    EXPECT_EQ(dialog->tempEventRepeatEnd, "False");
    EXPECT_EQ(dialog->tempEventRepeatEndDate, "10/20/2009");
    EXPECT_EQ(dialog->tempMonthlyNumber, "Third");
    EXPECT_EQ(dialog->tempMonthlyDay, "Tuesday");
    EXPECT_EQ(dialog->tempYearlyNumber, "Third");
    EXPECT_EQ(dialog->tempYearlyDay, "Tuesday");
}

TEST_F(EventEditor, CombosOfferTheirRowsAndTakeOtherTexts) {
    OpenNew();
    EXPECT_EQ(dialog->ComboStartTime->count(), 96);
    EXPECT_EQ(dialog->ComboStartTime->itemText(0), "12:00 AM");
    EXPECT_EQ(dialog->ComboStartTime->itemText(95), "11:45 PM");
    EXPECT_EQ(dialog->ComboDuration->count(), 15);
    EXPECT_EQ(dialog->ComboDuration->itemText(14), "8 Hours");
    EXPECT_EQ(dialog->ComboReminderTime->count(), 20);
    EXPECT_EQ(dialog->ComboReminderTime->itemText(3), "1 Hour");
    EXPECT_EQ(dialog->ComboReminderTime->itemText(19), "3 Days");
    EXPECT_TRUE(dialog->ComboStartTime->isEditable());
    EXPECT_TRUE(dialog->ComboDuration->isEditable());
    EXPECT_TRUE(dialog->ComboReminderTime->isEditable());
    EXPECT_FALSE(dialog->ComboType->isEditable());
}

TEST_F(EventEditor, EditShowsTheFields) {
    OpenEdit({.date = "2009/11/02",
              .time = "08:20 PM",
              .duration = "45 Minutes",
              .desc = "Concert",
              .reminder = "True",
              .reminder_time = "2 Days",
              .notes = "Bring\r\ncash"});
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - Edit Event");
    EXPECT_EQ(dialog->TextBoxEvent->text(), "Concert");
    EXPECT_EQ(dialog->TextBoxNotes->toPlainText(), "Bring\ncash");
    EXPECT_EQ(dialog->ComboStartTime->currentText(), "08:20 PM");
    EXPECT_EQ(dialog->ComboDuration->currentText(), "45 Minutes");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "2 Days");
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
    EXPECT_EQ(dialog->TextboxEventStartDate->text(), "Monday, November 2, 2009");
    EXPECT_EQ(dialog->StoreEventStartDate, DateValue("2009/11/02"));
    EXPECT_EQ(dialog->StoreEventEndDate, DateValue("2009/11/02"));
    ExpectReminder(true);
    EXPECT_TRUE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->focusWidget(), dialog->TextBoxEvent);
    EXPECT_FALSE(dialog->ChangeFlag || dialog->CancelledFlag || dialog->DeleteFlag || dialog->CloseOK);
}

TEST_F(EventEditor, OpeningWritesTheHeadsOfThePickerAndHidesIt) {
    for (const auto& [day, head] : {std::pair{"Monday", "M"}, {"Sunday", "S"}}) {
        window->StartDayOfWeek = day;
        OpenNew();
        EXPECT_EQ(dialog->Picker->LabelCalDay[0]->text(), head);
        EXPECT_FALSE(dialog->Picker->isVisible());
        Click(dialog->picButtonEventStartDate);
        EXPECT_TRUE(dialog->Picker->isVisible());
        FireTimer(dialog->Picker->TimerCalendar);
    }
    OpenEdit({});
    EXPECT_FALSE(dialog->Picker->isVisible());
}

TEST_F(EventEditor, EachOpeningBeginsInTheDescription) {
    OpenNew();
    GoTo(dialog->TextBoxNotes);
    OpenEdit({});
    EXPECT_EQ(dialog->focusWidget(), dialog->TextBoxEvent);
    GoTo(dialog->ComboType);
    OpenNew();
    EXPECT_EQ(dialog->focusWidget(), dialog->TextBoxEvent);
}

TEST_F(EventEditor, EditBehindANewEventCanBeDeletedAgain) {
    OpenNew();
    OpenEdit({});
    EXPECT_TRUE(dialog->ButtonDelete->isEnabled());
    OpenNew();
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
}

TEST_F(EventEditor, NewEventKeepsNothingOfTheSeriesEditedBefore) {
    EventTexts series = Weekly();
    series.type = "Study Time";
    series.end = "True";
    series.same_date = "True";
    series.reminder = "True";
    series.notes = "Room 7";
    OpenEdit(series, SeriesDateCaption);
    dialog->DeleteExceptions = true;
    OpenNew();
    EXPECT_EQ(dialog->TextBoxEvent->text(), "");
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
    EXPECT_EQ(dialog->TextboxEventStartDate->accessibleName(), "Date");
    ExpectReminder(false);
    EXPECT_EQ(dialog->LabelRecurStatus->text(), "No");
    EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xE2E8F0);
    EXPECT_FALSE(dialog->DeleteExceptions);
    const RecurrenceState state = recurrence->CurrentState();
    EXPECT_EQ(state.tempRecurRecurrence, "None");
    EXPECT_EQ(DailyLetters(state), "FFFFFFF");
    EXPECT_FALSE(state.tempRecurMonthlySameDate || state.tempRecurYearlySameDate);
    EXPECT_FALSE(state.tempRecurRepeatEnd);
    EXPECT_EQ(state.tempRecurStoreRepeatEndDate, DateValue("2009/10/20"));
}

TEST_F(EventEditor, EditOfASeriesShowsItsCaptionStatusAndColour) {
    const std::vector<std::pair<std::string, QString>> kinds{
        {"Day", "Daily"}, {"Month", "Monthly"}, {"Year", "Yearly"}};
    for (const auto& [kind, status] : kinds) {
        EventTexts series = Weekly();
        series.recurrence = kind;
        OpenEdit(series, SeriesDateCaption);
        EXPECT_EQ(dialog->LabelRecurStatus->text(), status);
        EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xF5F5DC);
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Start Date of the Series");
        EXPECT_EQ(dialog->TextboxEventStartDate->accessibleName(), "Start Date of the Series");
        EXPECT_EQ(recurrence->CurrentState().tempRecurRecurrence, kind);
    }
}

TEST_F(EventEditor, DateThatIsNoneRaisesTheError) {
    EXPECT_THROW(OpenEdit({.date = "some day"}), RunTimeError);
    EXPECT_THROW(OpenEdit({.reminder = "perhaps"}), RunTimeError);
    EXPECT_THROW(OpenEdit({.end = "True", .end_date = "never"}), RunTimeError);
}

TEST_F(EventEditor, LeadInDaysOfAnOlderFileIsAReminderThatIsOn) {
    OpenEdit({.reminder = "2"});
    ExpectReminder(true);
    OpenEdit({.reminder = "False"});
    ExpectReminder(false);
}

TEST_F(EventEditor, EndDateThatIsNoneCountsAsTheEventsWhereThereIsNoEnd) {
    OpenEdit({.date = "2009/11/02", .end_date = "never"});
    EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/11/02"));
}

TEST_F(EventEditor, ControlsHaveTheirHelpNumbers) {
    dialog->MakeControls();
    ExpectTopics(*dialog, {{"ButtonCancel", 501},
                           {"ButtonDelete", 502},
                           {"ButtonOK", 503},
                           {"ButtonOpenRecur", 504},
                           {"CheckboxReminder", 505},
                           {"ComboDuration", 506},
                           {"ComboReminderTime", 507},
                           {"ComboStartTime", 508},
                           {"ComboType", 509},
                           {"LabelRecur", 510},
                           {"LabelRecurStatus", 511},
                           {"TextBoxEvent", 512},
                           {"TextBoxNotes", 513},
                           {"TextboxEventStartDate", 514},
                           {"picButtonEventStartDate", 515},
                           {"picHelp", 516}});
}

// --- The type ----------------------------------------------------------------------------------------------

TEST_F(EventEditor, TypesAreFilledAnewInTheirOrder) {
    OpenNew();
    const QStringList rows = TypeRows();
    EXPECT_EQ(rows.mid(0, 6),
              (QStringList{"None", "Study Time", Separator, "Algebra", "History", Separator}));
    EXPECT_FALSE(rows.mid(6).contains("Study Time"));
    AddClassRecord({.id = "9", .name = "Chemistry"});
    SetActiveTerm(*window, "Fall 2009");
    OpenNew();
    EXPECT_EQ(TypeRows().size(), rows.size() + 1);
    EXPECT_EQ(TypeRows().at(5), "Chemistry");
}

TEST_F(EventEditor, PressOnASeparatorPutsNone) {
    OpenNew();
    for (const int separator : {2, 5}) {
        dialog->ComboType->setCurrentIndex(3);
        dialog->ChangeFlag = false;
        dialog->ComboType->showPopup();
        ClickRow(separator);
        EXPECT_EQ(dialog->ComboType->currentText(), "None");
        EXPECT_TRUE(dialog->ChangeFlag);
        EXPECT_FALSE(dialog->ComboType->view()->isVisible());
    }
}

TEST_F(EventEditor, PressOnATypeChoosesIt) {
    OpenNew();
    dialog->ComboType->showPopup();
    ClickRow(3);
    EXPECT_EQ(dialog->ComboType->currentText(), "Algebra");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(EventEditor, ArrowsLettersAndWheelPassOverTheSeparators) {
    OpenNew();
    QComboBox* const types = dialog->ComboType;
    GoTo(types);
    types->setCurrentIndex(1);
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(types->currentText(), "Algebra");
    QTest::keyClick(types, Qt::Key_Up);
    EXPECT_EQ(types->currentText(), "Study Time");
    QTest::keyClick(types, Qt::Key_Minus);
    EXPECT_EQ(types->currentText(), "Study Time");
    const auto turn = [types](int steps) {
        QWheelEvent wheel(QPointF(5, 5), types->mapToGlobal(QPointF(5, 5)), {}, {0, steps * 120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(types, &wheel);
    };
    turn(-1);
    EXPECT_EQ(types->currentText(), "Algebra");
    turn(1);
    EXPECT_EQ(types->currentText(), "Study Time");
    types->showPopup();
    QTest::keyClick(types->view(), Qt::Key_Down);
    QTest::keyClick(types->view(), Qt::Key_Return);
    EXPECT_EQ(types->currentText(), "Algebra");
}

TEST_F(EventEditor, StoredTypesAreShownByTheirNames) {
    TypeTable.customname.Replace(1, "Errands");
    int eventRow = 0;
    for (int row = 1; row <= TypeTable.key.Count(); ++row) {
        eventRow = TypeTable.category.Item(row) == "Event" && TypeTable.key.Item(row) != "Study Time"
                       ? row
                       : eventRow;
    }
    const std::string key = TypeTable.key.Item(eventRow);
    OpenEdit({.type = key});
    EXPECT_EQ(TextOf(dialog->ComboType), key);
    TypeTable.customname.Replace(eventRow, "My own");
    OpenEdit({.type = key});
    EXPECT_EQ(TextOf(dialog->ComboType), "My own");
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventType, key);
    OpenEdit({.type = "TermID1-ClassID7"});
    EXPECT_EQ(TextOf(dialog->ComboType), "History");
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventType, "TermID1-ClassID7");
}

TEST_F(EventEditor, TypeThatHasGoneShowsNothingAndStays) {
    for (const std::string type : {"Gone", "TermID1-ClassID99", "TermIDx-ClassIDy"}) {
        OpenEdit({.type = type});
        EXPECT_EQ(dialog->ComboType->currentIndex(), -1) << type;
        EXPECT_EQ(dialog->ComboType->placeholderText(), "") << type;
        Click(dialog->ButtonOK);
        EXPECT_EQ(dialog->tempEventType, type);
    }
}

TEST_F(EventEditor, TypeThatHasGoneIsNotTakenForAClassWithoutAName) {
    AddClassRecord({.id = "9", .name = ""});
    SetActiveTerm(*window, "Fall 2009");
    OpenEdit({.type = "Gone"});
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventType, "Gone");
}

TEST_F(EventEditor, ClassOfAnotherTermIsShownAndStaysLinkedUntouched) {
    AddClassRecord({.id = "12", .term = "8", .name = "Latin"});
    AddClassRecord({.id = "13", .term = "8", .name = "Algebra"});
    for (const auto& [type, name] :
         {std::pair{"TermID8-ClassID12", "Latin"}, {"TermID8-ClassID13", "Algebra"}}) {
        OpenEdit({.type = type});
        EXPECT_EQ(dialog->ComboType->placeholderText(), name);
        EXPECT_EQ(dialog->ComboType->currentIndex(), -1);
        Click(dialog->ButtonOK);
        EXPECT_EQ(dialog->tempEventType, type);
    }
    OpenEdit({.type = "TermID8-ClassID12"});
    Choose(dialog->ComboType, 1);
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventType, "Study Time");
    OpenEdit({.type = "None"});
    EXPECT_EQ(dialog->ComboType->placeholderText(), "");
}

TEST_F(EventEditor, ChosenClassGoesBeforeATypeOfItsName) {
    TypeTable.customname.Replace(TypeTable.key.Count(), "Algebra");
    OpenNew();
    Choose(dialog->ComboType, 2); // the separators are passed over
    EXPECT_EQ(dialog->ComboType->currentText(), "Algebra");
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventType, "TermID1-ClassID4");
}

// --- Start time, length and lead time ----------------------------------------------------------------------

TEST_F(EventEditor, StartTimeIsRewrittenOnLeavingAndOnEnter) {
    OpenNew();
    TypeAndLeave(dialog->ComboStartTime, "7:05 pm");
    EXPECT_EQ(dialog->ComboStartTime->currentText(), "07:05 PM");
    EXPECT_TRUE(dialog->ChangeFlag);
    TypeAndEnter(dialog->ComboStartTime, "soon");
    EXPECT_EQ(dialog->ComboStartTime->currentText(), "09:00 AM");
    EXPECT_TRUE(dialog->isVisible()) << "Enter has pressed OK";
}

TEST_F(EventEditor, LengthIsRewrittenOnLeavingAndOnEnter) {
    struct Entry {
        const char *typed, *shown;
    };

    for (const Entry& entry : {Entry{"90 min", "90 Minutes"},
                               {"1.50 hours", "1.5 Hours"},
                               {"2", "30 Minutes"},
                               {"1000 m", "30 Minutes"},
                               {"1 h", "1 Hour"},
                               {"1 Day", "30 Minutes"},
                               {"0 m", "0 Minutes"}}) {
        OpenNew();
        TypeAndLeave(dialog->ComboDuration, entry.typed);
        EXPECT_EQ(dialog->ComboDuration->currentText(), entry.shown) << entry.typed;
        EXPECT_TRUE(dialog->ChangeFlag);
        TypeAndEnter(dialog->ComboDuration, entry.typed);
        EXPECT_EQ(dialog->ComboDuration->currentText(), entry.shown) << entry.typed;
        EXPECT_TRUE(dialog->isVisible());
    }
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventEditor, LeadTimeTakesDaysAndNoNoteOfTheDayLimit) {
    OpenEdit({.time = "11:00 PM", .duration = "2 Hours", .reminder = "True"});
    TypeAndLeave(dialog->ComboReminderTime, "5 d");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "5 Days");
    EXPECT_TRUE(dialog->ChangeFlag);
    TypeAndEnter(dialog->ComboReminderTime, "9999 min");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "9999 Minutes");
    TypeAndLeave(dialog->ComboReminderTime, "10000 min");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "30 Minutes");
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EventEditor, LeavingATimeCountsAsAChangeEvenWhereNothingIs) {
    for (const bool leadTime : {false, true}) {
        OpenEdit({.reminder = "True"});
        for (QComboBox* combo : {dialog->ComboStartTime, dialog->ComboDuration}) {
            QComboBox* const left = leadTime ? dialog->ComboReminderTime : combo;
            dialog->ChangeFlag = false;
            GoTo(left);
            EXPECT_FALSE(dialog->ChangeFlag);
            GoTo(dialog->TextBoxNotes);
            EXPECT_TRUE(dialog->ChangeFlag);
        }
    }
}

TEST_F(EventEditor, NoteOfTheDayLimitComesOnceHoweverTheFieldIsLeft) {
    const ShownBox note = Message(DayLimitNote);
    const auto typeLong = [this] {
        Script.boxes.clear();
        OpenEdit({.time = "11:00 PM", .duration = "30 Minutes"});
        Type(dialog->ComboDuration, "2 Hours");
    };
    typeLong();
    QTest::keyClick(dialog->ComboDuration, Qt::Key_Tab);
    EXPECT_EQ(Script.boxes, std::vector{note});
    EXPECT_EQ(dialog->focusWidget(), dialog->CheckboxReminder);
    QCoreApplication::processEvents();
    EXPECT_FALSE(dialog->CheckboxReminder->isChecked()) << "which was reached and not pressed";
    typeLong();
    QTest::keyClick(dialog->ComboDuration, Qt::Key_Return);
    EXPECT_EQ(Script.boxes, std::vector{note});
    EXPECT_EQ(dialog->focusWidget(), dialog->ComboDuration);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->ComboDuration->currentText(), "2 Hours") << "it only informs";
    typeLong();
    Click(dialog->TextBoxEvent);
    EXPECT_EQ(Script.boxes, std::vector{note});
    EXPECT_EQ(dialog->focusWidget(), dialog->TextBoxEvent);
    typeLong();
    Click(dialog->ButtonOK);
    EXPECT_EQ(Script.boxes, std::vector{note});
    ExpectClosedByOk();
    typeLong();
    dialog->ButtonOK->click(); // with the focus still in the field
    EXPECT_EQ(Script.boxes, std::vector{note});
    ExpectClosedByOk();
}

TEST_F(EventEditor, PressWhoseReleaseTheNoteTookStillPressesOk) {
    OpenEdit({.time = "11:00 PM", .duration = "30 Minutes"});
    Type(dialog->ComboDuration, "2 Hours");
    QTest::mousePress(dialog->ButtonOK, Qt::LeftButton);
    EXPECT_EQ(Script.boxes, std::vector{Message(DayLimitNote)});
    EXPECT_TRUE(WaitUntil([this] { return !dialog->isVisible(); }));
    ExpectClosedByOk();
    EXPECT_FALSE(dialog->ButtonOK->isDown());
}

TEST_F(EventEditor, PressWhoseReleaseTheNoteTookStillTicksABox) {
    OpenEdit({.time = "11:00 PM", .duration = "30 Minutes"});
    Type(dialog->ComboStartTime, "11:45 PM");
    QTest::mousePress(dialog->CheckboxReminder, Qt::LeftButton, {}, QPoint(6, 8));
    EXPECT_EQ(Script.boxes, std::vector{Message(DayLimitNote)});
    EXPECT_TRUE(WaitUntil([this] { return dialog->CheckboxReminder->isChecked(); }));
}

TEST_F(EventEditor, PressOnCancelShowsNoNote) {
    OpenEdit({.time = "11:00 PM", .duration = "30 Minutes"});
    Type(dialog->ComboDuration, "2 Hours");
    Script.answers = {Answer::Yes};
    Click(dialog->ButtonCancel);
    EXPECT_EQ(Script.boxes, std::vector{Question("Cancel all changes to this Event?")});
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(EventEditor, EventThatEndsAtMidnightGivesNoNote) {
    OpenEdit({.time = "12:00 AM"});
    TypeAndLeave(dialog->ComboDuration, "24 Hours");
    EXPECT_TRUE(Script.boxes.empty());
    TypeAndLeave(dialog->ComboStartTime, "12:15 AM");
    EXPECT_EQ(Script.boxes, std::vector{Message(DayLimitNote)});
}

TEST_F(EventEditor, StoredDaysAreReadByTheDayLimitThoughTheyAreNotAccepted) {
    OpenEdit({.time = "12:15 AM", .duration = "1 Day"});
    TypeAndLeave(dialog->ComboStartTime, "12:30 AM");
    EXPECT_EQ(Script.boxes, std::vector{Message(DayLimitNote)});
    EXPECT_EQ(dialog->ComboDuration->currentText(), "1 Day") << "it was not left";
}

TEST_F(EventEditor, EntriesSetTheChangeFlag) {
    const std::vector<std::function<void()>> entries{
        [this] { Type(dialog->TextBoxEvent, "x"); },
        [this] { QTest::keyClicks(dialog->TextBoxNotes, "x"); },
        [this] { Type(dialog->ComboDuration, "1"); },
        [this] { Choose(dialog->ComboDuration, 4); },
        [this] { Choose(dialog->ComboStartTime, 4); },
        [this] { Choose(dialog->ComboType, 1); },
        [this] { Click(dialog->CheckboxReminder); },
        [this] { ToggleByScreenReader(dialog->CheckboxReminder); },
        [this] {
            Click(dialog->picButtonEventStartDate);
            Click(dialog->Picker->LabelToday);
        },
    };
    for (const auto& enter : entries) {
        OpenNew();
        EXPECT_FALSE(dialog->ChangeFlag);
        enter();
        EXPECT_TRUE(dialog->ChangeFlag);
    }
    for (QComboBox* combo :
         {dialog->ComboType, dialog->ComboStartTime, dialog->ComboDuration, dialog->ComboReminderTime}) {
        OpenEdit({.reminder = "True"});
        GoTo(combo);
        EXPECT_FALSE(dialog->ChangeFlag);
        QTest::keyClick(combo, Qt::Key_Down);
        EXPECT_TRUE(dialog->ChangeFlag) << combo->objectName().toStdString();
    }
}

// --- Reminder ----------------------------------------------------------------------------------------------

TEST_F(EventEditor, ReminderClickEnablesAndColours) {
    OpenNew();
    Click(dialog->CheckboxReminder);
    ExpectReminder(true);
    Click(dialog->CheckboxReminder);
    ExpectReminder(false);
    ToggleByScreenReader(dialog->CheckboxReminder);
    ExpectReminder(true);
}

TEST_F(EventEditor, NewEventIsArmedWhetherTheReminderIsOnOrOff) {
    for (const bool on : {false, true}) {
        OpenNew();
        if (on) {
            Click(dialog->CheckboxReminder);
        }
        Click(dialog->ButtonOK);
        EXPECT_EQ(dialog->tempEventReminderAlarm, "2009/10/20 14:00:00");
        EXPECT_EQ(dialog->tempEventReminderNextAlarm, "2009/10/20 14:00:00");
        EXPECT_EQ(dialog->tempEventReminderCurrentDay, "2009/10/20");
        EXPECT_EQ(dialog->tempEventReminderNextDay, "2009/10/20");
        EXPECT_EQ(dialog->tempEventReminderList, "False");
    }
}

TEST_F(EventEditor, EditWithTheReminderOnArmsItAnewByItsLead) {
    const std::vector<std::pair<std::string, std::string>> leads{{"45 Minutes", "2009/11/02 08:15:00"},
                                                                 {"1.5 Hours", "2009/11/02 07:30:00"},
                                                                 {"2 Days", "2009/10/31 09:00:00"}};
    for (const auto& [lead, alarm] : leads) {
        OpenEdit({.date = "2009/11/02",
                  .reminder = "True",
                  .reminder_time = lead,
                  .reminder_alarm = "old",
                  .reminder_list = "True",
                  .reminder_currentday = "old",
                  .reminder_nextday = "old",
                  .reminder_nextalarm = "old"});
        Click(dialog->ButtonOK);
        EXPECT_EQ(dialog->tempEventReminderAlarm, alarm);
        EXPECT_EQ(dialog->tempEventReminderNextAlarm, alarm);
        EXPECT_EQ(dialog->tempEventReminderCurrentDay, "2009/11/02");
        EXPECT_EQ(dialog->tempEventReminderNextDay, "2009/11/02");
        EXPECT_EQ(dialog->tempEventReminderList, "False");
    }
}

TEST_F(EventEditor, EditWithTheReminderOffLeavesItsFields) {
    OpenEdit({.reminder = "False",
              .reminder_alarm = "a",
              .reminder_list = "True",
              .reminder_currentday = "b",
              .reminder_nextday = "c",
              .reminder_nextalarm = "d"});
    Click(dialog->ButtonOK);
    EXPECT_EQ(dialog->tempEventReminderAlarm, "a");
    EXPECT_EQ(dialog->tempEventReminderList, "True");
    EXPECT_EQ(dialog->tempEventReminderCurrentDay, "b");
    EXPECT_EQ(dialog->tempEventReminderNextDay, "c");
    EXPECT_EQ(dialog->tempEventReminderNextAlarm, "d");
}

// --- Closing -----------------------------------------------------------------------------------------------

TEST_F(EventEditor, OkAcceptsAnEventWithoutAnything) {
    OpenNew();
    Click(dialog->ButtonOK);
    ExpectClosedByOk();
    EXPECT_EQ(dialog->tempEventType, "None");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventEditor, OkTestsNothingOfTheRecurrence) {
    EventTexts endsBeforeItBegins = Weekly(); // on a Monday
    endsBeforeItBegins.end = "True";
    endsBeforeItBegins.end_date = "2009/10/18";
    EventTexts withoutDays = Weekly();
    withoutDays.repeat_daily = "FFFFFFF";
    EventTexts onOtherDays = Weekly();
    onOtherDays.repeat_daily = "FTFFFFF";
    for (const EventTexts& series : {endsBeforeItBegins, withoutDays, onOtherDays}) {
        OpenEdit(series, SeriesDateCaption);
        Click(dialog->ButtonOK);
        ExpectClosedByOk();
    }
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventEditor, OkValidatesTheFieldInHandAndNoOther) {
    OpenEdit({.time = "9:00 AM", .duration = "01 Hour", .reminder_time = "045 m"});
    Type(dialog->ComboStartTime, "7 pm");
    dialog->ButtonOK->click();
    ExpectClosedByOk();
    EXPECT_EQ(dialog->ComboStartTime->currentText(), "07:00 PM");
    EXPECT_EQ(dialog->ComboDuration->currentText(), "01 Hour");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "045 m");
}

TEST_F(EventEditor, EnterInATextPressesOk) {
    OpenNew();
    QTest::keyClick(dialog->TextBoxEvent, Qt::Key_Return);
    ExpectClosedByOk();
}

TEST_F(EventEditor, CancelWithoutAChangeAsksNothing) {
    OpenNew();
    Click(dialog->ButtonCancel);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag && dialog->CloseOK);
    EXPECT_FALSE(dialog->DeleteFlag);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventEditor, CancelAfterAChangeAsksByTheKindOfEdit) {
    OpenNew();
    Type(dialog->TextBoxEvent, "x");
    Script.answers = {Answer::No, Answer::Yes};
    Click(dialog->ButtonCancel);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->CancelledFlag || dialog->CloseOK);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    const ShownBox question = Question("Cancel this Event?");
    EXPECT_EQ(Script.boxes, (std::vector{question, question}));
    Script.boxes.clear();
    OpenEdit({});
    Type(dialog->TextBoxEvent, "x");
    Script.answers = {Answer::Yes};
    PressCloseBox(*dialog);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
    EXPECT_EQ(Script.boxes, std::vector{Question("Cancel all changes to this Event?")});
}

TEST_F(EventEditor, CloseThatIsNotTheStudentsPasses) {
    OpenNew();
    Type(dialog->TextBoxEvent, "x");
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(EventEditor, DeleteAsksAndLeavesItsMark) {
    OpenEdit({.desc = "Concert"});
    Script.answers = {Answer::No, Answer::Yes};
    Click(dialog->ButtonDelete);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->DeleteFlag);
    EXPECT_EQ(dialog->TextBoxEvent->text(), "Concert");
    Click(dialog->ButtonDelete);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->DeleteFlag && dialog->CloseOK);
    EXPECT_FALSE(dialog->CancelledFlag);
    EXPECT_EQ(dialog->TextBoxEvent->text(), "DELETED RECORD");
    const ShownBox question = Question("Are you sure you want to Delete this Event?");
    EXPECT_EQ(Script.boxes, (std::vector{question, question}));
}

TEST_F(EventEditor, UndoGoesNoFurtherBackThanTheOpening) {
    OpenEdit({.desc = "Private", .notes = "Private"});
    window->activateWindow();
    OpenNew();
    for (QWidget* box : std::initializer_list<QWidget*>{dialog->TextBoxEvent, dialog->TextBoxNotes}) {
        GoTo(box);
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(dialog->TextBoxEvent->text(), "");
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_FALSE(dialog->ChangeFlag);
}
