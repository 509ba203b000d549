// The flows of an event: the question for a series, and what each way of closing the editor leaves in the
// store and on the drive.
#include "mainwindow/flows/EventFlow.h"

#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "editors/EventTest.h"
#include "mainwindow/modes/Modes.h"
#include "persistence/modIO.h"

#include <algorithm>

namespace {

constexpr const char* SeriesQuestion =
    "This is a recurring event.\r\n\r\nClick 'Yes' to edit the series. Click 'No' to edit this specific "
    "event.";
const Date Clicked = DateValue("2009/10/21");

class EventFlow : public EventTest {
protected:
    void SetUp() override {
        EventTest::SetUp();
        window->EventClickedStartTime = "2:30 PM";
    }

    // Runs the flow while the student acts in the dialog.
    void New(const std::function<void()>& act) {
        WhenDialogOpens([this, act](QWidget*) {
            act();
            ExpectClosed(*dialog);
        });
        NewEvent(*window);
    }

    void Edit(int position, const std::function<void()>& act, Date day = Clicked) {
        WhenDialogOpens([this, act](QWidget*) {
            act();
            ExpectClosed(*dialog);
        });
        EditEvent(*window, position, day);
    }

    // The same for a series, where the student answers the question first.
    void EditSeries(int position, const std::function<void()>& act) {
        Script.answers.push_front(Answer::Yes);
        Edit(position, act);
    }

    void EditOccurrence(int position, const std::function<void()>& act, Date day = Clicked) {
        Script.answers.push_front(Answer::No);
        Edit(position, act, day);
    }

    static void Ok() { Click(EventDialog->ButtonOK); }

    static void Cancel() { Click(EventDialog->ButtonCancel); }

    static void Delete() {
        Script.answers.push_back(Answer::Yes);
        Click(EventDialog->ButtonDelete);
    }

    // What the drive says when it is read anew.
    EventLists OnDisk() {
        const EventLists kept = Events;
        const int nextId = NextEventID;
        Events = {};
        ReadEvents();
        const EventLists read = Events;
        Events = kept;
        NextEventID = nextId;
        return read;
    }

    void ExpectStoreIsOnDisk() {
        const EventLists read = OnDisk();
        for (const Field<EventLists>& field : EventFields) {
            EXPECT_EQ(read.*field.list, Events.*field.list) << field.tag;
        }
    }

    // Gives the file, which ends within the description of the second event.
    std::string ReadTwoEventsOfWhichOneWasCut() {
        AddEventRecord({.desc = "one"});
        AddEventRecord({.desc = "two"});
        WriteEvents();
        const std::string whole = ReadData("events.xml");
        const std::string cut = whole.substr(0, whole.rfind("</desc>"));
        WriteData("events.xml", cut);
        Events = {};
        ReadEvents();
        return cut;
    }

    static ShownBox AskedForSeries() {
        return {"Planovarium", SeriesQuestion, Buttons::YesNoCancel, Icon::Information};
    }

    EventLists& Events = Store.EventRecord;
};

} // namespace

// --- New ---------------------------------------------------------------------------------------------------

