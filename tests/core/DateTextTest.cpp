// Dates, times and moments as texts.
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr Date FirstOfMay{2009y / 5 / 1};

class DateTexts : public testing::Test {
protected:
    void SetUp() override { ResetScript(); }
};

} // namespace

TEST_F(DateTexts, AFourDigitYearInFrontDecides) {
    EXPECT_EQ(DateIn("2009/05/01"), FirstOfMay);
    EXPECT_EQ(DateIn("2009/5/1"), FirstOfMay);
    EXPECT_EQ(DateIn("2009-05-01"), FirstOfMay);
    EXPECT_EQ(DateIn("2009.05.01"), FirstOfMay);
    EXPECT_EQ(DateIn(" 2009/05/01 "), FirstOfMay);
}

TEST_F(DateTexts, ElseTheOrderOfTheUserDecides) {
    EXPECT_EQ(DateIn("5/1/2009"), FirstOfMay);
    Script.dateOrder = DateOrder::DayMonthYear;
    EXPECT_EQ(DateIn("1.5.2009"), FirstOfMay);
    EXPECT_EQ(DateIn("01.05.09"), FirstOfMay);
    Script.dateOrder = DateOrder::YearMonthDay;
    EXPECT_EQ(DateIn("09-05-01"), FirstOfMay);
}

TEST_F(DateTexts, TwoDigitYearsTurnAtThirty) {
    EXPECT_EQ(DateIn("5/1/29"), Date{2029y / 5 / 1});
    EXPECT_EQ(DateIn("5/1/30"), Date{1930y / 5 / 1});
    EXPECT_EQ(DateIn("5/1/00"), Date{2000y / 5 / 1});
}

TEST_F(DateTexts, WhatIsNoDayOfTheCalendarIsNoDate) {
    for (const char* none :
         {"", "2009/02/29", "2009/13/01", "2009/00/01", "2009/04/31", "2009/05", "//", "abc", "2009/05/01x",
          "2009/05/01/", "20090501", "2009/05/01 10:00", "-2009/05/01", "99999/01/01", "0000/01/01"}) {
        EXPECT_FALSE(IsDate(none)) << none;
        EXPECT_THROW(DateValue(none), RunTimeError) << none;
    }
    EXPECT_TRUE(IsDate("2008/02/29"));
}

TEST_F(DateTexts, MonthsAndDaysOfThreeOrFourDigitsAreNoneHoweverTheirLastBitsRead) {
    for (const DateOrder order :
         {DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay}) {
        Script.dateOrder = order;
        for (const char* none :
             {"2009/264/24", "2009/10/270", "2009/258/258", "2009/4097/01", "2009/01/4097", "10/270/2009",
              "266/14/2009", "270/10/2009", "14/266/2009", "4097/4097/2009", "9/266/14"}) {
            EXPECT_FALSE(IsDate(none)) << none;
        }
    }
}

TEST_F(DateTexts, OfEveryNumberForMonthAndDayAreThoseOfTheCalendar) {
    for (int number = 0; number <= 9999; ++number) {
        const std::string text = std::to_string(number);
        EXPECT_EQ(IsDate("2009/" + text + "/1"), number >= 1 && number <= 12) << number;
        EXPECT_EQ(IsDate("2009/1/" + text), number >= 1 && number <= 31) << number;
    }
}

TEST_F(DateTexts, BeginWithTheYear100AndEndWith9999) {
    EXPECT_EQ(DateIn("0100/01/01"), Date{100y / 1 / 1});
    EXPECT_EQ(DateIn("1/1/100"), Date{100y / 1 / 1});
    EXPECT_EQ(StoredDate(Date{100y / 1 / 1}), "0100/01/01");
    EXPECT_EQ(DateIn("9999/12/31"), Date{9999y / 12 / 31});
    EXPECT_FALSE(IsDate("0099/12/31"));
    EXPECT_FALSE(IsDate("12/31/099"));
    EXPECT_FALSE(IsDate("10000/01/01"));
}

TEST_F(DateTexts, InTheStoredFormAreTheDaysOfTheCalendarAlone) {
    for (int year = 1899; year <= 2101; ++year) {
        for (int month = 0; month <= 13; ++month) {
            const std::chrono::year_month present{std::chrono::year{year},
                                                  std::chrono::month{static_cast<unsigned>(month)}};
            const unsigned last =
                present.ok() ? static_cast<unsigned>((present / std::chrono::last).day()) : 0;
            for (unsigned day = 0; day <= 32; ++day) {
                const std::string text = std::to_string(year) + "/" + std::to_string(100 + month).substr(1) +
                                         "/" + std::to_string(100 + day).substr(1);
                ASSERT_EQ(IsDate(text), day >= 1 && day <= last) << text;
            }
        }
    }
}

TEST_F(DateTexts, AStrangeCharacterAnywhereInTheStoredFormMakesItNoDate) {
    const std::string date = "2009/10/14";
    for (std::size_t place = 0; place < date.size(); ++place) {
        for (const char strange : {'a', ':', '\'', ' ', '\xB2'}) {
            std::string text = date;
            text[place] = strange;
            if (strange != ' ' || (place != 0 && place != date.size() - 1)) { // blanks are trimmed
                EXPECT_FALSE(IsDate(text)) << text;
            }
        }
    }
}

