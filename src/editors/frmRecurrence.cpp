// frmRecurrence, the dialog that sets how an event repeats.
#include "editors/frmRecurrence.h"

#include "editors/DialogLook.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/RecurrenceEntry.h"
#include "planner/rows/Colors.h"
#include "toolkit/WindowColors.h"

#include <QButtonGroup>

#include <algorithm>

namespace {

constexpr int MondayNumber = 2;

// The caption of a rule with the key that the mark names in the words which all of them have.
QString WithKey(const ScreenText& caption, const QString& marked) {
    return FromScreen(caption).replace(QStringLiteral("of every"), marked);
}

// Calls the procedure for a click, and for a choice by a screen reader, which is none.
template <class Procedure>
void OnChoice(const QRadioButton* radio, const QObject* owner, Procedure procedure) {
    QObject::connect(radio, &QRadioButton::clicked, owner, procedure);
    QObject::connect(radio, &QRadioButton::toggled, owner, [procedure](bool chosen) {
        if (chosen) {
            procedure();
        }
    });
}

} // namespace

frmRecurrence* RecurrenceDialog = nullptr;

frmRecurrence::frmRecurrence(QWidget* parent) : EditorDialog(parent) {
    setupUi(this);
    SetupDateBoxes({{TextboxRepeatEndDate, picButtonRepeatEndDate}});
    GroupKinds();
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxRepeatEndDate, picButtonRepeatEndDate,
                     [this] { return StoreRepeatEndDate; });
    BindControls();
    SetHelpTopics({{RadioRepeatNone, 881},
                   {RadioRepeatDaily, 882},
                   {RadioRepeatMonthly, 883},
                   {RadioRepeatYearly, 884},
                   {FrameDaily, 885},
                   {FrameMonthly, 886},
                   {FrameYearly, 887},
                   {CheckboxRepeatEndDate, 888},
                   {TextboxRepeatEndDate, 889},
                   {picButtonRepeatEndDate, 889},
                   {ButtonOK, 890},
                   {ButtonCancel, 891}});
}

std::vector<frmRecurrence::Kind> frmRecurrence::Kinds() const {
    const auto boxes = DayBoxes();
    return {{"None", RadioRepeatNone, FrameNone, {}},
            {"Day", RadioRepeatDaily, FrameDaily, {boxes.begin(), boxes.end()}},
            {"Month", RadioRepeatMonthly, FrameMonthly, {RadioMonthlyThisDate, RadioMonthlyUser}},
            {"Year", RadioRepeatYearly, FrameYearly, {RadioYearlyThisDate, RadioYearlyUser}}};
}

std::array<QCheckBox*, DaysPerWeek> frmRecurrence::DayBoxes() const {
    return {CheckBoxMonday, CheckBoxTuesday,  CheckBoxWednesday, CheckBoxThursday,
            CheckBoxFriday, CheckBoxSaturday, CheckBoxSunday};
}

// Without a group of their own the toolkit takes the radios of the panels for further kinds.
void frmRecurrence::GroupKinds() {
    auto* const group = new QButtonGroup(this);
    for (const Kind& kind : Kinds()) {
        group->addButton(kind.radio);
    }
}

QCheckBox* frmRecurrence::StartDayBox() const {
    const int daysFromMonday =
        (WeekdayNumber(StoreEventStartDate) - MondayNumber + DaysPerWeek) % DaysPerWeek;
    return DayBoxes()[static_cast<std::size_t>(daysFromMonday)];
}

void frmRecurrence::BindControls() {
    BindAnswers(ButtonOK, ButtonCancel);
    BeforeHide = [this] {
        if (CancelledFlag) {
            ShowState(*this);
        }
    };
    for (const Kind& kind : Kinds()) {
        OnChoice(kind.radio, this, [this] { ChooseKind(); });
    }
    for (QCheckBox* box : DayBoxes()) {
        connect(box, &QCheckBox::toggled, this, [this, box] { ToggleDay(box); });
    }
    for (const QRadioButton* radio : {RadioMonthlyThisDate, RadioMonthlyUser}) {
        OnChoice(radio, this, [this] { TouchDays(); });
    }
    for (const QRadioButton* radio : {RadioYearlyThisDate, RadioYearlyUser}) {
        OnChoice(radio, this, [this] { ChangeFlag = true; }); // meant: unlike the monthly ones no new days
    }
    connect(CheckboxRepeatEndDate, &QCheckBox::toggled, this, [this] {
        ShowEnd();
        ChangeFlag = true;
    });
    connect(Picker, &DatePicker::DatePicked, this, &frmRecurrence::TakeEndDate);
}

