// The fixed menu bar: its menus and items, in order, with their captions and keys.
#include "mainwindow/menus/MenuBar.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/menus/CommandTable.h"
#include "toolkit/Text.h"

#include <QMenuBar>

namespace {

QAction* AddCheckable(QMenu* menu, const char* caption, const char* keys = "") {
    QAction* item = menu->addAction(QLatin1String(caption));
    item->setShortcut(QKeySequence(QLatin1String(keys)));
    item->setCheckable(true);
    return item;
}

QAction* AddHiddenCheckable(QMenu* menu, const char* caption) {
    QAction* item = AddCheckable(menu, caption);
    item->setVisible(false);
    return item;
}

// The items of commands, in this order.
void AddCommands(frmMain& window, QMenu* menu, std::initializer_list<Command> commands) {
    for (const Command command : commands) {
        const CommandRow& row = *std::ranges::find(CommandRows, command, &CommandRow::command);
        QAction* item = menu->addAction(FromStore(row.caption));
        item->setShortcut(QKeySequence(FromStore(row.keys)));
        window.*row.item = item;
    }
}

} // namespace

void BuildMenuBar(frmMain& window) {
    window.mnuFile = window.menuBar()->addMenu(QStringLiteral("&File"));
    window.MenuCalendar = AddCheckable(window.mnuFile, "&Calendar", "Ctrl+1");
    window.MenuHomework = AddCheckable(window.mnuFile, "&Homework", "Ctrl+2");
    window.MenuEvents = AddCheckable(window.mnuFile, "&Events", "Ctrl+3");
    window.MenuTasks = AddCheckable(window.mnuFile, "&Tasks", "Ctrl+4");
    AddCommands(window, window.mnuFile, {Command::ShowReminders});
    window.mnuFile->addSeparator();
    AddCommands(window, window.mnuFile, {Command::ShowGPA});
    window.MenuReminders = AddHiddenCheckable(window.mnuFile, "To&day's Reminders");
    window.MenuStudySessions = AddHiddenCheckable(window.mnuFile, "&Study Sessions");
    window.mnuFile->addSeparator();
    AddCommands(window, window.mnuFile, {Command::PrintScreen});
    window.MenuExport = window.mnuFile->addMenu(QStringLiteral("Exp&ort for Printing"));
    AddCommands(window, window.MenuExport,
                {Command::ExportHomeworkCalendar, Command::ExportEventCalendar, Command::ExportTaskCalendar,
                 Command::ExportHomeworkList, Command::ExportTaskList, Command::ExportCalendarOfMode,
                 Command::ExportListOfMode});
    window.MenuExportCalendar->setVisible(false);
    window.MenuExportList->setVisible(false);
    window.mnuFile->addSeparator();
    AddCommands(window, window.mnuFile, {Command::HideWindows});

    window.MenuEdit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    AddCommands(window, window.MenuEdit, {Command::NewAssignment, Command::NewEvent, Command::NewTask});
    window.MenuEdit->addSeparator();
    AddCommands(window, window.MenuEdit, {Command::ClassSchedule});

    window.MenuOptions = window.menuBar()->addMenu(QStringLiteral("&Options"));
    AddCommands(window, window.MenuOptions, {Command::ShowColors});
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
    AddCommands(window, window.MenuHelp,
                {Command::OpenHelp, Command::OpenHomeworkHelp, Command::ShowTips, Command::ShowAbout});
    window.mnuHelpBar1 = window.MenuHelp->addSeparator();
    AddCommands(window, window.MenuHelp, {Command::OpenDataFolder});
}
