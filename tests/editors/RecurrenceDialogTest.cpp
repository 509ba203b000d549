// The recurrence dialog by itself: what its controls do to each other, its captions, and how it closes.
#include "editors/EventTest.h"

#include "core/DateText.h"

namespace {

class RecurrenceDialogs : public EventTest {
protected:
    // Opens the dialog for an event with these texts.
    void OpenFor(const EventTexts& record) {
        OpenEdit(record);
        Reopen();
    }

    // Opens it again as the editor's button does.
    void Reopen() {
        recurrence->Prepare();
        ShowAlone(*recurrence);
    }

    static EventTexts On(const char* date) { return {.date = date, .end_date = date}; }

    static QString Words(const QRadioButton* radio) { return WithoutMnemonics(radio->text()); }

    void ExpectTouched(bool changed, bool days) const {
        EXPECT_EQ(recurrence->ChangeFlag, changed);
        EXPECT_EQ(recurrence->FrmRecDeleteExFlag, days);
    }

    void Forget() const {
        recurrence->ChangeFlag = false;
        recurrence->FrmRecDeleteExFlag = false;
    }

    std::vector<QCheckBox*> Days() const {
        return {recurrence->CheckBoxMonday,   recurrence->CheckBoxTuesday, recurrence->CheckBoxWednesday,
                recurrence->CheckBoxThursday, recurrence->CheckBoxFriday,  recurrence->CheckBoxSaturday,
                recurrence->CheckBoxSunday};
    }
};

int EndColorOf(const frmRecurrence& dialog) {
    return static_cast<int>(
        dialog.TextboxRepeatEndDate->palette().color(QPalette::Active, QPalette::Text).rgb() & 0xFFFFFF);
}

} // namespace

// --- Captions ----------------------------------------------------------------------------------------------

TEST_F(RecurrenceDialogs, CaptionsFollowTheDate) {
    struct Case {
        const char *date, *monthlyDate, *monthlyRank, *yearlyDate, *yearlyRank;
    };

    for (const Case& row : {Case{"2009/10/31", "The 31st of every month", "The Last Day of every month",
                                 "The 31st of every October", "The Last Day of every October"},
                            {"2009/12/29", "The 29th of every month", "The Last Tuesday of every month",
                             "The 29th of every December", "The Last Tuesday of every December"},
                            {"2009/02/28", "The 28th of every month", "The Last Day of every month",
                             "The 28th of every February", "The Last Day of every February"},
                            {"2009/05/22", "The 22nd of every month", "The Fourth Friday of every month",
                             "The 22nd of every May", "The Fourth Friday of every May"},
                            {"2009/05/12", "The 12th of every month", "The Second Tuesday of every month",
                             "The 12th of every May", "The Second Tuesday of every May"}}) {
        OpenFor(On(row.date));
        EXPECT_EQ(Words(recurrence->RadioMonthlyThisDate), row.monthlyDate);
        EXPECT_EQ(Words(recurrence->RadioMonthlyUser), row.monthlyRank);
        EXPECT_EQ(Words(recurrence->RadioYearlyThisDate), row.yearlyDate);
        EXPECT_EQ(Words(recurrence->RadioYearlyUser), row.yearlyRank);
    }
}

// --- Opening -----------------------------------------------------------------------------------------------

TEST_F(RecurrenceDialogs, EventThatHappensOnceShowsNone) {
    OpenFor(On("2009/10/20"));
    EXPECT_EQ(recurrence->windowTitle(), "Event Recurrence");
    EXPECT_TRUE(recurrence->RadioRepeatNone->isChecked());
    EXPECT_TRUE(recurrence->FrameNone->isVisible());
    for (const QCheckBox* day : Days()) {
        EXPECT_FALSE(day->isChecked() || day->isEnabled() || day->isVisible());
    }
    EXPECT_FALSE(recurrence->CheckboxRepeatEndDate->isChecked());
    EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "No End Date");
    EXPECT_EQ(EndColorOf(*recurrence), 0x808080);
    EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(recurrence->focusWidget(), recurrence->RadioRepeatNone);
    EXPECT_FALSE(recurrence->Picker->isVisible());
}

