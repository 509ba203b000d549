// How the panel of the date picker is put together.
#include "editors/picker/DatePicker.h"
#include "toolkit/WindowColors.h"

#include <QGridLayout>

namespace {

constexpr int PanelWidth = 204;
constexpr int PanelPadding = 3;
constexpr QSize MonthButtonSize{20, 20};
constexpr QSize DayButtonSize{80, 22};
constexpr int RepeatMilliseconds = 300;
constexpr int GuardMilliseconds = 100;

void SetGround(QWidget* widget, int ground, int edge) {
    SetColor(widget, QPalette::Window, ground);
    SetColor(widget, QPalette::WindowText, edge);
    widget->setAutoFillBackground(true);
}

} // namespace

void DatePicker::SetupCalendar() {
    setObjectName(QStringLiteral("picCalendar"));
    setFrameShape(QFrame::Box);
    setFocusPolicy(Qt::ClickFocus);
    setFixedWidth(PanelWidth);
    SetGround(this, SurfaceColor, AccentColor);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(PanelPadding, PanelPadding, PanelPadding, PanelPadding);
    grid->setSpacing(1);
    grid->addWidget(BuildMonthName(), 0, 0, 1, DaysPerWeek);
    LabelCalDayBG = new QFrame;
    SetGround(LabelCalDayBG, PanelColor, EdgeColor);
    grid->addWidget(LabelCalDayBG, 1, 0, 1, DaysPerWeek);
    BuildDayLabels(grid, 1, LabelCalDay, LabelCalDate);
    for (ClickLabel* head : LabelCalDay) {
        SetLabelForeColor(head, TextColor); // the panel's own is that of its edge
    }
    LabelCalTileBorder = new TileBorder(this);
    auto* buttons = new QHBoxLayout;
    picToday = DayButton("Today", DayButtonSize, LabelToday);
    picTomorrow = DayButton("Tomorrow", DayButtonSize, LabelTomorrow);
    buttons->addWidget(picToday);
    buttons->addWidget(picTomorrow);
    grid->addLayout(buttons, 2 + MonthCells / DaysPerWeek, 0, 1, DaysPerWeek);

    for (std::size_t index = 0; index < LabelCalDate.size(); ++index) {
        connect(LabelCalDate[index], &ClickLabel::Clicked, this, [this, index] { Pick(Cells[index].date); });
    }
    connect(LabelToday, &ClickLabel::Clicked, this, [this] { Pick(TodayDate); });
    connect(LabelTomorrow, &ClickLabel::Clicked, this, [this] { Pick(TomorrowDate); });
    SetupTimers();
    ReleaseMonthButton();
}

QWidget* DatePicker::BuildMonthName() {
    picCalMonthName = new QWidget;
    auto* row = new QHBoxLayout(picCalMonthName);
    row->setContentsMargins(0, 0, 0, 0);
    picCalMonthDown = BuildMonthButton(LabelCalMonthDown, false);
    picCalMonthUp = BuildMonthButton(LabelCalMonthUp, true);
    LabelMonth = CentredLabel({DayFont.face, DayFont.points, true});
    SetLabelForeColor(LabelMonth, TextColor);
    row->addWidget(picCalMonthDown);
    row->addWidget(LabelMonth, 1);
    row->addWidget(picCalMonthUp);
    return picCalMonthName;
}

PictureBox* DatePicker::BuildMonthButton(ClickLabel*& label, bool up) {
    PictureBox* button = DayButton("", MonthButtonSize, label);
    label->setAccessibleName(up ? QStringLiteral("One month on") : QStringLiteral("One month back"));
    connect(label, &ClickLabel::Pressed, this, [this, up](Qt::MouseButton mouseButton) {
        if (mouseButton == Qt::LeftButton) {
            PressMonthButton(up);
        }
    });
    connect(label, &ClickLabel::Released, this, &DatePicker::ReleaseMonthButton);
    return button;
}

void DatePicker::SetupTimers() {
    TimerButton = new QTimer(this);
    TimerButton->setInterval(RepeatMilliseconds);
    connect(TimerButton, &QTimer::timeout, this, [this] {
        if (!MouseUpFlag) {
            StepMonth();
        }
    });
    TimerCalendar = new QTimer(this);
    TimerCalendar->setInterval(GuardMilliseconds);
    connect(TimerCalendar, &QTimer::timeout, this, [this] {
        CalendarOpen = false;
        TimerCalendar->stop();
    });
}
