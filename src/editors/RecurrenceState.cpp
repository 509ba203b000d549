// The state of frmRecurrence: set in its controls, read from them, and the days as a record has them.
#include "editors/frmRecurrence.h"

namespace {

constexpr char Ticked = 'T';
constexpr char NotTicked = 'F';

constexpr std::array<bool RecurrenceState::*, DaysPerWeek> RecurDays{
    &RecurrenceState::tempRecurMonday,    &RecurrenceState::tempRecurTuesday,
    &RecurrenceState::tempRecurWednesday, &RecurrenceState::tempRecurThursday,
    &RecurrenceState::tempRecurFriday,    &RecurrenceState::tempRecurSaturday,
    &RecurrenceState::tempRecurSunday};

} // namespace

std::string DailyLetters(const RecurrenceState& state) {
    std::string letters;
    for (bool RecurrenceState::*const day : RecurDays) {
        letters += state.*day ? Ticked : NotTicked;
    }
    return letters;
}

void SetDailyLetters(RecurrenceState& state, std::string_view letters) {
    for (std::size_t day = 0; day < RecurDays.size(); ++day) {
        state.*RecurDays[day] = day < letters.size() && letters[day] == Ticked;
    }
}

// --- In the controls ---------------------------------------------------------------------------------------

void frmRecurrence::ShowState(const RecurrenceState& state) {
    filling = true;
    RadioRepeatNone->setChecked(true);
    for (const Kind& kind : Kinds()) {
        if (kind.recurrence == state.tempRecurRecurrence) {
            kind.radio->setChecked(true);
        }
    }
    const auto boxes = DayBoxes();
    for (std::size_t day = 0; day < boxes.size(); ++day) {
        boxes[day]->setChecked(state.*RecurDays[day]);
    }
    (state.tempRecurMonthlySameDate ? RadioMonthlyThisDate : RadioMonthlyUser)->setChecked(true);
    (state.tempRecurYearlySameDate ? RadioYearlyThisDate : RadioYearlyUser)->setChecked(true);
    CheckboxRepeatEndDate->setChecked(state.tempRecurRepeatEnd);
    StoreRepeatEndDate = state.tempRecurStoreRepeatEndDate;
    ShowText(TextboxRepeatEndDate, FromScreen(state.tempRecurRepeatEndDate));
    ShowKind();
    ShowEnd();
    filling = false;
}

RecurrenceState frmRecurrence::CurrentState() const {
    RecurrenceState state;
    for (const Kind& kind : Kinds()) {
        if (kind.radio->isChecked()) {
            state.tempRecurRecurrence = kind.recurrence;
        }
    }
    const auto boxes = DayBoxes();
    for (std::size_t day = 0; day < boxes.size(); ++day) {
        state.*RecurDays[day] = boxes[day]->isChecked();
    }
    state.tempRecurMonthlySameDate = RadioMonthlyThisDate->isChecked();
    state.tempRecurYearlySameDate = RadioYearlyThisDate->isChecked();
    state.tempRecurRepeatEnd = CheckboxRepeatEndDate->isChecked();
    state.tempRecurRepeatEndDate = {TextboxRepeatEndDate->text().toStdString()};
    state.tempRecurStoreRepeatEndDate = StoreRepeatEndDate;
    return state;
}
