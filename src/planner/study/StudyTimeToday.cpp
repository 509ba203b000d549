// The panel "Study Time Today": how much has to be studied today, and how much should be.
#include "planner/study/StudyTimeToday.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/rows/Colors.h"
#include "planner/study/StudyLog.h"

#include <algorithm>
#include <vector>

namespace {

// The minutes that remain of what is due on each day, by the days left to it: 1 for all that is due by the
// day after. Assignments that are done or deleted have none.
std::vector<int> RemainingByDaysLeft(Date day) {
    const AssignmentLists& assignments = Store.Assignment;
    const LoggedMinutes logged = LoggedMinutesById();
    std::vector<int> remaining;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) != DeletedRecord && !IsTrue(assignments.done.Item(position))) {
            const int daysLeft = DayDiff(day, DateValue(assignments.date.Item(position)));
            const auto index = static_cast<std::size_t>(std::max(1, daysLeft));
            remaining.resize(std::max(remaining.size(), index + 1));
            remaining[index] += RemainingMinutes(position, logged);
        }
    }
    return remaining;
}

} // namespace

StudyTimeBoxes StudyTimeToday(Date day) {
    const std::vector<int> remaining = RemainingByDaysLeft(day);
    const int minimum = remaining.size() > 1 ? remaining[1] : 0;
    int suggested = 0;
    int sum = 0;
    for (std::size_t daysLeft = 1; daysLeft < remaining.size(); ++daysLeft) {
        sum += remaining[daysLeft];
        suggested = std::max(suggested, sum / static_cast<int>(daysLeft));
    }
    // The minimum is the rate of the first day, so the suggestion is never below it.
    const bool minimumFirst = minimum > 0 && minimum >= suggested;
    const bool suggestedFirst = suggested > minimum;
    return {{MinutesToClock(minimum), minimumFirst ? ColorNotDone : ColorWhite},
            {MinutesToClock(suggested), suggestedFirst ? ColorNotDone : ColorWhite}};
}
