// Which events, assignments and tasks the words of the view menu keep.
#include "planner/rows/ViewFilter.h"

#include "core/RunTimeError.h"

#include <gtest/gtest.h>

namespace {

bool IsTaken(std::string_view type, std::string_view word, bool calendarMode = false) {
    ListFilter filter;
    filter.comboList = word;
    filter.calendarMode = calendarMode;
    return IsEventTaken(type, filter);
}

bool IsTakenByFlag(std::string_view done, std::string_view word) {
    ListFilter filter;
    filter.comboList = word;
    return IsItemTaken(done, filter);
}

} // namespace

TEST(EventFilters, AllTakesEveryEvent) {
    for (const char* type : {"Class", "Study Time", "None", "TermID4-ClassID10", ""}) {
        EXPECT_TRUE(IsTaken(type, "All")) << type;
    }
}

TEST(EventFilters, ClassesTakesTheTypeClassAndNoClassMeeting) {
    EXPECT_TRUE(IsTaken("Class", "Classes"));
    EXPECT_FALSE(IsTaken("TermID4-ClassID10", "Classes"));
    EXPECT_FALSE(IsTaken("None", "Classes"));
}

TEST(EventFilters, OtherEventsTakesAllTypesButClass) {
    EXPECT_FALSE(IsTaken("Class", "Other Events"));
    EXPECT_TRUE(IsTaken("TermID4-ClassID10", "Other Events"));
    EXPECT_TRUE(IsTaken("None", "Other Events"));
}

TEST(EventFilters, AnyOtherWordTakesNone) {
    EXPECT_FALSE(IsTaken("Class", "Not Done"));
    EXPECT_FALSE(IsTaken("None", "Not Done"));
}

TEST(EventFilters, CalendarModeTakesEveryEventWhateverTheWord) {
    EXPECT_TRUE(IsTaken("None", "Classes", true));
    EXPECT_TRUE(IsTaken("Class", "Not Done", true));
}

TEST(ItemFilter, TakesAnItemByItsFlag) {
    EXPECT_TRUE(IsTakenByFlag("True", "Done"));
    EXPECT_FALSE(IsTakenByFlag("False", "Done"));
    EXPECT_TRUE(IsTakenByFlag("False", "Not Done"));
    EXPECT_FALSE(IsTakenByFlag("True", "Not Done"));
}

TEST(ItemFilter, TakesNothingAtAWordOfAnotherMenu) {
    EXPECT_FALSE(IsTakenByFlag("True", "Classes"));
    EXPECT_FALSE(IsTakenByFlag("False", "Classes"));
}

TEST(ItemFilter, DoesNotReadTheFlagWhereEveryItemIsTaken) {
    EXPECT_TRUE(IsTakenByFlag("perhaps", "All"));
    EXPECT_THROW(IsTakenByFlag("perhaps", "Done"), RunTimeError);
}
