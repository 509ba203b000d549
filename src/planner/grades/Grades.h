// Grades: the percent and letter of one assignment, and the table of a term's classes with its grade point
// average. Every percentage is exact until it is shown, so no letter hangs on a rounding of the arithmetic.
#pragma once

#include "core/Decimal.h"
#include "core/TextList.h"

#include <string>
#include <string_view>

// --- One assignment ----------------------------------------------------------------------------------------

// Both texts are empty where there is no grade.
struct AssignmentGrade {
    std::string percentage; // "85%", which is what the record keeps
    std::string letter;     // "A" to "E"

    friend bool operator==(const AssignmentGrade&, const AssignmentGrade&) = default;
};

// The grade of an assignment from its score and total: the percentage rounded to a whole number, and the
// letter of the unrounded one. None where either text is no number or the total is 0.
AssignmentGrade UpdateGrade(std::string_view score, std::string_view total);

// True for a score, a total or credits that may stand: nothing at all, or a number that is not negative.
bool IsAcceptedNumber(std::string_view text);

// --- A term ------------------------------------------------------------------------------------------------

// One entry a row. Row 1 is "Total", the rows behind it are the classes of the active term in the store's
// order.
struct GPATable {
    TextList GPANames;
    TextList GPAClassIds;    // "0" in row 1
    TextList GPACredits;     // as the class has them, "0" where it has none; the sum of all in row 1
    List<Decimal> GPAScores; // sums of what stands in the assignments; 0 in row 1
    List<Decimal> GPATotals;
    TextList GPALetters;       // "0" where there is no grade
    TextList GPAPercents;      // "87"; the average as "3.75" in row 1; "0" where there is no grade
    NumberList GPAAssignments; // how many, done or not
    NumberList GPAMinutes;     // estimated study time
};

// The table of the active term. With "+" and "-" in use (chroma) there are twelve letters, else five.
// Raises the run-time error where a score, a total or credits are no number.
GPATable BuildGPATable(bool chroma);

// Fills in the sums, percentages, letters and the average of a table that has its names, ids and credits.
void ComputeGPA(GPATable& table, bool chroma);

// What the window shows for one row.
struct GPALabels {
    std::string_view LabelCredits, LabelScore, LabelGPA, LabelAssignments, LabelStudyTime;

    friend bool operator==(const GPALabels&, const GPALabels&) = default;
};

struct GPARow {
    GPALabels labels;
    std::string TextBoxCredits, TextboxPercent, TextboxGPA, TextboxAssignments, TextboxStudyTime;

    friend bool operator==(const GPARow&, const GPARow&) = default;
};

// The first row of that name; raises the run-time error where there is none.
GPARow ShowGPARow(const GPATable& table, std::string_view name);
