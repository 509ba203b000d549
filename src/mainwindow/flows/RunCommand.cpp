// The commands of menus, popup items, buttons and keys, and what runs them.
#include "mainwindow/flows/RunCommand.h"

#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/ExportFlow.h"
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/flows/ReminderFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/flows/help/HelpFlow.h"
#include "mainwindow/flows/help/TipFlow.h"
#include "mainwindow/flows/options/ColorsFlow.h"
#include "mainwindow/flows/paper/PrintFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/Modes.h"

#include <algorithm>
#include <array>

namespace {

void Shutdown(frmMain& window) {
    emit window.EndAsked();
}

struct CommandRow {
    Command command;
    std::string_view words; // of its popup items; empty without
    void (*run)(frmMain& window);
};

constexpr auto CommandRows = std::to_array<CommandRow>({
    {Command::NewAssignment, "homework new", &NewAssignment},
    {Command::NewTask, "task new", &NewTask},
    {Command::NewEvent, "event new", &NewMorningEvent},
    {Command::ClassSchedule, "", &ClassSchedule},
    {Command::ShowColors, "homework custom", &ShowColors},
    {Command::ShowColors, "task custom", &ShowColors},
    {Command::ShowColors, "event custom", &ShowColors},
    {Command::PrintScreen, "", &PrintScreen},
    {Command::SeeHomework, "homework view", &ShowHomeworkMode},
    {Command::SeeCalendar, "calendar view", &ShowCalendarMode},
    {Command::SeeTasks, "task view", &ShowTaskMode},
    {Command::SeeEvents, "event view", &ShowEventMode},
    {Command::ExportHomeworkCalendar, "", &ExportHomeworkCalendar},
    {Command::ExportEventCalendar, "", &ExportEventCalendar},
    {Command::ExportTaskCalendar, "", &ExportTaskCalendar},
    {Command::ExportHomeworkList, "", &ExportHomeworkList},
    {Command::ExportTaskList, "", &ExportTaskList},
    {Command::ExportCalendarOfMode, "", &ExportCalendarOfMode},
    {Command::ExportListOfMode, "", &ExportListOfMode},
    {Command::OpenHelp, "", &OpenHelp},
    {Command::OpenHomeworkHelp, "", &OpenHomeworkHelp},
    {Command::ShowTips, "", &ShowTips},
    {Command::ShowAbout, "", &ShowAbout},
    {Command::ShowGPA, "homework GPA", &ShowGPA},
    {Command::ShowReminders, "tray reminders", &ShowReminders},
    {Command::OpenDataFolder, "", &OpenDataFolder},
    {Command::OpenWindow, "tray view", &OpenWindow},
    {Command::HideWindows, "", &HideWindows},
    {Command::Shutdown, "tray shutdown", &Shutdown},
});

void EditRowOf(frmMain& window, std::string_view subject, int row) {
    if (subject == "homework") {
        EditAssignment(window, HomeworkRows.Item(row));
    } else if (subject == "task") {
        EditTask(window, TaskRows.Item(row));
    } else if (subject == "event") {
        EditEvent(window, EventRows.Item(row));
    }
}

} // namespace

void RunCommand(frmMain& window, Command command) {
    const auto* const row = std::ranges::find(CommandRows, command, &CommandRow::command);
    if (row != CommandRows.end()) {
        row->run(window);
    }
}

void RunPopupItem(frmMain& window, const std::string& words) {
    const auto* const known = std::ranges::find(CommandRows, words, &CommandRow::words);
    if (!words.empty() && known != CommandRows.end()) {
        return known->run(window);
    }
    const std::size_t blank = std::min(words.find(' '), words.size());
    if (const auto row = IdIn(words.substr(blank))) {
        EditRowOf(window, words.substr(0, blank), *row);
    }
}
