// What is done about what a view says: the one place where clicks, keys and screen readers reach the flows.
#include "mainwindow/flows/Actions.h"

#include "mainwindow/day/DayLayout.h"
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/flows/ReminderFlow.h"
#include "mainwindow/flows/RunCommand.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/flows/options/AutoStartFlow.h"
#include "mainwindow/flows/timer/TimerFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridKeys.h"
#include "mainwindow/menus/PopupMenus.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/grid/ListScroll.h"
#include "toolkit/grid/PaintedTable.h"

namespace {

// --- The keys' place, moved and scrolled to ---

void StandOnHalfHour(frmMain& window, int halfHour, int eventRow) {
    if (halfHour >= 0) {
        window.CurrentHalfHour = halfHour;
        window.CurrentEvent = eventRow;
        ShowRow(window, halfHour + 1);
    }
}

// --- The popup menus ---

void PointPopupAt(frmMain& window, QPoint point) {
    window.PopupPoint = window.picGrid->mapToGlobal(point);
}

void OpenMenuOfList(frmMain& window, const ViewAction& action) {
    if (action.reveal) {
        StandOnHalfHour(window, action.halfHour, window.CurrentEvent);
    } else if (action.halfHour >= 0) {
        window.EventClickedStartTime = StartTimeOfHalfHour(action.halfHour);
    }
    PointPopupAt(window, action.point.value_or(PointBesideKeys(window)));
    ShowListMenu(window);
}

void OpenMenuOfDay(frmMain& window, const ViewAction& action) {
    PointPopupAt(window, *action.point);
    if (action.date) {
        GoToDate(window, *action.date);
    }
    if (action.kind == ViewActionKind::OpenDayMenu) {
        ShowDayMenu(window, action.icon);
    } else {
        ShowCalendarMenu(window);
    }
}

void OpenFromGrid(frmMain& window, const ViewAction& action) {
    switch (action.kind) {
    case ViewActionKind::OpenRow:
        return OpenRow(window, action.row);
    case ViewActionKind::OpenEvent:
        if (action.reveal) {
            StandOnHalfHour(window, action.halfHour, action.row);
        }
        return OpenEventBox(window, action.row, action.halfHour);
    default:
        return OpenHalfHour(window, action.halfHour);
    }
}

void GoTo(frmMain& window, const ViewAction& action) {
    GoToDate(window, *action.date);
    if (action.reveal) {
        NotifyTableMoved(window.picGrid);
    }
}

} // namespace

void Act(frmMain& window, const ViewAction& action) {
    switch (action.kind) {
    case ViewActionKind::None:
        return;
    case ViewActionKind::RunCommand:
        return RunCommand(window, action.command);
    case ViewActionKind::RunPopupItem:
        return RunPopupItem(window, action.words);
    case ViewActionKind::ChooseMode:
        return ChooseMode(window, action.mode);
    case ViewActionKind::ChooseFilter:
        return window.RefreshFor(ReasonViewChange);
    case ViewActionKind::ChooseStartDay:
        return ChooseStartDayOfWeek(window, action.words);
    case ViewActionKind::ChooseAutoStart:
        return ChooseAutoStart(window, action.words);
    case ViewActionKind::StartOrPauseTimer:
        return StartOrPauseStudyTimer(window);
    case ViewActionKind::ResetTimer:
        return ResetStudyTimer(window);
    case ViewActionKind::TurnTimerSeconds:
        return TurnTimerSeconds(window);
    case ViewActionKind::ExplainAlert:
        return ShowAlertMessage(window, action.index);
    case ViewActionKind::GoToDate:
        return GoTo(window, action);
    case ViewActionKind::OpenDayMenu:
    case ViewActionKind::OpenCalendarMenu:
        return OpenMenuOfDay(window, action);
    case ViewActionKind::OpenListMenu:
        return OpenMenuOfList(window, action);
    case ViewActionKind::ShowHalfHour:
        return StandOnHalfHour(window, action.halfHour, action.row);
    case ViewActionKind::OpenRow:
    case ViewActionKind::OpenEvent:
    case ViewActionKind::OpenHalfHour:
        return OpenFromGrid(window, action);
    case ViewActionKind::OpenFromReminders:
        return OpenFromReminders(window);
    }
}
