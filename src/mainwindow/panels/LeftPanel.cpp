// The left panel: the small calendar, the buttons for new records, the panels of the modes, the alerts, the
// timer.
#include "mainwindow/panels/LeftPanel.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "planner/rows/Colors.h"
#include "toolkit/ElidedLabel.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"
#include "toolkit/WindowStyle.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr int StepperSize = 20;
constexpr int HeadsRow = 1; // of the small calendar: under the month's name
constexpr int TodayRow = HeadsRow + 1 + MonthCells / DaysPerWeek;
constexpr int TodayHeight = 22;
constexpr int GapAboveToday = 3;
constexpr int SmallButtonHeight = 26;
constexpr int SmallIcon = 18;
constexpr int PanelGap = 5;
constexpr int LeastComboCharacters = 8;
constexpr int CounterBoxWidth = 58;
constexpr int CounterBoxHeight = 19;
constexpr int AlertHeight = 21;
constexpr int AlertGap = 2;
constexpr QSize TimeSize{76, 18};
constexpr int TimerButtonWidth = 26;
constexpr int TimerButtonHeight = 24;
constexpr int LockSize = 32;
constexpr int LockGround = 44; // edge of the square behind the lock

QLabel* PlainLabel(const QString& text = {}) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// A panel with a ground and an edge of its own.
QFrame* Panel() {
    auto* panel = new QFrame;
    panel->setFrameShape(QFrame::NoFrame);
    panel->setAutoFillBackground(true);
    SetColor(panel, QPalette::Window, PanelColor);
    return panel;
}

// A box that shows a number; it cannot be typed into.
QLineEdit* NumberBox(const QString& name = {}) {
    auto* box = new QLineEdit;
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setAlignment(Qt::AlignCenter);
    box->setFixedSize(CounterBoxWidth, CounterBoxHeight);
    box->setAccessibleName(name);
    return box;
}

QString WithoutColon(std::string_view label) {
    return FromStore(label.substr(0, label.find(':')));
}

QToolButton* SmallNewButton(const char* picture, const QAction* item) {
    auto* button = new QToolButton;
    button->setIcon(ProgramIcon(QLatin1String(picture)));
    button->setIconSize({SmallIcon, SmallIcon});
    button->setFixedHeight(SmallButtonHeight);
    const QString name = WithoutMnemonics(item->text());
    button->setText(name);
    button->setToolTip(TipWithKey(name, item->shortcut()));
    button->setAccessibleName(name);
    return button;
}

QPushButton* IconButton(const char* picture, const char* name) {
    auto* button = new QPushButton(ProgramIcon(QLatin1String(picture)), QString());
    button->setFixedSize(TimerButtonWidth, TimerButtonHeight);
    button->setToolTip(QLatin1String(name));
    button->setAccessibleName(QLatin1String(name));
    return button;
}

// The cover of a calendar that does not react: its days are seen, and a lock before them.
void PaintLock(PictureBox* cover) {
    const auto inset = [cover](int size) {
        const int pixels = size * UnitsPerPixel;
        return UnitRect{(cover->WidthInUnits() - pixels) / 2, (cover->HeightInUnits() - pixels) / 2, pixels,
                        pixels};
    };
    const UnitRect ground = inset(LockGround);
    const UnitRect lock = inset(LockSize);
    cover->Clear(NoColor);
    cover->FillRectangle(ground.left, ground.top, ground.width, ground.height, ColorAll);
    cover->DrawPicture(lock.left, lock.top, lock.width, lock.height, QStringLiteral("picLock.svg"));
}

// An alert is calm, and yet the one thing in the panel that is red.
QString AlertButtonStyle() {
    return QStringLiteral("QPushButton { text-align: left; padding: 2px 6px; color: %1; background: %2;"
                          " border: 1px solid %3; border-radius: 4px; }"
                          "QPushButton:hover, QPushButton:pressed { background: %3; }"
                          "QPushButton:focus { border: 1px solid %4; }")
        .arg(ToQColor(AlertColor).name(), ToQColor(AlertGroundColor).name(), ToQColor(AlertEdgeColor).name(),
             ToQColor(AccentColor).name());
}

