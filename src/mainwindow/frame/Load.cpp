// The load of the main window. The order of its steps is required: later ones read what earlier ones set.
#include "core/Module1.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/frmMain.h"
#include "persistence/ProcessMarker.h"
#include "persistence/modConvert.h"
#include "persistence/modIO.h"
#include "platform/InstanceLink.h"
#include "platform/Process.h"
#include "platform/Tray.h"

namespace {

void PutIntoTray(frmMain& window) {
    AddTrayIcon("Planovarium Homework System",
                {.doubleClicked = [&window] { window.TrayDoubleClick(); },
                 .menuWanted =
                     [&window] {
                         window.ShowTrayMenu();
                         std::vector<std::string> captions;
                         for (const PopupItem& item : window.TrayItems) {
                             captions.push_back(item.caption);
                         }
                         return captions;
                     },
                 .itemChosen = [&window](int index) { window.RunTrayCommand(index); }});
}

// A planner on a drive neither starts with the desktop session nor shows its folder. Both commands stay.
void HideUnofferedItems(const frmMain& window) {
    for (QAction* item : {window.MenuStartup->menuAction(), window.MenuData}) {
        item->setEnabled(false);
        item->setVisible(false);
    }
    window.mnuHelpBar1->setEnabled(false);
}

// The dialogs are built once, in this order, and the main window owns them.
void LoadDialogs(frmMain& window) {
    AssignmentDialog = new frmAssignment(&window);
    TermChooser = new frmSelectCourseSchedule(&window);
    TermDialog = new frmCourseSchedule(&window);
    TaskDialog = new FrmTask(&window);
    EventDialog = new frmEvent(&window);
    RecurrenceDialog = new frmRecurrence(&window);
}

} // namespace

bool frmMain::LoadPlanner() {
    PutIntoTray(*this);
    OnTermination([this] { Unload(); });
    ReceiveLinkCommands(LinkApplication, LinkTopic,
                        [this](const std::string& /*any command is accepted*/) { return LinkExecute(); });
    FileWrittenFlags = {};
    ClickedDate = Today();
    SelectedDate = Today();
    DeleteDeadMarkers();
    MakeProcessMarker();
    if (!SetupFolders()) {
        return false;
    }
    ConvertLegacyData();
    ReadTermsAndClasses();
    ReadTasks();
    ReadEvents();
    HideUnofferedItems(*this);
    SetFirstOpenFlags();
    LoadDialogs(*this);
    StartupComplete = true;
    if (ShuttingDown) {
        return false;
    }
    InitViewMenus();
    SetDefaultTypeTable();
    const std::string term = ReadPreferences();
    ApplyStartDayOfWeek();
    SetActiveTerm(term);
    if (ShuttingDown) {
        return false;
    }
    ShowCalendarMode();
    ClearStudyTimer();
    TimerStatusBar->start();
    picGrid->setFocus();
    return true;
}
