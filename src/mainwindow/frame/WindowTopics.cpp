// The help topics of what stands around the view of the main window, and of its alerts. The view and the
// filter menus have those of the mode.
#include "mainwindow/frame/WindowTopics.h"

#include "editors/EditorParts.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/frmMain.h"

namespace {

void SetBarTopics(const frmMain& window) {
    SetHelpTopics({{window.PictureBarCalendar->parentWidget(), 701},
                   {window.PictureBarHomework->parentWidget(), 702},
                   {window.PictureBarEvents->parentWidget(), 703},
                   {window.PictureBarTasks->parentWidget(), 704},
                   {window.PictureBarReminders->parentWidget(), 705},
                   {window.PictureBarWeb->parentWidget(), 706},
                   {window.picHelp->parentWidget(), 707}});
}

void SetCalendarTopics(const frmMain& window) {
    SetHelpTopics({{window.PictureBoxCalendar, 708},
                   {window.picCalMonthDown, 709},
                   {window.picCalMonthUp, 709},
                   {window.picToday, 710},
                   {window.picTomorrow, 710},
                   {window.picLock, 711},
                   {window.picTop, 712}});
}

void SetPanelTopics(const frmMain& window) {
    SetHelpTopics({{window.ButtonNewAssignmentSmall, 713},
                   {window.ButtonNewAssignment, 713},
                   {window.ButtonNewEventSmall, 714},
                   {window.ButtonNewEvent, 714},
                   {window.ButtonNewTaskSmall, 715},
                   {window.ButtonNewTask, 715},
                   {window.PictureBoxTerm, 716},
                   {window.LabelTotalAssignments->parentWidget(), 717},
                   {window.PictureBoxStudyTime, 718},
                   {window.PictureBoxTimer, 720},
                   {window.picStatusBar, 721}});
    for (QPushButton* button : window.ButtonAlert) {
        SetHelpTopics({{button, 719}});
    }
}

} // namespace

void SetWindowTopics(const frmMain& window) {
    SetBarTopics(window);
    SetCalendarTopics(window);
    SetPanelTopics(window);
    SetHelpTopics({{window.AlertDialog->TextBoxAlert, 861}, {window.AlertDialog->ButtonOK, 862}});
}
