// How an event repeats, between its editor and the recurrence dialog; and what a moved date does to a series.
#include "editors/EventTest.h"

#include "core/DateText.h"

namespace {

constexpr const char* IsAnException =
    "This event is an exception in a series of recurring events. It cannot be changed to a new recurring "
    "event.";
constexpr const char* WillLoseExceptions = "There are exceptions to this recurring event. If you make "
                                           "changes to the days on which this event recurs, "
                                           "the exceptions will be lost.\r\n\r\nClick 'Yes' to continue.";
constexpr const char* NoLongerRecurring =
    "This event is no longer recurring. Click the Change button to set recurrences for the new date.";

class EventRecurrence : public EventTest {
protected:
    void OpenWithExceptions() {
        EventTexts series = Weekly();
        series.exceptions = "2009/10/21";
        OpenEdit(series, SeriesDateCaption);
    }

    static ShownBox WillLose() {
        return {"Planovarium", WillLoseExceptions, Buttons::YesNoCancel, Icon::Information};
    }

    void ExpectSeries(const char* recurs, const char* status) const {
        EXPECT_EQ(dialog->tempEventRecurrence, recurs);
        EXPECT_EQ(dialog->LabelRecurStatus->text(), status);
        EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xF5F5DC);
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Start Date of the Series");
    }

    void ExpectSingle() const {
        EXPECT_EQ(dialog->tempEventRecurrence, "None");
        EXPECT_EQ(dialog->LabelRecurStatus->text(), "No");
        EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xE2E8F0);
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
    }
};

} // namespace

// --- The button --------------------------------------------------------------------------------------------

TEST_F(EventRecurrence, KindChosenIsTakenWithStatusColourAndCaption) {
    struct Choice {
        QRadioButton* radio;
        const char *recurs, *status;
    };

    for (const Choice& choice : {Choice{recurrence->RadioRepeatDaily, "Day", "Daily"},
                                 {recurrence->RadioRepeatMonthly, "Month", "Monthly"},
                                 {recurrence->RadioRepeatYearly, "Year", "Yearly"}}) {
        OpenNew();
        InRecurrence([&] {
            Click(choice.radio);
            Click(recurrence->ButtonOK);
        });
        ExpectSeries(choice.recurs, choice.status);
        EXPECT_TRUE(dialog->ChangeFlag);
        EXPECT_FALSE(dialog->DeleteExceptions) << "there are none";
        InRecurrence([&] {
            Click(recurrence->RadioRepeatNone);
            Click(recurrence->ButtonOK);
        });
        ExpectSingle();
    }
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventRecurrence, ReturnFillsNothing) {
    OpenEdit({.desc = "Concert", .notes = "cash"});
    Type(dialog->TextBoxEvent, "Opera");
    Choose(dialog->ComboDuration, 6);
    Choose(dialog->ComboType, 1);
    InRecurrence([&] {
        Click(recurrence->RadioRepeatMonthly);
        Click(recurrence->ButtonOK);
    });
    EXPECT_EQ(dialog->TextBoxEvent->text(), "Opera");
    EXPECT_EQ(dialog->ComboDuration->currentText(), "2 Hours");
    EXPECT_EQ(dialog->ComboType->currentText(), "Study Time");
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - Edit Event");
}

TEST_F(EventRecurrence, ChangeFlagIsSetEvenByACancelledDialog) {
    OpenEdit(Weekly(), SeriesDateCaption);
    EXPECT_FALSE(dialog->ChangeFlag);
    InRecurrence([&] { Click(recurrence->ButtonCancel); });
    EXPECT_TRUE(dialog->ChangeFlag);
    ExpectSeries("Day", "Daily");
}

TEST_F(EventRecurrence, CancelLeavesTheSeriesAsItWas) {
    OpenWithExceptions();
    Script.answers = {Answer::Yes, Answer::Yes};
    InRecurrence([&] {
        Click(recurrence->RadioRepeatYearly);
        Click(recurrence->CheckboxRepeatEndDate);
        Click(recurrence->ButtonCancel);
    });
    ExpectSeries("Day", "Daily");
    EXPECT_FALSE(dialog->DeleteExceptions);
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "TFTFFFF");
    EXPECT_FALSE(recurrence->CurrentState().tempRecurRepeatEnd);
}

TEST_F(EventRecurrence, ExceptionChildIsRefused) {
    CancelDialogsAsTheyOpen(recurrence);
    OpenEdit({.parent_id = "4"});
    Click(dialog->ButtonOpenRecur);
    EXPECT_EQ(Script.boxes, std::vector{Message(IsAnException)});
    EXPECT_FALSE(dialog->ChangeFlag) << "the dialog has opened";
}

