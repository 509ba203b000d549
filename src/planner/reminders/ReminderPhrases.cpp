// The words of the reminder list.
#include "planner/reminders/ReminderPhrases.h"

#include "planner/dates/DateHelpers.h"
#include "planner/dates/DaysAway.h"

#include <cstdlib>

namespace {

std::string Hours(std::int64_t minutes) {
    return minutes / MinutesPerHour < 2 ? "1 Hour" : std::to_string(minutes / MinutesPerHour) + " Hours";
}

std::string HoursOrMinutes(std::int64_t minutes) {
    if (minutes > MinutesPerHour) {
        return Hours(minutes);
    }
    return std::to_string(minutes) + (minutes == 1 ? " Minute" : " Minutes");
}

} // namespace

std::string DayPhrase(int days) {
    return DaysAway(days, " from Now");
}

std::string MomentPhrase(std::int64_t minutes, int days) {
    if (minutes == 0) {
        return "Now";
    }
    if (std::abs(minutes) > MinutesPerDay && days != 0) {
        return DayPhrase(days);
    }
    return HoursOrMinutes(std::abs(minutes)) + (minutes > 0 ? " from Now" : " Ago");
}

std::string ReminderTitle(int rows) {
    return std::to_string(rows) + (rows == 1 ? " Reminder" : " Reminders");
}
