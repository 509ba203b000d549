// How the main window looks where that is more than colours of records: long names, the buttons for new
// records, the sort arrow, the ground of the small calendar, lines at fractions of a scale, tips.
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "support/Looks.h"
#include "toolkit/WindowStyle.h"
#include "toolkit/grid/ListInput.h"

#include <QHelpEvent>

namespace {

class WindowLooks : public GridTest {
protected:
    // Where the arrow stands on a title, and where the title's text ends.
    struct Title {
        UnitRect arrow;
        int textRight = 0;
        int width = 0;
    };

    Title TitleOf(std::size_t column) const {
        const PictureBox& header = *window->picColHeader[column];
        Title title;
        title.width = header.WidthInUnits();
        for (const DrawnItem& item : header.Drawn()) {
            if (item.kind == DrawnKind::Text) {
                title.textRight = item.left + TextWidth(item.text, item.font);
            } else if (item.text.contains("Title") && item.width < header.WidthInUnits()) {
                title.arrow = {item.left, item.top, item.width, item.height};
            }
        }
        return title;
    }

    // The grid as it is seen where a pixel of the window is so many of the screen.
    QImage GridAtScale(double scale) const {
        const QSize size = window->picGrid->size();
        QImage seen(QSize(qRound(size.width() * scale), qRound(size.height() * scale)), QImage::Format_RGB32);
        seen.setDevicePixelRatio(scale);
        window->picGrid->render(&seen);
        return seen;
    }
};

// The columns of the button to the left of what stands on it.
int RoomBesidePicture(const QImage& button) {
    constexpr int Edge = 4;
    for (int x = Edge; x < button.width(); ++x) {
        for (int y = Edge; y < button.height() - Edge; ++y) {
            if (std::abs(qGray(button.pixel(x, y)) - qGray(button.pixel(button.width() - Edge, y))) > 40) {
                return x;
            }
        }
    }
    return button.width();
}

// The pixels of the screen within the rectangle, without so much of each edge.
QRect OnScreen(const UnitRect& rect, int edge, double scale) {
    const auto pixel = [scale](int units) { return qRound(units * scale / UnitsPerPixel); };
    return {QPoint(pixel(rect.left + edge), pixel(rect.top + edge)),
            QPoint(pixel(rect.left + rect.width - edge) - 1, pixel(rect.top + rect.height - edge) - 1)};
}

} // namespace

// --- Long names --------------------------------------------------------------------------------------------

TEST_F(WindowLooks, ALongTermNameIsCutAndTellsTheWholeAndLeavesTheWindowItsSize) {
    const int smallest = window->minimumSizeHint().width();
    for (const int length : {40, 200}) {
        const QString name = QString(length, 'W');
        Store.Term.name.Replace(1, name.toStdString());
        SetActiveTerm(*window, name.toStdString());
        for (QLabel* label : {window->LabelTerm, window->LabelTop}) {
            ShowHomeworkMode(*window);
            EXPECT_TRUE(label->text().endsWith(name));
            QHelpEvent asked(QEvent::ToolTip, {}, {});
            QCoreApplication::sendEvent(label, &asked);
            EXPECT_TRUE(label->toolTip().remove(QChar(0x200B)).contains(name)) << length;
        }
        for (const auto enter : {&ShowCalendarMode, &ShowHomeworkMode}) {
            enter(*window);
            QCoreApplication::processEvents();
            EXPECT_EQ(window->size(), DesignSize);
            EXPECT_EQ(window->minimumSizeHint().width(), smallest);
            EXPECT_LE(window->LabelTerm->width(), LeftPanelWidth);
        }
    }
}

TEST_F(WindowLooks, TheFilterMenusDoNotWidenWithWhatTheyHold) {
    for (QComboBox* combo : {window->ComboList, window->ComboDateRange}) {
        EXPECT_GE(combo->minimumContentsLength(), 8);
        const QSize before = combo->minimumSizeHint();
        combo->addItem(QString(200, 'W'));
        EXPECT_EQ(combo->minimumSizeHint(), before);
    }
}

// --- Buttons -----------------------------------------------------------------------------------------------

