// The flows of an event: asked for, entered, written.
#include "mainwindow/flows/EventFlow.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "mainwindow/flows/RecordFlow.h"
#include "mainwindow/frmMain.h"
#include "persistence/modIO.h"
#include "planner/recurrence/SeriesEdits.h"
#include "planner/recurrence/SeriesRule.h"

namespace {

constexpr std::string_view MorningTime = "9:00 AM";
constexpr std::string_view MonthlyRecurrence = "Month";
constexpr std::string_view SeriesQuestion = "This is a recurring event.\r\n\r\nClick 'Yes' to edit the "
                                            "series. Click 'No' to edit this specific event.";

// What the closed dialogs have for each field of the record but its id. Of the two rules of the recurrence
// dialog the yearly one counts for all but a monthly series.
auto EnteredFields(const frmEvent& dialog) {
    const RecurrenceState state = RecurrenceDialog->CurrentState();
    const bool monthly = dialog.tempEventRecurrence == MonthlyRecurrence;
    return std::tuple{
        EnteredField<&EventLists::date>{StoredDate(dialog.StoreEventStartDate)},
        EnteredField<&EventLists::time>{TextOf(dialog.ComboStartTime)},
        EnteredField<&EventLists::duration>{TextOf(dialog.ComboDuration)},
        EnteredField<&EventLists::desc>{TextOf(dialog.TextBoxEvent)},
        EnteredField<&EventLists::type>{dialog.tempEventType},
        EnteredField<&EventLists::recurrence>{dialog.tempEventRecurrence},
        EnteredField<&EventLists::exceptions>{dialog.tempEventExceptions},
        EnteredField<&EventLists::parent_id>{dialog.tempEventParentID},
        EnteredField<&EventLists::same_date>{
            BooleanText(monthly ? state.tempRecurMonthlySameDate : state.tempRecurYearlySameDate)},
        EnteredField<&EventLists::repeat_number>{monthly ? dialog.tempMonthlyNumber
                                                         : dialog.tempYearlyNumber},
        EnteredField<&EventLists::repeat_day>{monthly ? dialog.tempMonthlyDay : dialog.tempYearlyDay},
        EnteredField<&EventLists::repeat_daily>{DailyLetters(state)},
        EnteredField<&EventLists::end>{BooleanText(state.tempRecurRepeatEnd)},
        EnteredField<&EventLists::end_date>{StoredDate(dialog.StoreRepeatEndDate)},
        EnteredField<&EventLists::reminder>{BooleanText(dialog.CheckboxReminder->isChecked())},
        EnteredField<&EventLists::reminder_time>{TextOf(dialog.ComboReminderTime)},
        EnteredField<&EventLists::reminder_alarm>{dialog.tempEventReminderAlarm},
        EnteredField<&EventLists::reminder_list>{dialog.tempEventReminderList},
        EnteredField<&EventLists::reminder_currentday>{dialog.tempEventReminderCurrentDay},
        EnteredField<&EventLists::reminder_nextday>{dialog.tempEventReminderNextDay},
        EnteredField<&EventLists::reminder_nextalarm>{dialog.tempEventReminderNextAlarm},
        EnteredField<&EventLists::notes>{TextOf(dialog.TextBoxNotes)}};
}

// The dialog's fields that an event's record gives.
constexpr auto FilledFields = std::to_array<FilledField<frmEvent, EventLists>>({
    {&frmEvent::tempEventStartDate, &EventLists::date},
    {&frmEvent::tempEventStartTime, &EventLists::time},
    {&frmEvent::tempEventDuration, &EventLists::duration},
    {&frmEvent::tempEventDescription, &EventLists::desc},
    {&frmEvent::tempEventType, &EventLists::type},
    {&frmEvent::tempEventReminder, &EventLists::reminder},
    {&frmEvent::tempEventReminderTime, &EventLists::reminder_time},
    {&frmEvent::tempEventReminderAlarm, &EventLists::reminder_alarm},
    {&frmEvent::tempEventReminderList, &EventLists::reminder_list},
    {&frmEvent::tempEventReminderCurrentDay, &EventLists::reminder_currentday},
    {&frmEvent::tempEventReminderNextDay, &EventLists::reminder_nextday},
    {&frmEvent::tempEventReminderNextAlarm, &EventLists::reminder_nextalarm},
    {&frmEvent::tempEventRecurrence, &EventLists::recurrence},
    {&frmEvent::tempEventExceptions, &EventLists::exceptions},
    {&frmEvent::tempEventParentID, &EventLists::parent_id},
    {&frmEvent::tempEventSameDate, &EventLists::same_date},
    {&frmEvent::tempEventRepeatNumber, &EventLists::repeat_number},
    {&frmEvent::tempEventRepeatDay, &EventLists::repeat_day},
    {&frmEvent::tempEventRepeatDaily, &EventLists::repeat_daily},
    {&frmEvent::tempEventRepeatEnd, &EventLists::end},
    {&frmEvent::tempEventRepeatEndDate, &EventLists::end_date},
    {&frmEvent::tempEventNotes, &EventLists::notes},
});

static_assert(NamesAllFieldsBut(FilledFields, &FilledField<frmEvent, EventLists>::list, &EventLists::id));

// Asks whether the series or one occurrence of it is edited; an event that is no series is edited as one is.
// Gives false where the student cancels.
bool AskForSeries(frmEvent& dialog, int position) {
    dialog.EditEventSeries = true;
    dialog.EventDateDisplayString = SingleDateCaption;
    if (!IsSeries(position)) {
        return true;
    }
    const Answer answer = MsgBox(SeriesQuestion, Buttons::YesNoCancel, Icon::Information);
    if (answer == Answer::Yes) {
        dialog.EventDateDisplayString = SeriesDateCaption;
    } else {
        dialog.EditEventSeries = false;
    }
    return answer != Answer::Cancel;
}

// An occurrence is edited as an event of its own, whose series is its parent.
void TakeOccurrence(frmEvent& dialog, int position, Date day) {
    dialog.tempEventStartDate = StoredDate(day);
    dialog.tempEventRecurrence = NoRecurrence;
    dialog.tempEventExceptions.clear();
    dialog.tempEventParentID = Store.EventRecord.id.Item(position);
}

void WriteAnswer(const frmEvent& dialog, int position, Date day) {
    if (dialog.DeleteFlag && dialog.EditEventSeries) {
        RemoveSeries(position);
    } else if (dialog.DeleteFlag) {
        GiveUpOccurrence(position, day);
    } else if (dialog.EditEventSeries) {
        ReplaceEvent(position, OneRecord<EventLists>(EnteredFields(dialog)), dialog.DeleteExceptions);
    } else {
        ReplaceOccurrence(position, day, OneRecord<EventLists>(EnteredFields(dialog)));
    }
}

} // namespace

