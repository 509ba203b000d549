// The pages of the five lists: a template with the rows that stand in the list, in their order.
#pragma once

#include "export/Pages.h"

#include <string_view>

enum class ListPage { Homework, StudySessions, Tasks, Reminders, Events };

// What the save dialog and the program's folder know a page by.
struct PageNames {
    std::string_view templateName; // of the file in the program's folder
    std::string_view fileName;     // proposed for the page; behind the month's name for a calendar
    std::string_view dialogTitle;
};

const PageNames& NamesOf(ListPage page);

// The lines of the page. In a template's line each "~" becomes the day of the export; behind a line that
// holds the word "INSERT", in any letter case, follow the rows that the list's selection has left. A bad text
// of a record raises the run-time error.
void AddListPage(ListPage page, std::string_view templateText, const AddLine& add);
