// frmRecurrence, the dialog that sets how an event repeats. The event editor opens it, sets its controls
// before and reads them afterwards; its controls are all that it keeps.
#pragma once

#include "editors/EditorDialog.h"
#include "editors/picker/DatePicker.h"

#include "ui_frmRecurrence.h"

#include <array>

// What the controls say; the dialog remembers it as it comes up, for Cancel to put back. RecurrenceState.cpp
// sets the controls by it and reads it from them.
struct RecurrenceState {
    std::string tempRecurRecurrence; // "Day", "Month" or "Year"; any other text counts as "None"
    bool tempRecurMonthlySameDate = false;
    bool tempRecurYearlySameDate = false;
    bool tempRecurRepeatEnd = false;
    ScreenText tempRecurRepeatEndDate; // as its box shows it
    Date tempRecurStoreRepeatEndDate{};
    bool tempRecurMonday = false; // the ticked days
    bool tempRecurTuesday = false;
    bool tempRecurWednesday = false;
    bool tempRecurThursday = false;
    bool tempRecurFriday = false;
    bool tempRecurSaturday = false;
    bool tempRecurSunday = false;
};

// The days as `repeat_daily` has them: a letter for each from Monday to Sunday, "T" for a ticked one. A text
// that is too short leaves the later days out.
std::string DailyLetters(const RecurrenceState& state);
void SetDailyLetters(RecurrenceState& state, std::string_view letters);

class frmRecurrence : public EditorDialog, public RecurrenceState, public Ui::frmRecurrence {
    Q_OBJECT

public:
    explicit frmRecurrence(QWidget* parent);

    // Sets the controls, which counts as no change.
    void ShowState(const RecurrenceState& state);
    RecurrenceState CurrentState() const;

    // Shows the end date, ticked or not.
    void ShowEndDate(Date date);

    // Takes the date of the event: the captions of the rules, and the weekday that cannot be left out.
    void SetEventDate(Date date);

    // Forgets the last opening and remembers the state; to be called before each opening.
    void Prepare();

    bool FrmRecDeleteExFlag = false; // the kind or the days were touched, on which the event happens
    Date StoreEventStartDate{};
    Date StoreRepeatEndDate{};
    DatePicker* Picker = nullptr;

    void accept() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;

private:
    // A kind of recurrence: its radio, its panel, and what is in use while it is chosen.
    struct Kind {
        std::string_view recurrence;
        QRadioButton* radio;
        QWidget* panel;
        std::vector<QWidget*> inputs;
    };

    std::vector<Kind> Kinds() const;

    // From Monday to Sunday.
    std::array<QCheckBox*, DaysPerWeek> DayBoxes() const;

    QCheckBox* StartDayBox() const;

    void GroupKinds();
    void BindControls();
    void ChooseKind();
    void ToggleDay(QCheckBox* box);
    void TouchDays();
    void ShowKind();
    void ShowEnd();
    void TakeEndDate(Date date);

    bool filling = false; // the program sets the controls, which are no clicks
};

// The one dialog, from the load of the main window on, which owns it.
extern frmRecurrence* RecurrenceDialog;
