// Random series, and the rules of recurrence once more: day by day, from texts alone, as slow and plain as
// can be.
#pragma once

#include "platform/Clock.h"

#include <random>
#include <span>
#include <string>
#include <vector>

// A day as the oracle sees it.
struct OracleDay {
    Date date;
    std::string text; // "yyyy/mm/dd", which sorts as the days do
    int month = 0;
    int number = 0;
    int length = 0;      // days of its month
    std::string weekday; // its name
    int letter = 0;      // its place in a pattern of seven letters, Monday 0
};

OracleDay OracleDayOf(Date date);

// The days from the first to the last.
std::vector<OracleDay> OracleDays(Date first, Date last);

struct OracleSeries {
    OracleDay first;
    std::string desc = "Event";
    std::string recurrence = "None";
    std::string exceptions;
    std::string sameDate = "False";
    std::string repeatNumber = "First";
    std::string repeatDay = "Day";
    std::string repeatDaily = "FFFFFFF";
    std::string end = "False";
    std::string endDate;
    std::string reminder = "False";
    int lead = 0; // the days that stand in the reminder
};

// Whether the event falls on the day, by the rule for a single date.
bool OracleOccurs(const OracleSeries& series, const OracleDay& day);

// Whether a walk that reaches the day gives it.
bool OracleWalks(const OracleSeries& series, const OracleDay& day);

// The days that a walk from the first of them on gives, in its order.
std::vector<Date> OracleWalk(const OracleSeries& series, std::span<const OracleDay> days);

// True where the two rules above are meant to differ for this series.
bool OracleRulesDiffer(const OracleSeries& series);

// A date from 1600 to 3100 that often lies at a month's end or in a leap year.
Date RandomAnchor(std::mt19937& random);

// A series of any kind that begins within some two years around the anchor.
OracleSeries RandomSeries(std::mt19937& random, Date anchor);

// Makes the event lists of the store those series.
void FillStore(const std::vector<OracleSeries>& all);
