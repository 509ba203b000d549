// The main window put together: the menu bar over the mode bar, the left panel beside the view, the status
// bar.
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/flows/Actions.h"
#include "mainwindow/flows/help/TipFlow.h"
#include "mainwindow/frame/Unload.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridClicks.h"
#include "mainwindow/menus/AutoStart.h"
#include "mainwindow/menus/Commands.h"
#include "mainwindow/menus/MenuBar.h"
#include "mainwindow/modes/ModeBar.h"
#include "mainwindow/modes/ViewMenus.h"
#include "mainwindow/panels/AlertButtons.h"
#include "mainwindow/panels/CalendarSteps.h"
#include "mainwindow/panels/LeftPanel.h"
#include "mainwindow/panels/StatusBar.h"
#include "mainwindow/panels/StudyTimer.h"
#include "toolkit/ElidedLabel.h"
#include "toolkit/Pressable.h"
#include "toolkit/WindowStyle.h"

#include <QHBoxLayout>
#include <QSizeGrip>
#include <QVBoxLayout>

namespace {

constexpr std::size_t GridTitles = 10;
constexpr int TopHeight = 30;
constexpr int StepperSize = 22;
constexpr int StatusHeight = 24;
constexpr int GripSize = 9; // it stays beside the clock, which ends 10 pixels from the edge
constexpr double TopPoints = 11;
constexpr double InfoPoints = 9;

QLabel* TitleLabel(double points, bool bold, Qt::Alignment alignment) {
    auto* label = new ElidedLabel;
    label->setFont(ToQFont({Face::Title, points, bold}));
    label->setAlignment(alignment | Qt::AlignVCenter);
    return label;
}

QWidget* BuildRightSide(frmMain& window) {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, PanelMargin);
    column->setSpacing(0);

    window.picTop = new QWidget;
    window.picTop->setFixedHeight(TopHeight);
    auto* top = new QHBoxLayout(window.picTop);
    top->setContentsMargins(0, 0, 0, PanelMargin);
    window.picCalDayDown = PictureButton(StepperSize, "One day back", Qt::CTRL | Qt::Key_Left);
    window.picCalDayUp = PictureButton(StepperSize, "One day on", Qt::CTRL | Qt::Key_Right);
    window.LabelTop = TitleLabel(TopPoints, true, Qt::AlignLeft);
    window.LabelInfoTitle = TitleLabel(InfoPoints, false, Qt::AlignRight);
    window.LabelInfoTitle->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    top->addWidget(window.picCalDayDown);
    top->addWidget(window.LabelTop, 1);
    top->addWidget(window.LabelInfoTitle);
    top->addWidget(window.picCalDayUp);
    column->addWidget(window.picTop);

    BuildGrid(window, GridTitles, &window);
    window.picGrid->setAccessibleName(QStringLiteral("View"));
    column->addWidget(window.picGrid, 1);
    return side;
}

QWidget* BuildStatusBar(frmMain& window) {
    window.picStatusBar = new PictureBox;
    window.picStatusBar->setFixedHeight(StatusHeight);
    DescribeAs(window.picStatusBar, QAccessible::StatusBar);
    auto* corner = new QHBoxLayout(window.picStatusBar);
    corner->setContentsMargins(0, 0, 0, 0);
    auto* grip = new QSizeGrip(window.picStatusBar);
    grip->setFixedSize(GripSize, GripSize);
    corner->addWidget(grip, 0, Qt::AlignRight | Qt::AlignBottom);
    return window.picStatusBar;
}

void BindRefresh(frmMain& window) {
    window.RepaintGrid = [&window] {
        window.LayoutGrid();
        window.FillGrid();
    };
    // The window's own resize comes before its surfaces have their new sizes, so this hangs on the surface.
    QObject::connect(window.picGrid, &PictureBox::Resized, &window, &frmMain::RefreshAfterResize);
}

// Each subject binds its controls.
void BindParts(frmMain& window) {
    BindViewMenus(window);
    BindCalendar(window);
    BindGrid(window);
    BindRefresh(window);
    BindStatusBar(window);
    BindAlerts(window);
    BindStudyTimer(window);
    BindAutoStart(window);
    BindCommands(window);
    BindTips(window);
    QObject::connect(&window, &frmMain::Asked, &window,
                     [&window](const ViewAction& action) { Act(window, action); });
    QObject::connect(&window, &frmMain::EndAsked, &window, [&window] { Unload(window); });
}

} // namespace

frmMain* MainWindow = nullptr;

frmMain::frmMain() {
    setWindowTitle(QStringLiteral("Planovarium Homework System"));
    resize(DesignSize);
    setMinimumSize(DesignSize);

    BuildMenuBar(*this);
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(BuildModeBar(*this));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, 0);
    row->setSpacing(PanelMargin);
    row->addWidget(BuildLeftPanel(*this));
    row->addWidget(BuildRightSide(*this), 1);
    column->addLayout(row, 1);
    column->addWidget(BuildStatusBar(*this));
    setCentralWidget(centre);

    mnuPopup = new QMenu(this);
    AlertDialog = new frmAlert(this);
    BindParts(*this);
}
