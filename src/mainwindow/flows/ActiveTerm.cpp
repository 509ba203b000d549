// The change of the active term: the store chooses it, its file is read, the window shows it.
#include "core/Module1.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/panels/TermStatus.h"
#include "persistence/modIO.h"
#include "reminders/frmReminders.h"
#include "toolkit/Text.h"

void SetActiveTerm(frmMain& window, const std::string& name) {
    const int termBefore = ActiveTermID;
    ChooseActiveTerm(name);
    if (ActiveTermIsLiving()) {
        ReadAssignments();
    }
    SetupActiveClasses();
    if (ActiveTermID != termBefore) {
        ReminderListWindow->LeaveTerm();
    }
    const TermStatus status = TermStatusOn(Today());
    window.LabelTerm->setText(FromStore(status.term));
    window.LabelDaysLeft->setText(FromStore(status.daysLeft));
    window.RefreshFor(ReasonNewTerm);
}
