// The mode entries: what each mode checks, shows and hides.
#include "mainwindow/modes/Modes.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeBarEntry.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/modes/ViewMenus.h"
#include "toolkit/HelpTopics.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"
#include "toolkit/WindowStyle.h"

namespace {

void SetTopics(const frmMain& window, const ModeRow& row) {
    const std::array<std::pair<QWidget*, int>, 3> topics{{
        {window.picGrid, row.gridTopic},
        {window.ComboDateRange, row.rangeTopic},
        {window.ComboList, row.listTopic},
    }};
    for (const auto& [control, topic] : topics) {
        if (topic != 0) {
            SetHelpTopic(control, topic);
        }
    }
}

// Checks the item of the mode, shows its picture pressed and its word bright, and the rest otherwise.
void CheckMode(const frmMain& window, const ModeRow& entered) {
    const auto controls = window.AllModeControls();
    for (const ModeRow& row : ModeRows) {
        if (entered.leavesCalendar && row.mode == Mode::Calendar) {
            continue;
        }
        const ModeControls& mode = RowOf(controls, row.mode);
        const bool active = row.mode == entered.mode;
        mode.item->setChecked(active);
        mode.picture->ShowPicture(QLatin1String(active ? row.pictureDown : row.pictureUp));
        RowOf(window.BarEntries, row.mode)->ShowActive(active);
        if (mode.word != nullptr && !entered.leavesCalendar) {
            SetLabelForeColor(mode.word, active ? ActiveWordColor : WordColor);
        }
        if (mode.word != nullptr) {
            DescribeChosen(mode.word, active);
        }
    }
}

void EnableEditItems(const frmMain& window, const EditMenuRow& row) {
    window.MenuClassSchedule->setEnabled(row.classSchedule);
    window.MenuNewAssignment->setEnabled(row.newAssignment);
    window.MenuNewTask->setEnabled(row.newTask);
    window.MenuNewEvent->setEnabled(row.newEvent);
}

void TurnExportItems(const frmMain& window, const ExportRow& row) {
    const std::array<std::pair<QAction*, Turn>, 5> items{{
        {window.MenuExportCalendarAS, row.calendarAS},
        {window.MenuExportCalendarEV, row.calendarEV},
        {window.MenuExportCalendarTA, row.calendarTA},
        {window.MenuExportListAS, row.listAS},
        {window.MenuExportListTA, row.listTA},
    }};
    for (const auto& [item, turn] : items) {
        if (turn != Turn::Kept) {
            item->setEnabled(turn == Turn::On);
            item->setVisible(turn == Turn::On);
        }
    }
    if (!row.calendarCaption.empty()) {
        window.MenuExportCalendar->setText(FromStore(row.calendarCaption));
        window.MenuExportList->setText(FromStore(row.listCaption));
    }
}

void TurnControl(QWidget* control, Turn turn) {
    if (turn != Turn::Kept) {
        control->setVisible(turn == Turn::On);
    }
}

void TurnPanels(const frmMain& window, const PanelRow& row) {
    TurnControl(window.PictureBoxTerm, row.term);
    TurnControl(window.PictureBoxViewMenus, row.viewMenus);
    TurnControl(window.PictureBoxStudySessions, row.studySessions);
    TurnControl(window.PictureBoxReminders, row.reminders);
    TurnControl(window.PictureBoxStudyTime, row.studyTime);
}

// A button that stands alone says what it does.
void ShowNewButton(QToolButton* button, bool alone) {
    button->setToolButtonStyle(alone ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    button->setFixedWidth(alone ? LeftPanelWidth : SmallButtonWidth);
}

void TurnNewButtons(const frmMain& window, const NewButtonRow& row) {
    const std::array<std::pair<QToolButton*, Turn>, 3> smallButtons{{
        {window.ButtonNewAssignmentSmall, row.assignmentSmall},
        {window.ButtonNewEventSmall, row.eventSmall},
        {window.ButtonNewTaskSmall, row.taskSmall},
    }};
    int shown = 0;
    for (const auto& [button, turn] : smallButtons) {
        TurnControl(button, turn);
        button->setEnabled(!button->isHidden());
        shown += button->isHidden() ? 0 : 1;
    }
    for (const auto& [button, turn] : smallButtons) {
        ShowNewButton(button, shown == 1);
    }
    TurnControl(window.ButtonNewAssignment, row.assignment);
    TurnControl(window.ButtonNewEvent, row.event);
    TurnControl(window.ButtonNewTask, row.task);
}

void ShowCounters(const frmMain& window, const CounterRow& row) {
    const auto labels = window.CounterLabels();
    const auto controls = window.AllModeControls();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (const ModeControls& mode : controls) {
            if (mode.boxes[i] != nullptr) {
                mode.boxes[i]->hide();
            }
        }
        const bool shown = !row.labels[i].empty();
        labels[i]->setText(FromStore(row.labels[i]));
        labels[i]->setVisible(shown);
        if (shown) {
            RowOf(controls, row.mode).boxes[i]->show();
        }
    }
    labels.front()->parentWidget()->setHidden(row.labels.front().empty()); // no counters, no gap for them
}

// The entry that all six share.
void EnterMode(frmMain& window, Mode mode) {
    const ModeRow& row = RowOf(ModeRows, mode);
    const QWidget* focused = window.focusWidget();
    window.ChangingMode = true;
    SaveViewMenus(window);
    SetTopics(window, row);
    CheckMode(window, row);
    EnableEditItems(window, RowOf(EditMenuRows, mode));
    TurnExportItems(window, RowOf(ExportRows, mode));
    TurnPanels(window, RowOf(PanelRows, mode));
    TurnNewButtons(window, RowOf(NewButtonRows, mode));
    FillViewMenus(window, mode);
    ShowCounters(window, RowOf(CounterRows, mode));
    window.ModeCaption = row.caption;
    window.PaintStatusBar();
    if (row.firstSort.number != 0) {
        window.SortColumn = row.firstSort.number;
        window.SortDirection = Ascending;
    }
    window.CurrentRow = 0; // the keys stand nowhere yet
    window.CurrentHalfHour = -1;
    window.CurrentEvent = 0;
    window.ChangingMode = false;
    window.RefreshFor(ReasonModeChange);
    window.picLock->setVisible(mode == Mode::Reminders);
    if (focused != nullptr && !focused->isVisibleTo(&window)) {
        window.picGrid->setFocus(); // and not whatever control comes next
    }
}

} // namespace

void ShowCalendarMode(frmMain& window) {
    EnterMode(window, Mode::Calendar);
}

void ShowHomeworkMode(frmMain& window) {
    EnterMode(window, Mode::Homework);
}

void ShowStudySessionsMode(frmMain& window) {
    EnterMode(window, Mode::StudySessions);
}

void ShowTaskMode(frmMain& window) {
    EnterMode(window, Mode::Tasks);
}

void ShowEventMode(frmMain& window) {
    EnterMode(window, Mode::Events);
}

void ShowReminderMode(frmMain& window) {
    EnterMode(window, Mode::Reminders);
}

void ChooseMode(frmMain& window, Mode mode) {
    if (!RowOf(window.AllModeControls(), mode).item->isChecked()) {
        EnterMode(window, mode);
    }
}
