// The schedule of a day as painted.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include "core/RowLists.h"

namespace {

class DaySchedule : public GridTest {
protected:
    // Filled rectangles of a colour.
    std::vector<UnitRect> Filled(int color) const {
        std::vector<UnitRect> rects;
        for (const DrawnItem& item : window->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Rectangle && item.color == color) {
                rects.push_back({item.left, item.top, item.width, item.height});
            }
        }
        return rects;
    }

    // Gives events of the type "Friends" a colour that nothing else has.
    static void ColourFriends() {
        const int row = TypeRow("Event", "Friends");
        TypeTable.forecolor.Replace(row, "1118481");
        TypeTable.backcolor.Replace(row, std::to_string(FriendsColor));
    }

    DrawnItem TextOf(const QString& text) const {
        for (const DrawnItem& item : window->picGrid->Drawn()) {
            if (item.kind == DrawnKind::Text && item.text == text) {
                return item;
            }
        }
        ADD_FAILURE() << "There is no text " << text.toStdString();
        return {};
    }

    static constexpr int FriendsColor = 0x654321;
    static constexpr SurfaceFont Bold{Face::List, 9, true};
};

} // namespace

TEST_F(DaySchedule, OpensAtTheMorning) {
    ShowEventMode(*window);
    EXPECT_EQ(window->FirstRow, 11);
    EXPECT_EQ(DrawnTexts(*window->picGrid).first(), "5 AM");
    EXPECT_EQ(window->RowCount, 47);
    EXPECT_EQ(window->VSGridScroll->maximum(), 47 - window->RowsVisible + 1);
}

TEST_F(DaySchedule, LabelsAreBoldGreyAndEndInTheirColumn) {
    ShowEventMode(*window);
    const DrawnItem label = TextOf("9 AM");
    EXPECT_EQ(label.color, 0x808080);
    EXPECT_EQ(label.font, Bold);
    EXPECT_LE(label.left + TextWidth(label.text, Bold), 705);
    EXPECT_EQ(label.top, 8 * SlotUnits + 60);
}

TEST_F(DaySchedule, NightRowsAreGreyAndLinesTellHours) {
    ShowEventMode(*window);
    const int width = window->picGrid->WidthInUnits() - 255 - 720;
    const std::vector<UnitRect> night = Filled(0xF2F2F2);
    ASSERT_GE(night.size(), 2U);
    EXPECT_EQ(night[0], (UnitRect{720, 0, width, SlotUnits}));
    EXPECT_EQ(night[1], (UnitRect{720, SlotUnits, width, SlotUnits}));
    std::map<int, int> colors;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Line && item.left == 720) {
            colors[item.top] = item.color;
        }
    }
    EXPECT_EQ(colors[2 * SlotUnits], 198 * 0x010101);
    EXPECT_EQ(colors[3 * SlotUnits], 236 * 0x010101);
}

TEST_F(DaySchedule, AnEventIsABoxOfItsColours) {
    ColourFriends();
    AddEventRecord({.time = "09:00 AM", .duration = "1 Hour", .desc = "Chess", .type = "Friends"});
    ShowEventMode(*window);
    const int room = window->picGrid->WidthInUnits() - 705 - 255;
    EXPECT_EQ(Filled(FriendsColor), (std::vector<UnitRect>{{705, 8 * SlotUnits, room, 2 * SlotUnits}}));
    const DrawnItem text = TextOf("Friends - Chess");
    EXPECT_EQ(text.left, 705 + 90);
    EXPECT_EQ(text.top, 8 * SlotUnits + 60);
    EXPECT_EQ(text.color, 1118481);
}

TEST_F(DaySchedule, ABoxHasABlackFrame) {
    AddEventRecord({});
    ShowEventMode(*window);
    EXPECT_TRUE(std::ranges::any_of(window->picGrid->Drawn(), [](const DrawnItem& item) {
        return item.kind == DrawnKind::Frame && item.color == 0 && item.left == 705;
    }));
}

