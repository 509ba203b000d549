// The mode entries: what each mode checks, shows and hides.
#include "mainwindow/frmMain.h"

Mode frmMain::CurrentMode() const {
    const std::array<std::pair<const QAction*, Mode>, ModeCount> order{{
        {MenuHomework, Mode::Homework},
        {MenuCalendar, Mode::Calendar},
        {MenuStudySessions, Mode::StudySessions},
        {MenuTasks, Mode::Tasks},
        {MenuEvents, Mode::Events},
        {MenuReminders, Mode::Reminders},
    }};
    for (const auto& [item, mode] : order) {
        if (item->isChecked()) {
            return mode;
        }
    }
    return Mode::None;
}

void frmMain::ShowCalendarMode() {
}

void frmMain::ShowHomeworkMode() {
}

void frmMain::ShowStudySessionsMode() {
}

void frmMain::ShowTaskMode() {
}

void frmMain::ShowEventMode() {
}

void frmMain::ShowReminderMode() {
}

void frmMain::BindModes() {
}
