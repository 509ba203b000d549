// The look of the mode bar: the active mode stands out, its parts react to the pointer, and each has a tip.
#include "mainwindow/modes/ModeBarEntry.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/modes/Modes.h"
#include "support/WindowTest.h"
#include "toolkit/WindowColors.h"

namespace {

class ModeBar : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
    }

    ModeBarEntry* Entry(Mode mode) const { return RowOf(window->BarEntries, mode); }

    // The colours of an entry's ground, beside its picture, and of the line under it.
    std::pair<QColor, QColor> Look(ModeBarEntry* entry) const {
        QWidget* bar = entry->parentWidget();
        const QImage seen = bar->grab().toImage();
        const QRect place = entry->geometry();
        return {seen.pixelColor(place.left() + 4, place.center().y()),
                seen.pixelColor(place.center().x(), place.bottom())};
    }

    static void Point(QWidget* widget, bool at) {
        if (at) {
            QEnterEvent entered({1, 1}, {1, 1}, {1, 1});
            widget->setAttribute(Qt::WA_UnderMouse, true);
            QCoreApplication::sendEvent(widget, &entered);
        } else {
            QEvent left(QEvent::Leave);
            widget->setAttribute(Qt::WA_UnderMouse, false);
            QCoreApplication::sendEvent(widget, &left);
        }
    }
};

const std::pair<QColor, QColor> Plain{ToQColor(BarColor), ToQColor(BarColor)};

} // namespace

TEST_F(ModeBar, TheActiveModeHasAGroundAndALineOfItsOwn) {
    for (const Mode mode : {Mode::Homework, Mode::Tasks, Mode::Events, Mode::Calendar}) {
        ChooseMode(*window, mode);
        for (const Mode other : {Mode::Homework, Mode::Tasks, Mode::Events, Mode::Calendar}) {
            EXPECT_EQ(Entry(other)->IsActive(), other == mode);
            EXPECT_EQ(Look(Entry(other)),
                      other == mode ? (std::pair{ToQColor(BarActiveColor), ToQColor(BarMarkColor)}) : Plain);
        }
    }
}

TEST_F(ModeBar, AnEntryUnderThePointerIsLighter) {
    for (QWidget* widget : {static_cast<QWidget*>(Entry(Mode::Tasks)), window->LabelBarWeb->parentWidget(),
                            window->picHelp->parentWidget()}) {
        auto* entry = qobject_cast<ModeBarEntry*>(widget);
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(Look(entry), Plain);
        Point(entry, true);
        EXPECT_EQ(Look(entry), (std::pair{ToQColor(BarHoverColor), ToQColor(BarColor)}));
        EXPECT_EQ(entry->cursor().shape(), Qt::PointingHandCursor);
        Point(entry, false);
        EXPECT_EQ(Look(entry), Plain);
    }
}

TEST_F(ModeBar, APressBesideThePictureChoosesTheModeAsWell) {
    QTest::mouseClick(Entry(Mode::Tasks), Qt::LeftButton, {}, QPoint(2, 20));
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    QTest::mouseClick(Entry(Mode::Events), Qt::RightButton, {}, QPoint(2, 20));
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

TEST_F(ModeBar, EachPartTellsWhatItIsAndItsKey) {
    EXPECT_EQ(Entry(Mode::Calendar)->toolTip(), "Calendar (Ctrl+1)");
    EXPECT_EQ(Entry(Mode::Homework)->toolTip(), "Homework (Ctrl+2)");
    EXPECT_EQ(Entry(Mode::Events)->toolTip(), "Events (Ctrl+3)");
    EXPECT_EQ(Entry(Mode::Tasks)->toolTip(), "Tasks (Ctrl+4)");
    EXPECT_EQ(Entry(Mode::Reminders)->toolTip(), "Reminders (Ctrl+5)");
    EXPECT_EQ(window->PictureBarWeb->parentWidget()->toolTip(), "Online Homework Help");
    EXPECT_EQ(window->picHelp->parentWidget()->toolTip(), "Help (F1)");
}

TEST_F(ModeBar, NoPartIsCutAtTheSmallestSize) {
    window->resize(window->minimumSize());
    for (const QLabel* word : {window->LabelBarCalendar, window->LabelBarHomework, window->LabelBarEvents,
                               window->LabelBarTasks, window->LabelBarReminders, window->LabelBarWeb}) {
        EXPECT_GE(word->width(), word->sizeHint().width()) << word->text().toStdString();
    }
    const QWidget* help = window->picHelp->parentWidget();
    EXPECT_LE(help->geometry().right(), help->parentWidget()->width());
}