TEST_F(EventFlow, NewEventIsStoredAndWritten) {
    window->RefreshReason = "Calendar";
    New([this] {
        EXPECT_EQ(dialog->ComboStartTime->currentText(), "2:30 PM");
        Type(dialog->TextBoxEvent, "Read chapter 4");
        Choose(dialog->ComboType, 1);
        Choose(dialog->ComboDuration, 6);
        Click(dialog->CheckboxReminder);
        Choose(dialog->ComboReminderTime, 1);
        QTest::keyClicks(dialog->TextBoxNotes, "Library");
        Ok();
    });
    EXPECT_EQ(ReadData("events.xml"),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<event_data>\n<event>\n  <id>1</id>\n"
              "  <date>2009/10/20</date>\n  <time>2:30 PM</time>\n  <duration>2 Hours</duration>\n"
              "  <desc>Read chapter 4</desc>\n  <type>Study Time</type>\n  <recurrence>None</recurrence>\n"
              "  <exceptions></exceptions>\n  <parent_id></parent_id>\n  <same_date>False</same_date>\n"
              "  <repeat_number>Third</repeat_number>\n  <repeat_day>Tuesday</repeat_day>\n"
              "  <repeat_daily>FFFFFFF</repeat_daily>\n  <end>False</end>\n"
              "  <end_date>2009/10/20</end_date>\n  <reminder>True</reminder>\n"
              "  <reminder_time>15 Minutes</reminder_time>\n"
              "  <reminder_alarm>2009/10/20 14:15:00</reminder_alarm>\n"
              "  <reminder_list>False</reminder_list>\n"
              "  <reminder_currentday>2009/10/20</reminder_currentday>\n"
              "  <reminder_nextday>2009/10/20</reminder_nextday>\n"
              "  <reminder_nextalarm>2009/10/20 14:15:00</reminder_nextalarm>\n"
              "  <notes>Library</notes>\n</event>\n</event_data>\n");
    EXPECT_EQ(NextEventID, 2);
    EXPECT_EQ(window->RefreshReason, "None");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventFlow, NewSeriesIsStoredByItsKind) {
    struct Kind {
        QRadioButton* radio;
        QRadioButton* sameDate;
        const char *recurs, *daily;
    };

    for (const Kind& kind :
         {Kind{recurrence->RadioRepeatDaily, nullptr, "Day", "FTFTFFF"},
          {recurrence->RadioRepeatMonthly, recurrence->RadioMonthlyThisDate, "Month", "FFFFFFF"},
          {recurrence->RadioRepeatYearly, recurrence->RadioYearlyThisDate, "Year", "FFFFFFF"}}) {
        window->ClickedDate = DateValue("2009/10/20");
        New([&] {
            InRecurrence([&] {
                Click(kind.radio);
                if (kind.sameDate != nullptr) {
                    Click(kind.sameDate);
                } else {
                    Click(recurrence->CheckBoxThursday);
                }
                FireTimer(recurrence->Picker->TimerCalendar);
                Click(recurrence->picButtonRepeatEndDate);
                Click(recurrence->Picker->LabelCalDate[41]);
                Click(recurrence->ButtonOK);
            });
            Ok();
        });
        const int last = Events.id.Count();
        EXPECT_EQ(Events.recurrence.Item(last), kind.recurs);
        EXPECT_EQ(Events.repeat_daily.Item(last), kind.daily);
        EXPECT_EQ(Events.same_date.Item(last), kind.sameDate != nullptr ? "True" : "False");
        EXPECT_EQ(Events.repeat_number.Item(last), "Third");
        EXPECT_EQ(Events.repeat_day.Item(last), "Tuesday");
        EXPECT_EQ(Events.end.Item(last), "True");
        EXPECT_EQ(Events.end_date.Item(last), "2009/11/07");
        EXPECT_EQ(Events.exceptions.Item(last), "");
        EXPECT_EQ(Events.parent_id.Item(last), "");
        ExpectStoreIsOnDisk();
    }
}

TEST_F(EventFlow, SameDateComesFromThePairOfTheKind) {
    EventTexts series = Weekly();
    series.recurrence = "Month";
    AddEventRecord(series);
    AddEventRecord({.recurrence = "Year"});
    EditSeries(1, [this] {
        InRecurrence([this] {
            recurrence->RadioYearlyThisDate->setChecked(true);
            Click(recurrence->ButtonOK);
        });
        Ok();
    });
    EXPECT_EQ(Events.same_date.Item(1), "False");
    EditSeries(2, [this] {
        InRecurrence([this] {
            recurrence->RadioMonthlyThisDate->setChecked(true);
            Click(recurrence->ButtonOK);
        });
        Ok();
    });
    EXPECT_EQ(Events.same_date.Item(2), "False");
}

