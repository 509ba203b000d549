// The controls of the small calendar: days, steppers held down, today and tomorrow, the first day of the
// week. In Reminders mode none of them reacts.
#include "core/Preferences.h"
#include "mainwindow/frmMain.h"
#include "toolkit/Modal.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"

#include <QActionGroup>

#include <algorithm>

namespace {

constexpr int RepeatMilliseconds = 300;
constexpr const char* HeadTag = "tag"; // property of a head: the full name of its day

struct Stepper {
    PictureBox* frmMain::*box;
    std::size_t entry; // of CellDate
    const char* picture;
};

constexpr std::array<Stepper, 4> Steppers{{
    {&frmMain::picCalMonthUp, MonthOnEntry, "picStashCalMonthRight"},
    {&frmMain::picCalMonthDown, MonthBackEntry, "picStashCalMonthLeft"},
    {&frmMain::picCalDayUp, DayOnEntry, "picStashCalDayRight"},
    {&frmMain::picCalDayDown, DayBackEntry, "picStashCalDayLeft"},
}};

bool IsStartDay(std::string_view day) {
    return std::ranges::find(StartDays, day) != StartDays.end();
}

// In the order of StartDays.
std::array<QAction*, StartDays.size()> StartDayItems(const frmMain& window) {
    return {window.MenuStartSun, window.MenuStartMon, window.MenuStartSat};
}

// A head that reacts to a click looks like a link.
void PaintHead(ClickLabel* head, std::string_view day, bool reacts) {
    const QString name = FromStore(day);
    head->setText(name.left(1));
    head->setProperty(HeadTag, name);
    head->setAccessibleName(name);
    head->setToolTip(reacts ? QStringLiteral("Start the week on %1").arg(name) : QString());
    DescribeAs(head, reacts ? QAccessible::Button : QAccessible::StaticText);
    head->setCursor(reacts ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QFont font = head->font();
    font.setUnderline(reacts);
    head->setFont(font);
    SetColor(head, QPalette::WindowText, reacts ? AccentColor : TextColor);
}

void ShowStepper(const frmMain& window, const Stepper& stepper, const char* state) {
    (window.*stepper.box)->ShowPicture(QLatin1String(stepper.picture) + QLatin1String(state));
}

} // namespace

void frmMain::BindCalendar() {
    TimerButton = new QTimer(this);
    TimerButton->setInterval(RepeatMilliseconds);
    connect(TimerButton, &QTimer::timeout, this, &frmMain::StepperTick);
    for (std::size_t index = 0; index < Steppers.size(); ++index) {
        const PictureBox* box = this->*Steppers[index].box;
        ShowStepper(*this, Steppers[index], "Up.svg");
        connect(box, &PictureBox::Pressed, this, [this, index](int, int, Qt::MouseButton button) {
            if (button == Qt::LeftButton) {
                PressStepper(index);
            }
        });
        connect(box, &PictureBox::Released, this, &frmMain::ReleaseStepper);
    }
    for (std::size_t cell = 0; cell < LabelCalDate.size(); ++cell) {
        connect(LabelCalDate[cell], &ClickLabel::Clicked, this, [this, cell] { GoToEntry(cell); });
    }
    connect(LabelToday, &ClickLabel::Clicked, this, [this] { GoToEntry(TodayEntry); });
    connect(LabelTomorrow, &ClickLabel::Clicked, this, [this] { GoToEntry(TomorrowEntry); });
    for (ClickLabel* head : LabelCalDay) {
        connect(head, &ClickLabel::Clicked, this, [this, head] {
            const std::string day = ToStore(head->property(HeadTag).toString());
            if (!MenuReminders->isChecked() && IsStartDay(day)) {
                ChooseStartDayOfWeek(day);
            }
        });
    }
    auto* startDays = new QActionGroup(this); // one of them is checked at a time
    const std::array items = StartDayItems(*this);
    for (std::size_t i = 0; i < items.size(); ++i) {
        startDays->addAction(items[i]);
        connect(items[i], &QAction::triggered, this,
                [this, i] { ChooseStartDayOfWeek(std::string(StartDays[i])); });
    }
}

void frmMain::PressStepper(std::size_t index) {
    if (MenuReminders->isChecked()) {
        return;
    }
    ShowStepper(*this, Steppers[index], "Down.svg");
    StepperHeld = true;
    HeldStepper = index;
    GoToEntry(Steppers[index].entry);
    TimerButton->start();
}

void frmMain::StepperTick() {
    if (!StepperHeld) {
        return;
    }
    if (ModalDialogIsOpen() || !isVisible()) { // the release of the button is not told to this window
        ReleaseStepper();
        return;
    }
    GoToEntry(Steppers[HeldStepper].entry);
}

void frmMain::ReleaseStepper() {
    StepperHeld = false;
    TimerButton->stop();
    ShowStepper(*this, Steppers[HeldStepper], "Up.svg");
}

void frmMain::GoToEntry(std::size_t entry) {
    if (!MenuReminders->isChecked()) {
        GoToDate(Month.CellDate[entry]);
    }
}

void frmMain::GoToDate(Date date) {
    ClickedDate = date;
    RefreshFor(ReasonCalendar);
}

void frmMain::ChooseStartDayOfWeek(const std::string& day) {
    if (day != StartDayOfWeek) {
        StartDayOfWeek = day;
        ApplyStartDayOfWeek();
    }
}

void frmMain::ApplyStartDayOfWeek() {
    const std::array<std::string_view, DaysPerWeek> heads = WeekdayHeads(StartDayOfWeek);
    for (std::size_t column = 0; column < heads.size(); ++column) {
        const bool first = heads[column] == StartDayOfWeek;
        PaintHead(LabelCalDay[column], heads[column], IsStartDay(heads[column]) && !first);
    }
    const std::array items = StartDayItems(*this);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]->setChecked(StartDays[i] == StartDayOfWeek);
    }
    RefreshFor(ReasonStartDayOfWeek);
}
