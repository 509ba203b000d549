// frmMain, the main window: how it is put together.
#include "mainwindow/frmMain.h"

#include <QMenuBar>
#include <QVBoxLayout>

namespace {

constexpr QSize DesignSize{780, 575};

} // namespace

frmMain* MainWindow = nullptr;

frmMain::frmMain() {
    setWindowTitle(QStringLiteral("Planovarium Homework System"));
    resize(DesignSize);
    setMinimumSize(DesignSize);

    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    MenuExit = file->addAction(QStringLiteral("E&xit"));
    connect(MenuExit, &QAction::triggered, this, &frmMain::HideWindows);

    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    LabelTerm = new QLabel;
    LabelTerm->setTextFormat(Qt::PlainText);
    LabelDaysLeft = new QLabel;
    LabelDaysLeft->setTextFormat(Qt::PlainText);
    picGrid = new PictureBox;
    column->addWidget(LabelTerm);
    column->addWidget(LabelDaysLeft);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    VSGridScroll = new QScrollBar(Qt::Vertical);
    row->addWidget(picGrid, 1);
    row->addWidget(VSGridScroll);
    column->addLayout(row, 1);
    setCentralWidget(centre);

    connect(VSGridScroll, &QScrollBar::valueChanged, this, &frmMain::FillHomeworkList);
    connect(picGrid, &PictureBox::Resized, this, &frmMain::FillHomeworkList);
    connect(picGrid, &PictureBox::WheelTurned, this,
            [this](int notches) { VSGridScroll->setValue(VSGridScroll->value() - 3 * notches); });
}
