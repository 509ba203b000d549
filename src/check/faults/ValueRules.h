// Which field of a record has to convert to what, when the planner asks for it, and where that is.
#pragma once

#include "core/Records.h"

#include <array>
#include <string_view>

enum class ValueKind {
    Flag,
    DateOnly,
    DateList,
    DateAndTime,
    Time,
    Clock,
    Length,
    LeadTime,
    Color,
    Points,
    Percentage,
    WholeNumber
};

// The records whose value is asked for.
enum class Asked {
    Always,
    Living,        // not marked as deleted
    Dated,         // tasks with a date
    Armed,         // with a reminder
    Series,        // events that repeat
    Ending,        // events whose repeating has an end
    ArmedSeries,   // events that repeat, with a reminder
    StandingSeries // series whose reminder is set or stands on the list
};

struct ValueRule {
    std::string_view tag;
    ValueKind kind;
    Asked asked;
    std::string_view where;
};

inline constexpr std::string_view AtReminders = "at its first look at the reminders";
inline constexpr std::string_view AsOpened = "as the record is opened";
inline constexpr std::string_view InViews = "as soon as a view shows it";

inline constexpr std::array<ValueRule, 3> TermRules{{
    {"id", ValueKind::WholeNumber, Asked::Living, "as the term is chosen"},
    {"start", ValueKind::DateOnly, Asked::Living, "as the term is chosen, which may be at each start"},
    {"end", ValueKind::DateOnly, Asked::Living, "as the term is chosen, which may be at each start"},
}};

inline constexpr std::array<ValueRule, 4> ClassRules{{
    {"id", ValueKind::WholeNumber, Asked::Living, "as the term and its classes are opened"},
    {"credits", ValueKind::Points, Asked::Living, "as it computes the grades"},
    {"forecolor", ValueKind::Color, Asked::Living, InViews},
    {"backcolor", ValueKind::Color, Asked::Living, InViews},
}};

inline constexpr std::array<ValueRule, 12> AssignmentRules{{
    {"date", ValueKind::DateOnly, Asked::Living, "at each start with its term"},
    {"priority", ValueKind::Flag, Asked::Living, InViews},
    {"est_time", ValueKind::Clock, Asked::Living, "as it balances the study time"},
    {"time_left", ValueKind::Clock, Asked::Living, "as it balances the study time"},
    {"done", ValueKind::Flag, Asked::Living, "at each start with its term"},
    {"score", ValueKind::Points, Asked::Living, "as it computes the grades"},
    {"total", ValueKind::Points, Asked::Living, "as it computes the grades"},
    {"grade", ValueKind::Percentage, Asked::Living, "as homework is sorted by its grade"},
    {"reminder", ValueKind::Flag, Asked::Living, AtReminders},
    {"reminderdate", ValueKind::DateOnly, Asked::Living, AsOpened},
    {"reminderalarm", ValueKind::DateAndTime, Asked::Armed, AtReminders},
    {"reminderlist", ValueKind::Flag, Asked::Living, AtReminders},
}};

inline constexpr std::array<ValueRule, 7> TaskRules{{
    {"date_exists", ValueKind::Flag, Asked::Always, "as it counts the tasks"},
    {"date", ValueKind::DateOnly, Asked::Dated, "as it shows the tasks of a day"},
    {"done", ValueKind::Flag, Asked::Always, "as it counts the tasks"},
    {"reminder", ValueKind::Flag, Asked::Living, AtReminders},
    {"reminder_date", ValueKind::DateOnly, Asked::Armed, AsOpened},
    {"reminder_alarm", ValueKind::DateAndTime, Asked::Armed, AtReminders},
    {"reminder_list", ValueKind::Flag, Asked::Living, AtReminders},
}};

inline constexpr std::array<ValueRule, 14> EventRules{{
    {"date", ValueKind::DateOnly, Asked::Living, "at each start"},
    {"time", ValueKind::Time, Asked::Living, "as it reminds of the event or counts it as study"},
    {"duration", ValueKind::Length, Asked::Living, "as it shows the schedule of a day"},
    {"exceptions", ValueKind::DateList, Asked::Series, "as it looks for the days of the series"},
    {"same_date", ValueKind::Flag, Asked::Living, "as it looks for the days of a series, or opens the event"},
    {"end", ValueKind::Flag, Asked::Living, "as it looks for the days of a series, or opens the event"},
    {"end_date", ValueKind::DateOnly, Asked::Ending,
     "as it looks for the days of a series, or opens the event"},
    {"reminder", ValueKind::Flag, Asked::Living, AtReminders},
    {"reminder_time", ValueKind::LeadTime, Asked::ArmedSeries, AtReminders},
    {"reminder_alarm", ValueKind::DateAndTime, Asked::Armed, AtReminders},
    {"reminder_list", ValueKind::Flag, Asked::Living, AtReminders},
    {"reminder_currentday", ValueKind::DateOnly, Asked::StandingSeries, AtReminders},
    {"reminder_nextday", ValueKind::DateOnly, Asked::ArmedSeries, AtReminders},
    {"reminder_nextalarm", ValueKind::DateAndTime, Asked::ArmedSeries, AtReminders},
}};
