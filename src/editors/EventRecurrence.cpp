// How the event of frmEvent repeats: what frmRecurrence is given and what it gives back, and what becomes of
// a series whose date is moved.
#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "planner/entries/RecurrenceEntry.h"
#include "planner/recurrence/SeriesRule.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"
#include "toolkit/WindowColors.h"

#include <algorithm>

namespace {

constexpr QPoint RecurrenceOffset{25, 125}; // pixels from the editor's corner at the first opening
constexpr std::string_view NoDays = "FFFFFFF";

struct Status {
    std::string_view recurrence, text;
};

constexpr std::array<Status, 3> StatusTexts{{
    {"Day", "Daily"},
    {"Month", "Monthly"},
    {"Year", "Yearly"},
}};

std::string_view StatusOf(std::string_view recurrence) {
    const auto* const known = std::ranges::find(StatusTexts, recurrence, &Status::recurrence);
    return known == StatusTexts.end() ? "No" : known->text;
}

} // namespace

void frmEvent::ResetRecurrence() {
    tempEventRecurrence = NoRecurrence;
    tempEventSameDate = BooleanText(false);
    tempEventRepeatNumber = "First";
    tempEventRepeatDay = DayOfMonthText;
    tempEventRepeatDaily = NoDays;
    tempEventRepeatEnd = BooleanText(false);
    tempEventRepeatEndDate = ShortDateText(StoreEventStartDate);
    GiveRecurrence(StoreEventStartDate);
    ShowRecurrence(SingleDateCaption);
}

// Where the series has no end its end date may be any text.
void frmEvent::LoadRecurrence() {
    const Date end = IsTrue(tempEventRepeatEnd)
                         ? DateValue(tempEventRepeatEndDate)
                         : DateIn(tempEventRepeatEndDate).value_or(StoreEventStartDate);
    GiveRecurrence(end);
    ShowRecurrence(EventDateDisplayString);
}

// Sets the dialog by the fields.
void frmEvent::GiveRecurrence(Date endDate) {
    StoreRepeatEndDate = endDate;
    const bool sameDate = IsTrue(tempEventSameDate);
    RecurrenceState state{.tempRecurRecurrence = tempEventRecurrence,
                          .tempRecurMonthlySameDate = sameDate,
                          .tempRecurYearlySameDate = sameDate,
                          .tempRecurRepeatEnd = IsTrue(tempEventRepeatEnd),
                          .tempRecurRepeatEndDate = FormatDate(endDate, "Long Date"),
                          .tempRecurStoreRepeatEndDate = endDate};
    SetDailyLetters(state, tempEventRepeatDaily);
    RecurrenceDialog->ShowState(state);
    FollowDate();
}

// The rank of the date is worked out for both kinds, whichever the event has.
void frmEvent::FollowDate() {
    const RankOfDate rank = RankOf(StoreEventStartDate);
    tempMonthlyNumber = tempYearlyNumber = rank.number;
    tempMonthlyDay = tempYearlyDay = rank.day;
    RecurrenceDialog->SetEventDate(StoreEventStartDate);
}

void frmEvent::ShowRecurrence(std::string_view dateCaption) {
    LabelRecurStatus->setText(FromStore(StatusOf(tempEventRecurrence)));
    SetBackColor(PicRecurring, tempEventRecurrence == NoRecurrence ? SingleEventColor : SeriesColor);
    QString caption = FromStore(dateCaption);
    TextboxEventStartDate->setAccessibleName(caption);
    LabelDate->setText(caption.insert(caption.indexOf(QChar('a')), QChar('&')));
}

// --- The recurrence dialog ---------------------------------------------------------------------------------

void frmEvent::OpenRecurrence() {
    if (!MayChangeRecurrence()) {
        return;
    }
    frmRecurrence& dialog = *RecurrenceDialog;
    PlaceAtFirstOpen(dialog, RecurrenceDBFirstOpen, *this, RecurrenceOffset);
    dialog.tempStartDayOfWeek = tempStartDayOfWeek;
    dialog.Prepare();
    RunModally(dialog);
    if (ShuttingDown) {
        dialog.CancelledFlag = true;
        return;
    }
    TakeRecurrence();
}

bool frmEvent::MayChangeRecurrence() const {
    if (!tempEventParentID.empty()) {
        MsgBox("This event is an exception in a series of recurring events. It cannot be changed to a new "
               "recurring event.",
               Buttons::Ok, Icon::Information);
        return false;
    }
    return tempEventExceptions.empty() ||
           MsgBox("There are exceptions to this recurring event. If you make changes to the days on which "
                  "this event recurs, the exceptions will be lost.\r\n\r\nClick 'Yes' to continue.",
                  Buttons::YesNoCancel, Icon::Information) == Answer::Yes;
}

void frmEvent::TakeRecurrence() {
    const frmRecurrence& dialog = *RecurrenceDialog;
    if (!dialog.CancelledFlag && dialog.FrmRecDeleteExFlag && !tempEventExceptions.empty()) {
        DeleteExceptions = true;
    }
    tempEventRecurrence = dialog.CurrentState().tempRecurRecurrence;
    StoreRepeatEndDate = dialog.StoreRepeatEndDate;
    ShowRecurrence(tempEventRecurrence == NoRecurrence ? SingleDateCaption : SeriesDateCaption);
    ChangeFlag = true;
}

// --- A moved date ------------------------------------------------------------------------------------------

// Moving the date of a series ends the series, also where the date is the same.
void frmEvent::TakeDate(Date date) {
    ShowDate(date);
    ChangeFlag = true;
    seriesEnded = tempEventRecurrence != NoRecurrence;
    if (seriesEnded) {
        DeleteExceptions = true;
        ResetRecurrence();
        return;
    }
    FollowDate();
    if (!RecurrenceDialog->CheckboxRepeatEndDate->isChecked()) {
        StoreRepeatEndDate = date;
        RecurrenceDialog->ShowEndDate(date);
    }
}

void frmEvent::TellThatTheSeriesEnded() {
    if (seriesEnded) {
        MsgBox("This event is no longer recurring. Click the Change button to set recurrences for the new "
               "date.",
               Buttons::Ok, Icon::Information);
    }
}
