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

struct OpenWork {
    int daysLeft;  // 1 for all that is due by the day after
    int remaining; // minutes
};

// The assignments that are neither done nor deleted, those due first in front.
std::vector<OpenWork> OpenWorkFrom(Date day) {
    const AssignmentLists& assignments = Store.Assignment;
    const LoggedMinutes logged = LoggedMinutesById();
    std::vector<OpenWork> work;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) != DeletedRecord && !IsTrue(assignments.done.Item(position))) {
            const int daysLeft = DayDiff(day, DateValue(assignments.date.Item(position)));
            work.push_back({std::max(1, daysLeft), RemainingMinutes(position, logged)});
        }
    }
    std::ranges::sort(work, {}, &OpenWork::daysLeft);
    return work;
}

} // namespace

StudyTimeBoxes StudyTimeToday(Date day) {
    int minimum = 0;
    int suggested = 0;
    int sum = 0;
    // Between two due dates the rate only falls, so it is asked on the due dates alone.
    for (const OpenWork& work : OpenWorkFrom(day)) {
        sum += work.remaining;
        suggested = std::max(suggested, sum / work.daysLeft);
        if (work.daysLeft == 1) {
            minimum = sum;
        }
    }
    // The minimum is the rate of the first day, so the suggestion is never below it.
    const bool minimumFirst = minimum > 0 && minimum >= suggested;
    const bool suggestedFirst = suggested > minimum;
    return {{MinutesToClock(minimum), minimumFirst ? ColorNotDone : ColorWhite},
            {MinutesToClock(suggested), suggestedFirst ? ColorNotDone : ColorWhite}};
}
