// Edits of events, of series and of single occurrences, in the store.
#include "planner/recurrence/SeriesEdits.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Texts = std::vector<std::string>;

// Values as an editor hands them over: each field holds its tag, but for those that the tests look at.
EventLists EditedValues() {
    EventLists values;
    for (const Field<EventLists>& field : EventFields) {
        (values.*field.list).Add("new " + std::string(field.tag));
    }
    values.exceptions.Replace(1, "2009/10/28");
    values.parent_id.Replace(1, "");
    return values;
}

void ExpectEachListToHold(int count) {
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ((Store.EventRecord.*field.list).Count(), count) << field.tag;
    }
}

// A weekly series of id 7 in the second place among other events, with two exception children of three.
class SeriesEdits : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        NextEventID = 6;
        AddEventRecord({.desc = "First"});
        AddEventRecord({.desc = "Series",
                        .recurrence = "Day",
                        .exceptions = "2009/10/19 2009/10/26",
                        .repeat_daily = "TFFFFFF"});
        AddEventRecord({.date = "2009/10/20", .desc = "Child", .parent_id = "7"});
        AddEventRecord({.desc = "Child of another", .parent_id = "77"});
        AddEventRecord({.date = "2009/10/27", .desc = "Child", .parent_id = "7"});
        AddEventRecord({.desc = "Last"});
    }
};

} // namespace

TEST_F(SeriesEdits, GivingUpAnOccurrenceAppendsItsDateBehindABlank) {
    GiveUpOccurrence(2, Date{2009y / 11 / 2});
    EXPECT_EQ(Store.EventRecord.exceptions.Item(2), "2009/10/19 2009/10/26 2009/11/02");
    EXPECT_FALSE(EventOccursOn(Date{2009y / 11 / 2}, 2));
    EXPECT_TRUE(EventOccursOn(Date{2009y / 11 / 9}, 2));
    ExpectEachListToHold(6);
}

TEST_F(SeriesEdits, GivingUpTheFirstOccurrenceTrimsTheText) {
    GiveUpOccurrence(1, Date{2009y / 5 / 1});
    EXPECT_EQ(Store.EventRecord.exceptions.Item(1), "2009/05/01");
    GiveUpOccurrence(1, Date{2009y / 5 / 8});
    EXPECT_EQ(Store.EventRecord.exceptions.Item(1), "2009/05/01 2009/05/08");
    Store.EventRecord.exceptions.Replace(1, "  2009/05/01 ");
    GiveUpOccurrence(1, Date{2009y / 5 / 8});
    EXPECT_EQ(Store.EventRecord.exceptions.Item(1), "2009/05/01  2009/05/08");
}

TEST_F(SeriesEdits, AnEditedSeriesIsReplacedInPlaceAndKeepsItsIdAndChildren) {
    ReplaceEvent(2, EditedValues(), false);
    for (const Field<EventLists>& field : EventFields) {
        const std::string& value = (Store.EventRecord.*field.list).Item(2);
        if (field.tag != "id" && field.tag != "exceptions" && field.tag != "parent_id") {
            EXPECT_EQ(value, "new " + std::string(field.tag));
        }
    }
    EXPECT_EQ(Store.EventRecord.id.Item(2), "7");
    EXPECT_EQ(Store.EventRecord.exceptions.Item(2), "2009/10/28");
    EXPECT_EQ(Store.EventRecord.desc.Item(1), "First");
    ExpectEachListToHold(6);
}

TEST_F(SeriesEdits, ASeriesWithAChangedRecurrenceLosesItsExceptionsAndChildren) {
    ReplaceEvent(2, EditedValues(), true);
    EXPECT_EQ(Store.EventRecord.exceptions.Item(2), "");
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"First", "new desc", "Child of another", "Last"}));
    ExpectEachListToHold(4);
}

TEST_F(SeriesEdits, AnEditedChildIsReplacedInPlace) {
    EventLists values = EditedValues();
    values.parent_id.Replace(1, "7");
    ReplaceEvent(3, values, false);
    EXPECT_EQ(Store.EventRecord.id.Item(3), "8");
    EXPECT_EQ(Store.EventRecord.parent_id.Item(3), "7");
}

