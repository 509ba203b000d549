// The counters beside the lists: the homework, the study time and the events of a day.
#include "planner/lists/DayTotals.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/Colors.h"

namespace {

// The classes of any term with the id in the link, where the link names the active term.
int LinkedClasses(std::string_view type) {
    const std::optional<ClassLink> link = IsClassMeeting(type) ? ClassLinkIn(type) : std::nullopt;
    if (!link || ActiveTermID == 0 || link->term != ActiveTermID) {
        return 0;
    }
    const ClassSought sought{.id = static_cast<double>(link->class_)};
    int count = 0;
    for (int position = FindClass(sought); position != 0; position = FindClass(sought, position + 1)) {
        ++count;
    }
    return count;
}

} // namespace

HomeworkDayBoxes HomeworkDayTotals(Date day) {
    const AssignmentLists& assignments = Store.Assignment;
    int TotalCount = 0;
    int LeftCount = 0;
    int minutes = 0;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) == DeletedRecord ||
            DateValue(assignments.date.Item(position)) != day) {
            continue;
        }
        ++TotalCount;
        if (!IsTrue(assignments.done.Item(position))) {
            ++LeftCount;
            minutes += ClockToMinutes(assignments.time_left.Item(position));
        }
    }
    const int openColor = LeftCount > 0 ? ColorNotDone : ColorDone;
    const int color = TotalCount == 0 ? ColorWhite : openColor;
    return {{std::to_string(TotalCount), ColorWhite},
            {std::to_string(LeftCount), color},
            {MinutesToClock(minutes), color}};
}

EventDayBoxes EventDayTotals(const std::vector<int>& eventsOfDay) {
    const EventLists& events = Store.EventRecord;
    DurationParts study;
    int ClassCount = 0;
    int OtherCount = 0;
    for (const int position : eventsOfDay) {
        const std::string& type = events.type.Item(position);
        if (type == StudyTimeType) {
            const DurationParts parts = DurationByWholeUnit(events.duration.Item(position));
            study.hours += parts.hours;
            study.minutes += parts.minutes;
            continue;
        }
        const int linked = LinkedClasses(type);
        ClassCount += linked;
        OtherCount += linked == 0 ? 1 : 0; // also a meeting of another term's class
    }
    return {{MinutesToClock(Int32Of(study.hours * MinutesPerHour + study.minutes)), ColorWhite},
            {std::to_string(ClassCount), ColorWhite},
            {std::to_string(OtherCount), ColorWhite}};
}
