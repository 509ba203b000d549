// The lines of a page as one text, each ended by a line feed.
#pragma once

#include "export/CalendarPages.h"
#include "export/ListPages.h"

#include <string>

inline std::string LinesOf(ListPage page, std::string_view templateText) {
    std::string lines;
    AddListPage(page, templateText, [&lines](std::string_view line) { lines.append(line).append("\n"); });
    return lines;
}

inline std::string LinesOf(CalendarPage page, const ExportedMonth& month, std::string_view templateText) {
    std::string lines;
    AddCalendarPage(page, month, templateText,
                    [&lines](std::string_view line) { lines.append(line).append("\n"); });
    return lines;
}
