// The table of a term against a second reckoning of it, made of whole numbers alone: scores in hundredths,
// credits and points in tenths, averages in hundredths.
#include "core/Module1.h"
#include "planner/grades/Grades.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

constexpr int Terms = 10'000;

struct Work {
    long long score, total; // hundredths; -1 where the box is empty
    int minutes;
};

struct Class {
    long long credits; // tenths
    std::vector<Work> works;
};

struct Reckoned {
    std::string percent = "0";
    std::string letter = "0";
    long long tenths = 0; // of points
    bool graded = false;
};

std::string Places(long long number, int places) {
    std::string digits = std::to_string(number);
    while (static_cast<int>(digits.size()) <= places) {
        digits.insert(0, "0");
    }
    return digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
}

long long HalfUp(long long dividend, long long divisor) {
    return (2 * dividend + divisor) / (2 * divisor);
}

std::string LetterAt(long long value, const std::vector<long long>& limits,
                     const std::vector<std::string>& letters) {
    for (std::size_t i = 0; i < limits.size(); ++i) {
        if (value >= limits[i]) {
            return letters[i];
        }
    }
    return "E";
}

const std::vector<std::string> Fine{"A", "A-", "B+", "B", "B-", "C+", "C", "C-", "D+", "D", "D-"};
const std::vector<std::string> Coarse{"A", "B", "C", "D"};

Reckoned ReckonClass(const Class& one, bool chroma) {
    long long score = 0;
    long long total = 0;
    for (const Work& work : one.works) {
        score += work.score < 0 ? 0 : work.score;
        total += work.total < 0 ? 0 : work.total;
    }
    if (total == 0) {
        return {};
    }
    const long long percent = HalfUp(score * 100, total);
    const std::string letter = chroma ? LetterAt(percent, {93, 90, 87, 83, 80, 77, 73, 70, 67, 63, 60}, Fine)
                                      : LetterAt(percent, {90, 80, 70, 60}, Coarse);
    long long tenths = 0;
    for (const auto& [name, points] : std::vector<std::pair<std::string, long long>>{{"A", 40},
                                                                                     {"A-", 37},
                                                                                     {"B+", 33},
                                                                                     {"B", 30},
                                                                                     {"B-", 27},
                                                                                     {"C+", 23},
                                                                                     {"C", 20},
                                                                                     {"C-", 17},
                                                                                     {"D+", 13},
                                                                                     {"D", 10},
                                                                                     {"D-", 7},
                                                                                     {"E", 0}}) {
        tenths = name == letter ? points : tenths;
    }
    return {std::to_string(percent), letter, tenths, true};
}

Reckoned ReckonTerm(const std::vector<Class>& classes, bool chroma) {
    long long points = 0; // hundredths
    long long credits = 0;
    for (const Class& one : classes) {
        const Reckoned grade = ReckonClass(one, chroma);
        if (grade.graded) {
            points += one.credits * grade.tenths;
            credits += one.credits;
        }
    }
    if (credits == 0) {
        return {};
    }
    const long long average = HalfUp(points * 10, credits); // hundredths of a point
    std::string letter = "0";
    if (average > 0) {
        letter = chroma ? LetterAt(average, {400, 370, 330, 300, 270, 230, 200, 170, 130, 100, 70}, Fine)
                        : LetterAt(average, {400, 300, 200, 100}, Coarse);
    }
    return {Places(average, 2), letter, 0, true};
}

std::string Entry(long long hundredths) {
    return hundredths < 0 ? "" : Places(hundredths, 2);
}

std::string Clock(int minutes) {
    const std::string hours = std::to_string(minutes / 60);
    const std::string rest = std::to_string(minutes % 60);
    return (hours.size() < 2 ? "0" : "") + hours + " : " + (rest.size() < 2 ? "0" : "") + rest;
}

class RandomTerms {
public:
    std::vector<Class> Next() {
        std::vector<Class> classes(Below(6));
        for (Class& one : classes) {
            one.credits = static_cast<long long>(Below(4) == 0 ? Below(60) : 10 * Below(6));
            one.works.resize(Below(5));
            for (Work& work : one.works) {
                work = {Points(), Points(), static_cast<int>(Below(600))};
            }
        }
        return classes;
    }

private:
    std::size_t Below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    }

    // Often whole, often few, so that percents fall on the limits of letters.
    long long Points() {
        switch (Below(4)) {
        case 0:
            return -1;
        case 1:
            return static_cast<long long>(Below(20'000));
        default:
            return static_cast<long long>(100 * Below(101));
        }
    }

    std::mt19937 random{20'091'014};
};

void StoreTerm(const std::vector<Class>& classes) {
    ResetStore();
    Store.Term.id.Add("1");
    Store.Term.name.Add("Fall 2009");
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
    ChooseActiveTerm("Fall 2009");
    for (std::size_t i = 0; i < classes.size(); ++i) {
        const std::string id = std::to_string(i + 1);
        AddClassRecord({.id = id, .name = "Class " + id, .credits = Places(classes[i].credits, 1)});
        for (const Work& work : classes[i].works) {
            AddAssignmentRecord({.class_ = id,
                                 .est_time = Clock(work.minutes),
                                 .score = Entry(work.score),
                                 .total = Entry(work.total)});
        }
    }
}

} // namespace

TEST(GPAOracle, AgreesOnTenThousandTerms) {
    RandomTerms random;
    int averages = 0;
    for (int term = 0; term < Terms && !testing::Test::HasFailure(); ++term) {
        SCOPED_TRACE(term);
        const std::vector<Class> classes = random.Next();
        const bool chroma = term % 2 == 0;
        StoreTerm(classes);
        const GPATable table = BuildGPATable(chroma);
        ASSERT_EQ(table.GPANames.Count(), static_cast<int>(classes.size()) + 1);
        std::size_t works = 0;
        int minutes = 0;
        for (std::size_t i = 0; i < classes.size(); ++i) {
            const int row = static_cast<int>(i) + 2;
            const Reckoned grade = ReckonClass(classes[i], chroma);
            EXPECT_EQ(table.GPAPercents.Item(row), grade.percent);
            EXPECT_EQ(table.GPALetters.Item(row), grade.letter);
            EXPECT_EQ(table.GPAAssignments.Item(row), static_cast<int>(classes[i].works.size()));
            works += classes[i].works.size();
            for (const Work& work : classes[i].works) {
                minutes += work.minutes;
            }
        }
        const Reckoned whole = ReckonTerm(classes, chroma);
        EXPECT_EQ(table.GPALetters.Item(1), whole.letter);
        EXPECT_EQ(table.GPAPercents.Item(1), whole.percent);
        EXPECT_EQ(table.GPAAssignments.Item(1), static_cast<int>(works));
        EXPECT_EQ(table.GPAMinutes.Item(1), minutes);
        averages += whole.graded ? 1 : 0;
    }
    EXPECT_GT(averages, Terms / 2) << "the terms are too poor to tell anything";
    ResetStore();
}
