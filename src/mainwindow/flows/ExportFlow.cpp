// The exports: a list or a month becomes a page where the student chooses, and the browser shows it.
#include "mainwindow/flows/ExportFlow.h"

#include "core/Module1.h"
#include "export/CalendarPages.h"
#include "export/ListPages.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "platform/FileDialogs.h"
#include "platform/Process.h"

#include <optional>

namespace {

constexpr const char* PageFilter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*";
constexpr const char* PageEnding = "html";

std::filesystem::path TemplateFile(const PageNames& names) {
    return std::filesystem::path(EnvironmentValue(ProgramFolderVariable)) / names.templateName;
}

void ExportPage(frmMain& window, const PageNames& names, const ScreenText& proposed, const PageLines& lines) {
    const std::optional<std::filesystem::path> place =
        GetSaveFileName({std::string(names.dialogTitle), DocumentFolder, proposed, PageFilter, PageEnding});
    if (ShuttingDown) {
        return;
    }
    if (place) {
        WritePage(*place, TemplateFile(names), lines);
        ShellOpen(place->string());
    }
    window.RefreshFor(ReasonNewRecord);
}

void ExportList(frmMain& window, ListPage page) {
    const PageNames& names = NamesOf(page);
    ExportPage(window, names, {std::string(names.fileName)},
               [page](std::string_view text, const AddLine& add) { AddListPage(page, text, add); });
}

void ExportCalendar(frmMain& window, CalendarPage page) {
    const PageNames& names = NamesOf(page);
    const ExportedMonth month{window.ClickedDate, window.Month.CellDate.front(), window.StartDayOfWeek};
    const std::string name = FormatDate(DateOfShownMonth(month), "MMMM").utf8 + std::string(names.fileName);
    ExportPage(window, names, {name},
               [&](std::string_view text, const AddLine& add) { AddCalendarPage(page, month, text, add); });
}

} // namespace

void ExportHomeworkList(frmMain& window) {
    ExportList(window, ListPage::Homework);
}

void ExportStudyList(frmMain& window) {
    ExportList(window, ListPage::StudySessions);
}

void ExportTaskList(frmMain& window) {
    ExportList(window, ListPage::Tasks);
}

void ExportReminderList(frmMain& window) {
    ExportList(window, ListPage::Reminders);
}

void ExportEventList(frmMain& window) {
    ExportList(window, ListPage::Events);
}

void ExportHomeworkCalendar(frmMain& window) {
    ExportCalendar(window, CalendarPage::Homework);
}

void ExportTaskCalendar(frmMain& window) {
    ExportCalendar(window, CalendarPage::Tasks);
}

void ExportEventCalendar(frmMain& window) {
    ExportCalendar(window, CalendarPage::Events);
}

void ExportListOfMode(frmMain& window) {
    const Mode mode = window.CurrentMode();
    if (mode != Mode::None && RowOf(ExportRows, mode).list) {
        ExportList(window, *RowOf(ExportRows, mode).list);
    } else {
        window.RefreshFor(ReasonNewRecord);
    }
}

void ExportCalendarOfMode(frmMain& window) {
    const Mode mode = window.CurrentMode();
    if (mode != Mode::None && RowOf(ExportRows, mode).calendar) {
        ExportCalendar(window, *RowOf(ExportRows, mode).calendar);
    } else {
        window.RefreshFor(ReasonNewRecord);
    }
}
