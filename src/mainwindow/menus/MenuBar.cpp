// The fixed menu bar: its menus and items, in order, with their captions and keys.
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

void frmMain::BuildMenuBar() {
    mnuFile = menuBar()->addMenu(QStringLiteral("&File"));
    MenuCalendar = AddCheckable(mnuFile, "&Calendar", "Ctrl+1");
    MenuHomework = AddCheckable(mnuFile, "&Homework", "Ctrl+2");
    MenuEvents = AddCheckable(mnuFile, "&Events", "Ctrl+3");
    MenuTasks = AddCheckable(mnuFile, "&Tasks", "Ctrl+4");
    MenuPopupReminders = AddItem(mnuFile, "&Reminders", "Ctrl+5");
    mnuFile->addSeparator();
    MenuGPA = AddItem(mnuFile, "&GPA", "Ctrl+G");
    MenuReminders = AddHiddenCheckable(mnuFile, "To&day's Reminders");
    MenuStudySessions = AddHiddenCheckable(mnuFile, "&Study Sessions");
    mnuFile->addSeparator();
    MenuPrintScreen = AddItem(mnuFile, "&Print Screen...", "Ctrl+P");
    MenuExport = mnuFile->addMenu(QStringLiteral("Exp&ort for Printing"));
    MenuExportCalendarAS = AddItem(MenuExport, "&Homework Calendar...");
    MenuExportCalendarEV = AddItem(MenuExport, "&Event Calendar...");
    MenuExportCalendarTA = AddItem(MenuExport, "&Task Calendar...");
    MenuExportListAS = AddItem(MenuExport, "This Homework &List...");
    MenuExportListTA = AddItem(MenuExport, "This Task L&ist...");
    MenuExportCalendar = AddHidden(MenuExport, "&Calendar...");
    MenuExportList = AddHidden(MenuExport, "C&urrent List...");
    mnuFile->addSeparator();
    MenuExit = AddItem(mnuFile, "E&xit", "Ctrl+Q");

    MenuEdit = menuBar()->addMenu(QStringLiteral("&Edit"));
    MenuNewAssignment = AddItem(MenuEdit, "New &Assignment...", "Ctrl+N");
    MenuNewEvent = AddItem(MenuEdit, "New &Event...", "Ctrl+E");
    MenuNewTask = AddItem(MenuEdit, "New &Task...", "Ctrl+T");
    MenuEdit->addSeparator();
    MenuClassSchedule = AddItem(MenuEdit, "&Class Schedule...");

    MenuOptions = menuBar()->addMenu(QStringLiteral("&Options"));
    MenuColors = AddItem(MenuOptions, "&Colors and Names...");
    MenuStartDay = MenuOptions->addMenu(QStringLiteral("Start &Day of Week"));
    MenuStartSat = AddCheckable(MenuStartDay, "&Saturday");
    MenuStartSun = AddCheckable(MenuStartDay, "S&unday");
    MenuStartMon = AddCheckable(MenuStartDay, "&Monday");
    MenuStartup = MenuOptions->addMenu(QStringLiteral("&Launch on System Startup"));
    MenuStartFull = AddCheckable(MenuStartup, "Yes - Open &Full");
    MenuStartMin = AddCheckable(MenuStartup, "Yes - Open &Minimized");
    MenuStartTray = AddCheckable(MenuStartup, "Yes - Stay in System &Tray");
    MenuStartNo = AddCheckable(MenuStartup, "&No");

    MenuHelp = menuBar()->addMenu(QStringLiteral("&Help"));
    MenuHelpDB = AddItem(MenuHelp, "&Help", "F1");
    MenuHomeworkHelp = AddItem(MenuHelp, "&Online Homework Help");
    MenuShowTips = AddItem(MenuHelp, "&Show Tips at Startup...");
    MenuAbout = AddItem(MenuHelp, "&About Planovarium...");
    mnuHelpBar1 = MenuHelp->addSeparator();
    MenuData = AddItem(MenuHelp, "Open Planovarium &Data Folder");
}