TEST_F(RecurrenceDialogs, SeriesShowsItsTexts) {
    EventTexts series = Weekly();
    series.end = "True";
    series.end_date = "2009/12/18";
    OpenFor(series);
    EXPECT_TRUE(recurrence->RadioRepeatDaily->isChecked());
    EXPECT_TRUE(recurrence->FrameDaily->isVisible());
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "TFTFFFF");
    EXPECT_TRUE(recurrence->CheckBoxMonday->isChecked() && recurrence->CheckBoxWednesday->isChecked());
    EXPECT_TRUE(recurrence->CheckboxRepeatEndDate->isChecked());
    EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "End Date");
    EXPECT_EQ(EndColorOf(*recurrence), 0x000000);
    EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Friday, December 18, 2009");
}

TEST_F(RecurrenceDialogs, BoxesAndBothPairsFollowTheRecordWhateverItsKind) {
    for (const char* kind : {"None", "Day", "Month", "Year"}) {
        for (const bool sameDate : {false, true}) {
            OpenFor(
                {.recurrence = kind, .same_date = sameDate ? "True" : "False", .repeat_daily = "FTFFFFT"});
            EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "FTFFFFT");
            EXPECT_EQ(recurrence->RadioMonthlyThisDate->isChecked(), sameDate);
            EXPECT_EQ(recurrence->RadioMonthlyUser->isChecked(), !sameDate);
            EXPECT_EQ(recurrence->RadioYearlyThisDate->isChecked(), sameDate);
            EXPECT_EQ(recurrence->RadioYearlyUser->isChecked(), !sameDate);
            EXPECT_EQ(recurrence->CurrentState().tempRecurRecurrence, kind);
        }
    }
}

TEST_F(RecurrenceDialogs, RecurrenceOfAnyOtherTextShowsNone) {
    OpenFor({.recurrence = "Month"});
    Click(recurrence->ButtonCancel);
    OpenFor({.recurrence = "Fortnight"});
    EXPECT_TRUE(recurrence->RadioRepeatNone->isChecked());
    EXPECT_TRUE(recurrence->FrameNone->isVisible());
    EXPECT_FALSE(recurrence->RadioMonthlyUser->isEnabled());
}

TEST_F(RecurrenceDialogs, ShortPatternLeavesTheLaterDaysOut) {
    OpenFor({.recurrence = "Day", .repeat_daily = "TT"});
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "TTFFFFF");
}

TEST_F(RecurrenceDialogs, SecondOpeningForgetsWhatWasTouched) {
    OpenFor(Weekly());
    Click(recurrence->RadioRepeatMonthly);
    Click(recurrence->ButtonOK);
    ExpectTouched(true, true);
    Reopen();
    ExpectTouched(false, false);
    EXPECT_FALSE(recurrence->CancelledFlag || recurrence->CloseOK);
    Click(recurrence->RadioRepeatNone);
    Script.answers = {Answer::Yes};
    Click(recurrence->ButtonCancel);
    EXPECT_TRUE(recurrence->RadioRepeatMonthly->isChecked()) << "the state of this opening is put back";
}

TEST_F(RecurrenceDialogs, EachOpeningBeginsAtTheKindThatIsChosen) {
    OpenFor(On("2009/10/20"));
    Click(recurrence->ButtonCancel);
    OpenFor(Weekly());
    EXPECT_EQ(recurrence->focusWidget(), recurrence->RadioRepeatDaily);
    GoTo(recurrence->ButtonOK);
    Click(recurrence->ButtonOK);
    Reopen();
    EXPECT_EQ(recurrence->focusWidget(), recurrence->RadioRepeatDaily);
}

