// The rows of the editors' combo boxes that follow a count.
#include "planner/entries/ComboRows.h"

#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>

namespace {

constexpr int MinutesPerQuarter = 15;
constexpr int MinutesByQuarters = 5 * MinutesPerHour;
constexpr std::array<std::string_view, 8> LongEstimates{"05 : 00", "06 : 00", "07 : 00", "08 : 00",
                                                        "09 : 00", "10 : 00", "15 : 00", "20 : 00"};

} // namespace

std::array<std::string, 27> EstimateRows() {
    std::array<std::string, 27> rows;
    auto row = rows.begin();
    for (int minutes = MinutesPerQuarter; minutes < MinutesByQuarters; minutes += MinutesPerQuarter) {
        *row++ = SpacedClock(minutes);
    }
    std::ranges::copy(LongEstimates, row);
    return rows;
}

std::array<std::string, 96> TimeOfDayRows() {
    std::array<std::string, 96> rows;
    std::chrono::minutes time{0};
    for (std::string& row : rows) {
        row = StoredTime(time);
        if (row.starts_with('0')) {
            row.erase(0, 1);
        }
        time += std::chrono::minutes{MinutesPerQuarter};
    }
    return rows;
}
