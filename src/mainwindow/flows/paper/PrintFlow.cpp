// The main window on paper.
#include "mainwindow/flows/paper/PrintFlow.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "platform/Printer.h"

#include <QMenuBar>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int RowsOfStrip = 512; // of the printer

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

// The rows of the page from the top one on, so many, as a picture of the window's part at that scale.
QImage Strip(frmMain& window, const QRect& part, double scale, int top, int rows) {
    QImage strip(static_cast<int>(std::ceil(part.width() * scale)), rows,
                 QImage::Format_ARGB32_Premultiplied);
    strip.fill(Qt::white);
    const int first = static_cast<int>(std::floor(top / scale)); // pixels of the part
    const int end = std::min(static_cast<int>(std::ceil((top + rows) / scale)), part.height());
    QPainter painter(&strip);
    painter.translate(0, -top);
    painter.scale(scale, scale);
    window.render(&painter, QPoint(0, first),
                  QRect(part.left(), part.top() + first, part.width(), end - first));
    painter.end();
    strip.reinterpretAsFormat(QImage::Format_RGB32); // there is nothing to be seen through
    return strip;
}

// A picture of the window at the printer's resolution: not every printer's painter keeps controls within
// their edges. It is painted in strips, because the whole of it is large.
void PaintWindow(frmMain& window, QPainter& painter, const PrintArea& area) {
    const QRect part = PrintedPart(window);
    const double scale = DotsPerPixel(window, part.size(), area);
    const int rows = static_cast<int>(std::ceil(part.height() * scale));
    for (int top = 0; top < rows; top += RowsOfStrip) {
        painter.drawImage(0, top, Strip(window, part, scale, top, std::min(RowsOfStrip, rows - top)));
    }
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
