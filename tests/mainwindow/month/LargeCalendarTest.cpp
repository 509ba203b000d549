// The large calendar as it was painted on the grid.
#include "mainwindow/flows/ViewFlow.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr std::size_t Cell1 = 4; // 1 October 2009 in weeks from Sunday
constexpr std::size_t Cell14 = 17;

class LargeCalendar : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp(); // 14 October 2009
        LoadWindow();
    }

    const std::vector<DrawnItem>& Drawn() const { return window->picGrid->Drawn(); }

    // The things of that kind that were drawn wholly within the rectangle.
    std::vector<DrawnItem> DrawnWithin(const UnitRect& rect, DrawnKind kind) const {
        std::vector<DrawnItem> items;
        std::ranges::copy_if(Drawn(), std::back_inserter(items), [&](const DrawnItem& item) {
            return item.kind == kind && Holds(rect, item.left, item.top) &&
                   item.left + item.width <= rect.left + rect.width &&
                   item.top + item.height <= rect.top + rect.height;
        });
        return items;
    }

    const UnitRect& Area(std::size_t cell) const { return window->CalendarGrid.cell[cell].area; }

    const UnitRect& Tab(std::size_t cell) const { return window->CalendarGrid.cell[cell].tab; }

    QStringList TextsIn(std::size_t cell) const {
        QStringList texts;
        for (const DrawnItem& item : DrawnWithin(Area(cell), DrawnKind::Text)) {
            texts.append(item.text);
        }
        return texts;
    }

    QStringList PicturesIn(std::size_t cell) const {
        QStringList names;
        for (const DrawnItem& item : DrawnWithin(Area(cell), DrawnKind::Picture)) {
            names.append(item.text);
        }
        return names;
    }

    // The text drawn in the cell, with its colour and font.
    DrawnItem TextItem(std::size_t cell, const QString& text) const {
        for (DrawnItem& item : DrawnWithin(Area(cell), DrawnKind::Text)) {
            if (item.text == text) {
                return item;
            }
        }
        ADD_FAILURE() << "Not drawn: " << text.toStdString();
        return {};
    }
};

} // namespace

TEST_F(LargeCalendar, HidesTheScrollBarAndTheTitles) {
    EXPECT_FALSE(window->VSGridScroll->isVisible());
    for (const PictureBox* title : window->picColHeader) {
        EXPECT_FALSE(title->isVisible());
    }
}

TEST_F(LargeCalendar, HeadsNameTheWeekdaysFromTheFirst) {
    const QStringList heads = DrawnTexts(*window->picGrid).mid(0, 7);
    EXPECT_EQ(heads.join(' ').toStdString(), "Sunday Monday Tuesday Wednesday Thursday Friday Saturday");
    ChooseStartDayOfWeek(*window, "Monday");
    EXPECT_EQ(DrawnTexts(*window->picGrid).value(0), "Monday");
    EXPECT_EQ(DrawnTexts(*window->picGrid).value(6), "Sunday");
}

TEST_F(LargeCalendar, HeadsAreCentredInTheirRow) {
    const UnitRect row{0, 0, window->picGrid->WidthInUnits(), 375};
    const std::vector<DrawnItem> ground = DrawnWithin(row, DrawnKind::Rectangle);
    ASSERT_EQ(ground.size(), 1U);
    EXPECT_EQ(ground[0].color, 0xDCF5F5); // RGB 245, 245, 220
    EXPECT_EQ(ground[0].width, row.width);
    EXPECT_EQ(ground[0].height, 375);
    const std::vector<DrawnItem> names = DrawnWithin(row, DrawnKind::Text);
    ASSERT_EQ(names.size(), 7U);
    for (std::size_t column = 0; column < 7; ++column) {
        const UnitRect& head = window->CalendarGrid.head[column];
        EXPECT_EQ(names[column].color, 0x5C5C5C);
        EXPECT_EQ(names[column].font, (SurfaceFont{Face::List, 9, true}));
        const int right = names[column].left + TextWidth(names[column].text, names[column].font);
        EXPECT_NEAR(names[column].left - head.left, head.left + head.width - right, 1);
    }
}

