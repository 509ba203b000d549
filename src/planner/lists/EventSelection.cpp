// The rows of the day's events, of the day schedule and of the Events list.
#include "planner/lists/EventSelection.h"

#include "core/Module1.h"
#include "core/RowLists.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/EventWalk.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/ViewFilter.h"

namespace {

void ClearRowsAndCounters() {
    ClearLists(EventRowLists);
    ClearLists(EventBoxLists);
    EventClassCount = 0;
    EventOtherCount = 0;
    EventTotalCount = 0;
}

} // namespace

void AddEventRow(int position, Date date, const ListFilter& filter) {
    const std::string& type = Store.EventRecord.type.Item(position);
    ++EventTotalCount;
    ++(type == "Class" ? EventClassCount : EventOtherCount);
    if (!IsEventTaken(type, filter)) {
        return;
    }
    RowLook look = EventTypeLook(type);
    EventRows.Add(position);
    EventRowDate.Add(date);
    EventRowForeColor.Add(look.forecolor);
    EventRowBackColor.Add(look.backcolor);
    EventRowType.Add(std::move(look.name));
}

void SelectEventsForDay(Date day, const std::vector<int>& eventsOfDay, const ListFilter& filter) {
    const std::vector<int> activeClassIds = ActiveClassIds();
    ClearRowsAndCounters();
    for (const int position : eventsOfDay) {
        if (BelongsToActiveTerm(Store.EventRecord.type.Item(position), activeClassIds)) {
            AddEventRow(position, day, filter);
        }
    }
}

void SelectEventsForDay(Date day, const ListFilter& filter) {
    SelectEventsForDay(day, EventsOn(day), filter);
}

void SelectEventRows(const ListFilter& filter) {
    if (filter.comboDateRange == "Day") {
        SelectEventsForDay(filter.clickedDate, filter);
        return;
    }
    ClearRowsAndCounters();
    for (const EventOccurrence& occurrence : SelectEventsInRange(filter.clickedDate, filter.comboDateRange)) {
        AddEventRow(occurrence.position, occurrence.date, filter);
    }
}
