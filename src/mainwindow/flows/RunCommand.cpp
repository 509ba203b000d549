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
#include "mainwindow/menus/CommandTable.h"
#include "mainwindow/modes/Modes.h"

#include <algorithm>
#include <array>

namespace {

void Shutdown(frmMain& window) {
    emit window.EndAsked();
}

struct RunRow {
    Command command;
    void (*run)(frmMain& window);
};

// What runs each command, in the order of Command.
constexpr std::array<RunRow, CommandCount> RunRows{{
    {Command::NewAssignment, &NewAssignment},
    {Command::NewTask, &NewTask},
    {Command::NewEvent, &NewMorningEvent},
    {Command::ClassSchedule, &ClassSchedule},
    {Command::ShowColors, &ShowColors},
    {Command::PrintScreen, &PrintScreen},
    {Command::SeeHomework, &ShowHomeworkMode},
    {Command::SeeCalendar, &ShowCalendarMode},
    {Command::SeeTasks, &ShowTaskMode},
    {Command::SeeEvents, &ShowEventMode},
    {Command::ExportHomeworkCalendar, &ExportHomeworkCalendar},
    {Command::ExportEventCalendar, &ExportEventCalendar},
    {Command::ExportTaskCalendar, &ExportTaskCalendar},
    {Command::ExportHomeworkList, &ExportHomeworkList},
    {Command::ExportTaskList, &ExportTaskList},
    {Command::ExportCalendarOfMode, &ExportCalendarOfMode},
    {Command::ExportListOfMode, &ExportListOfMode},
    {Command::OpenHelp, &OpenHelp},
    {Command::OpenHomeworkHelp, &OpenHomeworkHelp},
    {Command::ShowTips, &ShowTips},
    {Command::ShowAbout, &ShowAbout},
    {Command::ShowGPA, &ShowGPA},
    {Command::ShowReminders, &ShowReminders},
    {Command::OpenDataFolder, &OpenDataFolder},
    {Command::OpenWindow, &OpenWindow},
    {Command::HideWindows, &HideWindows},
    {Command::Shutdown, &Shutdown},
}};

static_assert([] {
    for (std::size_t i = 0; i < RunRows.size(); ++i) {
        if (RunRows[i].command != static_cast<Command>(i + 1)) {
            return false;
        }
    }
    return true;
}());

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
    if (command != Command::None) {
        RunRows[static_cast<std::size_t>(command) - 1].run(window);
    }
}

void RunPopupItem(frmMain& window, const std::string& words) {
    if (const CommandRow* const known = RowOfWords(words)) {
        return RunCommand(window, known->command);
    }
    const std::size_t blank = std::min(words.find(' '), words.size());
    if (const auto row = IdIn(words.substr(blank))) {
        EditRowOf(window, words.substr(0, blank), *row);
    }
}