TEST_F(EventFlow, NewEventBehindAnOccurrenceBelongsToNoSeries) {
    AddEventRecord(Weekly());
    EditOccurrence(1, Cancel);
    New(Ok);
    EXPECT_EQ(Events.parent_id.Item(2), "");
    EXPECT_EQ(Events.exceptions.Item(2), "");
    EXPECT_EQ(Events.recurrence.Item(2), "None");
}

TEST_F(EventFlow, NewEventBehindASeriesHasGivenUpNothing) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/26";
    AddEventRecord(series);
    EditSeries(1, Cancel);
    Script.boxes.clear();
    New([this] {
        InRecurrence([this] {
            Click(recurrence->RadioRepeatMonthly);
            Click(recurrence->ButtonOK);
        });
        Ok();
    });
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Events.recurrence.Item(2), "Month");
    EXPECT_EQ(Events.exceptions.Item(2), "");
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, MorningEventStandsAtNine) {
    WhenDialogOpens([this](QWidget*) {
        EXPECT_EQ(dialog->ComboStartTime->currentText(), "9:00 AM");
        Ok();
    });
    NewMorningEvent(*window);
    EXPECT_EQ(Events.time.Item(1), "9:00 AM");
}

TEST_F(EventFlow, EveryWayToANewEventOpensTheEditor) {
    for (const auto& ask : std::initializer_list<std::function<void()>>{
             [this] { window->MenuNewEvent->trigger(); },
             [this] { window->ButtonNewEvent->click(); },
             [this] { window->ButtonNewEventSmall->click(); },
         }) {
        bool opened = false;
        WhenDialogOpens([&](QWidget* open) {
            opened = open == dialog;
            Cancel();
        });
        ask();
        EXPECT_TRUE(opened);
    }
}

// --- The question ------------------------------------------------------------------------------------------

TEST_F(EventFlow, SingleEventIsEditedWithoutAQuestion) {
    AddEventRecord({.desc = "Concert"});
    Edit(1, [this] {
        EXPECT_EQ(dialog->TextBoxEvent->text(), "Concert");
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
        EXPECT_TRUE(dialog->EditEventSeries);
        Cancel();
    });
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(EventFlow, SeriesIsAskedForAndCancelOpensNothing) {
    AddEventRecord(Weekly());
    Script.answers = {Answer::Cancel};
    EditEvent(*window, 1, Clicked);
    EXPECT_EQ(Script.boxes, std::vector{AskedForSeries()});
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(FileWrittenFlags.events);
}

TEST_F(EventFlow, YesEditsTheSeriesFromItsStart) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/26";
    AddEventRecord(series);
    EditSeries(1, [this] {
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Start Date of the Series");
        EXPECT_EQ(dialog->StoreEventStartDate, DateValue("2009/10/19"));
        EXPECT_EQ(dialog->LabelRecurStatus->text(), "Daily");
        EXPECT_EQ(dialog->tempEventExceptions, "2009/10/26");
        EXPECT_EQ(dialog->tempEventParentID, "");
        EXPECT_TRUE(dialog->EditEventSeries);
        Cancel();
    });
}

TEST_F(EventFlow, NoEditsTheClickedOccurrence) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/26";
    series.end = "True";
    series.end_date = "2009/12/18";
    AddEventRecord({});
    AddEventRecord(series);
    EditOccurrence(2, [this] {
        EXPECT_EQ(WithoutMnemonics(dialog->LabelDate->text()), "Date");
        EXPECT_EQ(dialog->StoreEventStartDate, Clicked);
        EXPECT_EQ(dialog->TextboxEventStartDate->text(), "Wednesday, October 21, 2009");
        EXPECT_EQ(dialog->LabelRecurStatus->text(), "No");
        EXPECT_EQ(BackColorOf(dialog->PicRecurring), 0xE2E8F0);
        EXPECT_EQ(dialog->tempEventRecurrence, "None");
        EXPECT_EQ(dialog->tempEventExceptions, "");
        EXPECT_EQ(dialog->tempEventParentID, "2");
        EXPECT_EQ(dialog->StoreRepeatEndDate, DateValue("2009/12/18"));
        EXPECT_FALSE(dialog->EditEventSeries);
        QObject whileNothingOpens;
        CancelDialogsAsTheyOpen(&whileNothingOpens);
        Click(dialog->ButtonOpenRecur);
        EXPECT_FALSE(dialog->ChangeFlag) << "the recurrence dialog has opened";
        Cancel();
    });
    EXPECT_EQ(Script.boxes.size(), 2U);
    EXPECT_EQ(Script.boxes.back(),
              Message("This event is an exception in a series of recurring events. It cannot be changed to a "
                      "new recurring event."));
}

