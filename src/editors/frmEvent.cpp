// frmEvent, the dialog in which an event, a series or one of its occurrences is created, changed or deleted.
#include "editors/frmEvent.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/DurationEntry.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/entries/TypeEntry.h"
#include "planner/recurrence/EventWalk.h"
#include "planner/rows/ClassLink.h"

namespace {

constexpr std::string_view ItemName = "Event";
constexpr std::string_view NewDuration = "30 Minutes";
constexpr std::string_view NewLeadTime = "30 Minutes";
constexpr std::string_view DayLimitNote =
    "Note: Events are limited to one day. Events that go beyond midnight do not appear in the next day's "
    "schedule.";

} // namespace

frmEvent* EventDialog = nullptr;

frmEvent::frmEvent(QWidget* parent) : EditorDialog(parent), Ui::frmEvent() {
}

void frmEvent::MakeControls() {
    if (ButtonOK != nullptr) {
        return;
    }
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
}

ReminderStrip frmEvent::Reminder() const {
    return {CheckboxReminder, LabelRemBG, LabelRemBG2, {LabelRemTime}, {ComboReminderTime}};
}

void frmEvent::SetupControls() {
    LimitToSet(TextBoxEvent);
    LimitToSet(TextBoxNotes);
    KeepLinesOfField(TextBoxNotes, "notes");
    SetupTypedCombo(ComboStartTime, TimeOfDayRows());
    SetupTypedCombo(ComboDuration, DurationRows);
    SetupTypedCombo(ComboReminderTime, LeadTimeRows);
    SetupReminder(Reminder());
    SetupDateBoxes({{TextboxEventStartDate, picButtonEventStartDate}});
    SetupNames(ComboType);
    SetupSeparators(ComboType);
    SetupHelpButton(picHelp);
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxEventStartDate, picButtonEventStartDate,
                     [this] { return StoreEventStartDate; });
}

void frmEvent::SetTopics() {
    SetHelpTopics({{ButtonCancel, 501},
                   {ButtonDelete, 502},
                   {ButtonOK, 503},
                   {ButtonOpenRecur, 504},
                   {CheckboxReminder, 505},
                   {ComboDuration, 506},
                   {ComboReminderTime, 507},
                   {ComboStartTime, 508},
                   {ComboType, 509},
                   {LabelRecur, 510},
                   {LabelRecurStatus, 511},
                   {TextBoxEvent, 512},
                   {TextBoxNotes, 513},
                   {TextboxEventStartDate, 514},
                   {picButtonEventStartDate, 515},
                   {picHelp, 516}});
}

void frmEvent::BindControls() {
    BindAnswers(ButtonOK, ButtonCancel);
    BindDelete(ButtonDelete, ItemName);
    BeforeHide = [this] {
        if (DeleteFlag) {
            ShowText(TextBoxEvent, DeletedRecord);
        }
    };
    WatchEntries(ButtonCancel, {ComboStartTime, ComboDuration, ComboReminderTime});
    const auto changed = [this] { ChangeFlag = true; };
    connect(TextBoxEvent, &QLineEdit::textChanged, this, changed);
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(ComboDuration, &QComboBox::editTextChanged, this, changed);
    for (const QComboBox* combo : {ComboType, ComboStartTime, ComboDuration, ComboReminderTime}) {
        connect(combo, &QComboBox::activated, this, changed);
    }
    connect(CheckboxReminder, &QCheckBox::toggled, this, [this] {
        PaintReminder(Reminder());
        ChangeFlag = true;
    });
    connect(ButtonOpenRecur, &QPushButton::clicked, this, &frmEvent::OpenRecurrence);
    connect(Picker, &DatePicker::DatePicked, this, &frmEvent::TakeDate);
    connect(Picker, &DatePicker::PickClosed, this, &frmEvent::TellThatTheSeriesEnded);
}

// --- Opening -----------------------------------------------------------------------------------------------

void frmEvent::Fill() {
    MakeControls();
    DeleteExceptions = false;
    ComboType->clear();
    AddRows(ComboType, EventTypeRows());
    MarkSeparators(ComboType, FromStore(SeparatorRow));
    if (EditMode == "New") {
        FillNew();
    } else {
        FillEdit();
    }
    StoreEventEndDate = StoreEventStartDate;
    PaintReminder(Reminder());
    Picker->SetCalendarHeads(tempStartDayOfWeek);
    TextBoxEvent->setFocus();
    ClearFlags(*this);
}

