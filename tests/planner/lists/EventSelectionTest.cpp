// The rows of the day's events and of the Events list.
#include "planner/lists/EventSelection.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr Date Wednesday{2009y / 10 / 14};

ListFilter Filter(const std::string& comboList, const std::string& comboDateRange = "Day") {
    return {comboList, comboDateRange, Wednesday};
}

class EventRowsOf : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        ActiveTermID = 4;
        AddClassRecord({.id = "10", .term = "4", .name = "Algebra", .forecolor = "1", .backcolor = "100"});
        AddClassRecord({.id = "11", .term = "5", .name = "Biology", .forecolor = "2", .backcolor = "200"});
    }

    void TearDown() override { ResetStore(); }
};

void ExpectCounts(int classes, int others, int total) {
    EXPECT_EQ(EventClassCount, classes);
    EXPECT_EQ(EventOtherCount, others);
    EXPECT_EQ(EventTotalCount, total);
}

} // namespace

TEST_F(EventRowsOf, ADayAreItsOccurrencesInStoreOrder) {
    AddEventRecord({.type = "Birthday"});
    AddEventRecord({.date = "2009/10/15"});
    AddEventRecord({.date = "2009/10/07", .type = "Class", .recurrence = "Day", .repeat_daily = "FFTFFFF"});
    AddEventRecord({.type = "Study Time"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRows.values, (Numbers{1, 3, 4}));
    EXPECT_EQ(EventRowDate.values, (std::vector<Date>(3, Wednesday)));
    EXPECT_EQ(EventRowType.values, (Texts{"Birthday", "Class", "Study Time"}));
    EXPECT_EQ(EventRowForeColor.values, (Numbers{0, 0, 0}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{0xE6B9E6, 0x9797F9, 0x4A4AFF}));
    ExpectCounts(1, 2, 3);
}

TEST_F(EventRowsOf, ADayLeaveOutTheDatesThatASeriesHasGivenUp) {
    AddEventRecord({.recurrence = "Day", .exceptions = "2009/10/14", .repeat_daily = "FFTFFFF"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRows.Count(), 0);
    ExpectCounts(0, 0, 0);
}

TEST_F(EventRowsOf, TheFilterClassesTakeTheTypeClassAlone) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "TermID4-ClassID10"});
    AddEventRecord({.type = "Home"});
    SelectEventsForDay(Wednesday, Filter("Classes"));
    EXPECT_EQ(EventRows.values, (Numbers{1}));
    ExpectCounts(1, 2, 3);
}

TEST_F(EventRowsOf, TheFilterOtherEventsTakeAllButTheTypeClass) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "TermID4-ClassID10"});
    AddEventRecord({.type = "Home"});
    SelectEventsForDay(Wednesday, Filter("Other Events"));
    EXPECT_EQ(EventRows.values, (Numbers{2, 3}));
    ExpectCounts(1, 2, 3);
}

TEST_F(EventRowsOf, AnyOtherFilterAreNone) {
    AddEventRecord({.type = "Class"});
    SelectEventsForDay(Wednesday, Filter("Done"));
    EXPECT_EQ(EventRows.Count(), 0);
    ExpectCounts(1, 0, 1);
}

TEST_F(EventRowsOf, TheCalendarTakeAllWhateverTheFilter) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "Home"});
    ListFilter filter = Filter("Classes");
    filter.calendarMode = true;
    SelectEventsForDay(Wednesday, filter);
    EXPECT_EQ(EventRows.values, (Numbers{1, 2}));
}