// --- OK ----------------------------------------------------------------------------------------------------

TEST_F(EventFlow, EditReplacesEveryFieldButTheId) {
    AddEventRecord({.desc = "First"});
    AddEventRecord({.desc = "Second", .notes = "a\r\nb"});
    Edit(2, [this] {
        Type(dialog->TextBoxEvent, "Changed");
        Ok();
    });
    EXPECT_EQ(Events.id.values, (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(Events.desc.values, (std::vector<std::string>{"First", "Changed"}));
    EXPECT_EQ(Events.notes.Item(2), "a\r\nb");
    EXPECT_EQ(NextEventID, 3);
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, UntouchedEditKeepsTheRecordButForTheRankOfItsDate) {
    EventTexts series = Weekly();
    series.type = "Gone";
    series.exceptions = "2009/10/26 2009/10/28";
    series.same_date = "True";
    series.end = "True";
    series.end_date = "2009/12/18";
    series.reminder_list = "True";
    series.notes = "a\r\nb";
    AddEventRecord(series);
    const EventLists before = Events;
    EditSeries(1, Ok);
    for (const Field<EventLists>& field : EventFields) {
        if (field.list != &EventLists::repeat_number && field.list != &EventLists::repeat_day) {
            EXPECT_EQ(Events.*field.list, before.*field.list) << field.tag;
        }
    }
    EXPECT_EQ(Events.repeat_number.Item(1), "Third");
    EXPECT_EQ(Events.repeat_day.Item(1), "Monday");
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, WholeSeriesBehindAnOccurrenceIsReplacedInPlace) {
    AddEventRecord(Weekly());
    AddEventRecord({.desc = "Concert"});
    for (const int position : {1, 2}) {
        EditOccurrence(1, Cancel);
        Script.answers = {Answer::Yes};
        Edit(position, [this] {
            EXPECT_TRUE(dialog->EditEventSeries);
            Type(dialog->TextBoxEvent, "Changed");
            Ok();
        });
        Script.answers.clear();
        EXPECT_EQ(Events.desc.Item(position), "Changed");
        EXPECT_EQ(Events.id.Count(), 2);
        EXPECT_EQ(Events.exceptions.Item(position), "");
    }
}

TEST_F(EventFlow, OccurrenceThatIsMovedLivesOnAndItsDateIsGivenUp) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/26";
    AddEventRecord(series);
    const EventLists before = Events;
    EditOccurrence(1, [this] {
        Type(dialog->TextBoxEvent, "Moved");
        PickDate("2009/10/23");
        Ok();
    });
    EXPECT_EQ(Events.exceptions.Item(1), "2009/10/26 2009/10/21");
    for (const Field<EventLists>& field : EventFields) {
        ASSERT_EQ((Events.*field.list).Count(), 2) << field.tag;
        if (field.list != &EventLists::exceptions) {
            EXPECT_EQ((Events.*field.list).Item(1), (before.*field.list).Item(1)) << field.tag;
        }
    }
    EXPECT_EQ(Events.id.Item(2), "2");
    EXPECT_EQ(Events.date.Item(2), "2009/10/23");
    EXPECT_EQ(Events.desc.Item(2), "Moved");
    EXPECT_EQ(Events.recurrence.Item(2), "None");
    EXPECT_EQ(Events.exceptions.Item(2), "");
    EXPECT_EQ(Events.parent_id.Item(2), "1");
    EXPECT_EQ(Script.boxes.size(), 1U) << "an occurrence is no series that could end";
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, UntouchedOccurrenceHasAllElseOfItsSeries) {
    EventTexts series = Weekly();
    series.time = "08:20 PM";
    series.duration = "45 Minutes";
    series.type = "TermID1-ClassID7";
    series.same_date = "True";
    series.end = "True";
    series.end_date = "2009/12/18";
    series.reminder_time = "2 Days";
    series.reminder_alarm = "2009/10/17 20:20:00";
    series.reminder_currentday = "2009/10/19";
    series.reminder_nextday = "2009/10/21";
    series.reminder_nextalarm = "2009/10/19 20:20:00";
    series.notes = "a\r\nb";
    AddEventRecord(series);
    EditOccurrence(1, Ok);
    ASSERT_EQ(Events.id.Count(), 2);
    const std::vector<TextList EventLists::*> own{
        &EventLists::id,        &EventLists::date,          &EventLists::recurrence, &EventLists::exceptions,
        &EventLists::parent_id, &EventLists::repeat_number, &EventLists::repeat_day};
    for (const Field<EventLists>& field : EventFields) {
        if (std::ranges::find(own, field.list) == own.end()) {
            EXPECT_EQ((Events.*field.list).Item(2), (Events.*field.list).Item(1)) << field.tag;
        }
    }
    EXPECT_EQ(Events.repeat_number.Item(2), "Third");
    EXPECT_EQ(Events.repeat_day.Item(2), "Wednesday");
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, OccurrenceTakesItsDayAtTheStartOfTheFlow) {
    AddEventRecord(Weekly());
    window->ClickedDate = Clicked;
    Script.answers = {Answer::No};
    WhenDialogOpens([this](QWidget*) {
        window->ClickedDate = DateValue("2009/12/24");
        Ok();
    });
    EditEvent(*window, 1);
    EXPECT_EQ(Events.exceptions.Item(1), "2009/10/21");
    EXPECT_EQ(Events.date.Item(2), "2009/10/21");
}

TEST_F(EventFlow, OccurrenceHasTheRemindersOfItsSeriesUnlessItIsRemindedItself) {
    EventTexts series = Weekly();
    series.reminder_alarm = "2009/10/26 08:30:00";
    series.reminder_list = "True";
    AddEventRecord(series);
    EditOccurrence(1, Ok);
    EXPECT_EQ(Events.reminder_alarm.Item(2), "2009/10/26 08:30:00");
    EXPECT_EQ(Events.reminder_list.Item(2), "True");
    EditOccurrence(
        1,
        [this] {
            Click(dialog->CheckboxReminder);
            Ok();
        },
        DateValue("2009/10/28"));
    EXPECT_EQ(Events.reminder_alarm.Item(3), "2009/10/28 08:30:00");
    EXPECT_EQ(Events.reminder_list.Item(3), "False");
}

TEST_F(EventFlow, MovedStartEndsTheSeriesAndDropsWhatItGaveUp) {
    AddEventRecord({.desc = "Child before", .parent_id = "2"});
    EventTexts series = Weekly();
    series.exceptions = "2009/10/21 2009/10/28";
    AddEventRecord(series);
    AddEventRecord({.desc = "Child behind", .parent_id = "2"});
    AddEventRecord({.desc = "Another's child", .parent_id = "22"});
    EditSeries(2, [this] {
        PickDate("2009/10/23");
        Ok();
    });
    EXPECT_EQ(Events.id.values, (std::vector<std::string>{"2", "4"}));
    EXPECT_EQ(Events.date.Item(1), "2009/10/23");
    EXPECT_EQ(Events.recurrence.Item(1), "None");
    EXPECT_EQ(Events.exceptions.Item(1), "");
    EXPECT_EQ(Events.repeat_daily.Item(1), "FFFFFFF");
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, NewDaysDropWhatTheSeriesGaveUpAndANewEndDoesNot) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/21";
    AddEventRecord(series);
    AddEventRecord({.desc = "Child", .parent_id = "1"});
    const auto change = [this](QAbstractButton* touched) {
        EditSeries(1, [this, touched] {
            Script.answers = {Answer::Yes};
            InRecurrence([this, touched] {
                Click(touched);
                Click(recurrence->ButtonOK);
            });
            Ok();
        });
    };
    change(recurrence->CheckboxRepeatEndDate);
    EXPECT_EQ(Events.exceptions.Item(1), "2009/10/21");
    EXPECT_EQ(Events.id.Count(), 2);
    EXPECT_EQ(Events.end.Item(1), "True");
    change(recurrence->CheckBoxFriday);
    EXPECT_EQ(Events.exceptions.Item(1), "");
    EXPECT_EQ(Events.id.Count(), 1);
    EXPECT_EQ(Events.repeat_daily.Item(1), "TFTFTFF");
    ExpectStoreIsOnDisk();
}

