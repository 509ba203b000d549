// frmEvent, the dialog in which an event, a series or one of its occurrences is created, changed or deleted.
// It never touches the store: NewEvent and EditEvent of the main window fill its fields, show it, read its
// controls and those of frmRecurrence, and write the record.
#pragma once

#include "editors/EditorDialog.h"
#include "editors/picker/DatePicker.h"

#include "ui_frmEvent.h"

// The caption of the date: of an event that happens once, and of a series.
inline constexpr std::string_view SingleDateCaption = "Date";
inline constexpr std::string_view SeriesDateCaption = "Start Date of the Series";

class frmEvent : public EditorDialog, public Ui::frmEvent {
    Q_OBJECT

public:
    // Has no control yet.
    explicit frmEvent(QWidget* parent);

    // Makes the controls, once; the first filling does, so that the start does not wait for them.
    void MakeControls();

    // Fills all controls and those of frmRecurrence, for "New" from tempClickedDate and
    // EventClickedStartTime, for "Edit" from the fields; to be called before each opening. Raises the
    // run-time error where a field holds no date or neither "True" nor "False".
    void Fill();

    std::string tempEventStartDate; // only carries the date in; StoreEventStartDate is the one that is saved
    std::string tempEventStartTime;
    std::string tempEventDuration;
    std::string tempEventDescription;
    std::string tempEventType;     // the key of a type or the link to a class, not the shown text
    std::string tempEventReminder; // "True" or "False", like the other yes and no fields
    std::string tempEventReminderTime;
    std::string tempEventReminderAlarm; // the stored form of a moment
    std::string tempEventReminderList;
    std::string tempEventReminderCurrentDay;
    std::string tempEventReminderNextDay;
    std::string tempEventReminderNextAlarm;
    std::string tempEventRecurrence;
    std::string tempEventExceptions;
    std::string tempEventParentID; // empty for an event that belongs to no series
    std::string tempEventSameDate;
    std::string tempEventRepeatNumber;
    std::string tempEventRepeatDay;
    std::string tempEventRepeatDaily;
    std::string tempEventRepeatEnd;
    std::string tempEventRepeatEndDate;
    std::string tempEventNotes;
    std::string tempMonthlyNumber, tempMonthlyDay; // rank of the date, as a monthly and as a yearly series
    std::string tempYearlyNumber, tempYearlyDay;   // would store it
    Date StoreEventStartDate{};
    Date StoreEventEndDate{}; // carried without a meaning
    Date StoreRepeatEndDate{};
    std::string EventClickedStartTime;  // of a new event
    std::string EventDateDisplayString; // caption of the date of an event that is edited
    bool EditEventSeries = true;        // false for one occurrence of a series
    bool DeleteExceptions = false;      // the days of the series have changed, so what it gave up is void

    DatePicker* Picker = nullptr;

    void accept() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;

private:
    void SetupControls();
    void SetTopics();
    void BindControls();
    ReminderStrip Reminder() const;
    void FillNew();
    void FillEdit();
    void ShowType();
    void ShowDate(Date date);
    void CheckDayLimit();
    void ArmReminder();

    // --- EventRecurrence.cpp: how the event repeats ---
    void ResetRecurrence();
    void LoadRecurrence();
    void OpenRecurrence();
    bool MayChangeRecurrence() const;
    void TakeRecurrence();
    void GiveRecurrence(Date endDate);
    void ShowRecurrence(std::string_view dateCaption);
    void FollowDate();
    void TakeDate(Date date);
    void TellThatTheSeriesEnded();

    bool seriesEnded = false; // by the date just picked
};

// The one dialog, from the load of the main window on, which owns it.
extern frmEvent* EventDialog;
