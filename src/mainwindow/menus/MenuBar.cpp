// The fixed menu bar: its menus and items, in order, with their captions and keys.
#include "mainwindow/menus/MenuBar.h"

#include "mainwindow/frmMain.h"

#include <QMenuBar>

namespace {

QAction* AddItem(QMenu* menu, const char* caption, const char* keys = "") {
    QAction* item = menu->addAction(QLatin1String(caption));
    item->setShortcut(QKeySequence(QLatin1String(keys)));
    return item;
}

QAction* AddCheckable(QMenu* menu, const char* caption, const char* keys = "") {
    QAction* item = AddItem(menu, caption, keys);
    item->setCheckable(true);
    return item;
}

QAction* AddHiddenCheckable(QMenu* menu, const char* caption) {
    QAction* item = AddCheckable(menu, caption);
    item->setVisible(false);
    return item;
}

QAction* AddHidden(QMenu* menu, const char* caption) {
    QAction* item = AddItem(menu, caption);
    item->setVisible(false);
    return item;
}

} // namespace

void BuildMenuBar(frmMain& window) {
    window.mnuFile = window.menuBar()->addMenu(QStringLiteral("&File"));
    window.MenuCalendar = AddCheckable(window.mnuFile, "&Calendar", "Ctrl+1");
    window.MenuHomework = AddCheckable(window.mnuFile, "&Homework", "Ctrl+2");
    window.MenuEvents = AddCheckable(window.mnuFile, "&Events", "Ctrl+3");
    window.MenuTasks = AddCheckable(window.mnuFile, "&Tasks", "Ctrl+4");
    window.MenuPopupReminders = AddItem(window.mnuFile, "&Reminders", "Ctrl+5");
    window.mnuFile->addSeparator();
    window.MenuGPA = AddItem(window.mnuFile, "&GPA", "Ctrl+G");
    window.MenuReminders = AddHiddenCheckable(window.mnuFile, "To&day's Reminders");
    window.MenuStudySessions = AddHiddenCheckable(window.mnuFile, "&Study Sessions");
    window.mnuFile->addSeparator();
    window.MenuPrintScreen = AddItem(window.mnuFile, "&Print Screen...", "Ctrl+P");
    window.MenuExport = window.mnuFile->addMenu(QStringLiteral("Exp&ort for Printing"));
    window.MenuExportCalendarAS = AddItem(window.MenuExport, "&Homework Calendar...");
    window.MenuExportCalendarEV = AddItem(window.MenuExport, "&Event Calendar...");
    window.MenuExportCalendarTA = AddItem(window.MenuExport, "&Task Calendar...");
    window.MenuExportListAS = AddItem(window.MenuExport, "This Homework &List...");
    window.MenuExportListTA = AddItem(window.MenuExport, "This Task L&ist...");
    window.MenuExportCalendar = AddHidden(window.MenuExport, "&Calendar...");
    window.MenuExportList = AddHidden(window.MenuExport, "C&urrent List...");
    window.mnuFile->addSeparator();
    window.MenuExit = AddItem(window.mnuFile, "E&xit", "Ctrl+Q");

    window.MenuEdit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    window.MenuNewAssignment = AddItem(window.MenuEdit, "New &Assignment...", "Ctrl+N");
    window.MenuNewEvent = AddItem(window.MenuEdit, "New &Event...", "Ctrl+E");
    window.MenuNewTask = AddItem(window.MenuEdit, "New &Task...", "Ctrl+T");
    window.MenuEdit->addSeparator();
    window.MenuClassSchedule = AddItem(window.MenuEdit, "&Class Schedule...");

    window.MenuOptions = window.menuBar()->addMenu(QStringLiteral("&Options"));
    window.MenuColors = AddItem(window.MenuOptions, "&Colors and Names...");
    window.MenuStartDay = window.MenuOptions->addMenu(QStringLiteral("Start &Day of Week"));
    window.MenuStartSat = AddCheckable(window.MenuStartDay, "&Saturday");
    window.MenuStartSun = AddCheckable(window.MenuStartDay, "S&unday");
    window.MenuStartMon = AddCheckable(window.MenuStartDay, "&Monday");
    window.MenuStartup = window.MenuOptions->addMenu(QStringLiteral("&Launch on System Startup"));
    window.MenuStartFull = AddCheckable(window.MenuStartup, "Yes - Open &Full");
    window.MenuStartMin = AddCheckable(window.MenuStartup, "Yes - Open &Minimized");
    window.MenuStartTray = AddCheckable(window.MenuStartup, "Yes - Stay in System &Tray");
    window.MenuStartNo = AddCheckable(window.MenuStartup, "&No");

    window.MenuHelp = window.menuBar()->addMenu(QStringLiteral("&Help"));
    window.MenuHelpDB = AddItem(window.MenuHelp, "&Help", "F1");
    window.MenuHomeworkHelp = AddItem(window.MenuHelp, "&Online Homework Help");
    window.MenuShowTips = AddItem(window.MenuHelp, "&Show Tips at Startup...");
    window.MenuAbout = AddItem(window.MenuHelp, "&About Planovarium...");
    window.mnuHelpBar1 = window.MenuHelp->addSeparator();
    window.MenuData = AddItem(window.MenuHelp, "Open Planovarium &Data Folder");
}