QWidget* BuildSmallCalendar(frmMain& window) {
    QFrame* ground = Panel(); // white, as are the days that nothing marks, so that a marked one stands out
    SetColor(ground, QPalette::Window, ColorCell);
    window.PictureBoxCalendar = ground;
    auto* grid = new QGridLayout(window.PictureBoxCalendar);
    grid->setContentsMargins(2, 2, 2, 2);
    grid->setSpacing(1);

    auto* head = new QHBoxLayout;
    window.picCalMonthDown = PictureButton(StepperSize, "One month back", Qt::CTRL | Qt::Key_PageUp);
    window.picCalMonthUp = PictureButton(StepperSize, "One month on", Qt::CTRL | Qt::Key_PageDown);
    window.LabelMonth = CentredLabel({DayFont.face, DayFont.points, true});
    head->addWidget(window.picCalMonthDown);
    head->addWidget(window.LabelMonth, 1);
    head->addWidget(window.picCalMonthUp);
    grid->addLayout(head, 0, 0, 1, DaysPerWeek);

    BuildDayLabels(grid, HeadsRow, window.LabelCalDay, window.LabelCalDate);
    window.LabelCalTileBorder = new TileBorder(window.PictureBoxCalendar);

    auto* days = new QHBoxLayout;
    days->setContentsMargins(0, GapAboveToday, 0, 0);
    const QSize buttonSize{LeftPanelWidth / 2 - 6, TodayHeight};
    window.picToday = DayButton("Today", buttonSize, window.LabelToday);
    window.picTomorrow = DayButton("Tomorrow", buttonSize, window.LabelTomorrow);
    window.LabelToday->setToolTip(TipWithKey(QStringLiteral("Go to today"), Qt::CTRL | Qt::Key_Home));
    window.LabelTomorrow->setToolTip(TipWithKey(QStringLiteral("Go to tomorrow"), Qt::CTRL | Qt::Key_End));
    for (ClickLabel* label : {window.LabelToday, window.LabelTomorrow}) {
        label->setCursor(Qt::PointingHandCursor);
    }
    days->addWidget(window.picToday);
    days->addWidget(window.picTomorrow);
    grid->addLayout(days, TodayRow, 0, 1, DaysPerWeek);

    window.picLock = new PictureBox;
    grid->addWidget(window.picLock, 0, 0, TodayRow + 1, DaysPerWeek); // over all of it
    window.picLock->hide();
    QObject::connect(window.picLock, &PictureBox::Resized, &window, [&window] { PaintLock(window.picLock); });
    return window.PictureBoxCalendar;
}

QWidget* BuildNewButtons(frmMain& window) {
    window.ButtonNewAssignmentSmall =
        SmallNewButton("ButtonNewAssignmentSmall.svg", window.MenuNewAssignment);
    window.ButtonNewEventSmall = SmallNewButton("ButtonNewEventSmall.svg", window.MenuNewEvent);
    window.ButtonNewTaskSmall = SmallNewButton("ButtonNewTaskSmall.svg", window.MenuNewTask);
    window.ButtonNewAssignment = new QPushButton(QStringLiteral("New Assignment..."));
    window.ButtonNewEvent = new QPushButton(QStringLiteral("New Event..."));
    window.ButtonNewTask = new QPushButton(QStringLiteral("New Task..."));

    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* small = new QHBoxLayout;
    small->setSpacing(PanelGap);
    for (QToolButton* button :
         {window.ButtonNewAssignmentSmall, window.ButtonNewEventSmall, window.ButtonNewTaskSmall}) {
        small->addWidget(button);
    }
    small->addStretch(1);
    column->addLayout(small);
    for (QPushButton* button : {window.ButtonNewAssignment, window.ButtonNewEvent, window.ButtonNewTask}) {
        button->hide();
        column->addWidget(button);
    }
    return panel;
}

