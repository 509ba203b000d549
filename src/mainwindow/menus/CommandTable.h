// The commands of the menu bar, of its keys and of the popup menus: one table.
#pragma once

#include "mainwindow/state/Command.h"
#include "mainwindow/state/MenuBarControls.h"

#include <algorithm>
#include <array>
#include <string_view>

// A command has a row for each popup item that gives it. In captions "&" stands before the letter of the key;
// the popup items of the tray have none.
struct CommandRow {
    Command command;
    QAction* MenuBarControls::*item = nullptr; // in the menu bar, if it stands there
    std::string_view caption{};
    std::string_view keys{};
    std::string_view words{}; // of the popup item: subject and verb
    std::string_view popupCaption{};
};

inline constexpr auto CommandRows = std::to_array<CommandRow>({
    {Command::NewAssignment, &MenuBarControls::MenuNewAssignment, "New &Assignment...", "Ctrl+N",
     "homework new", "Add new &assignment..."},
    {Command::NewEvent, &MenuBarControls::MenuNewEvent, "New &Event...", "Ctrl+E", "event new",
     "Add new &event..."},
    {Command::NewTask, &MenuBarControls::MenuNewTask, "New &Task...", "Ctrl+T", "task new",
     "Add new &task..."},
    {Command::ClassSchedule, &MenuBarControls::MenuClassSchedule, "&Class Schedule..."},
    {Command::SeeHomework, nullptr, "", "", "homework view", "See all as&signments..."},
    {Command::SeeEvents, nullptr, "", "", "event view", "See this &day's events..."},
    {Command::SeeTasks, nullptr, "", "", "task view", "See all tas&ks..."},
    {Command::SeeCalendar, nullptr, "", "", "calendar view", "See the &Calendar..."},
    {Command::ShowReminders, &MenuBarControls::MenuPopupReminders, "&Reminders", "Ctrl+5", "tray reminders",
     "Show Popup Reminders..."},
    {Command::ShowGPA, &MenuBarControls::MenuGPA, "&GPA", "Ctrl+G", "homework GPA", "See &GPA..."},
    {Command::PrintScreen, &MenuBarControls::MenuPrintScreen, "&Print Screen...", "Ctrl+P"},
    {Command::ExportHomeworkCalendar, &MenuBarControls::MenuExportCalendarAS, "&Homework Calendar..."},
    {Command::ExportEventCalendar, &MenuBarControls::MenuExportCalendarEV, "&Event Calendar..."},
    {Command::ExportTaskCalendar, &MenuBarControls::MenuExportCalendarTA, "&Task Calendar..."},
    {Command::ExportHomeworkList, &MenuBarControls::MenuExportListAS, "This Homework &List..."},
    {Command::ExportTaskList, &MenuBarControls::MenuExportListTA, "This Task L&ist..."},
    {Command::ExportCalendarOfMode, &MenuBarControls::MenuExportCalendar, "&Calendar..."},
    {Command::ExportListOfMode, &MenuBarControls::MenuExportList, "C&urrent List..."},
    {Command::ShowColors, &MenuBarControls::MenuColors, "&Colors and Names...", "", "homework custom",
     "C&ustomize colors..."},
    {Command::ShowColors, nullptr, "", "", "task custom", "C&ustomize colors..."},
    {Command::ShowColors, nullptr, "", "", "event custom", "C&ustomize colors..."},
    {Command::OpenHelp, &MenuBarControls::MenuHelpDB, "&Help", "F1"},
    {Command::OpenHomeworkHelp, &MenuBarControls::MenuHomeworkHelp, "&Online Homework Help"},
    {Command::ShowTips, &MenuBarControls::MenuShowTips, "&Show Tips at Startup..."},
    {Command::ShowAbout, &MenuBarControls::MenuAbout, "&About Planovarium..."},
    {Command::OpenDataFolder, &MenuBarControls::MenuData, "Open Planovarium &Data Folder"},
    {Command::OpenWindow, nullptr, "", "", "tray view", "Open Planovarium..."},
    {Command::HideWindows, &MenuBarControls::MenuExit, "E&xit", "Ctrl+Q"},
    {Command::Shutdown, nullptr, "", "", "tray shutdown", "Shutdown Planovarium"},
});

// The row of the popup item with the words; null for other words.
constexpr const CommandRow* RowOfWords(std::string_view words) {
    const auto* const row = std::ranges::find(CommandRows, words, &CommandRow::words);
    return words.empty() || row == CommandRows.end() ? nullptr : row;
}