TEST_F(SeriesEdits, AnEditedOccurrenceBecomesAnExceptionChildAtTheEnd) {
    EventLists values = EditedValues();
    values.date.Replace(1, "2009/11/03"); // moved from the Monday that was clicked
    ReplaceOccurrence(2, Date{2009y / 11 / 2}, values);
    const EventLists& events = Store.EventRecord;
    EXPECT_EQ(events.exceptions.Item(2), "2009/10/19 2009/10/26 2009/11/02");
    EXPECT_EQ(events.recurrence.Item(2), "Day");
    EXPECT_EQ(events.desc.Item(2), "Series");
    EXPECT_EQ(events.id.Item(7), "12");
    EXPECT_EQ(events.date.Item(7), "2009/11/03");
    EXPECT_EQ(events.desc.Item(7), "new desc");
    EXPECT_EQ(events.parent_id.Item(7), "7");
    EXPECT_EQ(events.recurrence.Item(7), "None");
    EXPECT_EQ(events.exceptions.Item(7), "");
    ExpectEachListToHold(7);
    EXPECT_FALSE(EventOccursOn(Date{2009y / 11 / 2}, 2));
    EXPECT_TRUE(EventOccursOn(Date{2009y / 11 / 3}, 7));
}

TEST_F(SeriesEdits, ANewEventTakesTheNextId) {
    AddEvent(EditedValues());
    EXPECT_EQ(Store.EventRecord.id.Item(7), "12");
    EXPECT_EQ(Store.EventRecord.recurrence.Item(7), "new recurrence");
    EXPECT_EQ(NextEventID, 13);
    ExpectEachListToHold(7);
}

TEST_F(SeriesEdits, WithNoIdLeftChangeNothing) {
    NextEventID = GreatestInt16;
    EXPECT_THROW(ReplaceOccurrence(2, Date{2009y / 11 / 2}, EditedValues()), RunTimeError);
    EXPECT_EQ(Store.EventRecord.exceptions.Item(2), "2009/10/19 2009/10/26");
    ExpectEachListToHold(6);
}

TEST_F(SeriesEdits, ADeletedSeriesTakesItsChildrenAlong) {
    RemoveSeries(2);
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"First", "Child of another", "Last"}));
    EXPECT_EQ(Store.EventRecord.id.values, (Texts{"6", "9", "11"}));
    ExpectEachListToHold(3);
}

TEST_F(SeriesEdits, ADeletedChildLeavesItsDateAmongTheExceptions) {
    RemoveSeries(3);
    EXPECT_EQ(Store.EventRecord.exceptions.Item(2), "2009/10/19 2009/10/26");
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"First", "Series", "Child of another", "Child", "Last"}));
}

TEST_F(SeriesEdits, ChildrenInFrontOfTheirSeriesGoToo) {
    Store.EventRecord.parent_id.Replace(1, "11");
    RemoveSeries(6);
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"Series", "Child", "Child of another", "Child"}));
}

TEST_F(SeriesEdits, ChildrenInFrontOfTheirSeriesGoWithItsChangedRecurrenceToo) {
    Store.EventRecord.parent_id.Replace(1, "11");
    Store.EventRecord.parent_id.Replace(2, "11");
    ReplaceEvent(6, EditedValues(), true);
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"Child", "Child of another", "Child", "new desc"}));
}

TEST_F(SeriesEdits, AnEmptyIdHasNoChildren) {
    RemoveExceptionChildren("");
    ExpectEachListToHold(6);
}

TEST_F(SeriesEdits, OfAPositionOutsideTheStoreRaiseTheError) {
    EXPECT_THROW(GiveUpOccurrence(7, Date{2009y / 10 / 14}), RunTimeError);
    EXPECT_THROW(RemoveSeries(0), RunTimeError);
    EXPECT_THROW(ReplaceEvent(7, EditedValues(), true), RunTimeError);
    ExpectEachListToHold(6);
}
