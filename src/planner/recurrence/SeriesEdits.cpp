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

void ReplaceEvent(int index, const EventLists& values, bool deleteExceptions) {
    EventLists& events = Store.EventRecord;
    for (const Field<EventLists>& field : EventFields) {
        if (field.rule != FieldRule::Id) {
            (events.*field.list).Replace(index, (values.*field.list).Item(1));
        }
    }
    if (deleteExceptions) {
        events.exceptions.Replace(index, {});
        const std::string id = events.id.Item(index); // the record may move up as its children go
        RemoveExceptionChildren(id);
    }
}

void ReplaceOccurrence(int index, Date date, const EventLists& values) {
    EventLists child = values;
    child.recurrence.Replace(1, std::string(NoRecurrence));
    child.exceptions.Replace(1, {});
    child.parent_id.Replace(1, Store.EventRecord.id.Item(index));
    AddEvent(child); // first, since where the ids have run out the series stays as it is
    GiveUpOccurrence(index, date);
}

void GiveUpOccurrence(int index, Date date) {
    TextList& exceptions = Store.EventRecord.exceptions;
    exceptions.Replace(index, std::string(Trim(exceptions.Item(index) + " " + StoredDate(date))));
}

void RemoveSeries(int index) {
    const std::string id = Store.EventRecord.id.Item(index);
    RemoveRecord(Store.EventRecord, EventFields, index);
    RemoveExceptionChildren(id);
}

void RemoveExceptionChildren(const std::string& id) {
    if (id.empty()) {
        return; // an empty parent is that of every event which is no exception child
    }
    const EventLists& events = Store.EventRecord;
    for (int index = WholeRecords(events); index >= 1; --index) {
        if (events.parent_id.Item(index) == id) {
            RemoveRecord(Store.EventRecord, EventFields, index);
        }
    }
}
