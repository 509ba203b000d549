// The events of a month's 42 day cells.
#include "planner/lists/EventMarks.h"

#include "core/DateText.h"
#include "core/FetchAhead.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/SeriesRule.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/ViewFilter.h"

#include <bit>

namespace {

DayBits CellsOfEvent(std::span<const DayFacts> cells, int position) {
    const EventLists& events = Store.EventRecord;
    if (events.desc.Item(position) == DeletedRecord) {
        return 0;
    }
    return IsSeries(position) ? OccurringDays(cells, position)
                              : DayOf(cells, DateValue(events.date.Item(position)));
}

} // namespace

EventMarks MarkEventDays(Date firstCell, const ListFilter& filter) {
    const std::vector<DayFacts> cells = FactsOfDays(firstCell, MonthCells); // once for all series
    const std::vector<int> activeClassIds = ActiveClassIds();
    EventMarks marks;
    for (int position = 1, records = WholeRecords(Store.EventRecord); position <= records; ++position) {
        FetchAhead(Store.EventRecord.exceptions, position);
        DayBits days = CellsOfEvent(cells, position);
        const std::string& type = Store.EventRecord.type.Item(position);
        if (days == 0 || !BelongsToActiveTerm(type, activeClassIds)) {
            continue;
        }
        const bool taken = IsEventTaken(type, filter);
        for (; days != 0; days &= days - 1) {
            const auto cell = static_cast<std::size_t>(std::countr_zero(days));
            ++marks.count[cell];
            marks.marked[cell] = marks.marked[cell] || taken;
        }
    }
    return marks;
}