TEST_F(WindowLooks, AButtonForNewRecordsThatStandsAloneSaysWhatItDoes) {
    const std::array<std::pair<QToolButton*, void (*)(frmMain&)>, 3> alone{
        {{window->ButtonNewAssignmentSmall, &ShowHomeworkMode},
         {window->ButtonNewEventSmall, &ShowEventMode},
         {window->ButtonNewTaskSmall, &ShowTaskMode}}};
    const QStringList words{"New Assignment...", "New Event...", "New Task..."};
    for (std::size_t i = 0; i < alone.size(); ++i) {
        const auto& [button, enter] = alone[i];
        enter(*window);
        EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        EXPECT_EQ(button->text(), words[static_cast<qsizetype>(i)]);
        EXPECT_GE(button->width(), button->sizeHint().width());
        ShowCalendarMode(*window);
        EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(window->ButtonNewEventSmall->x() - window->ButtonNewAssignmentSmall->x(), 50);
    EXPECT_EQ(window->ButtonNewTaskSmall->x() - window->ButtonNewAssignmentSmall->x(), 100);
}

TEST_F(WindowLooks, AButtonForNewRecordsThatStandsAloneLeavesRoomBesideItsPicture) {
    const std::array<std::pair<QToolButton*, void (*)(frmMain&)>, 3> alone{
        {{window->ButtonNewAssignmentSmall, &ShowHomeworkMode},
         {window->ButtonNewEventSmall, &ShowEventMode},
         {window->ButtonNewTaskSmall, &ShowTaskMode}}};
    for (const auto& [button, enter] : alone) {
        enter(*window);
        QCoreApplication::processEvents();
        EXPECT_GE(RoomBesidePicture(button->grab().toImage()), 8) << button->objectName().toStdString();
    }
}

TEST_F(WindowLooks, EachIconButtonAndStepperHasATipWithItsKey) {
    EXPECT_EQ(window->ButtonNewAssignmentSmall->toolTip(), "New Assignment... (Ctrl+N)");
    EXPECT_EQ(window->ButtonNewEventSmall->toolTip(), "New Event... (Ctrl+E)");
    EXPECT_EQ(window->ButtonNewTaskSmall->toolTip(), "New Task... (Ctrl+T)");
    EXPECT_EQ(window->picCalDayDown->toolTip(), "One day back (Ctrl+Left)");
    EXPECT_EQ(window->picCalDayUp->toolTip(), "One day on (Ctrl+Right)");
    EXPECT_EQ(window->picCalMonthDown->toolTip(), "One month back (Ctrl+PgUp)");
    EXPECT_EQ(window->picCalMonthUp->toolTip(), "One month on (Ctrl+PgDown)");
    EXPECT_EQ(window->LabelToday->toolTip(), "Go to today (Ctrl+Home)");
    EXPECT_EQ(window->LabelTomorrow->toolTip(), "Go to tomorrow (Ctrl+End)");
    EXPECT_EQ(window->ButtonReset->toolTip(), "Reset Study Timer");
    EXPECT_EQ(window->ButtonSeconds->toolTip(), "Show or Hide Seconds");
}

// --- The sort arrow ----------------------------------------------------------------------------------------

TEST_F(WindowLooks, TheArrowStandsBesideItsTitleInEveryColumnButTheNarrowOnes) {
    ShowHomeworkMode(*window);
    for (std::size_t column = 1; column < 10; ++column) {
        ColumnClicked(*window, static_cast<int>(column));
        const Title title = TitleOf(column);
        ASSERT_GT(title.arrow.width, 0) << column;
        EXPECT_LE(title.arrow.left + title.arrow.width, title.width) << column;
        if (column < 3) { // the marks: above
            EXPECT_EQ(title.arrow.left, (title.width - title.arrow.width) / 2) << column;
            EXPECT_LE(title.arrow.top + title.arrow.height, 90) << column;
        } else {
            EXPECT_GE(title.arrow.left, title.textRight - UnitsPerPixel) << column;
            EXPECT_NEAR(title.arrow.top + title.arrow.height / 2, TitleUnits / 2, UnitsPerPixel) << column;
        }
    }
}

// --- The calendars -----------------------------------------------------------------------------------------

TEST_F(WindowLooks, AMarkedDayStandsOutFromTheGroundOfTheSmallCalendar) {
    const QColor ground = window->PictureBoxCalendar->palette().color(QPalette::Window);
    EXPECT_EQ(ground, ToQColor(ColorCell));
    EXPECT_TRUE(window->PictureBoxCalendar->autoFillBackground());
}

// The first week of February 2009 lies outside the month: but within its tabs, nothing white may be seen
// there.
TEST_F(WindowLooks, NoGapsShowBetweenTheLinesOfTheMonthAtAnyScale) {
    ASSERT_EQ(window->StartDayOfWeek, "Sunday");
    GoToDate(*window, Date{std::chrono::year{2009} / 2 / 10});
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const QImage seen = GridAtScale(scale);
        for (std::size_t cell = 0; cell < DaysPerWeek; ++cell) {
            const QRect area = OnScreen(window->CalendarGrid.cell[cell].area, 0, scale);
            const QRect tab = OnScreen(window->CalendarGrid.cell[cell].tab, UnitsPerPixel, scale);
            int white = 0;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x) {
                    white += !tab.contains(x, y) && seen.pixelColor(x, y) == Qt::white ? 1 : 0;
                }
            }
            EXPECT_EQ(white, 0) << scale << ", day " << cell;
        }
    }
}

TEST_F(WindowLooks, AFrameCoversThePixelsOfTheLinesAlongItsEdgesAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const auto seen = [scale](PictureBox& surface) {
            QImage image(QSize(100, 100) * 2, QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::white);
            surface.render(&image);
            return image;
        };
        PictureBox framed;
        PictureBox lined;
        framed.resize(100, 100);
        lined.resize(100, 100);
        for (int left = 45; left < 45 + 8 * UnitsPerPixel; left += UnitsPerPixel) {
            const int right = left + 1335 - UnitsPerPixel;
            framed.Clear();
            framed.DrawFrame(left, left, 1335, 1335, 0);
            lined.Clear();
            lined.DrawLine(left, left, right + UnitsPerPixel, left, 0);
            lined.DrawLine(left, right, right + UnitsPerPixel, right, 0);
            lined.DrawLine(left, left, left, right, 0);
            lined.DrawLine(right, left, right, right, 0);
            EXPECT_EQ(seen(framed), seen(lined)) << scale << " at " << left;
        }
    }
}
