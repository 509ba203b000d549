// The print dialog and the printer, as pages of a file.
#include "platform/Printer.h"

#include "support/ChildProcess.h"
#include "toolkit/Modal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

// An application can be made once in a process, so each dialog has a process of its own. The answer is given
// as soon as the dialog is open.
bool HoldsFor(const std::function<void()>& print, const std::function<void(QPrintDialog&)>& answer) {
    return SucceedsInChild([&] {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        int count = 1;
        char name[] = "printer";
        char* arguments[] = {name, nullptr};
        const QApplication application(count, arguments);
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->isVisible()) {
                poll.stop();
                answer(*dialog);
            }
        });
        poll.start(1);
        print();
        EXPECT_FALSE(poll.isActive()) << "no dialog has opened";
    });
}

void AcceptInto(QPrintDialog& dialog, const QString& file, int copies) {
    dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
    dialog.printer()->setOutputFileName(file);
    dialog.printer()->setCopyCount(copies);
    dialog.QDialog::accept();
}

// Closes the message box that opens next, of which it gives the title.
void CloseNextBox(QString& title) {
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, &title] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            poll->stop();
            title = box->windowTitle();
            box->accept();
        }
    });
    poll->start(1);
}

} // namespace

TEST(Printer, ProposesLandscapeAndOneCopy) {
    EXPECT_TRUE(HoldsFor(
        [] {
            PrintFields fields;
            EXPECT_FALSE(ShowPrinter(fields));
            EXPECT_EQ(fields, PrintFields{});
        },
        [](QPrintDialog& dialog) {
            EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Landscape);
            EXPECT_EQ(dialog.printer()->copyCount(), 1);
            EXPECT_EQ(dialog.fromPage(), 1);
            EXPECT_EQ(dialog.toPage(), 1);
            dialog.reject();
        }));
}

TEST(Printer, CountsAsAModalDialogAsLongAsItIsOpen) {
    EXPECT_TRUE(HoldsFor(
        [] {
            PrintFields fields;
            EXPECT_FALSE(ModalDialogIsOpen());
            ShowPrinter(fields);
            EXPECT_FALSE(ModalDialogIsOpen());
        },
        [](QPrintDialog& dialog) {
            EXPECT_TRUE(ModalDialogIsOpen());
            dialog.reject();
        }));
}

TEST(Printer, PrintsAPageACopyAtItsResolution) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("page.pdf");
    EXPECT_TRUE(HoldsFor(
        [&file] {
            PrintFields fields;
            ASSERT_TRUE(ShowPrinter(fields));
            EXPECT_EQ(fields.copies, 3);
            int painted = 0;
            PrintPages(fields.copies, [&painted](QPainter& painter, const PrintArea& area) {
                ++painted;
                EXPECT_EQ(area.dotsPerInch, painter.device()->logicalDpiX());
                EXPECT_GT(area.dotsPerInch, 300);
                EXPECT_GT(area.width, area.height);
                EXPECT_TRUE(painter.transform().isIdentity());
                EXPECT_EQ(static_cast<QPrinter*>(painter.device())->copyCount(), 1);
                painter.scale(2, 2);
            });
            EXPECT_EQ(painted, 3);
            QFile pdf(file);
            ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
            EXPECT_EQ(pdf.readAll().count("/Type /Page\n"), 3);
        },
        [&file](QPrintDialog& dialog) { AcceptInto(dialog, file, 3); }));
}

TEST(Printer, ADialogThatLeavesNothingToPrintOnIsReportedUnderItsName) {
    QString title;
    EXPECT_TRUE(HoldsFor(
        [&title] {
            PrintFields fields;
            EXPECT_FALSE(ShowPrinter(fields));
            EXPECT_EQ(fields, PrintFields{});
            EXPECT_EQ(title, "DLG_PrintDialog");
        },
        [&title](QPrintDialog& dialog) {
            CloseNextBox(title);
            AcceptInto(dialog, QStringLiteral("/no such folder/page.pdf"), 2);
        }));
}