TEST_F(EventRecurrence, ExceptionsAreAskedForAndOnlyYesOpens) {
    OpenWithExceptions();
    Script.answers = {Answer::No, Answer::Cancel, Answer::Yes};
    {
        QObject whileNothingOpens;
        CancelDialogsAsTheyOpen(&whileNothingOpens);
        Click(dialog->ButtonOpenRecur);
        Click(dialog->ButtonOpenRecur);
    }
    EXPECT_FALSE(dialog->ChangeFlag) << "the dialog has opened";
    InRecurrence([&] { Click(recurrence->ButtonCancel); });
    EXPECT_EQ(Script.boxes, (std::vector{WillLose(), WillLose(), WillLose()}));
    EXPECT_FALSE(dialog->DeleteExceptions);
}

TEST_F(EventRecurrence, ExceptionsGoWhereTheDaysWereTouchedAndStayForTheEndDate) {
    OpenWithExceptions();
    Script.answers = {Answer::Yes, Answer::Yes};
    InRecurrence([&] {
        Click(recurrence->CheckboxRepeatEndDate);
        Click(recurrence->ButtonOK);
    });
    EXPECT_FALSE(dialog->DeleteExceptions);
    InRecurrence([&] {
        Click(recurrence->CheckBoxFriday);
        Click(recurrence->ButtonOK);
    });
    EXPECT_TRUE(dialog->DeleteExceptions);
}

TEST_F(EventRecurrence, EndDateIsTaken) {
    OpenEdit(Weekly(), SeriesDateCaption);
    InRecurrence([&] {
        Click(recurrence->picButtonRepeatEndDate);
        Click(recurrence->Picker->LabelCalDate[41]);
        Click(recurrence->ButtonOK);
    });
    EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/11/07"));
    EXPECT_TRUE(recurrence->CheckboxRepeatEndDate->isChecked());
}

TEST_F(EventRecurrence, DialogOpensBesideTheEditorOnceAndThenWhereItWasLeft) {
    OpenNew();
    dialog->move(100, 80);
    RecurrenceDBFirstOpen = true;
    InRecurrence([&] {
        EXPECT_EQ(recurrence->pos(), QPoint(125, 205));
        recurrence->move(10, 20);
        Click(recurrence->ButtonCancel);
    });
    EXPECT_FALSE(RecurrenceDBFirstOpen);
    InRecurrence([&] {
        EXPECT_EQ(recurrence->pos(), QPoint(10, 20));
        Click(recurrence->ButtonCancel);
    });
}

TEST_F(EventRecurrence, PickerOfTheEndDateBeginsTheWeekAsTheCalendarDoes) {
    for (const auto& [day, head] : {std::pair{"Monday", "M"}, {"Saturday", "S"}, {"Monday", "M"}}) {
        window->StartDayOfWeek = day;
        OpenNew();
        InRecurrence([&] {
            EXPECT_EQ(recurrence->Picker->LabelCalDay[0]->text(), head);
            Click(recurrence->ButtonCancel);
        });
    }
}

TEST_F(EventRecurrence, ShutdownOverBothDialogsCountsAsCancelled) {
    OpenWithExceptions();
    Script.answers = {Answer::Yes};
    InRecurrence([&] {
        Click(recurrence->CheckBoxFriday);
        ShuttingDown = true;
        dialog->hide();
        recurrence->hide();
    });
    EXPECT_TRUE(recurrence->CancelledFlag);
    EXPECT_FALSE(dialog->DeleteExceptions);
    EXPECT_EQ(Script.boxes.size(), 1U);
}

// --- The date ----------------------------------------------------------------------------------------------

TEST_F(EventRecurrence, MovedDateOfASingleEventIsShownAndSaved) {
    OpenNew();
    PickDate("2009/10/31");
    EXPECT_EQ(dialog->StoreEventStartDate, DateValue("2009/10/31"));
    EXPECT_EQ(dialog->TextboxEventStartDate->text(), "Saturday, October 31, 2009");
    EXPECT_EQ(dialog->tempMonthlyNumber, "Last");
    EXPECT_EQ(dialog->tempMonthlyDay, "Day");
    EXPECT_EQ(dialog->tempYearlyNumber, "Last");
    EXPECT_EQ(dialog->tempYearlyDay, "Day");
    EXPECT_EQ(WithoutMnemonics(recurrence->RadioMonthlyUser->text()), "The Last Day of every month");
    EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/10/31")) << "it follows";
    EXPECT_EQ(recurrence->StoreRepeatEndDate, DateValue("2009/10/31"));
    EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Saturday, October 31, 2009");
    EXPECT_FALSE(dialog->DeleteExceptions);
    EXPECT_TRUE(dialog->ChangeFlag);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventRecurrence, PickerOpensOnTheDateOfTheEventAndThenOnTheOneThatWasPicked) {
    OpenEdit({.date = "2009/11/02", .end_date = "2009/11/02"});
    Click(dialog->picButtonEventStartDate);
    EXPECT_EQ(dialog->Picker->CalendarDate, DateValue("2009/11/02"));
    QTest::keyClick(dialog->Picker, Qt::Key_Escape);
    PickDate("2009/11/23");
    FireTimer(dialog->Picker->TimerCalendar);
    Click(dialog->picButtonEventStartDate);
    EXPECT_EQ(dialog->Picker->CalendarDate, DateValue("2009/11/23"));
}