TEST_F(RecurrenceDialogs, ControlsHaveTheirHelpNumbers) {
    ExpectTopics(*recurrence, {{"RadioRepeatNone", 881},
                               {"RadioRepeatDaily", 882},
                               {"RadioRepeatMonthly", 883},
                               {"RadioRepeatYearly", 884},
                               {"FrameDaily", 885},
                               {"FrameMonthly", 886},
                               {"FrameYearly", 887},
                               {"CheckboxRepeatEndDate", 888},
                               {"TextboxRepeatEndDate", 889},
                               {"picButtonRepeatEndDate", 889},
                               {"ButtonOK", 890},
                               {"ButtonCancel", 891}});
}

// --- Clicks ------------------------------------------------------------------------------------------------

TEST_F(RecurrenceDialogs, KindShowsItsPanelAndMakesItsControlsAvailable) {
    struct Kind {
        QRadioButton* radio;
        QWidget* panel;
        std::vector<QWidget*> inputs;
    };

    OpenFor(On("2009/10/20"));
    const auto days = Days();
    const std::vector<Kind> kinds{
        {recurrence->RadioRepeatDaily, recurrence->FrameDaily, {days.begin(), days.end()}},
        {recurrence->RadioRepeatMonthly,
         recurrence->FrameMonthly,
         {recurrence->RadioMonthlyThisDate, recurrence->RadioMonthlyUser}},
        {recurrence->RadioRepeatYearly,
         recurrence->FrameYearly,
         {recurrence->RadioYearlyThisDate, recurrence->RadioYearlyUser}},
        {recurrence->RadioRepeatNone, recurrence->FrameNone, {}}};
    for (const Kind& chosen : kinds) {
        Forget();
        Click(chosen.radio);
        ExpectTouched(true, true);
        for (const Kind& kind : kinds) {
            EXPECT_EQ(kind.panel->isVisible(), &kind == &chosen);
            for (const QWidget* input : kind.inputs) {
                EXPECT_EQ(input->isEnabled(), &kind == &chosen) << input->objectName().toStdString();
            }
        }
    }
}

TEST_F(RecurrenceDialogs, KindIsChosenByArrowsAndByAScreenReader) {
    OpenFor(On("2009/10/20"));
    QTest::keyClick(recurrence->RadioRepeatNone, Qt::Key_Down);
    EXPECT_TRUE(recurrence->FrameDaily->isVisible());
    ExpectTouched(true, true);
    Forget();
    recurrence->RadioRepeatMonthly->setChecked(true);
    EXPECT_TRUE(recurrence->FrameMonthly->isVisible());
    ExpectTouched(true, true);
}

TEST_F(RecurrenceDialogs, ClickOnTheKindThatIsChosenCounts) {
    OpenFor(Weekly());
    Click(recurrence->RadioRepeatDaily);
    ExpectTouched(true, true);
    EXPECT_TRUE(recurrence->RadioRepeatDaily->isChecked());
}

TEST_F(RecurrenceDialogs, EachSetOfRadiosIsChosenByItself) {
    EventTexts series = Weekly();
    series.same_date = "True";
    OpenFor(series);
    for (QRadioButton* kind : {recurrence->RadioRepeatNone, recurrence->RadioRepeatMonthly,
                               recurrence->RadioRepeatMonthly, recurrence->RadioRepeatYearly}) {
        Click(kind);
        EXPECT_TRUE(kind->isChecked());
        EXPECT_TRUE(recurrence->RadioMonthlyThisDate->isChecked());
        EXPECT_TRUE(recurrence->RadioYearlyThisDate->isChecked());
    }
    Click(recurrence->RadioYearlyUser);
    EXPECT_FALSE(recurrence->RadioYearlyThisDate->isChecked());
    EXPECT_TRUE(recurrence->RadioMonthlyThisDate->isChecked());
    EXPECT_TRUE(recurrence->RadioRepeatYearly->isChecked());
}

