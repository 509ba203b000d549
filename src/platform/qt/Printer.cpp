// The toolkit's print dialog, which is the desktop's own where it has one, and pages on the printer chosen.
#include "platform/Printer.h"

#include "platform/MessageBoxes.h"
#include "toolkit/Modal.h"

#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <memory>

namespace {

// The printer as it was chosen last.
std::unique_ptr<QPrinter> chosenPrinter;

void Propose(QPrinter& printer, const PrintFields& fields) {
    if (!fields.printer.empty()) {
        printer.setPrinterName(QString::fromStdString(fields.printer));
    }
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setCopyCount(fields.copies);
}

PrintFields FieldsOf(const QPrintDialog& dialog, const QPrinter& printer) {
    return {printer.printerName().toStdString(),
            printer.copyCount(),
            dialog.fromPage(),
            dialog.toPage(),
            dialog.minPage(),
            dialog.maxPage()};
}

// Whether the dialog has left something that can be printed on.
bool IsUsable(const QPrinter& printer) {
    const QString file = printer.outputFileName();
    return printer.isValid() && (file.isEmpty() || QFile(file).open(QIODevice::Append));
}

PrintArea AreaOf(const QPrinter& printer) {
    const QSize size = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    return {size.width(), size.height(), printer.resolution()};
}

} // namespace

bool ShowPrinter(PrintFields& fields) {
    chosenPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    Propose(*chosenPrinter, fields);
    QPrintDialog dialog(chosenPrinter.get(), WindowOfNextDialog());
    dialog.setMinMax(fields.minPage, fields.maxPage);
    dialog.setFromTo(fields.fromPage, fields.toPage);
    if (RunModally(dialog) != QDialog::Accepted) {
        return false;
    }
    if (!IsUsable(*chosenPrinter)) {
        MsgBox("The printer cannot be used.", Buttons::Ok, Icon::Exclamation, "DLG_PrintDialog");
        return false;
    }
    fields = FieldsOf(dialog, *chosenPrinter);
    chosenPrinter->setCopyCount(1);
    return true;
}

void PrintPages(int pages, const std::function<void(QPainter& painter, const PrintArea& area)>& paint) {
    QPainter painter;
    if (!painter.begin(chosenPrinter.get())) {
        return; // the desktop tells of its printers itself
    }
    for (int page = 1; page <= pages; ++page) {
        if (page > 1) {
            chosenPrinter->newPage();
        }
        painter.save();
        paint(painter, AreaOf(*chosenPrinter));
        painter.restore();
    }
}
