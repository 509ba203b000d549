// The main window on paper.
#include "mainwindow/flows/paper/PrintFlow.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "platform/Printer.h"

#include <QMenuBar>
#include <QPainter>

#include <algorithm>

namespace {

// What is printed of the window.
QRect PrintedPart(const frmMain& window) {
    QRect part = window.rect();
    part.setTop(window.menuBar()->geometry().bottom() + 1);
    return part;
}

// Dots of the page to a pixel of the window.
double DotsPerPixel(const frmMain& window, QSize part, const PrintArea& area) {
    const double asOnTheScreen = static_cast<double>(area.dotsPerInch) / window.logicalDpiX();
    return std::min({asOnTheScreen, static_cast<double>(area.width) / part.width(),
                     static_cast<double>(area.height) / part.height()});
}

void PaintWindow(frmMain& window, QPainter& painter, const PrintArea& area) {
    const QRect part = PrintedPart(window);
    const double scale = DotsPerPixel(window, part.size(), area);
    painter.scale(scale, scale);
    window.render(&painter, {}, part);
}

} // namespace

void PrintScreen(frmMain& window) {
    PrintFields fields;
    if (!ShowPrinter(fields) || ShuttingDown) {
        return;
    }
    PrintPages(fields.copies,
               [&window](QPainter& painter, const PrintArea& area) { PaintWindow(window, painter, area); });
}