TEST_F(RecurrenceDialogs, DailyWithoutADayTicksTheWeekdayOfTheStart) {
    const char* const week[]{"2009/10/19", "2009/10/20", "2009/10/21", "2009/10/22",
                             "2009/10/23", "2009/10/24", "2009/10/25"};
    for (std::size_t day = 0; day < 7; ++day) {
        OpenFor(On(week[day]));
        Click(recurrence->RadioRepeatDaily);
        std::string expected(7, 'F');
        expected[day] = 'T';
        EXPECT_EQ(DailyLetters(recurrence->CurrentState()), expected);
    }
    EventTexts once = On("2009/10/20");
    once.repeat_daily = "TFFFFFF";
    OpenFor(once);
    Click(recurrence->RadioRepeatDaily);
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "TFFFFFF") << "a day is ticked already";
}

TEST_F(RecurrenceDialogs, WeekdayOfTheStartCannotBeLeftOut) {
    OpenFor(Weekly()); // a Monday
    Click(recurrence->CheckBoxMonday);
    EXPECT_TRUE(recurrence->CheckBoxMonday->isChecked());
    ExpectTouched(true, true);
    Forget();
    ToggleByScreenReader(recurrence->CheckBoxMonday);
    EXPECT_TRUE(recurrence->CheckBoxMonday->isChecked());
    Forget();
    Click(recurrence->CheckBoxWednesday);
    EXPECT_FALSE(recurrence->CheckBoxWednesday->isChecked());
    ExpectTouched(true, true);
    Forget();
    Click(recurrence->CheckBoxWednesday);
    EXPECT_TRUE(recurrence->CheckBoxWednesday->isChecked());
    ExpectTouched(true, true);
}

TEST_F(RecurrenceDialogs, MonthlyRulesCountAsAChangeOfTheDaysAndYearlyOnesDoNot) {
    EventTexts series = On("2009/10/20");
    series.recurrence = "Month";
    OpenFor(series);
    Click(recurrence->RadioMonthlyThisDate);
    ExpectTouched(true, true);
    Forget();
    Click(recurrence->RadioMonthlyUser);
    ExpectTouched(true, true);
    series.recurrence = "Year";
    OpenFor(series);
    Click(recurrence->RadioYearlyThisDate);
    ExpectTouched(true, false);
    Forget();
    Click(recurrence->RadioYearlyUser);
    ExpectTouched(true, false);
}

TEST_F(RecurrenceDialogs, EndDateBoxChangesLabelAndColourAndNoDays) {
    OpenFor(Weekly());
    Click(recurrence->CheckboxRepeatEndDate);
    EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "End Date");
    EXPECT_EQ(EndColorOf(*recurrence), 0x000000);
    ExpectTouched(true, false);
    Forget();
    Click(recurrence->CheckboxRepeatEndDate);
    EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "No End Date");
    EXPECT_EQ(EndColorOf(*recurrence), 0x808080);
    ExpectTouched(true, false);
}

TEST_F(RecurrenceDialogs, PickedEndDateIsShownStoredAndTicksItsBox) {
    OpenFor(Weekly());
    PickEndDate("2009/11/05");
    EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Thursday, November 5, 2009");
    EXPECT_EQ(recurrence->StoreRepeatEndDate, DateValue("2009/11/05"));
    EXPECT_TRUE(recurrence->CheckboxRepeatEndDate->isChecked());
    EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "End Date");
    EXPECT_EQ(EndColorOf(*recurrence), 0x000000);
    ExpectTouched(true, false);
    EXPECT_FALSE(recurrence->Picker->isVisible());
    Forget();
    PickEndDate("2009/11/06");
    ExpectTouched(true, false);
}

TEST_F(RecurrenceDialogs, PickerOpensFromTheBoxOnTheEndDateAndAKeyClosesIt) {
    EventTexts series = Weekly();
    series.end_date = "2009/12/18";
    OpenFor(series);
    Click(recurrence->TextboxRepeatEndDate);
    EXPECT_TRUE(recurrence->Picker->isVisible());
    EXPECT_EQ(recurrence->Picker->CalendarDate, DateValue("2009/12/18"));
    EXPECT_TRUE(recurrence->rect().contains(recurrence->Picker->geometry()));
    QTest::keyClick(recurrence->Picker, Qt::Key_Escape);
    EXPECT_FALSE(recurrence->Picker->isVisible());
    EXPECT_TRUE(recurrence->isVisible());
    ExpectTouched(false, false);
    FireTimer(recurrence->Picker->TimerCalendar);
    QTest::keyClick(recurrence->TextboxRepeatEndDate, Qt::Key_Down);
    Click(recurrence->Picker->LabelTomorrow);
    EXPECT_EQ(recurrence->StoreRepeatEndDate, DateValue("2009/10/15"));
}