TEST_F(EventRecurrence, EndDateStaysWhereItIsSet) {
    OpenEdit({.end = "True", .end_date = "2009/12/01"});
    PickDate("2009/10/31");
    EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/12/01"));
    EXPECT_EQ(recurrence->StoreRepeatEndDate, DateValue("2009/12/01"));
}

TEST_F(EventRecurrence, MovedDateEndsTheSeriesAndSaysSoOnceThePickerHasClosed) {
    const std::vector<std::pair<const char*, const char*>> picks{{"2009/10/23", "2009/10/23"},
                                                                 {"2009/10/19", "2009/10/19"}};
    for (const auto& [picked, shown] : picks) { // the same date again counts as moving too
        Script.boxes.clear();
        OpenWithExceptions();
        bool pickerWasOpen = true;
        Script.whileBoxIsOpen = [&](const ShownBox&) { pickerWasOpen = dialog->Picker->isVisible(); };
        PickDate(picked);
        Script.whileBoxIsOpen = {};
        EXPECT_EQ(Script.boxes, std::vector{Message(NoLongerRecurring)});
        EXPECT_FALSE(pickerWasOpen);
        ExpectSingle();
        EXPECT_TRUE(dialog->DeleteExceptions);
        EXPECT_TRUE(dialog->ChangeFlag);
        EXPECT_EQ(dialog->StoreEventStartDate, DateValue(shown));
        EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue(shown));
        EXPECT_EQ(recurrence->CurrentState().tempRecurRecurrence, "None");
        EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "FFFFFFF");
        EXPECT_EQ(dialog->tempEventExceptions, "2009/10/21") << "the button still asks";
    }
    Script.boxes.clear();
    Click(dialog->ButtonOpenRecur);
    EXPECT_EQ(Script.boxes, std::vector{WillLose()});
    PickDate("2009/10/30");
    EXPECT_EQ(Script.boxes.size(), 1U) << "it is no series any more";
}

TEST_F(EventRecurrence, EndOfTheSeriesIsToldOnceAndNotAsThePickerClosesAgain) {
    OpenEdit(Weekly(), SeriesDateCaption);
    PickDate("2009/10/23");
    EXPECT_EQ(Script.boxes.size(), 1U);
    FireTimer(dialog->Picker->TimerCalendar);
    Click(dialog->picButtonEventStartDate);
    QTest::keyClick(dialog->Picker, Qt::Key_Escape);
    EXPECT_FALSE(dialog->Picker->isVisible());
    EXPECT_EQ(Script.boxes.size(), 1U);
}

TEST_F(EventRecurrence, TodayAndTomorrowMoveTheDateToo) {
    for (const bool tomorrow : {false, true}) {
        Script.boxes.clear();
        OpenEdit(Weekly(), SeriesDateCaption);
        FireTimer(dialog->Picker->TimerCalendar);
        Click(dialog->picButtonEventStartDate);
        Click(tomorrow ? dialog->Picker->LabelTomorrow : dialog->Picker->LabelToday);
        EXPECT_EQ(dialog->StoreEventStartDate, DateValue(tomorrow ? "2009/10/15" : "2009/10/14"));
        EXPECT_EQ(Script.boxes, std::vector{Message(NoLongerRecurring)});
    }
}

TEST_F(EventRecurrence, EscapeInThePickerMovesNothing) {
    OpenEdit(Weekly(), SeriesDateCaption);
    Click(dialog->picButtonEventStartDate);
    QTest::keyClick(dialog->Picker, Qt::Key_Right);
    QTest::keyClick(dialog->Picker, Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    ExpectSeries("Day", "Daily");
    EXPECT_EQ(dialog->StoreEventStartDate, DateValue("2009/10/19"));
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_FALSE(dialog->ChangeFlag);
}

TEST_F(EventRecurrence, NewDaysForTheMovedDateAreTaken) {
    OpenEdit(Weekly(), SeriesDateCaption);
    PickDate("2009/10/23");
    InRecurrence([&] {
        Click(recurrence->RadioRepeatDaily);
        EXPECT_TRUE(recurrence->CheckBoxFriday->isChecked());
        EXPECT_FALSE(recurrence->CheckBoxMonday->isChecked());
        Click(recurrence->ButtonOK);
    });
    ExpectSeries("Day", "Daily");
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "FFFFTFF");
}
