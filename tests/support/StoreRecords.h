// Classes, assignments and tasks for the tests: a record's texts with the defaults of a new one, and their
// way into the store.
#pragma once

#include "core/Module1.h"

#include <string>

struct ClassTexts {
    std::string id = "1";
    std::string term = "1";
    std::string name = "Algebra";
    std::string credits = "3";
    std::string forecolor = "0";
    std::string backcolor = "16777215";
    std::string notes{};
};

struct AssignmentTexts {
    std::string class_ = "1";
    std::string date = "2009/10/14";
    std::string desc = "Assignment";
    std::string type = "Reading";
    std::string priority = "False";
    std::string est_time = "01 : 00";
    std::string time_left = "01 : 00";
    std::string percent_complete = "0%";
    std::string done = "False";
    std::string score{};
    std::string total{};
    std::string grade{};
    std::string reminder = "False";
    std::string reminderdate = "2009/10/14";
    std::string remindertime = "09:00 AM";
    std::string reminderalarm = "2009/10/14 09:00:00";
    std::string reminderlist = "False";
    std::string notes{};
};

struct TaskTexts {
    std::string date = "2009/10/14";
    std::string desc = "Task";
    std::string date_exists = "True";
    std::string type = "None";
    std::string priority = "None";
    std::string percent_complete = "0%";
    std::string done = "False";
    std::string reminder = "False";
    std::string reminder_date = "2009/10/14";
    std::string reminder_time = "09:00 AM";
    std::string reminder_alarm = "2009/10/14 09:00:00";
    std::string reminder_list = "False";
    std::string notes{};
};

// Each appends the record to its lists and gives its position; assignments and tasks take the next id.
int AddClassRecord(const ClassTexts& record);
int AddAssignmentRecord(const AssignmentTexts& record);
int AddTaskRecord(const TaskTexts& record);

// All that is global as at a start on an empty drive: the store and the row lists empty, the type table's
// defaults, no active term, the ids from 1 on, no file read or written.
void ResetStore();