TEST_F(RecurrenceDialogs, TabReachesNoPanelThatIsHidden) {
    OpenFor(Weekly());
    for (QRadioButton* kind : {recurrence->RadioRepeatNone, recurrence->RadioRepeatDaily,
                               recurrence->RadioRepeatMonthly, recurrence->RadioRepeatYearly}) {
        Click(kind);
        for (int press = 0; press < 20; ++press) {
            QTest::keyClick(recurrence->focusWidget(), Qt::Key_Tab);
            ASSERT_TRUE(recurrence->focusWidget()->isVisible());
        }
    }
}

// --- Closing -----------------------------------------------------------------------------------------------

TEST_F(RecurrenceDialogs, EndBeforeTheEventIsRefused) {
    for (const char* kind : {"Day", "Month", "Year"}) {
        Script.boxes.clear();
        EventTexts series = On("2009/10/20");
        series.recurrence = kind;
        OpenFor(series);
        PickEndDate("2009/10/19");
        GoTo(recurrence->ButtonOK);
        Click(recurrence->ButtonOK);
        EXPECT_EQ(Script.boxes, std::vector{Message("The End Date is before the Event Date.")});
        EXPECT_TRUE(recurrence->isVisible());
        EXPECT_FALSE(recurrence->CloseOK);
        EXPECT_EQ(recurrence->focusWidget(), recurrence->TextboxRepeatEndDate);
        PickEndDate("2009/10/20");
        Click(recurrence->ButtonOK);
        EXPECT_EQ(Script.boxes.size(), 1U) << "the day itself is no earlier";
        EXPECT_FALSE(recurrence->isVisible());
        EXPECT_TRUE(recurrence->CloseOK);
        EXPECT_FALSE(recurrence->CancelledFlag);
    }
}