TEST_F(LargeCalendar, GridLinesAreGrey) {
    int upright = 0;
    int level = 0;
    for (const DrawnItem& item : Drawn()) {
        if (item.kind == DrawnKind::Line) {
            EXPECT_EQ(item.color, 0x808080);
            ++(item.width == 0 ? upright : level);
        }
    }
    EXPECT_EQ(upright, 8);
    EXPECT_EQ(level, 8); // the head row is one row more
}

TEST_F(LargeCalendar, CellsOutsideTheMonthHaveAGreyGround) {
    for (std::size_t cell = 0; cell < MonthCells; ++cell) {
        const UnitRect& area = Area(cell);
        const bool ground =
            std::ranges::any_of(DrawnWithin(area, DrawnKind::Rectangle), [&](const auto& item) {
                return item.color == 0xF5F5F5 && item.left == area.left && item.top == area.top &&
                       item.width == area.width && item.height == area.height;
            });
        EXPECT_EQ(ground, window->Month.CellInMonth[cell] == 0) << cell;
    }
}

TEST_F(LargeCalendar, EveryCellHasATabWithItsDay) {
    for (std::size_t cell = 0; cell < MonthCells; ++cell) {
        const std::vector<DrawnItem> fills = DrawnWithin(Tab(cell), DrawnKind::Rectangle);
        ASSERT_EQ(fills.size(), 1U) << cell;
        EXPECT_EQ(fills[0].color, window->Month.CellBackColor[cell]);
        const std::vector<DrawnItem> frames = DrawnWithin(Tab(cell), DrawnKind::Frame);
        ASSERT_EQ(frames.size(), 1U) << cell;
        EXPECT_EQ(frames[0].color, 0x808080);
        EXPECT_EQ(frames[0].width, 345);
        EXPECT_EQ(frames[0].height, 330);
        const std::vector<DrawnItem> day = DrawnWithin(Tab(cell), DrawnKind::Text);
        ASSERT_EQ(day.size(), 1U) << cell;
        EXPECT_EQ(day[0].text.toStdString(), window->Month.CellText[cell]);
        EXPECT_EQ(day[0].color, window->Month.CellForeColor[cell]);
        EXPECT_EQ(day[0].font, (SurfaceFont{Face::Title, 10, cell == Cell14}));
    }
}

TEST_F(LargeCalendar, TodayHasAFrameTwoLinesThick) {
    GoToDate(*window, Date{2009y / 10 / 20});
    std::vector<DrawnItem> frames;
    std::ranges::copy_if(Drawn(), std::back_inserter(frames), [](const DrawnItem& item) {
        return item.kind == DrawnKind::Frame && item.color == 0x5A4239; // RGB 57, 66, 90
    });
    ASSERT_EQ(frames.size(), 2U);
    const UnitRect& area = Area(Cell14);
    EXPECT_EQ((UnitRect{frames[0].left, frames[0].top, frames[0].width, frames[0].height}), area);
    EXPECT_EQ(frames[1].left, area.left + 15);
    EXPECT_EQ(frames[1].top, area.top + 15);
    EXPECT_EQ(frames[1].width, area.width - 30);
    EXPECT_EQ(frames[1].height, area.height - 30);
}

TEST_F(LargeCalendar, TodayAsAGreyCellHasNoFrame) {
    GoToDate(*window, Date{2009y / 9 / 2}); // 14 October is beyond; 1 October would be seen
    SetClock(2009, 10, 1);
    window->RefreshFor(ReasonCalendar);
    EXPECT_TRUE(std::ranges::none_of(Drawn(), [](const DrawnItem& item) {
        return item.kind == DrawnKind::Frame && item.color == 0x5A4239;
    }));
}

