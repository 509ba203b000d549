// The rows of the editors' combo boxes that follow a count.
#include "planner/ComboRows.h"

#include <algorithm>

namespace {

constexpr int QuartersPerHour = 4;
constexpr int MinutesPerQuarter = 15;
constexpr int HoursByQuarters = 5;
constexpr std::array<std::string_view, 8> LongEstimates{"05 : 00", "06 : 00", "07 : 00", "08 : 00",
                                                        "09 : 00", "10 : 00", "15 : 00", "20 : 00"};

std::string QuarterText(int quarter) {
    return quarter == 0 ? "00" : std::to_string(quarter * MinutesPerQuarter);
}

} // namespace

std::array<std::string, 27> EstimateRows() {
    std::array<std::string, 27> rows;
    auto row = rows.begin();
    for (int quarters = 1; quarters < HoursByQuarters * QuartersPerHour; ++quarters) {
        *row++ = "0" + std::to_string(quarters / QuartersPerHour) + " : " +
                 QuarterText(quarters % QuartersPerHour);
    }
    std::ranges::copy(LongEstimates, row);
    return rows;
}

std::array<std::string, 96> TimeOfDayRows() {
    std::array<std::string, 96> rows;
    int quarters = 0;
    for (std::string& row : rows) {
        const int hour = quarters / QuartersPerHour;
        row = std::to_string(hour % 12 == 0 ? 12 : hour % 12) + ":" +
              QuarterText(quarters % QuartersPerHour) + (hour < 12 ? " AM" : " PM");
        ++quarters;
    }
    return rows;
}
