// Events for the tests: a record's texts with the defaults of a new single event, and their way into the
// store.
#pragma once

#include "core/Module1.h"

#include <string>

struct EventTexts {
    std::string date = "2009/10/14";
    std::string time = "09:00 AM";
    std::string duration = "30 Minutes";
    std::string desc = "Event";
    std::string type = "None";
    std::string recurrence = "None";
    std::string exceptions{};
    std::string parent_id{};
    std::string same_date = "False";
    std::string repeat_number = "First";
    std::string repeat_day = "Day";
    std::string repeat_daily = "FFFFFFF";
    std::string end = "False";
    std::string end_date = "2009/10/14";
    std::string reminder = "False";
    std::string reminder_time = "30 Minutes";
    std::string reminder_alarm{};
    std::string reminder_list = "False";
    std::string reminder_currentday{};
    std::string reminder_nextday{};
    std::string reminder_nextalarm{};
    std::string notes{};
};

// Appends the record to the event lists with the next event id, and gives its position.
int AddEventRecord(const EventTexts& event);
