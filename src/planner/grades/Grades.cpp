// Grades: the percent and letter of one assignment, and the table of a term's classes with its grade point
// average.
#include "planner/grades/Grades.h"

#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <array>
#include <span>
#include <unordered_map>
#include <vector>

namespace {

constexpr std::string_view LowestLetter = "E";
constexpr std::string_view NoGrade = "0";
constexpr int TotalRow = 1;

constexpr GPALabels TotalLabels{
    "Total Credits:", "GPA:", "Letter Grade:", "Total Assignments:", "Total Study Time:"};
constexpr GPALabels ClassLabels{"Credits:", "Average Score:", "Letter Grade:", "Assignments:", "Study Time:"};

// The letters of a single assignment. They differ from a class's in their limits, and are meant to.
struct AssignmentLetter {
    int percent;
    bool above; // the limit itself belongs to the next letter
    std::string_view letter;
};

constexpr std::array<AssignmentLetter, 11> AssignmentLetters{{
    {93, false, "A"},
    {90, false, "A-"},
    {88, false, "B+"},
    {82, true, "B"},
    {80, false, "B-"},
    {78, false, "C+"},
    {72, true, "C"},
    {70, false, "C-"},
    {68, false, "D+"},
    {62, true, "D"},
    {60, false, "D-"},
}};

// A class has the letter and the points of the first percent that it reaches, an average the letter of the
// first points that it reaches.
struct ClassLetter {
    int percent;
    std::string_view letter;
    int tenths; // of a point
};

constexpr std::array<ClassLetter, 11> ChromaLetters{{
    {93, "A", 40},
    {90, "A-", 37},
    {87, "B+", 33},
    {83, "B", 30},
    {80, "B-", 27},
    {77, "C+", 23},
    {73, "C", 20},
    {70, "C-", 17},
    {67, "D+", 13},
    {63, "D", 10},
    {60, "D-", 7},
}};

constexpr std::array<ClassLetter, 4> PlainLetters{{
    {90, "A", 40},
    {80, "B", 30},
    {70, "C", 20},
    {60, "D", 10},
}};

std::span<const ClassLetter> Letters(bool chroma) {
    return chroma ? std::span<const ClassLetter>(ChromaLetters) : std::span<const ClassLetter>(PlainLetters);
}

Decimal Tenths(Decimal number) {
    number.scale += 1;
    return number;
}

// The percentage against a whole number of percent, with no division.
int ComparePercentage(const Decimal& score, const Decimal& total, int percent) {
    return Compare(Product(score, 100), Product(total, percent)) * Sign(total);
}

std::string_view AssignmentLetterOf(const Decimal& score, const Decimal& total) {
    for (const AssignmentLetter& row : AssignmentLetters) {
        const int place = ComparePercentage(score, total, row.percent);
        if (place > 0 || (place == 0 && !row.above)) {
            return row.letter;
        }
    }
    return LowestLetter;
}

Decimal RoundedPercentage(const Decimal& score, const Decimal& total) {
    return Quotient(Product(score, 100), total, 0);
}

struct ClassGrade {
    std::string_view letter = LowestLetter;
    int tenths = 0;
};

ClassGrade ClassGradeOf(const Decimal& percent, bool chroma) {
    for (const ClassLetter& row : Letters(chroma)) {
        if (Compare(percent, DecimalOf(row.percent)) >= 0) {
            return {row.letter, row.tenths};
        }
    }
    return {};
}

// Only a perfect average is an "A", with "+" and "-" and without; so 3.95 is a "B" without.
std::string_view AverageLetter(const Decimal& average, bool chroma) {
    if (Sign(average) == 0) {
        return NoGrade;
    }
    const std::span<const ClassLetter> rows = Letters(chroma);
    if (Compare(average, Tenths(DecimalOf(rows.front().tenths))) == 0) {
        return rows.front().letter;
    }
    for (const ClassLetter& row : rows.subspan(1)) {
        if (Compare(average, Tenths(DecimalOf(row.tenths))) >= 0) {
            return row.letter;
        }
    }
    return LowestLetter;
}

void AddRow(GPATable& table, const std::string& name, const std::string& id, const std::string& credits) {
    table.GPANames.Add(name);
    table.GPAClassIds.Add(id);
    table.GPACredits.Add(Trim(credits).empty() ? "0" : credits);
    table.GPAScores.Add({});
    table.GPATotals.Add({});
    table.GPALetters.Add(std::string(NoGrade));
    table.GPAPercents.Add("0");
    table.GPAAssignments.Add(0);
    table.GPAMinutes.Add(0);
}

// The score or the total of an assignment, each added whether the other is there or not.
void AddPoints(List<Decimal>& sums, int row, const std::string& points) {
    if (!Trim(points).empty()) {
        sums.Replace(row, Sum(sums.Item(row), ToDecimal(points)));
    }
}

using RowsOfClass = std::unordered_map<int, std::vector<int>>;

RowsOfClass RowsByClass(const GPATable& table) {
    RowsOfClass rows;
    for (int row = TotalRow + 1; row <= table.GPAClassIds.Count(); ++row) {
        if (const std::optional<int> id = IdIn(table.GPAClassIds.Item(row))) {
            rows[*id].push_back(row);
        }
    }
    return rows;
}

void AddAssignments(GPATable& table) {
    const RowsOfClass rowsOfClass = RowsByClass(table);
    const AssignmentLists& assignments = Store.Assignment;
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        const std::optional<int> id = IdIn(assignments.class_.Item(position));
        const auto found = id ? rowsOfClass.find(*id) : rowsOfClass.end();
        if (found == rowsOfClass.end() || assignments.desc.Item(position) == DeletedRecord) {
            continue;
        }
        const int minutes = ClockToMinutes(assignments.est_time.Item(position));
        for (const int row : found->second) {
            for (const int counted : {TotalRow, row}) {
                table.GPAAssignments.Replace(counted, table.GPAAssignments.Item(counted) + 1);
                table.GPAMinutes.Replace(counted, table.GPAMinutes.Item(counted) + minutes);
            }
            AddPoints(table.GPAScores, row, assignments.score.Item(position));
            AddPoints(table.GPATotals, row, assignments.total.Item(position));
        }
    }
}