TEST_F(EventRowsOf, AClassMeetingHaveTheNameAndColorsOfItsClass) {
    AddEventRecord({.type = "TermID4-ClassID10"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRowType.values, (Texts{"Algebra"}));
    EXPECT_EQ(EventRowForeColor.values, (Numbers{1}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{100}));
}

TEST_F(EventRowsOf, ADayLeaveOutMeetingsOfOtherTermsAndOfNoClass) {
    AddEventRecord({.type = "TermID5-ClassID11"});
    AddEventRecord({.type = "TermID4-ClassID12"});
    AddEventRecord({.type = "ClassID10-TermID4"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRows.Count(), 0);
    ExpectCounts(0, 0, 0);
}

TEST_F(EventRowsOf, TypesThatAreNotInTheTableAreNamelessBlackOnWhite) {
    AddEventRecord({.type = "None"});
    AddEventRecord({.type = "Hobby"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRowType.values, (Texts{"", ""}));
    EXPECT_EQ(EventRowForeColor.values, (Numbers{0, 0}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{0xFFFFFF, 0xFFFFFF}));
}

TEST_F(EventRowsOf, DeletedEventsAreNone) {
    AddEventRecord({.desc = "DELETED RECORD"});
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRows.Count(), 0);
}

TEST_F(EventRowsOf, OneSelectionReplaceThoseOfTheLastAndTheirBoxes) {
    AddEventRecord({});
    SelectEventsForDay(Wednesday, Filter("All"));
    const std::array<NumberList*, 5> boxes{&EventBoxLeft, &EventBoxTop, &EventBoxWidth, &EventBoxHeight,
                                           &EventBoxColumn};
    for (NumberList* box : boxes) {
        box->Add(1);
    }
    SelectEventsForDay(Wednesday, Filter("All"));
    EXPECT_EQ(EventRows.values, (Numbers{1}));
    EXPECT_EQ(EventRowDate.values, (std::vector<Date>{Wednesday}));
    EXPECT_EQ(EventRowType.Count(), 1);
    EXPECT_EQ(EventRowForeColor.Count(), 1);
    EXPECT_EQ(EventRowBackColor.Count(), 1);
    for (const NumberList* box : boxes) {
        EXPECT_EQ(box->Count(), 0);
    }
    ExpectCounts(0, 1, 1);
    AddEventRecord({.type = "Class"});
    for (int time = 1; time <= 2; ++time) {
        SelectEventRows(Filter("All", "Year"));
        EXPECT_EQ(EventRows.values, (Numbers{1, 2}));
        ExpectCounts(1, 1, 2);
    }
}

TEST_F(EventRowsOf, ARangeAreTheOccurrencesOfTheWalk) {
    AddEventRecord({.date = "2009/10/12",
                    .type = "Class",
                    .recurrence = "Day",
                    .exceptions = "2009/10/16",
                    .repeat_daily = "TFTFTFF"});
    AddEventRecord({.date = "2009/10/20", .type = "Home"});
    AddEventRecord({.date = "2009/10/22", .type = "Home"});
    SelectEventRows(Filter("All", "Week"));
    EXPECT_EQ(EventRows.values, (Numbers{1, 1, 1, 1, 2}));
    EXPECT_EQ(EventRowDate.values,
              (std::vector<Date>{Date{2009y / 10 / 14}, Date{2009y / 10 / 21}, Date{2009y / 10 / 16},
                                 Date{2009y / 10 / 19}, Date{2009y / 10 / 20}}));
    ExpectCounts(4, 1, 5);
}

TEST_F(EventRowsOf, ARangeKeepMeetingsOfOtherTerms) {
    AddEventRecord({.type = "TermID5-ClassID11"});
    SelectEventRows(Filter("All", "Month"));
    EXPECT_EQ(EventRowType.values, (Texts{"Biology"}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{200}));
    SelectEventRows(Filter("All", "Day"));
    EXPECT_EQ(EventRows.Count(), 0);
}

TEST_F(EventRowsOf, ARangeFollowTheFilterButCountAll) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "Home"});
    SelectEventRows(Filter("Other Events", "Year"));
    EXPECT_EQ(EventRows.values, (Numbers{2}));
    ExpectCounts(1, 1, 2);
}

TEST_F(EventRowsOf, ABadDateEndInTheRunTimeError) {
    AddEventRecord({.date = "never"});
    EXPECT_THROW(SelectEventsForDay(Wednesday, Filter("All")), RunTimeError);
}