// --- Opening -----------------------------------------------------------------------------------------------

// Each caption has a key of its own in the dialog.
void frmRecurrence::SetEventDate(Date date) {
    StoreEventStartDate = date;
    const RecurrenceCaptions captions = CaptionsOf(date);
    RadioMonthlyThisDate->setText(WithKey(captions.RadioMonthlyThisDate, QStringLiteral("&of every")));
    RadioMonthlyUser->setText(WithKey(captions.RadioMonthlyUser, QStringLiteral("of e&very")));
    RadioYearlyThisDate->setText(WithKey(captions.RadioYearlyThisDate, QStringLiteral("of &every")));
    RadioYearlyUser->setText(WithKey(captions.RadioYearlyUser, QStringLiteral("of eve&ry")));
}

void frmRecurrence::Prepare() {
    ClearFlags(*this);
    FrmRecDeleteExFlag = false;
    static_cast<RecurrenceState&>(*this) = CurrentState();
    Picker->SetCalendarHeads(tempStartDayOfWeek);
    for (const Kind& kind : Kinds()) {
        if (kind.radio->isChecked()) {
            kind.radio->setFocus();
        }
    }
}

// --- What follows a click ----------------------------------------------------------------------------------

void frmRecurrence::ChooseKind() {
    if (filling) {
        return;
    }
    const auto boxes = DayBoxes();
    if (RadioRepeatDaily->isChecked() && std::ranges::none_of(boxes, &QCheckBox::isChecked)) {
        StartDayBox()->setChecked(true);
    }
    ShowKind();
    TouchDays();
}

// The weekday of the event's date cannot be left out.
void frmRecurrence::ToggleDay(QCheckBox* box) {
    if (filling) {
        return;
    }
    if (box == StartDayBox()) {
        box->setChecked(true);
    }
    TouchDays();
}

void frmRecurrence::TouchDays() {
    if (!filling) {
        ChangeFlag = true;
        FrmRecDeleteExFlag = true;
    }
}

void frmRecurrence::ShowKind() {
    for (const Kind& kind : Kinds()) {
        for (QWidget* input : kind.inputs) {
            input->setEnabled(kind.radio->isChecked());
        }
        if (kind.radio->isChecked()) {
            StackRecurrence->setCurrentWidget(kind.panel);
        }
    }
}

void frmRecurrence::ShowEnd() {
    const bool end = CheckboxRepeatEndDate->isChecked();
    LabelRepeatEndDate->setText(end ? QStringLiteral("End Da&te") : QStringLiteral("No End Da&te"));
    SetColor(TextboxRepeatEndDate, QPalette::Text, end ? ColorBlack : UnusedTextColor);
}

void frmRecurrence::ShowEndDate(Date date) {
    StoreRepeatEndDate = date;
    ShowText(TextboxRepeatEndDate, FromScreen(FormatDate(date, "Long Date")));
}

void frmRecurrence::TakeEndDate(Date date) {
    ShowEndDate(date);
    CheckboxRepeatEndDate->setChecked(true);
    ChangeFlag = true;
}

// --- Closing -----------------------------------------------------------------------------------------------

void frmRecurrence::accept() {
    const bool ends = CheckboxRepeatEndDate->isChecked() && !RadioRepeatNone->isChecked();
    if (ends && StoreRepeatEndDate < StoreEventStartDate) {
        AskForEntry(TextboxRepeatEndDate, "The End Date is before the Event Date.");
        return;
    }
    AcceptEditor(*this, *this);
}

bool frmRecurrence::ValidateField(const QObject* /*field*/, bool /*quiet*/) {
    return true;
}

std::string frmRecurrence::CancelQuestion() const {
    return "Cancel all changes?";
}