TEST_F(DaySchedule, BoxesAtOneTimeStandSideBySide) {
    ColourFriends();
    AddEventRecord({.type = "Friends"});
    AddEventRecord({.type = "Friends"});
    ShowEventMode(*window);
    const std::vector<UnitRect> boxes = Filled(FriendsColor);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].top, boxes[1].top);
    EXPECT_EQ(boxes[0].left + boxes[0].width, boxes[1].left);
}

TEST_F(DaySchedule, TheTextOfANarrowBoxIsShortened) {
    for (int i = 0; i < 6; ++i) {
        AddEventRecord({.desc = "Something that is far too long for a sixth of the width"});
    }
    ShowEventMode(*window);
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.left > 705) {
            EXPECT_LE(TextWidth(item.text, item.font), EventBoxWidth.Item(1));
            EXPECT_TRUE(item.text.startsWith(" Some"));
        }
    }
}

TEST_F(DaySchedule, BoxesThatAreScrolledAwayAreNotPainted) {
    AddEventRecord({.time = "01:00 AM", .desc = "Early"});
    AddEventRecord({.time = "11:00 PM", .desc = "Late"});
    ShowEventMode(*window);
    EXPECT_FALSE(DrawnTexts(*window->picGrid).contains(" Early"));
    EXPECT_FALSE(DrawnTexts(*window->picGrid).contains(" Late"));
    window->VSGridScroll->setValue(1);
    EXPECT_TRUE(DrawnTexts(*window->picGrid).contains(" Early"));
}

TEST_F(DaySchedule, ScrollingToTheEndShowsElevenInTheEvening) {
    ShowEventMode(*window);
    window->VSGridScroll->setValue(window->VSGridScroll->maximum());
    EXPECT_TRUE(DrawnTexts(*window->picGrid).contains("11 PM"));
}

TEST_F(DaySchedule, ATallWindowShowsTheWholeDayAndEmptyRowsBehindIt) {
    ShowEventMode(*window);
    window->resize(1000, 1900);
    ASSERT_TRUE(WaitUntil([this] { return window->RowsVisible > 62; }));
    EXPECT_EQ(window->FirstRow, 1);
    EXPECT_FALSE(window->VSGridScroll->isEnabled());
    EXPECT_EQ(DrawnTexts(*window->picGrid).size(), 24);
    EXPECT_EQ(Filled(0xF2F2F2).size(), 24U);
    EXPECT_GT(Filled(0xFFFFFF).size(), 24U + 62 - 48);
}

TEST_F(DaySchedule, ClassMeetingsShowTheirClass) {
    AddEventRecord({.desc = "Test", .type = "TermID1-ClassID1"});
    ShowEventMode(*window);
    EXPECT_TRUE(DrawnTexts(*window->picGrid).contains("Algebra - Test"));
    EXPECT_EQ(Filled(0x112233).size(), 1U);
}

TEST_F(DaySchedule, OfTwoEventsAtOneTimeTheShorterStandsAtTheLeft) {
    AddEventRecord({.time = "09:00 AM", .duration = "2 Hours", .desc = "Long"});
    AddEventRecord({.time = "09:00 AM", .duration = "30 Minutes", .desc = "Short"});
    ShowEventMode(*window);
    EXPECT_LT(TextOf(" Short").left, TextOf(" Long").left);
}

TEST_F(DaySchedule, EventsRunColumnByColumn) {
    AddEventRecord({.time = "09:00 AM", .duration = "30 Minutes", .desc = "A"});
    AddEventRecord({.time = "09:00 AM", .duration = "45 Minutes", .desc = "B"});
    AddEventRecord(
        {.time = "11:00 AM", .duration = "1 Hour", .desc = "C"}); // longer, and in the first column
    ShowEventMode(*window);
    const QStringList texts = DrawnTexts(*window->picGrid).filter(QRegularExpression("^ [ABC]$"));
    EXPECT_EQ(texts, (QStringList{" A", " C", " B"}));
    EXPECT_EQ(TextOf(" A").left, TextOf(" C").left);
}
