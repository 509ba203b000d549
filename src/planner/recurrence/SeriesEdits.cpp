// What an edit of an event, of a series or of one of its occurrences does to the store.
#include "planner/recurrence/SeriesEdits.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/recurrence/SeriesRule.h"

void AddEvent(const EventLists& values) {
    const std::string id = std::to_string(NextId(NextEventID));
    for (const Field<EventLists>& field : EventFields) {
        (Store.EventRecord.*field.list).Add(field.rule == FieldRule::Id ? id : (values.*field.list).Item(1));
    }
}

void ReplaceEvent(int position, const EventLists& values, bool deleteExceptions) {
    EventLists& events = Store.EventRecord;
    for (const Field<EventLists>& field : EventFields) {
        if (field.rule != FieldRule::Id) {
            (events.*field.list).Replace(position, (values.*field.list).Item(1));
        }
    }
    if (deleteExceptions) {
        events.exceptions.Replace(position, {});
        const std::string id = events.id.Item(position); // the record may move up as its children go
        RemoveExceptionChildren(id);
    }
}

void ReplaceOccurrence(int position, Date date, const EventLists& values) {
    EventLists child = values;
    child.recurrence.Replace(1, std::string(NoRecurrence));
    child.exceptions.Replace(1, {});
    child.parent_id.Replace(1, Store.EventRecord.id.Item(position));
    AddEvent(child); // first, since where the ids have run out the series stays as it is
    GiveUpOccurrence(position, date);
}

void GiveUpOccurrence(int position, Date date) {
    TextList& exceptions = Store.EventRecord.exceptions;
    exceptions.Replace(position, std::string(Trim(exceptions.Item(position) + " " + StoredDate(date))));
}

void RemoveSeries(int position) {
    const std::string id = Store.EventRecord.id.Item(position);
    RemoveRecord(Store.EventRecord, EventFields, position);
    RemoveExceptionChildren(id);
}

void RemoveExceptionChildren(const std::string& id) {
    if (id.empty()) {
        return; // an empty parent is that of every event which is no exception child
    }
    const EventLists& events = Store.EventRecord;
    for (int position = WholeRecords(events); position >= 1; --position) {
        if (events.parent_id.Item(position) == id) {
            RemoveRecord(Store.EventRecord, EventFields, position);
        }
    }
}
