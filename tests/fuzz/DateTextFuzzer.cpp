// Any text is a date, a time, a moment, a clock or a duration, or it raises the run-time error and nothing
// else. A date, a time and a moment come back from their stored forms.
#include "Require.h"

#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "planner/dates/DateHelpers.h"
#include "support/ScriptedPlatform.h"

#include <cstdint>
#include <string>

namespace {

template <class Procedure>
void RaisesNothingElse(Procedure procedure) {
    try {
        procedure();
    } catch (const RunTimeError&) {
        // A text that does not convert raises this.
    }
}

void RequireDate(const std::string& text) {
    const std::optional<Date> date = DateIn(text);
    Require(IsDate(text) == date.has_value());
    if (date) {
        Require(DateIn(StoredDate(*date)) == date);
        Require(MomentIn(text) == std::optional<Moment>(*date));
    }
    if (const std::optional<Moment> moment = MomentIn(text)) {
        Require(MomentIn(StoredMoment(*moment)) == std::chrono::floor<std::chrono::minutes>(*moment));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ResetScript();
    const std::string text(data, data + size);
    for (const DateOrder order :
         {DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay}) {
        Script.dateOrder = order;
        RequireDate(text);
    }
    if (const std::optional<TimeOfDay> time = TimeIn(text)) {
        Require(*time >= TimeOfDay{0} && *time < std::chrono::hours{24});
        Require(TimeIn(StoredTime(*time)) == std::chrono::floor<std::chrono::minutes>(*time));
    }
    RaisesNothingElse([&text] { ClockToMinutes(text); });
    RaisesNothingElse([&text] { DurationToMinutes(text); });
    RaisesNothingElse([&text] { DurationByWholeUnit(text); });
    RaisesNothingElse([&text] { EventLength(text); });
    return 0;
}
