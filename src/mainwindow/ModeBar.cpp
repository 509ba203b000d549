// The dark bar of the modes under the menu bar: a picture and a word for each.
#include "mainwindow/frmMain.h"
#include "platform/WindowColors.h"

#include <QHBoxLayout>

namespace {

constexpr int BarHeight = 40;
constexpr int PictureSize = 24;
constexpr int GapBehindMode = 16;
constexpr int BarMargin = 10;
constexpr double BarPoints = 9;

PictureBox* BarPicture() {
    auto* box = new PictureBox;
    box->setFixedSize(PictureSize, PictureSize);
    box->setCursor(Qt::PointingHandCursor);
    return box;
}

ClickLabel* BarLabel(const char* text) {
    auto* label = new ClickLabel;
    label->setText(QLatin1String(text));
    label->setFont(ToQFont({Face::Title, BarPoints, false}));
    label->setCursor(Qt::PointingHandCursor);
    SetLabelForeColor(label, WordColor);
    return label;
}

} // namespace

QWidget* frmMain::BuildModeBar() {
    PictureBarCalendar = BarPicture();
    PictureBarHomework = BarPicture();
    PictureBarStudySessions = BarPicture();
    PictureBarEvents = BarPicture();
    PictureBarTasks = BarPicture();
    PictureBarReminders = BarPicture();
    PictureBarWeb = BarPicture();
    PictureBarWeb->ShowPicture(QStringLiteral("picBarWeb.svg"));
    picHelp = BarPicture();
    picHelp->ShowPicture(QStringLiteral("picHelp.svg"));
    picHelp->setAccessibleName(QStringLiteral("Help"));
    LabelBarCalendar = BarLabel("Calendar");
    LabelBarHomework = BarLabel("Homework");
    LabelBarEvents = BarLabel("Events");
    LabelBarTasks = BarLabel("Tasks");
    LabelBarReminders = BarLabel("Reminders");
    LabelBarWeb = BarLabel("Homework Help");

    auto* bar = new QWidget;
    bar->setFixedHeight(BarHeight);
    bar->setAutoFillBackground(true);
    SetColor(bar, QPalette::Window, BarColor);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(BarMargin, 0, BarMargin, 0);
    const std::array<std::pair<PictureBox*, ClickLabel*>, 5> modes{{
        {PictureBarCalendar, LabelBarCalendar},
        {PictureBarHomework, LabelBarHomework},
        {PictureBarEvents, LabelBarEvents},
        {PictureBarTasks, LabelBarTasks},
        {PictureBarReminders, LabelBarReminders},
    }};
    for (const auto& [picture, label] : modes) {
        row->addWidget(picture);
        row->addWidget(label);
        row->addSpacing(GapBehindMode);
    }
    row->addWidget(PictureBarStudySessions);
    PictureBarStudySessions->hide();
    row->addStretch(1);
    row->addWidget(PictureBarWeb);
    row->addWidget(LabelBarWeb);
    row->addSpacing(GapBehindMode);
    row->addWidget(picHelp);
    return bar;
}