// --- Delete ------------------------------------------------------------------------------------------------

TEST_F(EventFlow, DeletedOccurrenceIsGivenUpAndAddsNoRecord) {
    AddEventRecord(Weekly());
    EditOccurrence(1, Delete);
    EXPECT_EQ(Events.id.Count(), 1);
    EXPECT_EQ(Events.exceptions.Item(1), "2009/10/21");
    EXPECT_EQ(Events.desc.Item(1), "Lecture");
    EXPECT_EQ(NextEventID, 2);
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, DeletedSeriesTakesItsChildrenAlong) {
    AddEventRecord({.desc = "Child before", .parent_id = "2"});
    AddEventRecord(Weekly());
    AddEventRecord({.desc = "Child", .parent_id = "2"});
    AddEventRecord({.desc = "Child", .parent_id = "2"});
    AddEventRecord({.desc = "Stays"});
    EditSeries(2, Delete);
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ((Events.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_EQ(Events.desc.Item(1), "Stays");
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, DeletedChildLeavesItsDateGivenUp) {
    EventTexts series = Weekly();
    series.exceptions = "2009/10/21";
    AddEventRecord(series);
    AddEventRecord({.desc = "Child", .parent_id = "1"});
    Edit(2, Delete);
    EXPECT_EQ(Events.id.values, std::vector<std::string>{"1"});
    EXPECT_EQ(Events.exceptions.Item(1), "2009/10/21");
    ExpectStoreIsOnDisk();
}

// --- Nothing -----------------------------------------------------------------------------------------------

TEST_F(EventFlow, CancelWritesNothing) {
    AddEventRecord(Weekly());
    const EventLists before = Events;
    const std::string written = ReadData("events.xml");
    EditSeries(1, [this] {
        Type(dialog->TextBoxEvent, "x");
        Script.answers = {Answer::Yes};
        Cancel();
    });
    EditOccurrence(1, Cancel);
    New(Cancel);
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ(Events.*field.list, before.*field.list) << field.tag;
    }
    EXPECT_FALSE(FileWrittenFlags.events);
    EXPECT_EQ(ReadData("events.xml"), written);
    EXPECT_EQ(NextEventID, 2);
}

TEST_F(EventFlow, ShutdownInBetweenWritesNothing) {
    AddEventRecord(Weekly());
    const auto shutDown = [this] {
        Type(dialog->TextBoxEvent, "x");
        ShuttingDown = true;
        dialog->hide();
    };
    New(shutDown);
    ShuttingDown = false;
    EditSeries(1, shutDown);
    ShuttingDown = false;
    EditOccurrence(1, shutDown);
    ShuttingDown = false;
    Script.answers = {Answer::No};
    Script.whileBoxIsOpen = [](const ShownBox&) { ShuttingDown = true; };
    dialog->CancelledFlag = false;
    CancelDialogsAsTheyOpen(window.get());
    EditEvent(*window, 1, Clicked);
    Script.whileBoxIsOpen = {};
    EXPECT_FALSE(dialog->CancelledFlag) << "the editor has opened";
    EXPECT_EQ(Events.id.Count(), 1);
    EXPECT_EQ(Events.desc.Item(1), "Lecture");
    EXPECT_EQ(Events.exceptions.Item(1), "");
    EXPECT_FALSE(FileWrittenFlags.events);
}

TEST_F(EventFlow, IdsThatHaveRunOutChangeNothing) {
    AddEventRecord(Weekly());
    NextEventID = 32767;
    const EventLists before = Events;
    EXPECT_THROW(New(Ok), RunTimeError);
    EXPECT_THROW(EditOccurrence(1, Ok), RunTimeError);
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ(Events.*field.list, before.*field.list) << field.tag;
    }
    EXPECT_FALSE(FileWrittenFlags.events);
}

