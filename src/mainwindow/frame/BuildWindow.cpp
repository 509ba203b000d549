// The main window put together: the menu bar over the mode bar, the left panel beside the view, the status
// bar.
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridAccessible.h"
#include "toolkit/ElidedLabel.h"
#include "toolkit/Pressable.h"
#include "toolkit/WindowStyle.h"

#include <QHBoxLayout>
#include <QSizeGrip>
#include <QVBoxLayout>

namespace {

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

} // namespace

frmMain* MainWindow = nullptr;

frmMain::frmMain() {
    setWindowTitle(QStringLiteral("Planovarium Homework System"));
    resize(DesignSize);
    setMinimumSize(DesignSize);

    BuildMenuBar();
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(BuildModeBar());
    auto* row = new QHBoxLayout;
    row->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, 0);
    row->setSpacing(PanelMargin);
    row->addWidget(BuildLeftPanel());
    row->addWidget(BuildRightSide(), 1);
    column->addLayout(row, 1);
    picStatusBar = new PictureBox;
    picStatusBar->setFixedHeight(StatusHeight);
    DescribeAs(picStatusBar, QAccessible::StatusBar);
    auto* corner = new QHBoxLayout(picStatusBar);
    corner->setContentsMargins(0, 0, 0, 0);
    auto* grip = new QSizeGrip(picStatusBar);
    grip->setFixedSize(GripSize, GripSize);
    corner->addWidget(grip, 0, Qt::AlignRight | Qt::AlignBottom);
    column->addWidget(picStatusBar);
    setCentralWidget(centre);

    mnuPopup = new QMenu(this);
    BindViewMenus();
    BindCalendar();
    BindGrid();
    BindStatusBar();
    BindAlerts();
    BindStudyTimer();
    BindAutoStart();
    BindCommands();
}

QWidget* frmMain::BuildRightSide() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, PanelMargin);
    column->setSpacing(0);

    picTop = new QWidget;
    picTop->setFixedHeight(TopHeight);
    auto* top = new QHBoxLayout(picTop);
    top->setContentsMargins(0, 0, 0, PanelMargin);
    picCalDayDown = PictureButton(StepperSize, "One day back", Qt::CTRL | Qt::Key_Left);
    picCalDayUp = PictureButton(StepperSize, "One day on", Qt::CTRL | Qt::Key_Right);
    LabelTop = TitleLabel(TopPoints, true, Qt::AlignLeft);
    LabelInfoTitle = TitleLabel(InfoPoints, false, Qt::AlignRight);
    LabelInfoTitle->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    top->addWidget(picCalDayDown);
    top->addWidget(LabelTop, 1);
    top->addWidget(LabelInfoTitle);
    top->addWidget(picCalDayUp);
    column->addWidget(picTop);

    picGrid = new PictureBox;
    InstallGridAccessible(*picGrid); // before anything describes it
    picGrid->setFocusPolicy(Qt::StrongFocus);
    picGrid->setAccessibleName(QStringLiteral("View"));
    for (PictureBox*& header : picColHeader) {
        header = new PictureBox(picGrid);
        header->setCursor(Qt::PointingHandCursor);
        header->hide();
    }
    VSGridScroll = new QScrollBar(Qt::Vertical, picGrid);
    VSGridScroll->hide();
    column->addWidget(picGrid, 1);
    return side;
}
