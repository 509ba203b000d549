// Records by the thousand as a student would write them, the same at each run.
#include "SampleRecords.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/TextFiles.h"
#include "core/Values.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr std::array<const char*, 8> Subjects{
    "Chemistry lab",
    "Volleyball practice",
    "Dentist, bring the insurance card",
    "Study group in the library",
    "Piano lesson",
    "Shift at the bakery",
    "Grandma's birthday",
    "History club: field trip",
};

constexpr std::array<const char*, 6> EventNotes{
    "",
    "Bring goggles, the lab book and the signed form. Dr. Patel collects the reports at the door.\r\nRoom "
    "204.",
    "Meet at the north gate at half past, the bus leaves without us.\r\nLunch is not included!",
    "Ask about chapter 7 & the proof on page 112 (why is x < y enough?).",
    "Room changes every other week: see the notice board in front of the office, or ask Maria.",
    "",
};

constexpr std::array<const char*, 5> EventTypes{"School", "Personal", "Recreation", "Work", "Study Time"};
constexpr std::array<const char*, 4> EventTimes{"08:15 AM", "10:00 AM", "02:30 PM", "07:45 PM"};
constexpr std::array<const char*, 4> EventDurations{"30 Minutes", "1 Hour", "1.5 Hours", "2 Hours"};

template <class Values>
const char* Pick(const Values& values, int i) {
    return values[static_cast<std::size_t>(i) % values.size()];
}

std::string DateOf(int i) {
    return StoredDate(Date{2009y / 8 / 24} + std::chrono::days{i * 7 % 400});
}

EventTexts SampleEvent(int i) {
    EventTexts event;
    event.date = DateOf(i);
    event.time = Pick(EventTimes, i);
    event.duration = Pick(EventDurations, i / 3);
    event.desc = Pick(Subjects, i) + std::string(", week ") + std::to_string(i % 40);
    event.type = Pick(EventTypes, i);
    event.end_date = DateOf(i + 16);
    event.reminder = BooleanText(i % 3 == 0);
    event.reminder_alarm = event.date + " 08:00:00";
    event.reminder_currentday = event.date;
    event.reminder_nextday = event.date;
    event.reminder_nextalarm = event.reminder_alarm;
    event.notes = Pick(EventNotes, i);
    if (i % 4 == 0) {
        event.recurrence = "Day";
        event.repeat_daily = "TFTFTFF";
        event.end = BooleanText(i % 8 == 0);
        event.exceptions = DateOf(i + 2) + " " + DateOf(i + 3);
    }
    return event;
}

// "2009/10/14" as "20091014".
std::string CompactDate(std::string_view date) {
    std::string text(date);
    std::erase(text, '/');
    return text;
}

// "02:30 PM" as "143000".
std::string CompactTime(std::string_view time) {
    const std::chrono::hh_mm_ss parts{TimeValue(time)};
    const auto number = parts.hours().count() * 10000 + parts.minutes().count() * 100;
    return std::to_string(1000000 + number).substr(1);
}

std::string Escaped(std::string_view value) {
    std::string text;
    for (const char character : value) {
        if (character == ',' || character == ';') {
            text += '\\';
        }
        if (character == '\n') {
            text += "\\n";
        } else if (character != '\r') {
            text += character;
        }
    }
    return text;
}

void AddLine(std::string& text, std::string_view line) {
    text.append(line).append(LineEnd);
}

void AddSeriesLines(std::string& text, int i) {
    const EventLists& events = Store.EventRecord;
    std::string rule = "RRULE:FREQ=WEEKLY;BYDAY=MO,WE,FR";
    if (IsTrue(events.end.Item(i))) {
        rule += ";UNTIL=" + CompactDate(events.end_date.Item(i)) + "T235959";
    }
    AddLine(text, rule);
    const std::string time = CompactTime(events.time.Item(i));
    const std::string& exceptions = events.exceptions.Item(i);
    AddLine(text, "EXDATE:" + CompactDate(exceptions.substr(0, 10)) + "T" + time + "," +
                      CompactDate(exceptions.substr(11)) + "T" + time);
}

void AddEventComponent(std::string& text, int i) {
    const EventLists& events = Store.EventRecord;
    AddLine(text, "BEGIN:VEVENT");
    AddLine(text, "UID:" + events.id.Item(i));
    AddLine(text, "DTSTAMP:20091014T120000Z");
    AddLine(text, "DTSTART:" + CompactDate(events.date.Item(i)) + "T" + CompactTime(events.time.Item(i)));
    AddLine(text, "DURATION:PT90M");
    AddLine(text, "SUMMARY:" + Escaped(events.desc.Item(i)));
    AddLine(text, "CATEGORIES:" + events.type.Item(i));
    if (!events.notes.Item(i).empty()) {
        AddLine(text, "DESCRIPTION:" + Escaped(events.notes.Item(i)));
    }
    if (events.recurrence.Item(i) != "None") {
        AddSeriesLines(text, i);
    }
    if (IsTrue(events.reminder.Item(i))) {
        for (const char* line :
             {"BEGIN:VALARM", "ACTION:DISPLAY", "DESCRIPTION:Reminder", "TRIGGER:-PT30M", "END:VALARM"}) {
            AddLine(text, line);
        }
    }
    AddLine(text, "END:VEVENT");
}

} // namespace

void AddSampleEvents(int count) {
    for (int i = 1; i <= count; ++i) {
        AddEventRecord(SampleEvent(i));
    }
}

void AddSampleAssignments(int count) {
    for (int i = 1; i <= count; ++i) {
        AddAssignmentRecord({.class_ = std::to_string(i % 9 + 1),
                             .date = DateOf(i),
                             .desc = Pick(Subjects, i) + std::string(", exercise ") + std::to_string(i % 90),
                             .reminderdate = DateOf(i),
                             .reminderalarm = DateOf(i) + " 09:00:00",
                             .notes = Pick(EventNotes, i)});
    }
}

std::string EventsAsICalendar() {
    std::string text;
    for (const char* line : {"BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Planovarium//Benchmarks//EN"}) {
        AddLine(text, line);
    }
    for (int i = 1; i <= Store.EventRecord.id.Count(); ++i) {
        AddEventComponent(text, i);
    }
    AddLine(text, "END:VCALENDAR");
    return text;
}

void WriteFile(const std::string& name, std::string_view bytes) {
    OutputFile file = OpenForWriting(name);
    WriteBytes(file, bytes);
    SyncAndClose(std::move(file));
}
