// The main window on paper: what is printed of it, how large, and how often.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include <QMenuBar>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>

namespace {

class PrintFlow : public GridTest {
protected:
    // Chooses the menu's item with so many copies asked for in the dialog.
    void Print(std::optional<int> copies = 1) {
        Script.printed.clear();
        Script.printCopies = copies;
        window->MenuPrintScreen->trigger();
    }

    // The page as it comes out of the printer, white where nothing is printed.
    static QImage Page(const PrintArea& area) {
        QImage page(area.width, area.height, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        Script.printed.at(0).paint(painter, area);
        return page;
    }

    // What the window shows from under its menu bar on.
    QImage Shown() const {
        const int top = window->menuBar()->geometry().bottom() + 1;
        return window->grab(QRect(0, top, window->width(), window->height() - top))
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    int Dots() const { return window->logicalDpiX(); }

    // Where something is printed.
    static QRect PrintedPart(const QImage& page) {
        QRect part;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (page.pixelColor(x, y) != Qt::white) {
                    part |= QRect(x, y, 1, 1);
                }
            }
        }
        return part;
    }
};

// The mean difference of two pictures of one size, from 0 to 255.
double Difference(const QImage& first, const QImage& second) {
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            sum += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y)));
        }
    }
    return sum / (first.width() * first.height());
}

} // namespace

TEST_F(PrintFlow, TheDialogIsOpenedWithOneForAllItsNumbers) {
    Print();
    EXPECT_EQ(Script.printDialogs, std::vector{PrintFields{}});
    EXPECT_EQ(Script.printDialogs[0].copies, 1);
    EXPECT_EQ(Script.printDialogs[0].maxPage, 1);
    EXPECT_EQ(Script.printDialogs[0].printer, "");
}

TEST_F(PrintFlow, EachCopyIsAPageAndNothingMoreIsAsked) {
    Print(3);
    ASSERT_EQ(Script.printed.size(), 1U);
    EXPECT_EQ(Script.printed[0].pages, 3);
    EXPECT_EQ(Script.printDialogs.size(), 1U);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(PrintFlow, ACancelPrintsNothingAndShowsNothing) {
    Print(std::nullopt);
    EXPECT_TRUE(Script.printed.empty());
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(PrintFlow, ADialogThatTheShutdownClosesPrintsNothing) {
    ShuttingDown = true;
    Print();
    ShuttingDown = false;
    EXPECT_EQ(Script.printDialogs.size(), 1U);
    EXPECT_TRUE(Script.printed.empty());
}

TEST_F(PrintFlow, ThePageIsTheWindowFromUnderItsMenuBarToItsStatusBar) {
    const QImage shown = Shown();
    Print();
    EXPECT_EQ(Page({shown.width(), shown.height(), Dots()}), shown);
}

TEST_F(PrintFlow, AListScrolledHalfwayIsPrintedScrolledHalfway) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    const QImage top = Shown();
    window->VSGridScroll->setValue(20);
    const QImage shown = Shown();
    ASSERT_NE(shown, top);
    Print();
    EXPECT_EQ(Page({shown.width(), shown.height(), Dots()}), shown);
}

TEST_F(PrintFlow, OnALargePageItIsAsLargeAsOnTheScreen) {
    const QSize size = Shown().size();
    Print();
    const QRect part = PrintedPart(Page({size.width() * 3, size.height() * 3, Dots() * 2}));
    EXPECT_NEAR(part.right() + 1, size.width() * 2, 2);
    EXPECT_NEAR(part.bottom() + 1, size.height() * 2, 2);
}

TEST_F(PrintFlow, OnASmallPageItIsShrunkInItsProportionsAndNeverCut) {
    const QSize size = Shown().size();
    Print();
    for (const PrintArea& area : {PrintArea{size.width() / 2, size.height() * 2, Dots()},
                                  PrintArea{size.width() * 2, size.height() / 2, Dots()}}) {
        const QRect part = PrintedPart(Page(area));
        EXPECT_NEAR(part.right() + 1, size.width() / 2, 2);
        EXPECT_NEAR(part.bottom() + 1, size.height() / 2, 2);
    }
}

TEST_F(PrintFlow, ALargePageHasNoSeams) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    const QSize size = Shown().size();
    Print();
    const QImage page = Page({size.width() * 3, size.height() * 3, Dots() * 3});
    QImage whole(page.size(), QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::white);
    QPainter painter(&whole);
    painter.scale(3, 3);
    window->render(&painter, {}, QRect(QPoint(0, window->menuBar()->geometry().bottom() + 1), size));
    painter.end();
    EXPECT_EQ(page, whole.convertToFormat(QImage::Format_RGB32));
}

TEST_F(PrintFlow, APdfOfItLooksLikeTheWindow) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    const QImage shown = Shown();
    Print();
    const QString file = QString::fromStdString((drive / "page.pdf").string());
    const int dots = 2 * Dots();
    {
        QPdfWriter writer(file);
        writer.setResolution(dots);
        writer.setPageOrientation(QPageLayout::Landscape);
        const QSize area = writer.pageLayout().paintRectPixels(dots).size();
        QPainter painter(&writer);
        Script.printed.at(0).paint(painter, {area.width(), area.height(), dots});
    }
    ASSERT_EQ(QProcess::execute("pdftoppm", {"-r", QString::number(dots), "-png", "-singlefile", file, file}),
              0);
    const QImage page(file + ".png");
    ASSERT_FALSE(page.isNull());
    const QRect part = PrintedPart(page);
    EXPECT_NEAR(part.width(), shown.width() * 2, 2) << "and no control stands out of it";
    EXPECT_NEAR(part.height(), shown.height() * 2, 2);
    const QImage printed =
        page.copy(part).scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LT(Difference(printed, shown), 10);
    EXPECT_GT(Difference(printed.mirrored(), shown), 30) << "which another picture would not pass";
}
