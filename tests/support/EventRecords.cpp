// Events for the tests: a record's texts with the defaults of a new single event, and their way into the
// store.
#include "support/EventRecords.h"

#include "core/Values.h"

int AddEventRecord(const EventTexts& event) {
    EventLists& events = Store.EventRecord;
    events.id.Add(std::to_string(NextId(NextEventID)));
    events.date.Add(event.date);
    events.time.Add(event.time);
    events.duration.Add(event.duration);
    events.desc.Add(event.desc);
    events.type.Add(event.type);
    events.recurrence.Add(event.recurrence);
    events.exceptions.Add(event.exceptions);
    events.parent_id.Add(event.parent_id);
    events.same_date.Add(event.same_date);
    events.repeat_number.Add(event.repeat_number);
    events.repeat_day.Add(event.repeat_day);
    events.repeat_daily.Add(event.repeat_daily);
    events.end.Add(event.end);
    events.end_date.Add(event.end_date);
    events.reminder.Add(event.reminder);
    events.reminder_time.Add(event.reminder_time);
    events.reminder_alarm.Add(event.reminder_alarm);
    events.reminder_list.Add(event.reminder_list);
    events.reminder_currentday.Add(event.reminder_currentday);
    events.reminder_nextday.Add(event.reminder_nextday);
    events.reminder_nextalarm.Add(event.reminder_nextalarm);
    events.notes.Add(event.notes);
    return events.id.Count();
}
