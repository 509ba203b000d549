// What the editors store of a reminder: its time, and the moments at which it fires.
#include "planner/entries/ReminderEntry.h"

#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/entries/DurationEntry.h"

namespace {

using namespace std::chrono_literals;

constexpr TimeOfDay FallbackTime = 9h;
constexpr Moment FirstMoment{FirstStoredDate};
constexpr Moment BeyondLastMoment{LastStoredDate + std::chrono::days{1}};

} // namespace

std::string ValidateTime(std::string_view text) {
    return StoredTime(TimeIn(text).value_or(FallbackTime));
}

std::string ItemReminderAlarm(Date date, std::string_view time) {
    return StoredMoment(Moment{date} + TimeValue(time));
}

EventReminderFields SetEventReminder(Date date, std::string_view time, std::string_view leadTime) {
    const std::string day = StoredDate(date);
    const std::string alarm =
        StoredMoment(RequireStorable(Moment{date} + TimeValue(time) - LeadOf(leadTime)));
    return {alarm, BooleanText(false), day, day, alarm};
}

Moment RequireStorable(Moment moment) {
    if (moment < FirstMoment || moment >= BeyondLastMoment) {
        throw RunTimeError("Overflow", std::to_string(moment.time_since_epoch().count()));
    }
    return moment;
}
