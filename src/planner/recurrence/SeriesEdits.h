// What an edit of an event, of a series or of one of its occurrences does to the store.
// The values of an event travel as lists that hold one entry each; their id is not looked at. Writing the
// event file and the refresh are the caller's.
#pragma once

#include "core/Records.h"
#include "platform/Clock.h"

#include <string>

// Appends an event with the next event id; raises the run-time error when the ids have run out.
void AddEvent(const EventLists& values);

// Replaces the event in its place; it keeps its id. With deleteExceptions, which is for a series whose
// recurrence has changed, it has given up no dates any more, and its exception children are removed.
void ReplaceEvent(int position, const EventLists& values, bool deleteExceptions);

// Lets the occurrence live on as an event of its own, an exception child: it is appended with the values, the
// series as its parent and no recurrence, and the series gives up the date, which is that of the occurrence
// and not of the values.
void ReplaceOccurrence(int position, Date date, const EventLists& values);

// Appends the date to the exceptions of the series.
void GiveUpOccurrence(int position, Date date);

// Removes the event, and with a series its exception children.
void RemoveSeries(int position);

// Removes every record whose parent is the series with that id, from the last to the first.
void RemoveExceptionChildren(const std::string& id);