// Three figures of hours, the first of which goes where it is 0: "01:30", "100:00".
std::string StudyTimeText(int minutes) {
    const std::string hours = "00" + std::to_string(minutes / MinutesPerHour);
    const std::string rest = "0" + std::to_string(minutes % MinutesPerHour);
    const std::string text = hours.substr(hours.size() - 3) + ":" + rest.substr(rest.size() - 2);
    return text.starts_with('0') ? text.substr(1) : text;
}

// Where the store has the credits of which the table's copy lies at the place; other places stay as they are.
const char* PlaceInStore(const GPATable& table, const char* place) {
    const ClassLists& classes = Store.ClassRecord;
    int row = TotalRow;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        if (IsActiveClass(position) && LiesIn(table.GPACredits.Item(++row), place)) {
            return classes.credits.Item(position).data();
        }
    }
    return place;
}

int RowNamed(const GPATable& table, std::string_view name) {
    for (int row = TotalRow; row <= table.GPANames.Count(); ++row) {
        if (table.GPANames.Item(row) == name) {
            return row;
        }
    }
    throw RunTimeError("No such class", name);
}

} // namespace

AssignmentGrade UpdateGrade(std::string_view score, std::string_view total) {
    const std::optional<Decimal> points = DecimalIn(score);
    const std::optional<Decimal> possible = DecimalIn(total);
    if (!points || !possible || Sign(*possible) == 0) {
        return {};
    }
    return {DecimalText(RoundedPercentage(*points, *possible)) + "%",
            std::string(AssignmentLetterOf(*points, *possible))};
}

bool IsAcceptedNumber(std::string_view text) {
    return Trim(text).empty() || NumberIn(text).value_or(-1) >= 0;
}

GPATable BuildGPATable(bool chroma) {
    SetupActiveClasses();
    GPATable table;
    AddRow(table, "Total", "0", "0");
    for (int position = 1; position <= ActiveClasses.id.Count(); ++position) {
        AddRow(table, ActiveClasses.name.Item(position), ActiveClasses.id.Item(position),
               ActiveClasses.credits.Item(position));
    }
    try {
        ComputeGPA(table, chroma);
    } catch (RunTimeError& error) {
        error.place = PlaceInStore(table, error.place);
        throw;
    }
    return table;
}

void ComputeGPA(GPATable& table, bool chroma) {
    AddAssignments(table);
    Decimal totalCreditsAll;
    Decimal totalCreditsGraded;
    Decimal gradePoints;
    for (int row = TotalRow + 1; row <= table.GPANames.Count(); ++row) {
        const Decimal credits = ToDecimal(table.GPACredits.Item(row));
        totalCreditsAll = Sum(totalCreditsAll, credits);
        if (Sign(table.GPATotals.Item(row)) <= 0) {
            continue;
        }
        const Decimal percent = RoundedPercentage(table.GPAScores.Item(row), table.GPATotals.Item(row));
        const ClassGrade grade = ClassGradeOf(percent, chroma);
        table.GPAPercents.Replace(row, DecimalText(percent));
        table.GPALetters.Replace(row, std::string(grade.letter));
        totalCreditsGraded = Sum(totalCreditsGraded, credits);
        gradePoints = Sum(gradePoints, Tenths(Product(credits, grade.tenths)));
    }
    table.GPACredits.Replace(TotalRow, ShortDecimalText(totalCreditsAll));
    if (Sign(totalCreditsGraded) == 0) {
        return; // no graded class, or none that has credits to weigh it
    }
    const Decimal average = Quotient(gradePoints, totalCreditsGraded, 2);
    table.GPAPercents.Replace(TotalRow, DecimalText(average));
    table.GPALetters.Replace(TotalRow, std::string(AverageLetter(average, chroma)));
}

GPARow ShowGPARow(const GPATable& table, std::string_view name) {
    const int row = RowNamed(table, name);
    GPARow shown;
    shown.labels = row == TotalRow ? TotalLabels : ClassLabels;
    const std::string& percent = table.GPAPercents.Item(row);
    shown.TextBoxCredits = table.GPACredits.Item(row);
    shown.TextboxPercent =
        row == TotalRow ? DecimalText(Quotient(ToDecimal(percent), DecimalOf(1), 2)) : percent + "%";
    shown.TextboxGPA = table.GPALetters.Item(row);
    shown.TextboxAssignments = std::to_string(table.GPAAssignments.Item(row));
    shown.TextboxStudyTime = StudyTimeText(table.GPAMinutes.Item(row));
    return shown;
}
