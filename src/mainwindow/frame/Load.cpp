// The load of the main window. The order of its steps is required: later ones read what earlier ones set.
#include "mainwindow/frame/Load.h"

#include "core/Module1.h"
#include "customise/frmColors.h"
#include "customise/frmColorsName.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/PreferencesFlow.h"
#include "mainwindow/flows/ReminderFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/flows/help/HelpFlow.h"
#include "mainwindow/flows/timer/TimerFlow.h"
#include "mainwindow/frame/BringForward.h"
#include "mainwindow/frame/Unload.h"
#include "mainwindow/frame/WindowTopics.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/menus/PopupMenus.h"
#include "mainwindow/modes/Modes.h"
#include "mainwindow/modes/ViewMenus.h"
#include "persistence/ProcessMarker.h"
#include "persistence/modConvert.h"
#include "persistence/modIO.h"
#include "platform/InstanceLink.h"
#include "platform/Process.h"
#include "platform/Tray.h"
#include "reminders/frmReminders.h"

#include <utility>

namespace {

void PutIntoTray(frmMain& window) {
    AddTrayIcon("Planovarium Homework System",
                {.doubleClicked = [&window] { TrayDoubleClick(window); },
                 .menuWanted =
                     [&window] {
                         ShowTrayMenu(window);
                         std::vector<std::string> captions;
                         for (const PopupItem& item : window.TrayItems) {
                             captions.push_back(item.caption);
                         }
                         return captions;
                     },
                 .itemChosen = [&window](int index) { RunTrayCommand(window, index); }});
}

// A planner on a drive neither starts with the desktop session nor shows its folder. Both commands stay.
void HideUnofferedItems(const frmMain& window) {
    for (QAction* item : {window.MenuStartup->menuAction(), window.MenuData}) {
        item->setEnabled(false);
        item->setVisible(false);
    }
    window.mnuHelpBar1->setEnabled(false);
}

// The reminder window stands alone, but goes with the main window.
void LoadReminders(frmMain& window) {
    ReminderListWindow = new frmReminders;
    QObject::connect(ReminderListWindow, &frmReminders::OpenAsked, &window,
                     [&window] { ComeForwardForReminder(window); });
    QObject::connect(&window, &QObject::destroyed, ReminderListWindow,
                     [] { delete std::exchange(ReminderListWindow, nullptr); });
}

// The dialogs are made once, in this order, and the main window owns them. The editors make their controls as
// they are first filled.
void LoadDialogs(frmMain& window) {
    AssignmentDialog = new frmAssignment(&window);
    TermChooser = new frmSelectCourseSchedule(&window);
    TermDialog = new frmCourseSchedule(&window);
    TaskDialog = new FrmTask(&window);
    EventDialog = new frmEvent(&window);
    RecurrenceDialog = new frmRecurrence(&window);
    ColorsDialog = new frmColors(&window);
    ColorsNameDialog = new frmColorsName(&window);
    QObject::connect(ColorsDialog, &frmColors::HelpAsked, &window, [&window] { OpenHelp(window); });
    LoadReminders(window);
    SetWindowTopics(window);
}

} // namespace

bool LoadPlanner(frmMain& window) {
    PutIntoTray(window);
    OnTermination([&window] { Unload(window); });
    ReceiveLinkCommands(
        LinkApplication, LinkTopic,
        [&window](const std::string& /*any command is accepted*/) { return LinkExecute(window); });
    FileWrittenFlags = {};
    window.ClickedDate = Today();
    window.SelectedDate = Today();
    DeleteDeadMarkers();
    MakeProcessMarker();
    if (!SetupFolders()) {
        return false;
    }
    ConvertLegacyData();
    ReadTermsAndClasses();
    ReadTasks();
    ReadEvents();
    HideUnofferedItems(window);
    SetFirstOpenFlags();
    LoadDialogs(window);
    StartupComplete = true;
    if (ShuttingDown) {
        return false;
    }
    InitViewMenus();
    SetDefaultTypeTable();
    const std::string term = ReadPreferences(window);
    ApplyStartDayOfWeek(window);
    SetActiveTerm(window, term);
    if (ShuttingDown) {
        return false;
    }
    ShowCalendarMode(window);
    ClearStudyTimer(window);
    window.TimerStatusBar->start();
    ReminderListWindow->TimerReminders->start();
    window.picGrid->setFocus();
    window.TimerTip->start();
    return true;
}
