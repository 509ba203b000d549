// The pages of the five lists.
#include "export/ListPages.h"

#include "core/TextFiles.h"
#include "core/Values.h"
#include "export/ListCells.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view DateMark = "~";
constexpr std::string_view RowsMark =
    "INSERT"; // in a template the place of the rows, in a cell that of its value

struct RowFragments {
    std::string_view start, firstCell, otherCell, end;
};

// In the order of ListPage. The blank in front of a row of the events is meant.
constexpr std::array<PageNames, 5> Names{{
    {"Homework List Template.html", "Homework List.html", "Export Assignment List to HTML File"},
    {"Study List Template.html", "Study Time List.html", "Export Study Sessions to HTML File"},
    {"Task List Template.html", "Task List.html", "Export Tasks to HTML File"},
    {"Reminder List Template.html", "Reminder List.html", "Export Reminder List to HTML File"},
    {"Event List Template.html", "Event List.html", "Export Event List to HTML File"},
}};

constexpr std::array<RowFragments, 5> Fragments{{
    {"<tr height=21 style='mso-height-source:userset;height:15.95pt'>",
     "  <td height=21 class=xl30 style='height:15.95pt'>INSERT</td>", "  <td class=xl30>INSERT</td>",
     "</tr>"},
    {"<tr height=21 style='mso-height-source:userset;height:15.95pt'>",
     "  <td height=21 class=xl28 style='height:15.95pt'>INSERT</td>", "  <td class=xl28>INSERT</td>",
     "</tr>"},
    {"<tr height=21 style='mso-height-source:userset;height:15.95pt'>",
     "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>INSERT</td>",
     "  <td class=xl29>INSERT</td>", "</tr>"},
    {"<tr height=21 style='mso-height-source:userset;height:15.95pt'>",
     "  <td height=21 class=xl29 style='height:15.95pt'>INSERT</td>", "  <td class=xl29>INSERT</td>",
     "</tr>"},
    {" <tr height=21 style='mso-height-source:userset;height:15.95pt'>",
     "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>INSERT</td>",
     "  <td class=xl29>INSERT</td>", " </tr>"},
}};

bool HoldsRowsMark(std::string_view line) {
    const auto sameLetter = [](char a, char b) { return (a & ~0x20) == b; };
    return std::search(line.begin(), line.end(), RowsMark.begin(), RowsMark.end(), sameLetter) != line.end();
}

void AddCell(std::string_view fragment, std::string_view value, const AddLine& add) {
    std::string line(fragment);
    ReplaceFirst(line, RowsMark, value);
    add(line);
}

void AddRows(ListPage page, const AddLine& add) {
    const RowFragments& fragments = Fragments[static_cast<std::size_t>(page)];
    for (int row = 1, rows = RowsOnPage(page); row <= rows; ++row) {
        add(fragments.start);
        std::string_view fragment = fragments.firstCell;
        for (const std::string& cell : CellsOnPage(page, row)) {
            AddCell(fragment, cell, add);
            fragment = fragments.otherCell;
        }
        add(fragments.end);
    }
}

} // namespace

const PageNames& NamesOf(ListPage page) {
    return Names[static_cast<std::size_t>(page)];
}

void AddListPage(ListPage page, std::string_view templateText, const AddLine& add) {
    const std::string date = CreatedOn();
    while (const std::optional<std::string_view> templateLine = TakeLine(templateText)) {
        std::string line(*templateLine);
        ReplaceEach(line, DateMark, date);
        add(line);
        if (HoldsRowsMark(line)) {
            AddRows(page, add);
        }
    }
}
