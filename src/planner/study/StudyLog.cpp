// What remains of an assignment's estimate once the study time logged for it is taken off.
#include "planner/study/StudyLog.h"

#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>

LoggedMinutes LoggedMinutesById() {
    const StudySessionLists& log = Store.StudySessionRecord;
    LoggedMinutes logged;
    for (int entry = 1; entry <= log.assignment.Count(); ++entry) {
        if (const std::optional<int> id = IdIn(log.assignment.Item(entry))) {
            logged[*id] += ClockToMinutes(log.time.Item(entry));
        }
    }
    return logged;
}

int RemainingMinutes(int position, const LoggedMinutes& logged) {
    const int estimate = ClockToMinutes(Store.Assignment.est_time.Item(position));
    const std::optional<int> id = logged.empty() ? std::nullopt : IdIn(Store.Assignment.id.Item(position));
    const auto found = id ? logged.find(*id) : logged.end();
    return std::max(0, estimate - (found == logged.end() ? 0 : found->second));
}
