// Dates, times and moments as texts: what the store holds and what a student or an old file may have written.
#include "core/DateText.h"

#include "core/RunTimeError.h"
#include "core/Values.h"
#include "platform/Formats.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int GreatestMonth = 12;
constexpr int GreatestDay = 31;
constexpr int DaysOfEveryMonth = 28;
constexpr int GreatestYear = 9999;
constexpr unsigned NoTwoDigits = 100;
constexpr Date NoDate = Date::min();
constexpr int FirstTwoDigitYearOf1900 = 30;
constexpr std::string_view DateSeparators = "/-.";

// One to four digits; nothing for any other text.
std::optional<int> Digits(std::string_view text) {
    if (text.empty() || text.size() > 4 || !std::ranges::all_of(text, IsDigit)) {
        return std::nullopt;
    }
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool IsInCalendar(int y, int m, int d) {
    // Every month has 28 days; the calendar is asked about the others alone.
    const bool everyMonthHas = m >= 1 && m <= GreatestMonth && d >= 1 && d <= DaysOfEveryMonth;
    // Of greater numbers the calendar would keep eight bits alone.
    return everyMonthHas ||
           (m <= GreatestMonth && d <= GreatestDay &&
            year_month_day{year{y}, month{static_cast<unsigned>(m)}, day{static_cast<unsigned>(d)}}.ok());
}

// NoDate where the calendar or the store has no such day.
Date CalendarDate(int y, int m, int d) {
    if (!IsInCalendar(y, m, d)) {
        return NoDate;
    }
    const Date date{year_month_day{year{y}, month{static_cast<unsigned>(m)}, day{static_cast<unsigned>(d)}}};
    return date >= FirstStoredDate && date <= LastStoredDate ? date : NoDate;
}

// The number in the two characters at the place, or one beyond all numbers of two digits.
unsigned TwoDigitsAt(std::string_view text, std::size_t place) {
    const auto tens = static_cast<unsigned char>(text[place] - '0');
    const auto ones = static_cast<unsigned char>(text[place + 1] - '0');
    return tens <= 9 && ones <= 9 ? tens * 10U + ones : NoTwoDigits;
}

void PutTwoDigits(std::string& text, std::size_t place, unsigned number) {
    text[place] = static_cast<char>('0' + number / 10);
    text[place + 1] = static_cast<char>('0' + number % 10);
}

// The form in which the store keeps nearly every date, read without a search for its parts.
Date StoredFormDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '/' || text[7] != '/') {
        return NoDate;
    }
    const unsigned century = TwoDigitsAt(text, 0);
    const unsigned yearOfCentury = TwoDigitsAt(text, 2);
    const unsigned m = TwoDigitsAt(text, 5);
    const unsigned d = TwoDigitsAt(text, 8);
    if (std::max({century, yearOfCentury, m, d}) == NoTwoDigits) {
        return NoDate;
    }
    return CalendarDate(static_cast<int>(century * 100 + yearOfCentury), static_cast<int>(m),
                        static_cast<int>(d));
}

int FullYear(int number, std::size_t digits) {
    if (digits > 2) {
        return number;
    }
    return number + (number < FirstTwoDigitYearOf1900 ? 2000 : 1900);
}

struct DatePieces {
    std::array<std::string_view, 3> texts;
    std::array<int, 3> numbers;
};

std::optional<DatePieces> SplitDate(std::string_view text) {
    DatePieces pieces{};
    for (std::size_t i = 0; i < pieces.texts.size(); ++i) {
        const bool last = i + 1 == pieces.texts.size();
        const std::size_t end = last ? text.size() : text.find_first_of(DateSeparators);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        pieces.texts[i] = text.substr(0, end);
        const std::optional<int> number = Digits(pieces.texts[i]);
        if (!number) {
            return std::nullopt;
        }
        pieces.numbers[i] = *number;
        text.remove_prefix(last ? end : end + 1);
    }
    return pieces;
}

// The forms that a student or an old file may have written.
Date FreeFormDate(std::string_view text) {
    const std::optional<DatePieces> pieces = SplitDate(Trim(text));
    if (!pieces) {
        return NoDate;
    }
    const auto& [a, b, c] = pieces->numbers;
    if (pieces->texts[0].size() == 4) {
        return CalendarDate(a, b, c);
    }
    switch (LocaleDateOrder()) {
    case DateOrder::MonthDayYear:
        return CalendarDate(FullYear(c, pieces->texts[2].size()), a, b);
    case DateOrder::DayMonthYear:
        return CalendarDate(FullYear(c, pieces->texts[2].size()), b, a);
    case DateOrder::YearMonthDay:
        return CalendarDate(FullYear(a, pieces->texts[0].size()), b, c);
    }
    return NoDate;
}

// NoDate for what is none.
Date AnyDate(std::string_view text) {
    const Date date = StoredFormDate(text);
    return date == NoDate ? FreeFormDate(text) : date;
}

