// The dark bar of the modes under the menu bar: a picture and a word for each.
#include "mainwindow/modes/ModeBar.h"

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

void MakeModeBarParts(frmMain& window) {
    for (PictureBox** picture :
         {&window.PictureBarCalendar, &window.PictureBarHomework, &window.PictureBarStudySessions,
          &window.PictureBarEvents, &window.PictureBarTasks, &window.PictureBarReminders,
          &window.PictureBarWeb, &window.picHelp}) {
        *picture = BarPicture();
    }
    window.PictureBarWeb->ShowPicture(QStringLiteral("picBarWeb.svg"));
    window.picHelp->ShowPicture(QStringLiteral("picHelp.svg"));
    DescribeAs(window.picHelp, QAccessible::Button);
    window.picHelp->setAccessibleName(QStringLiteral("Help"));
    window.LabelBarCalendar = BarLabel("Calendar", QAccessible::PageTab);
    window.LabelBarHomework = BarLabel("Homework", QAccessible::PageTab);
    window.LabelBarEvents = BarLabel("Events", QAccessible::PageTab);
    window.LabelBarTasks = BarLabel("Tasks", QAccessible::PageTab);
    window.LabelBarReminders = BarLabel("Reminders", QAccessible::Button);
    window.LabelBarWeb = BarLabel("Homework Help", QAccessible::Button);
    window.BarEntries = {
        Entry(window.PictureBarHomework, window.LabelBarHomework, "Homework", window.MenuHomework),
        Entry(window.PictureBarCalendar, window.LabelBarCalendar, "Calendar", window.MenuCalendar),
        Entry(window.PictureBarStudySessions, nullptr, "Study Sessions", window.MenuStudySessions),
        Entry(window.PictureBarTasks, window.LabelBarTasks, "Tasks", window.MenuTasks),
        Entry(window.PictureBarEvents, window.LabelBarEvents, "Events", window.MenuEvents),
        Entry(window.PictureBarReminders, window.LabelBarReminders, "Reminders", window.MenuPopupReminders),
    };
}

} // namespace

QWidget* BuildModeBar(frmMain& window) {
    MakeModeBarParts(window);
    auto* bar = new QWidget;
    bar->setFixedHeight(BarHeight);
    bar->setAutoFillBackground(true);
    SetColor(bar, QPalette::Window, BarColor);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(BarMargin, 0, BarMargin, 0);
    row->setSpacing(GapBetweenEntries);
    for (const Mode mode :
         {Mode::Calendar, Mode::Homework, Mode::Events, Mode::Tasks, Mode::Reminders, Mode::StudySessions}) {
        row->addWidget(RowOf(window.BarEntries, mode));
    }
    window.PictureBarStudySessions->hide();
    RowOf(window.BarEntries, Mode::StudySessions)->hide();
    row->addStretch(1);
    row->addWidget(
        Entry(window.PictureBarWeb, window.LabelBarWeb, "Online Homework Help", window.MenuHomeworkHelp));
    row->addWidget(Entry(window.picHelp, nullptr, "Help", window.MenuHelpDB));
    return bar;
}