TEST_F(LargeCalendar, ADayShowsItsHomeworkTasksAndEvents) {
    for (const char* done : {"True", "False", "True"}) {
        AddAssignmentRecord({.date = "2009/10/01", .done = done});
    }
    AddTaskRecord({.date = "2009/10/01", .done = "True"});
    AddEventRecord({.date = "2009/10/01"});
    AddEventRecord({.date = "2009/10/01"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(TextsIn(Cell1).join(';').toStdString(), "1;2 / 3;1 / 1;2");
    EXPECT_EQ(PicturesIn(Cell1).join(';'),
              "picStashCalHomework.svg;picStashCalTask.svg;picStashCalEvent.svg");
    EXPECT_EQ(TextItem(Cell1, "2 / 3").color, ColorSelectedNotDone);
    EXPECT_EQ(TextItem(Cell1, "1 / 1").color, ColorBlack);
    EXPECT_EQ(TextItem(Cell1, "2").color, ColorBlack);
    EXPECT_EQ(TextItem(Cell1, "2").font, (SurfaceFont{Face::List, 9, false}));
}

TEST_F(LargeCalendar, ADayOfANeighbourMonthShowsDimPictures) {
    AddAssignmentRecord({.date = "2009/09/30"});
    AddTaskRecord({.date = "2009/09/30"});
    AddEventRecord({.date = "2009/09/30"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(PicturesIn(3).join(';').toStdString(),
              "picStashCalHomeworkDim.svg;picStashCalTaskDim.svg;picStashCalEventDim.svg");
}

TEST_F(LargeCalendar, ADayWithoutItemsShowsItsNumberAlone) {
    EXPECT_EQ(TextsIn(Cell1), QStringList{"1"});
    EXPECT_TRUE(PicturesIn(Cell1).isEmpty());
}

TEST_F(LargeCalendar, LinesStandAtTheirPlaceInTheLayout) {
    AddTaskRecord({.date = "2009/10/01"});
    window->RefreshFor(ReasonNewRecord);
    const auto& icons = window->CalendarGrid.cell[Cell1].icon;
    const std::vector<DrawnItem> pictures = DrawnWithin(Area(Cell1), DrawnKind::Picture);
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures[0].left, icons[1].left);
    EXPECT_EQ(pictures[0].top, icons[1].top);
    EXPECT_EQ(icons[0], UnitRect{});
    EXPECT_EQ(icons[2], UnitRect{});
}

TEST_F(LargeCalendar, NothingOfALineIsCutOffAtTheSmallestSize) {
    AddAssignmentRecord({.date = "2009/10/01"});
    AddTaskRecord({.date = "2009/10/01"});
    AddEventRecord({.date = "2009/10/01"});
    window->resize(window->minimumSize());
    window->RefreshFor(ReasonNewRecord);
    const UnitRect& area = Area(Cell1);
    int above = Tab(Cell1).top + Tab(Cell1).height;
    for (const QString& text : {QStringLiteral("0 / 1"), QStringLiteral("1")}) {
        for (const DrawnItem& item : DrawnWithin(area, DrawnKind::Text)) {
            if (item.text == text && item.font.face == Face::List) {
                EXPECT_GE(item.top, above);
                above = item.top + TextHeight(item.font) - UnitsPerPixel; // a pixel of the line's own room
                EXPECT_LE(item.top + TextHeight(item.font), area.top + area.height);
                EXPECT_LE(item.left + TextWidth(item.text, item.font), area.left + area.width);
            }
        }
    }
    EXPECT_EQ(PicturesIn(Cell1).size(), 3);
}

TEST_F(LargeCalendar, TitlesNameTheMonthAndTheDay) {
    EXPECT_EQ(window->LabelTop->text(), "October 2009");
    EXPECT_EQ(window->LabelInfoTitle->text(), "Wednesday, Oct 14");
    GoToDate(*window, Date{2010y / 2 / 1});
    EXPECT_EQ(window->LabelTop->text(), "February 2010");
    EXPECT_EQ(window->LabelInfoTitle->text(), "Monday, Feb 1");
}

TEST_F(LargeCalendar, FollowsTheSizeOfTheWindow) {
    window->resize(1400, 1000);
    EXPECT_TRUE(WaitUntil([this] {
        const UnitRect& last = Area(41);
        return last.left + last.width == window->picGrid->WidthInUnits() &&
               last.top + last.height == window->picGrid->HeightInUnits() && window->width() == 1400;
    }));
}