QWidget* BuildTermPanel(frmMain& window) {
    window.PictureBoxTerm = Panel();
    auto* column = new QVBoxLayout(window.PictureBoxTerm);
    column->setContentsMargins(PanelGap, PanelGap, PanelGap, PanelGap);
    column->setSpacing(2);
    window.LabelTerm = new ElidedLabel;
    QFont bold = window.LabelTerm->font();
    bold.setBold(true);
    window.LabelTerm->setFont(bold);
    window.LabelDaysLeft = PlainLabel();
    window.ButtonSelectTerm = new QPushButton(QStringLiteral("Edit Class Schedule"));
    column->addWidget(window.LabelTerm);
    column->addWidget(window.LabelDaysLeft);
    column->addWidget(window.ButtonSelectTerm);
    return window.PictureBoxTerm;
}

QWidget* BuildViewMenusPanel(frmMain& window) {
    window.PictureBoxViewMenus = Panel();
    auto* grid = new QGridLayout(window.PictureBoxViewMenus);
    grid->setContentsMargins(PanelGap, PanelGap, PanelGap, PanelGap);
    grid->setSpacing(PanelGap);
    window.ComboList = new QComboBox;
    window.ComboDateRange = new QComboBox;
    for (QComboBox* combo : {window.ComboList, window.ComboDateRange}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(LeastComboCharacters);
    }
    auto* listLabel = PlainLabel(QStringLiteral("List Menu"));
    auto* rangeLabel = PlainLabel(QStringLiteral("Range Menu"));
    listLabel->setBuddy(window.ComboList);
    rangeLabel->setBuddy(window.ComboDateRange);
    grid->addWidget(listLabel, 0, 0);
    grid->addWidget(window.ComboList, 0, 1);
    grid->addWidget(rangeLabel, 1, 0);
    grid->addWidget(window.ComboDateRange, 1, 1);
    grid->setColumnStretch(1, 1);
    return window.PictureBoxViewMenus;
}

std::array<QWidget*, 3> BuildModePanels(frmMain& window) {
    const auto titled = [](const char* title) {
        QFrame* panel = Panel();
        auto* column = new QVBoxLayout(panel);
        column->setContentsMargins(PanelGap, PanelGap, PanelGap, PanelGap);
        column->addWidget(PlainLabel(QLatin1String(title)));
        return panel;
    };
    window.PictureBoxStudySessions = titled("Study Sessions");
    window.PictureBoxReminders = titled("Today's Reminders");
    window.PictureBoxStudyTime = Panel();
    auto* grid = new QGridLayout(window.PictureBoxStudyTime);
    grid->setContentsMargins(PanelGap, PanelGap, PanelGap, PanelGap);
    grid->setSpacing(2);
    window.TextBoxMinimum = NumberBox(QStringLiteral("Minimum"));
    window.TextBoxSuggested = NumberBox(QStringLiteral("Suggested"));
    grid->addWidget(PlainLabel(QStringLiteral("Study Time Today")), 0, 0, 1, 2);
    grid->addWidget(PlainLabel(QStringLiteral("Minimum:")), 1, 0);
    grid->addWidget(window.TextBoxMinimum, 1, 1);
    grid->addWidget(PlainLabel(QStringLiteral("Suggested:")), 2, 0);
    grid->addWidget(window.TextBoxSuggested, 2, 1);
    grid->setColumnStretch(0, 1);
    return {window.PictureBoxStudySessions, window.PictureBoxReminders, window.PictureBoxStudyTime};
}

