// The controls of the small calendar: days, steppers held down, today and tomorrow, the first day of the
// week. In Reminders mode none of them reacts.
#include "mainwindow/panels/CalendarSteps.h"

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

// Asks for the date of an entry of CellDate.
void GoToEntry(frmMain& window, std::size_t entry) {
    if (!window.MenuReminders->isChecked()) {
        emit window.Asked({.kind = ViewActionKind::GoToDate, .date = window.Month.CellDate[entry]});
    }
}

void AskForStartDay(frmMain& window, std::string_view day) {
    emit window.Asked({.kind = ViewActionKind::ChooseStartDay, .words = std::string(day)});
}

// --- The steppers, which repeat while they are held ---

void PressStepper(frmMain& window, std::size_t index) {
    if (window.MenuReminders->isChecked()) {
        return;
    }
    ShowStepper(window, Steppers[index], "Down.svg");
    window.StepperHeld = true;
    window.HeldStepper = index;
    GoToEntry(window, Steppers[index].entry);
    window.TimerButton->start();
}

void ReleaseStepper(frmMain& window) {
    window.StepperHeld = false;
    window.TimerButton->stop();
    ShowStepper(window, Steppers[window.HeldStepper], "Up.svg");
}

void StepperTick(frmMain& window) {
    if (!window.StepperHeld) {
        return;
    }
    if (ModalDialogIsOpen() || !window.isVisible()) { // the release of the button is not told to this window
        ReleaseStepper(window);
        return;
    }
    GoToEntry(window, Steppers[window.HeldStepper].entry);
}

void BindSteppers(frmMain& window) {
    window.TimerButton = new QTimer(&window);
    window.TimerButton->setInterval(RepeatMilliseconds);
    QObject::connect(window.TimerButton, &QTimer::timeout, &window, [&window] { StepperTick(window); });
    for (std::size_t index = 0; index < Steppers.size(); ++index) {
        const PictureBox* box = window.*Steppers[index].box;
        ShowStepper(window, Steppers[index], "Up.svg");
        QObject::connect(box, &PictureBox::Pressed, &window,
                         [&window, index](int, int, Qt::MouseButton button) {
                             if (button == Qt::LeftButton) {
                                 PressStepper(window, index);
                             }
                         });
        QObject::connect(box, &PictureBox::Released, &window, [&window] { ReleaseStepper(window); });
    }
}

void BindDay(frmMain& window, const ClickLabel* label, std::size_t entry) {
    QObject::connect(label, &ClickLabel::Clicked, &window, [&window, entry] { GoToEntry(window, entry); });
}

void BindStartDays(frmMain& window) {
    for (ClickLabel* head : window.LabelCalDay) {
        QObject::connect(head, &ClickLabel::Clicked, &window, [&window, head] {
            const std::string day = ToStore(head->property(HeadTag).toString());
            if (!window.MenuReminders->isChecked() && IsStartDay(day)) {
                AskForStartDay(window, day);
            }
        });
    }
    auto* startDays = new QActionGroup(&window); // one of them is checked at a time
    const std::array items = StartDayItems(window);
    for (std::size_t i = 0; i < items.size(); ++i) {
        startDays->addAction(items[i]);
        QObject::connect(items[i], &QAction::triggered, &window,
                         [&window, i] { AskForStartDay(window, StartDays[i]); });
    }
}

} // namespace

void BindCalendar(frmMain& window) {
    BindSteppers(window);
    for (std::size_t cell = 0; cell < window.LabelCalDate.size(); ++cell) {
        BindDay(window, window.LabelCalDate[cell], cell);
    }
    BindDay(window, window.LabelToday, TodayEntry);
    BindDay(window, window.LabelTomorrow, TomorrowEntry);
    BindStartDays(window);
}

void ShowStartDayOfWeek(frmMain& window) {
    const std::array<std::string_view, DaysPerWeek> heads = WeekdayHeads(window.StartDayOfWeek);
    for (std::size_t column = 0; column < heads.size(); ++column) {
        const bool first = heads[column] == window.StartDayOfWeek;
        PaintHead(window.LabelCalDay[column], heads[column], IsStartDay(heads[column]) && !first);
    }
    const std::array items = StartDayItems(window);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]->setChecked(StartDays[i] == window.StartDayOfWeek);
    }
}
