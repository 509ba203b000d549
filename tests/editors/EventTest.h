// The tests of the editor of events and of its recurrence dialog: opened on a record's texts without their
// flow.
#pragma once

#include "core/DateText.h"
#include "editors/EditorTest.h"
#include "support/EventRecords.h"

class EventTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        dialog = EventDialog;
        recurrence = RecurrenceDialog;
    }

    // On the clicked day, Tuesday 20 October 2009, at half past two.
    void OpenNew() {
        dialog->EventClickedStartTime = "2:30 PM";
        dialog->tempEventExceptions.clear();
        dialog->tempEventParentID.clear();
        Open(*dialog, "New");
    }

    void OpenEdit(const EventTexts& record, std::string_view dateCaption = SingleDateCaption);

    // Acts in the recurrence dialog, which the button opens, until it closes.
    void InRecurrence(const std::function<void()>& act) {
        WhenDialogOpens([this, act](QWidget*) {
            act();
            ExpectClosed(*recurrence);
        });
        Click(dialog->ButtonOpenRecur);
    }

    // By a press on the button of the date and on the day of the month that opens.
    void PickDate(const char* date) { PickDay(*dialog->Picker, dialog->picButtonEventStartDate, date); }

    void PickEndDate(const char* date) {
        PickDay(*recurrence->Picker, recurrence->picButtonRepeatEndDate, date);
    }

    // A dialog that has stayed open would hold what waits for it for ever.
    static void ExpectClosed(QDialog& left) {
        if (left.isVisible()) {
            ADD_FAILURE() << left.objectName().toStdString() << " has stayed open";
            left.close();
        }
    }

    // A weekly series of study on Mondays and Wednesdays from Monday 19 October 2009 on.
    static EventTexts Weekly() {
        return {.date = "2009/10/19",
                .desc = "Lecture",
                .recurrence = "Day",
                .repeat_daily = "TFTFFFF",
                .end_date = "2009/10/19"};
    }

    frmEvent* dialog = nullptr;
    frmRecurrence* recurrence = nullptr;

private:
    static void PickDay(DatePicker& picker, QWidget* button, const char* date);
};

inline void EventTest::PickDay(DatePicker& picker, QWidget* button, const char* date) {
    FireTimer(picker.TimerCalendar);
    Click(button);
    for (std::size_t cell = 0; cell < picker.Cells.size(); ++cell) {
        if (picker.Cells[cell].date == DateValue(date)) {
            return Click(picker.LabelCalDate[cell]);
        }
    }
    ADD_FAILURE() << date << " is not on the panel";
}

inline void EventTest::OpenEdit(const EventTexts& record, std::string_view dateCaption) {
    dialog->tempEventStartDate = record.date;
    dialog->tempEventStartTime = record.time;
    dialog->tempEventDuration = record.duration;
    dialog->tempEventDescription = record.desc;
    dialog->tempEventType = record.type;
    dialog->tempEventReminder = record.reminder;
    dialog->tempEventReminderTime = record.reminder_time;
    dialog->tempEventReminderAlarm = record.reminder_alarm;
    dialog->tempEventReminderList = record.reminder_list;
    dialog->tempEventReminderCurrentDay = record.reminder_currentday;
    dialog->tempEventReminderNextDay = record.reminder_nextday;
    dialog->tempEventReminderNextAlarm = record.reminder_nextalarm;
    dialog->tempEventRecurrence = record.recurrence;
    dialog->tempEventExceptions = record.exceptions;
    dialog->tempEventParentID = record.parent_id;
    dialog->tempEventSameDate = record.same_date;
    dialog->tempEventRepeatNumber = record.repeat_number;
    dialog->tempEventRepeatDay = record.repeat_day;
    dialog->tempEventRepeatDaily = record.repeat_daily;
    dialog->tempEventRepeatEnd = record.end;
    dialog->tempEventRepeatEndDate = record.end_date;
    dialog->tempEventNotes = record.notes;
    dialog->EventDateDisplayString = dateCaption;
    Open(*dialog, "Edit");
}