// A counter's row holds its label and one box for each mode that shows it, of which one shows at a time.
QWidget* BuildCounters(frmMain& window) {
    for (QLabel** label :
         {&window.LabelTotalAssignments, &window.LabelFinishedAssignments, &window.LabelTimeRemaining}) {
        *label = PlainLabel();
    }
    for (QLineEdit** box :
         {&window.TextBoxTotalAssignments, &window.TextBoxFinishedAssignments, &window.TextBoxTimeRemaining,
          &window.TextBoxStudySessions, &window.TextboxStudyTime, &window.TextBoxTotalTasks,
          &window.TextBoxFinishedTasks, &window.TextBoxUndatedTasks, &window.TextBoxClasses,
          &window.TextBoxOtherEvents, &window.TextBoxSchedStudy, &window.TextboxAssignments,
          &window.TextBoxTasks, &window.TextBoxEvents}) {
        *box = NumberBox();
        (*box)->hide();
    }

    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(PanelGap, 0, PanelGap, 0);
    grid->setSpacing(2);
    grid->setColumnStretch(0, 1);
    const auto labels = window.CounterLabels();
    const auto controls = window.AllModeControls();
    for (std::size_t counter = 0; counter < labels.size(); ++counter) {
        grid->addWidget(labels[counter], static_cast<int>(counter), 0);
        for (const CounterRow& row : CounterRows) {
            if (QLineEdit* box = RowOf(controls, row.mode).boxes[counter]) {
                box->setAccessibleName(WithoutColon(row.labels[counter]));
                grid->addWidget(box, static_cast<int>(counter), 1);
            }
        }
    }
    return panel;
}

QWidget* BuildAlerts(frmMain& window) {
    auto* panel = new QWidget;
    panel->setStyleSheet(AlertButtonStyle());
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(AlertGap);
    for (QPushButton*& button : window.ButtonAlert) {
        button = new QPushButton(ProgramIcon(QStringLiteral("picAlert.svg")), QString());
        button->setFixedHeight(AlertHeight);
        button->hide();
        column->addWidget(button);
    }
    return panel;
}

QWidget* BuildTimerPanel(frmMain& window) {
    window.PictureBoxTimer = Panel();
    auto* row = new QHBoxLayout(window.PictureBoxTimer);
    row->setContentsMargins(PanelGap, PanelGap, PanelGap, PanelGap);
    row->setSpacing(2);
    window.picTime = new PictureBox;
    window.picTime->setFixedSize(TimeSize);
    DescribeAs(window.picTime, QAccessible::Clock);
    window.picTime->setAccessibleName(QStringLiteral("Study Timer"));
    window.ButtonStart = new QPushButton(QStringLiteral("Start"));
    window.ButtonStart->setMinimumWidth(1); // it takes what the panel leaves
    window.ButtonStart->setFixedHeight(TimerButtonHeight);
    window.ButtonReset = IconButton("picTimerReset.svg", "Reset Study Timer");
    window.ButtonSeconds = IconButton("picTimerSeconds.svg", "Show or Hide Seconds");
    for (QWidget* control : std::initializer_list<QWidget*>{window.picTime, window.ButtonStart,
                                                            window.ButtonReset, window.ButtonSeconds}) {
        row->addWidget(control);
    }
    return window.PictureBoxTimer;
}

} // namespace

QWidget* BuildLeftPanel(frmMain& window) {
    auto* panel = new QWidget;
    panel->setFixedWidth(LeftPanelWidth);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, PanelMargin);
    column->setSpacing(PanelGap);
    column->addWidget(BuildSmallCalendar(window));
    column->addWidget(BuildNewButtons(window));
    column->addWidget(BuildTermPanel(window));
    column->addWidget(BuildViewMenusPanel(window));
    for (QWidget* mode : BuildModePanels(window)) {
        column->addWidget(mode);
    }
    column->addWidget(BuildCounters(window));
    column->addWidget(BuildAlerts(window));
    column->addStretch(1);
    column->addWidget(BuildTimerPanel(window));
    return panel;
}
