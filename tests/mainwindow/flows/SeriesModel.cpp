// Events in plain values, and on which days they are.
#include "mainwindow/flows/SeriesModel.h"

#include "core/DateText.h"

#include <algorithm>

namespace {

using std::chrono::days;

constexpr std::array<const char*, 7> DayNames{"Monday", "Tuesday",  "Wednesday", "Thursday",
                                              "Friday", "Saturday", "Sunday"};
constexpr std::array<const char*, 5> RankNames{"First", "Second", "Third", "Fourth", "Last"};

int DayNumber(Date date) {
    return static_cast<int>(static_cast<unsigned>(std::chrono::year_month_day(date).day()));
}

std::chrono::month MonthOf(Date date) {
    return std::chrono::year_month_day(date).month();
}

bool IsLastOfMonth(Date date) {
    return DayNumber(date + days{1}) == 1;
}

// The rule of a monthly or yearly series without its month.
bool FallsOnDay(const ModelEvent& event, Date day) {
    const int start = DayNumber(event.date);
    if (event.sameDate) {
        return DayNumber(day) == start || (start > 28 && IsLastOfMonth(day) && DayNumber(day) < start);
    }
    if (IsLastOfMonth(event.date)) {
        return IsLastOfMonth(day);
    }
    if (DayOfWeek(day) != DayOfWeek(event.date)) {
        return false;
    }
    return start > 28 ? DayNumber(day + days{7}) <= 7 : (DayNumber(day) - 1) / 7 == (start - 1) / 7;
}

std::string GivenUp(const ModelEvent& event) {
    std::string text;
    for (const Date day : event.givenUp) {
        text += (text.empty() ? "" : " ") + StoredDate(day);
    }
    return text;
}

} // namespace

std::size_t DayOfWeek(Date date) {
    return std::chrono::weekday(date).iso_encoding() - 1;
}

bool Occurs(const ModelEvent& event, Date day) {
    if (std::ranges::find(event.givenUp, day) != event.givenUp.end()) {
        return false;
    }
    if (day <= event.date || event.kind == "None") {
        return day == event.date;
    }
    if (event.end && day > event.endDate) {
        return false;
    }
    if (event.kind == "Day") {
        return event.daily[DayOfWeek(day)] == 'T';
    }
    return FallsOnDay(event, day) && (event.kind == "Month" || MonthOf(day) == MonthOf(event.date));
}

std::array<Date, CellsOfAMonth> CellsOf(std::chrono::year_month month) {
    const Date first = std::chrono::local_days(month / 1);
    std::array<Date, CellsOfAMonth> cells{};
    for (int cell = 0; cell < CellsOfAMonth; ++cell) {
        cells[static_cast<std::size_t>(cell)] =
            first + days{cell} - days{std::chrono::weekday(first).c_encoding()};
    }
    return cells;
}

std::vector<std::pair<TextList EventLists::*, std::string>> TextsOf(const ModelEvent& event) {
    const bool lastDay = IsLastOfMonth(event.date);
    const std::size_t rank = lastDay ? 4 : static_cast<std::size_t>((DayNumber(event.date) - 1) / 7);
    return {{&EventLists::id, std::to_string(event.id)},
            {&EventLists::date, StoredDate(event.date)},
            {&EventLists::desc, event.desc},
            {&EventLists::recurrence, event.kind},
            {&EventLists::exceptions, GivenUp(event)},
            {&EventLists::parent_id, event.parent == 0 ? "" : std::to_string(event.parent)},
            {&EventLists::same_date, event.sameDate ? "True" : "False"},
            {&EventLists::repeat_number, RankNames[rank]},
            {&EventLists::repeat_day, lastDay ? "Day" : DayNames[DayOfWeek(event.date)]},
            {&EventLists::repeat_daily, event.daily},
            {&EventLists::end, event.end ? "True" : "False"},
            {&EventLists::end_date, StoredDate(event.endDate)}};
}