void NewEvent(frmMain& window) {
    frmEvent& dialog = *EventDialog;
    PrepareEditor(dialog, window, "New");
    dialog.EventClickedStartTime = window.EventClickedStartTime;
    dialog.tempEventExceptions.clear();
    dialog.tempEventParentID.clear();
    dialog.Fill();
    ShowDialog(dialog, EventDBFirstOpen, window);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(EventFile());
    AddEvent(OneRecord<EventLists>(EnteredFields(dialog)));
    WriteEvents();
    window.RefreshFor(ReasonNewRecord);
}

void NewMorningEvent(frmMain& window) {
    window.EventClickedStartTime = MorningTime;
    NewEvent(window);
}

void EditEvent(frmMain& window, int position, Date day) {
    frmEvent& dialog = *EventDialog;
    if (!AskForSeries(dialog, position) || ShuttingDown) {
        return;
    }
    PrepareEditor(dialog, window, "Edit");
    CopyFields(dialog, FilledFields, Store.EventRecord, position);
    if (!dialog.EditEventSeries) {
        TakeOccurrence(dialog, position, day);
    }
    FillCopied(dialog, FilledFields, Store.EventRecord, position);
    ShowDialog(dialog, EventDBFirstOpen, window);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(EventFile());
    WriteAnswer(dialog, position, day);
    WriteEvents();
    window.RefreshFor(ReasonNewRecord);
}

void EditEvent(frmMain& window, int position) {
    EditEvent(window, position, window.ClickedDate);
}