void frmEvent::FillNew() {
    setWindowTitle(QStringLiteral("Planovarium - New Event"));
    ShowText(TextBoxEvent, std::string_view());
    TextBoxNotes->clear();
    ShowComboText(ComboStartTime, EventClickedStartTime);
    ShowComboText(ComboDuration, NewDuration);
    ShowComboText(ComboReminderTime, NewLeadTime);
    tempEventType = NoType;
    ShowType();
    ShowDate(tempClickedDate);
    CheckboxReminder->setChecked(false);
    tempEventReminderList = BooleanText(false);
    ResetRecurrence();
    ButtonDelete->setEnabled(false);
}

void frmEvent::FillEdit() {
    setWindowTitle(QStringLiteral("Planovarium - Edit Event"));
    ShowText(TextBoxEvent, tempEventDescription);
    TextBoxNotes->setPlainText(FromStore(tempEventNotes));
    ShowComboText(ComboStartTime, tempEventStartTime);
    ShowComboText(ComboDuration, tempEventDuration);
    ShowComboText(ComboReminderTime, tempEventReminderTime);
    ShowType();
    ShowDate(DateValue(tempEventStartDate));
    CheckboxReminder->setChecked(LeadDays(tempEventReminder) > 0 || IsTrue(tempEventReminder));
    LoadRecurrence();
    ButtonDelete->setEnabled(true);
}

// A class of another term is shown and no row, so that it stays the event's class until another row is
// chosen.
void frmEvent::ShowType() {
    const std::string shown = ShownEventType(tempEventType);
    const auto link = ClassLinkIn(tempEventType);
    const bool isRow = !shown.empty() && (!link || link->term == ActiveTermID);
    ComboType->setCurrentIndex(isRow ? ComboType->findText(FromStore(shown)) : -1);
    ComboType->setPlaceholderText(FromStore(isRow ? std::string() : shown));
}

void frmEvent::ShowDate(Date date) {
    StoreEventStartDate = date;
    ShowText(TextboxEventStartDate, FromScreen(FormatDate(date, "Long Date")));
}

// --- The end of an entry -----------------------------------------------------------------------------------

bool frmEvent::ValidateField(const QObject* field, bool quiet) {
    if (field == ComboStartTime) {
        ShowComboText(ComboStartTime, ValidateTime(TextOf(ComboStartTime)));
    } else if (field == ComboDuration) {
        ShowComboText(ComboDuration, ValidateDuration(TextOf(ComboDuration), EventDuration));
    } else if (field == ComboReminderTime) {
        ShowComboText(ComboReminderTime, ValidateDuration(TextOf(ComboReminderTime), LeadTime));
    } else {
        return true;
    }
    ChangeFlag = true;
    if (field != ComboReminderTime && !quiet) {
        CheckDayLimit();
    }
    return true;
}

// Only informs, so what was pressed to leave the field is pressed.
void frmEvent::CheckDayLimit() {
    if (PassesMidnight(TextOf(ComboStartTime), TextOf(ComboDuration))) {
        MsgBox(DayLimitNote, Buttons::Ok, Icon::Information);
        FinishPress(*this);
    }
}

// --- Closing -----------------------------------------------------------------------------------------------

// Nothing is required of an event. A field that still has the focus is validated first, as it would be in
// losing it.
void frmEvent::accept() {
    ValidateField(focusWidget(), false);
    if (ComboType->currentIndex() >= 0) {
        tempEventType = ResolveEventType(TextOf(ComboType), tempEventType);
    }
    if (EditMode == "New" || CheckboxReminder->isChecked()) {
        ArmReminder();
    }
    AcceptEditor(*this, *this);
}

void frmEvent::ArmReminder() {
    const EventReminderFields fields =
        SetEventReminder(StoreEventStartDate, TextOf(ComboStartTime), TextOf(ComboReminderTime));
    tempEventReminderAlarm = fields.reminder_alarm;
    tempEventReminderList = fields.reminder_list;
    tempEventReminderCurrentDay = fields.reminder_currentday;
    tempEventReminderNextDay = fields.reminder_nextday;
    tempEventReminderNextAlarm = fields.reminder_nextalarm;
}

std::string frmEvent::CancelQuestion() const {
    return ::CancelQuestion(*this, ItemName);
}