TEST_F(DateTexts, AreStoredWithFourDigitsOfTheYearAndTwoOfMonthAndDay) {
    EXPECT_EQ(StoredDate(Date{987y / 6 / 5}), "0987/06/05");
    EXPECT_EQ(StoredDate(Date{2019y / 11 / 30}), "2019/11/30");
    EXPECT_EQ(StoredDate(Date{9999y / 12 / 31}), "9999/12/31");
    EXPECT_EQ(StoredDate(Date{10000y / 1 / 2}), "10000/01/02");
    EXPECT_EQ(StoredDate(Date{-1y / 1 / 2}), "-001/01/02");
}

TEST_F(DateTexts, EveryDayOfSixCenturiesReadsBackAsItself) {
    for (Date date{1600y / 1 / 1}; date < Date{2200y / 1 / 1}; date += std::chrono::days{1}) {
        ASSERT_EQ(DateIn(StoredDate(date)), date) << StoredDate(date);
    }
}

TEST_F(DateTexts, TimesAreReadInTheFormsThatPeopleWrite) {
    EXPECT_EQ(TimeIn("9:00 AM"), 9h);
    EXPECT_EQ(TimeIn("09:00 am"), 9h);
    EXPECT_EQ(TimeIn("11:30PM"), 23h + 30min);
    EXPECT_EQ(TimeIn("9 AM"), 9h);
    EXPECT_EQ(TimeIn("14:05"), 14h + 5min);
    EXPECT_EQ(TimeIn("14:05:59"), 14h + 5min + 59s);
    EXPECT_EQ(TimeIn("12:00 AM"), 0h);
    EXPECT_EQ(TimeIn("12:00 PM"), 12h);
    EXPECT_EQ(TimeIn(" 1:05:07 pm "), 13h + 5min + 7s);
    EXPECT_EQ(TimeIn("0:00"), 0h);
}

TEST_F(DateTexts, WhatIsNoTimeIsNone) {
    for (const char* none : {"", "9", "25:00", "24:00", "13:00 PM", "9:60 AM", "9:00:60", "AM", ":30",
                             "9:", "9:00 XM", "123:00", "9:00 AM x", "soon", "9:00:00:00"}) {
        EXPECT_FALSE(IsTime(none)) << none;
        EXPECT_THROW(TimeValue(none), RunTimeError) << none;
    }
}

TEST_F(DateTexts, MomentsHaveADateAndMayHaveATime) {
    EXPECT_EQ(MomentIn("2009/05/01 09:30:00"), Moment{FirstOfMay} + 9h + 30min);
    EXPECT_EQ(MomentIn("2009/05/01 09:30 PM"), Moment{FirstOfMay} + 21h + 30min);
    EXPECT_EQ(MomentIn("2009/05/01"), Moment{FirstOfMay});
    EXPECT_EQ(MomentIn("5/1/2009 9:00 AM"), Moment{FirstOfMay} + 9h);
    EXPECT_FALSE(MomentIn("2009/05/01 25:00").has_value());
    EXPECT_FALSE(MomentIn("09:30:00").has_value());
    EXPECT_THROW(MomentValue(""), RunTimeError);
}

TEST_F(DateTexts, MomentsOfTheEndOfFebruaryAreThoseOfTheCalendar) {
    EXPECT_EQ(MomentIn("2008/02/29 09:30:00"), Moment{Date{2008y / 2 / 29}} + 9h + 30min);
    EXPECT_EQ(MomentIn("2000/02/29 00:00:00"), Moment{Date{2000y / 2 / 29}});
    for (const char* none : {"2009/02/29 09:30:00", "1900/02/29 09:30:00", "2009/02/30 09:30:00",
                             "2008/02/30 09:30:00", "2008/02/30", "2009/02/31 00:00:00"}) {
        EXPECT_FALSE(MomentIn(none).has_value()) << none;
        EXPECT_THROW(MomentValue(none), RunTimeError) << none;
    }
}

TEST_F(DateTexts, TheStoredMomentDropsTheSeconds) {
    EXPECT_EQ(StoredMoment(Moment{FirstOfMay} + 9h + 5min + 59s), "2009/05/01 09:05:00");
    EXPECT_EQ(StoredMoment(Moment{FirstOfMay}), "2009/05/01 00:00:00");
}

TEST_F(DateTexts, TheStoredTimeReadsBackForEveryMinuteOfTheDay) {
    EXPECT_EQ(StoredTime(9h), "09:00 AM");
    EXPECT_EQ(StoredTime(0h), "12:00 AM");
    EXPECT_EQ(StoredTime(12h + 30min + 59s), "12:30 PM");
    EXPECT_EQ(StoredTime(23h + 59min), "11:59 PM");
    for (std::chrono::minutes time = 0min; time < 24h; ++time) {
        ASSERT_EQ(TimeValue(StoredTime(time)), time);
    }
}
