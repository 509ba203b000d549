// The main window as the student sees it: each mode at three sizes, at the scale of this process, compared
// with the stored pictures; and that the comparison would see a column that has moved.
#include "core/RowLists.h"
#include "mainwindow/list/ListColumns.h"
#include "mainwindow/modes/Modes.h"
#include "pictures/PictureTest.h"
#include "pictures/Pictures.h"
#include "toolkit/layout/GridLayout.h"

#include <QFontInfo>
#include <QPainter>

#include <tuple>

namespace {

struct PicturedMode {
    const char* name;
    void (*enter)(frmMain&);
};

constexpr std::array<PicturedMode, ModeCount> PicturedModes{{
    {"Calendar", &ShowCalendarMode},
    {"Homework", &ShowHomeworkMode},
    {"StudySessions", &ShowStudySessionsMode},
    {"Tasks", &ShowTaskMode},
    {"Events", &ShowEventMode},
    {"Reminders", &ShowReminderMode},
}};

const std::array<QSize, 3> PicturedSizes{QSize(780, 575), QSize(1280, 800), QSize(1920, 1080)};

class Pictures : public PictureTest {
protected:
    // Shows the mode at that size of the window. Calendar is unchecked, or else Study Sessions and Reminders
    // that are entered from it would show the month.
    void Show(const PicturedMode& mode, const QSize& size) {
        window->resize(size);
        window->MenuCalendar->setChecked(false);
        mode.enter(*window);
        QCoreApplication::processEvents();
        ASSERT_EQ(window->size(), size);
    }

    QImage Picture() { return window->grab().toImage(); }

    // The picture with a part of the grid moved to the right by so many pixels of the window.
    QImage WithMovedPart(const QImage& picture, const QRect& partOfGrid, int pixels) const {
        const QPoint corner = window->picGrid->mapTo(window.get(), QPoint());
        const QRect part(partOfGrid.topLeft() + corner, partOfGrid.size());
        const QRect onScreen(part.topLeft() * PictureScale, part.size() * PictureScale);
        QImage plain = picture;
        plain.setDevicePixelRatio(1);
        const QImage moved = plain.copy(onScreen);
        QPainter(&plain).drawImage(onScreen.topLeft() + QPoint(pixels * PictureScale, 0), moved);
        return plain;
    }
};

class ModePictures : public Pictures, public testing::WithParamInterface<std::tuple<PicturedMode, QSize>> {};

struct PicturedList {
    PicturedMode mode;
    ListKind kind;
};

class ListColumns : public Pictures, public testing::WithParamInterface<PicturedList> {};

QString SizeName(const QSize& size) {
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

std::string NameOfPicture(const testing::TestParamInfo<std::tuple<PicturedMode, QSize>>& each) {
    return std::get<0>(each.param).name + SizeName(std::get<1>(each.param)).toStdString();
}

} // namespace

TEST(PictureFonts, AreThoseOfTheStoredPictures) {
    EXPECT_EQ(QFontInfo(ToQFont({Face::List, 9, false})).family(), "Liberation Sans");
    EXPECT_EQ(QFontInfo(ToQFont({Face::Title, 8, true})).family(), "DejaVu Sans");
}

TEST_P(ModePictures, AreAsStored) {
    const auto& [mode, size] = GetParam();
    ASSERT_NO_FATAL_FAILURE(Show(mode, size));
    ExpectAsStored(QStringLiteral("%1-%2").arg(QLatin1String(mode.name), SizeName(size)), Picture());
}

INSTANTIATE_TEST_SUITE_P(Pictures, ModePictures,
                         testing::Combine(testing::ValuesIn(PicturedModes), testing::ValuesIn(PicturedSizes)),
                         &NameOfPicture);

TEST_P(ListColumns, AColumnThatMovesByFourPixelsIsSeen) {
    ASSERT_NO_FATAL_FAILURE(Show(GetParam().mode, PicturedSizes.front()));
    const QImage picture = Picture();
    const QImage reduced = Reduced(picture, PictureScale);
    EXPECT_EQ(GreatestDifference(Reduced(Picture(), PictureScale), reduced).greys, 0);
    const auto places = PlaceColumns(ColumnsOf(GetParam().kind), window->picGrid->WidthInUnits());
    const int emptyTop = TitleHeight + std::min(window->RowCount, window->RowsVisible) * RowHeight;
    for (const ColumnPlace& place : places) {
        const int left = place.left / UnitsPerPixel;
        const int width = place.width / UnitsPerPixel;
        const int height = window->picGrid->height();
        for (const QRect& part : {QRect(left, 0, width, TitleHeight), // the title alone
                                  QRect(left, TitleHeight, width, height - TitleHeight)}) {
            const QImage moved = Reduced(WithMovedPart(picture, part, 4), PictureScale);
            EXPECT_GT(GreatestDifference(moved, reduced).greys, GreyTolerance) << left << " " << part.top();
        }
        if (emptyTop + RowHeight < height) { // the line alone, below the rows
            const QRect part(left + 1, emptyTop, width, height - emptyTop);
            const QImage moved = Reduced(WithMovedPart(picture, part, 4), PictureScale);
            EXPECT_GT(GreatestDifference(moved, reduced).greys, GreyTolerance) << left << " below the rows";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pictures, ListColumns,
                         testing::Values(PicturedList{PicturedModes[1], ListKind::Homework},
                                         PicturedList{PicturedModes[2], ListKind::StudySessions},
                                         PicturedList{PicturedModes[3], ListKind::Tasks},
                                         PicturedList{PicturedModes[5], ListKind::Reminders}),
                         [](const auto& each) { return std::string(each.param.mode.name); });

TEST(PictureComparison, TellsThePlaceOfTheGreatestDifference) {
    QImage stored(20, 10, QImage::Format_Grayscale8);
    stored.fill(200);
    QImage seen = stored;
    seen.scanLine(2)[5] = 190;
    seen.scanLine(7)[11] = 220;
    const Difference difference = GreatestDifference(seen, stored);
    EXPECT_EQ(difference.greys, 20);
    EXPECT_EQ(difference.place, QPoint(44, 28));
}

TEST(PictureComparison, PicturesOfOtherSizesOrNoneDifferWholly) {
    QImage stored(20, 10, QImage::Format_Grayscale8);
    EXPECT_EQ(GreatestDifference(stored.copy(0, 0, 20, 9), stored).greys, 256);
    EXPECT_EQ(GreatestDifference(stored, StoredPicture("none")).greys, 256);
}

TEST(PictureComparison, BlocksAreMeansAndThoseAtTheEdgesAreOfWhatIsThere) {
    QImage picture(6, 4, QImage::Format_Grayscale8);
    picture.fill(255);
    for (int y = 0; y < 4; ++y) {
        picture.scanLine(y)[0] = 223; // a column line
        picture.scanLine(y)[5] = 55;
    }
    const QImage reduced = Reduced(picture, 1);
    ASSERT_EQ(reduced.size(), QSize(2, 1));
    EXPECT_EQ(reduced.constScanLine(0)[0], 247);
    EXPECT_EQ(reduced.constScanLine(0)[1], 155);
}