TEST_F(RecurrenceDialogs, EndBeforeTheEventPassesWithoutARecurrenceOrWithoutAnEnd) {
    OpenFor(On("2009/10/20"));
    PickEndDate("2009/10/19");
    Click(recurrence->ButtonOK);
    EXPECT_FALSE(recurrence->isVisible());
    OpenFor(Weekly()); // the kind that is chosen now counts, not the one at the opening
    PickEndDate("2009/10/15");
    Click(recurrence->RadioRepeatNone);
    Click(recurrence->ButtonOK);
    EXPECT_FALSE(recurrence->isVisible());
    OpenFor(Weekly());
    PickEndDate("2009/10/15");
    Click(recurrence->CheckboxRepeatEndDate);
    Click(recurrence->ButtonOK);
    EXPECT_FALSE(recurrence->isVisible());
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(RecurrenceDialogs, DailySeriesWithoutADayIsAccepted) {
    OpenFor({.recurrence = "Day"});
    Click(recurrence->ButtonOK);
    EXPECT_FALSE(recurrence->isVisible());
    EXPECT_EQ(DailyLetters(recurrence->CurrentState()), "FFFFFFF");
}

TEST_F(RecurrenceDialogs, CancelWithoutAChangeAsksNothing) {
    OpenFor(Weekly());
    Click(recurrence->ButtonCancel);
    EXPECT_FALSE(recurrence->isVisible());
    EXPECT_TRUE(recurrence->CancelledFlag && recurrence->CloseOK);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(RecurrenceDialogs, CancelAsksAndYesPutsEverythingBack) {
    const std::vector<std::function<void()>> ways{
        [this] { Click(recurrence->ButtonCancel); },
        [this] { QTest::keyClick(recurrence, Qt::Key_Escape); },
        [this] { PressCloseBox(*recurrence); },
    };
    for (const auto& cancel : ways) {
        Script.boxes.clear();
        EventTexts series = Weekly();
        series.same_date = "True";
        OpenFor(series);
        Click(recurrence->CheckBoxFriday);
        PickEndDate("2009/11/05");
        Click(recurrence->RadioRepeatMonthly);
        Click(recurrence->RadioMonthlyUser);
        Click(recurrence->RadioRepeatYearly);
        Click(recurrence->RadioYearlyUser);
        Script.answers = {Answer::No, Answer::Yes};
        cancel();
        EXPECT_TRUE(recurrence->isVisible());
        EXPECT_FALSE(recurrence->CancelledFlag || recurrence->CloseOK);
        EXPECT_TRUE(recurrence->RadioRepeatYearly->isChecked());
        cancel();
        EXPECT_FALSE(recurrence->isVisible());
        EXPECT_TRUE(recurrence->CancelledFlag && recurrence->CloseOK);
        const RecurrenceState state = recurrence->CurrentState();
        EXPECT_EQ(state.tempRecurRecurrence, "Day");
        EXPECT_EQ(DailyLetters(state), "TFTFFFF");
        EXPECT_TRUE(state.tempRecurMonthlySameDate && state.tempRecurYearlySameDate);
        EXPECT_FALSE(state.tempRecurRepeatEnd);
        EXPECT_EQ(state.tempRecurStoreRepeatEndDate, DateValue("2009/10/19"));
        EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Monday, October 19, 2009");
        EXPECT_EQ(WithoutMnemonics(recurrence->LabelRepeatEndDate->text()), "No End Date");
        EXPECT_TRUE(recurrence->CheckBoxMonday->isEnabled());
        EXPECT_FALSE(recurrence->RadioYearlyUser->isEnabled());
        const ShownBox question = Question("Cancel all changes?");
        EXPECT_EQ(Script.boxes, (std::vector{question, question}));
    }
}

TEST_F(RecurrenceDialogs, CancelPutsBackTheEndDateAsItWasShown) {
    OpenFor(Weekly());
    EXPECT_EQ(recurrence->tempRecurRepeatEndDate.utf8, "Monday, October 19, 2009");
    recurrence->tempRecurRepeatEndDate = {"Montag, 19. März"};
    PickEndDate("2009/11/05");
    Script.answers = {Answer::Yes};
    Click(recurrence->ButtonCancel);
    EXPECT_EQ(recurrence->TextboxRepeatEndDate->text(), "Montag, 19. März");
    EXPECT_EQ(recurrence->StoreRepeatEndDate, DateValue("2009/10/19"));
    Reopen();
    EXPECT_EQ(recurrence->tempRecurRepeatEndDate.utf8, "Montag, 19. März") << "remembered as it is shown";
}

TEST_F(RecurrenceDialogs, EachDayIsRememberedUnderItsName) {
    const std::array remembered{&RecurrenceState::tempRecurMonday,    &RecurrenceState::tempRecurTuesday,
                                &RecurrenceState::tempRecurWednesday, &RecurrenceState::tempRecurThursday,
                                &RecurrenceState::tempRecurFriday,    &RecurrenceState::tempRecurSaturday,
                                &RecurrenceState::tempRecurSunday};
    for (std::size_t day = 0; day < remembered.size(); ++day) {
        std::string letters(remembered.size(), 'F');
        letters[day] = 'T';
        OpenFor({.recurrence = "Day", .repeat_daily = letters});
        for (std::size_t other = 0; other < remembered.size(); ++other) {
            EXPECT_EQ(recurrence->*remembered[other], other == day) << letters;
        }
    }
}

TEST_F(RecurrenceDialogs, CloseThatIsNotTheStudentsPasses) {
    OpenFor(Weekly());
    Click(recurrence->CheckBoxFriday);
    recurrence->close();
    EXPECT_FALSE(recurrence->isVisible());
    EXPECT_TRUE(recurrence->CancelledFlag);
    EXPECT_TRUE(Script.boxes.empty());
}
