// Events in plain values, and on which days they are, day by day and as plain as can be: for the walk that
// holds the program's own rules against it.
#pragma once

#include "core/Module1.h"
#include "platform/Clock.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

inline constexpr int CellsOfAMonth = 42;

struct ModelEvent {
    int id = 0;
    Date date{};
    std::string desc{};
    std::string kind = "None";
    std::string daily = "FFFFFFF";
    bool sameDate = false;
    bool end = false;
    Date endDate{};
    std::vector<Date> givenUp{}; // in the order in which they were
    int parent = 0;
};

// From Monday 0 to Sunday 6.
std::size_t DayOfWeek(Date date);

// Whether the event is on the day.
bool Occurs(const ModelEvent& event, Date day);

// The 42 days that a calendar of weeks from Sunday on shows for the month.
std::array<Date, CellsOfAMonth> CellsOf(std::chrono::year_month month);

// What the record of the event holds, in the fields that the model knows.
std::vector<std::pair<TextList EventLists::*, std::string>> TextsOf(const ModelEvent& event);
