// The user's forms of dates, in every language that the toolkit knows.
#include "platform/Formats.h"

#include "core/DateText.h"
#include "support/ChildProcess.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>

using namespace std::chrono_literals;

namespace {

constexpr Date Monday{2009y / 8 / 24};

// The toolkit asks for the user's language once in a process, so each has a process of its own.
bool HoldsIn(const std::string& locale, const std::function<void()>& expectations) {
    return SucceedsInChild([&] {
        ::setenv("LC_ALL", locale.c_str(), 1);
        expectations();
    });
}

// Days whose fields have one digit and two, are alike and unlike, and are the first and the last.
void ExpectShortDatesReadBack() {
    for (const Date date : {Monday, Date{2009y / 5 / 1}, Date{2012y / 2 / 29}, Date{2009y / 12 / 11},
                            Date{1953y / 8 / 12}, Date{100y / 1 / 1}, Date{9999y / 12 / 31}}) {
        const std::string text = FormatDate(date, "Short Date").utf8;
        EXPECT_EQ(DateIn(text), date) << text;
    }
}

std::set<std::string> Locales() {
    std::set<std::string> names;
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        names.insert(locale.name().toStdString());
    }
    return names;
}

struct ShortDateCase {
    const char* locale;
    DateOrder order;
    const char* text; // of 2009-08-24
};

constexpr ShortDateCase ShortDates[] = {
    {"C", DateOrder::MonthDayYear, "8/24/2009"},      {"en_US", DateOrder::MonthDayYear, "8/24/2009"},
    {"en_GB", DateOrder::DayMonthYear, "24/08/2009"}, {"de_DE", DateOrder::DayMonthYear, "24.08.2009"},
    {"nl_NL", DateOrder::DayMonthYear, "24-08-2009"}, {"sk_SK", DateOrder::DayMonthYear, "24.8.2009"},
    {"bg_BG", DateOrder::DayMonthYear, "24.08.2009"}, {"hr_HR", DateOrder::DayMonthYear, "24.08.2009"},
    {"hu_HU", DateOrder::YearMonthDay, "2009.08.24"}, {"ko_KR", DateOrder::YearMonthDay, "2009.8.24"},
    {"ja_JP", DateOrder::YearMonthDay, "2009/08/24"}, {"sv_SE", DateOrder::YearMonthDay, "2009-08-24"},
    {"ar_EG", DateOrder::DayMonthYear, "24/8/2009"},  {"fa_IR", DateOrder::YearMonthDay, "2009/8/24"},
    {"mr_IN", DateOrder::DayMonthYear, "24/8/2009"},
};

} // namespace

TEST(Formats, ShortDatesReadBackAsTheSameDayInEveryLanguage) {
    const std::set<std::string> locales = Locales();
    EXPECT_GT(locales.size(), 300U);
    std::set<std::string> failing;
    for (const std::string& locale : locales) {
        if (!HoldsIn(locale, ExpectShortDatesReadBack)) {
            failing.insert(locale);
        }
    }
    EXPECT_EQ(failing, std::set<std::string>{});
}

TEST(Formats, ShortDatesKeepTheOrderAndTheSeparatorOfTheUser) {
    for (const ShortDateCase& row : ShortDates) {
        EXPECT_TRUE(HoldsIn(row.locale, [&row] {
            EXPECT_EQ(LocaleDateOrder(), row.order);
            EXPECT_EQ(FormatDate(Monday, "Short Date").utf8, row.text);
        })) << row.locale;
    }
}

TEST(Formats, TheCLocaleCountsAsUSEnglish) {
    EXPECT_TRUE(HoldsIn("C", [] {
        EXPECT_EQ(FormatDate(Monday, "Long Date").utf8, "Monday, August 24, 2009");
        EXPECT_EQ(FormatDate(Monday, "Medium Date").utf8, "24-Aug-09");
        EXPECT_EQ(FormatDate(Monday, "dddd, mmm d").utf8, "Monday, Aug 24");
        EXPECT_EQ(FormatDate(Monday, "dddd, MMMM d").utf8, "Monday, August 24");
        EXPECT_EQ(FormatDate(Monday, "MMMM").utf8, "August");
    }));
}

TEST(Formats, NamesAreThoseOfTheUsersLanguage) {
    EXPECT_TRUE(HoldsIn("de_DE", [] {
        EXPECT_EQ(FormatDate(Monday, "Long Date").utf8, "Montag, 24. August 2009");
        EXPECT_EQ(FormatDate(Monday, "dddd, mmm d").utf8, "Montag, Aug. 24");
        EXPECT_EQ(FormatDate(Date{2009y / 3 / 1}, "MMMM").utf8, "M\xC3\xA4rz");
    }));
}