// Takes the number in front of the text off it; nothing when there is none of one or two digits.
std::optional<int> TakeNumber(std::string_view& text) {
    const std::size_t length = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::optional<int> number = length <= 2 ? Digits(text.substr(0, length)) : std::nullopt;
    text.remove_prefix(length);
    return number;
}

enum class HalfDay { None, Morning, Afternoon };

// Takes "AM" or "PM" in any case off the end of the text, with the blanks before it.
HalfDay TakeHalfDay(std::string_view& text) {
    if (text.size() < 2) {
        return HalfDay::None;
    }
    const std::string_view end = text.substr(text.size() - 2);
    const bool morning = CompareFolded(end, "am") == 0;
    if (!morning && CompareFolded(end, "pm") != 0) {
        return HalfDay::None;
    }
    text = RightTrim(text.substr(0, text.size() - 2));
    return morning ? HalfDay::Morning : HalfDay::Afternoon;
}

template <class Value>
Value Required(std::optional<Value> value, std::string_view wanted, std::string_view text) {
    if (!value) {
        throw RunTimeError(wanted, text);
    }
    return *value;
}

} // namespace

std::optional<Date> DateIn(std::string_view text) {
    const Date date = AnyDate(text);
    if (date == NoDate) {
        return std::nullopt;
    }
    return date;
}

std::optional<TimeOfDay> TimeIn(std::string_view text) {
    text = Trim(text);
    const HalfDay half = TakeHalfDay(text);
    const std::optional<int> hour = TakeNumber(text);
    std::array<int, 2> minuteAndSecond{};
    std::size_t parts = 0;
    while (hour && text.starts_with(':') && parts < minuteAndSecond.size()) {
        text.remove_prefix(1);
        const std::optional<int> number = TakeNumber(text);
        if (!number || *number > 59) {
            return std::nullopt;
        }
        minuteAndSecond[parts++] = *number;
    }
    const int greatestHour = half == HalfDay::None ? 23 : 12;
    const bool bareNumber = half == HalfDay::None && parts == 0;
    if (!hour || *hour > greatestHour || !text.empty() || bareNumber) {
        return std::nullopt;
    }
    const int hours = half == HalfDay::None ? *hour : *hour % 12 + (half == HalfDay::Afternoon ? 12 : 0);
    return std::chrono::hours{hours} + std::chrono::minutes{minuteAndSecond[0]} +
           std::chrono::seconds{minuteAndSecond[1]};
}

std::optional<Moment> MomentIn(std::string_view text) {
    text = Trim(text);
    const std::size_t blank = text.find(' ');
    const std::optional<Date> date = DateIn(text.substr(0, blank));
    if (!date) {
        return std::nullopt;
    }
    if (blank == std::string_view::npos) {
        return Moment{*date};
    }
    const std::optional<TimeOfDay> time = TimeIn(text.substr(blank));
    return time ? std::optional<Moment>(Moment{*date} + *time) : std::nullopt;
}

bool IsDate(std::string_view text) {
    return DateIn(text).has_value();
}

bool IsTime(std::string_view text) {
    return TimeIn(text).has_value();
}

Date DateValue(std::string_view text) {
    const Date date = AnyDate(text);
    if (date == NoDate) {
        throw RunTimeError("Not a date", text);
    }
    return date;
}

TimeOfDay TimeValue(std::string_view text) {
    return Required(TimeIn(text), "Not a time", text);
}

Moment MomentValue(std::string_view text) {
    return Required(MomentIn(text), "Not a moment", text);
}

std::string StoredDate(Date date) {
    const year_month_day parts{date};
    const int y = static_cast<int>(parts.year());
    if (y < 0 || y > GreatestYear) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%04d/%02u/%02u", y, static_cast<unsigned>(parts.month()),
                      static_cast<unsigned>(parts.day()));
        return text.data();
    }
    std::string text = "0000/00/00";
    PutTwoDigits(text, 0, static_cast<unsigned>(y / 100));
    PutTwoDigits(text, 2, static_cast<unsigned>(y % 100));
    PutTwoDigits(text, 5, static_cast<unsigned>(parts.month()));
    PutTwoDigits(text, 8, static_cast<unsigned>(parts.day()));
    return text;
}

std::string StoredTime(TimeOfDay time) {
    const std::chrono::hh_mm_ss parts{time};
    const int hour = static_cast<int>(parts.hours().count());
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d %s", hour % 12 == 0 ? 12 : hour % 12,
                  static_cast<int>(parts.minutes().count()), hour < 12 ? "AM" : "PM");
    return text.data();
}

std::string StoredMoment(Moment moment) {
    const Date date = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::hh_mm_ss time{moment - Moment{date}};
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), " %02d:%02d:00", static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()));
    return StoredDate(date) + text.data();
}
