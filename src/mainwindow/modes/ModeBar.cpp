// The dark bar of the modes under the menu bar: a picture and a word for each.
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeBarEntry.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/Pressable.h"
#include "toolkit/WindowColors.h"
#include "toolkit/WindowStyle.h"

#include <QHBoxLayout>

namespace {

constexpr int BarHeight = 40;
constexpr int PictureSize = 24;
constexpr int GapBetweenEntries = 3;
constexpr int BarMargin = 4;
constexpr double BarPoints = 9;

PictureBox* BarPicture() {
    auto* box = new PictureBox;
    box->setFixedSize(PictureSize, PictureSize);
    return box;
}

ClickLabel* BarLabel(const char* text, QAccessible::Role role) {
    auto* label = new ClickLabel;
    DescribeAs(label, role);
    label->setText(QLatin1String(text));
    label->setAccessibleName(QLatin1String(text));
    label->setFont(ToQFont({Face::Title, BarPoints, false}));
    SetLabelForeColor(label, WordColor);
    return label;
}

// A press beside the picture and the word is one on the picture.
ModeBarEntry* Entry(PictureBox* picture, ClickLabel* word, const char* tip, const QAction* item) {
    auto* entry = new ModeBarEntry(picture, word, TipWithKey(QLatin1String(tip), item->shortcut()));
    QObject::connect(entry, &ModeBarEntry::Clicked, picture, &PictureBox::Press);
    return entry;
}

} // namespace

void frmMain::MakeModeBarParts() {
    for (PictureBox** picture :
         {&PictureBarCalendar, &PictureBarHomework, &PictureBarStudySessions, &PictureBarEvents,
          &PictureBarTasks, &PictureBarReminders, &PictureBarWeb, &picHelp}) {
        *picture = BarPicture();
    }
    PictureBarWeb->ShowPicture(QStringLiteral("picBarWeb.svg"));
    picHelp->ShowPicture(QStringLiteral("picHelp.svg"));
    DescribeAs(picHelp, QAccessible::Button);
    picHelp->setAccessibleName(QStringLiteral("Help"));
    LabelBarCalendar = BarLabel("Calendar", QAccessible::PageTab);
    LabelBarHomework = BarLabel("Homework", QAccessible::PageTab);
    LabelBarEvents = BarLabel("Events", QAccessible::PageTab);
    LabelBarTasks = BarLabel("Tasks", QAccessible::PageTab);
    LabelBarReminders = BarLabel("Reminders", QAccessible::Button);
    LabelBarWeb = BarLabel("Homework Help", QAccessible::Button);
    BarEntries = {
        Entry(PictureBarHomework, LabelBarHomework, "Homework", MenuHomework),
        Entry(PictureBarCalendar, LabelBarCalendar, "Calendar", MenuCalendar),
        Entry(PictureBarStudySessions, nullptr, "Study Sessions", MenuStudySessions),
        Entry(PictureBarTasks, LabelBarTasks, "Tasks", MenuTasks),
        Entry(PictureBarEvents, LabelBarEvents, "Events", MenuEvents),
        Entry(PictureBarReminders, LabelBarReminders, "Reminders", MenuPopupReminders),
    };
}

QWidget* frmMain::BuildModeBar() {
    MakeModeBarParts();
    auto* bar = new QWidget;
    bar->setFixedHeight(BarHeight);
    bar->setAutoFillBackground(true);
    SetColor(bar, QPalette::Window, BarColor);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(BarMargin, 0, BarMargin, 0);
    row->setSpacing(GapBetweenEntries);
    for (const Mode mode :
         {Mode::Calendar, Mode::Homework, Mode::Events, Mode::Tasks, Mode::Reminders, Mode::StudySessions}) {
        row->addWidget(RowOf(BarEntries, mode));
    }
    PictureBarStudySessions->hide();
    RowOf(BarEntries, Mode::StudySessions)->hide();
    row->addStretch(1);
    row->addWidget(Entry(PictureBarWeb, LabelBarWeb, "Online Homework Help", MenuHomeworkHelp));
    row->addWidget(Entry(picHelp, nullptr, "Help", MenuHelpDB));
    return bar;
}