TEST_F(EventFlow, AValueThatTheDialogCannotUseIsToldByItsPlaceInTheFile) {
    AddEventRecord({.desc = "Concert", .end = "perhaps"});
    std::string text;
    try {
        EditEvent(*window, 1, Clicked);
    } catch (const RunTimeError& error) {
        text = FaultText(error);
    }
    EXPECT_NE(text.find("File: events.xml\nRecord: 1, \"Concert\"\nField: end\nValue: \"perhaps\""),
              std::string::npos)
        << text;
}

TEST_F(EventFlow, EventBehindOneThatWasCutDoesNotMergeWithIt) {
    const std::string cut = ReadTwoEventsOfWhichOneWasCut();
    New([this] {
        Type(dialog->TextBoxEvent, "three");
        Ok();
    });
    Edit(1, [this] {
        Type(dialog->TextBoxEvent, "changed");
        Ok();
    });
    EXPECT_EQ(Events.desc.values, (std::vector<std::string>{"changed", "three"}));
    EXPECT_EQ(ReadData("Backup/events_damaged.xml"), cut);
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, EditBesideAnEventThatWasCutDropsIt) {
    const std::string cut = ReadTwoEventsOfWhichOneWasCut();
    Edit(1, [this] {
        Type(dialog->TextBoxEvent, "changed");
        Ok();
    });
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ((Events.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_EQ(ReadData("Backup/events_damaged.xml"), cut);
    ExpectStoreIsOnDisk();
}

TEST_F(EventFlow, DialogOpensBesideTheWindowOnceAndThenWhereItWasLeft) {
    window->move(100, 80);
    New([this] {
        EXPECT_EQ(dialog->pos(), QPoint(350, 130));
        dialog->move(10, 20);
        Cancel();
    });
    EXPECT_FALSE(EventDBFirstOpen);
    New([this] {
        EXPECT_EQ(dialog->pos(), QPoint(10, 20));
        Cancel();
    });
}

TEST_F(EventFlow, EachAnswerIsFollowedByTheRefreshOfANewRecord) {
    AddEventRecord(Weekly());
    const std::vector<std::function<void()>> flows{
        [this] { New(Ok); },
        [this] { EditSeries(1, Ok); },
        [this] { EditOccurrence(1, Ok); },
        [this] { EditOccurrence(1, Delete); },
        [this] { EditSeries(1, Delete); },
    };
    ShowEventMode(*window);
    window->VSGridScroll->setValue(3);
    for (const auto& flow : flows) {
        window->LabelTop->setText("stale");
        window->RefreshReason = "Calendar";
        flow();
        EXPECT_NE(window->LabelTop->text(), "stale");
        EXPECT_EQ(window->RefreshReason, "None");
        EXPECT_EQ(window->VSGridScroll->value(), 3) << "the mode was entered anew";
        ExpectStoreIsOnDisk();
    }
    window->LabelTop->setText("stale");
    New(Cancel);
    EXPECT_EQ(window->LabelTop->text(), "stale");
}
