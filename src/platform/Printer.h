// The desktop's print dialog, and pages on the printer that was chosen in it.
#pragma once

#include <functional>
#include <string>

class QPainter;

// What the print dialog proposes, and what the student has made of it.
struct PrintFields {
    std::string printer; // empty for the desktop's own choice
    int copies = 1;
    int fromPage = 1;
    int toPage = 1;
    int minPage = 1;
    int maxPage = 1;

    friend bool operator==(const PrintFields&, const PrintFields&) = default;
};

// Shows the dialog, in which landscape is proposed. Gives false when it was cancelled, and when it failed,
// which is reported. The copies are the caller's to print: the printer makes one of each page.
bool ShowPrinter(PrintFields& fields);

// What can be printed on of a page, from its left and upper corner on, in dots.
struct PrintArea {
    int width = 0;
    int height = 0;
    int dotsPerInch = 0;
};

// Prints so many pages on that printer at its resolution, each of them painted by the procedure.
void PrintPages(int pages, const std::function<void(QPainter& painter, const PrintArea& area)>& paint);
