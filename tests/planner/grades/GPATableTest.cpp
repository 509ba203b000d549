// The table of a term's classes with its grade point average.
#include "core/RunTimeError.h"
#include "planner/grades/Grades.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

constexpr bool Chroma = true;
constexpr bool Plain = false;
constexpr int FirstClass = 2; // its row

class GradePointAverage : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        Store.Term.id.Add("1");
        Store.Term.name.Add("Fall 2009");
        Store.Term.start.Add("2009/08/24");
        Store.Term.end.Add("2009/12/18");
        ChooseActiveTerm("Fall 2009");
    }

    void TearDown() override { ResetStore(); }
};

void AddScore(const std::string& class_, const std::string& score, const std::string& total) {
    AddAssignmentRecord({.class_ = class_, .score = score, .total = total});
}

// A class of three credits with a score out of a hundred.
void AddGradedClass(const std::string& id, const std::string& score, const std::string& credits = "3") {
    AddClassRecord({.id = id, .name = "Class " + id, .credits = credits});
    AddScore(id, score, "100");
}

std::string ClassLetter(const std::string& score, bool chroma) {
    ResetAssignmentLists();
    Store.ClassRecord = {};
    AddGradedClass("1", score);
    return BuildGPATable(chroma).GPALetters.Item(FirstClass);
}

struct Limit {
    const char* score; // out of 100
    const char* letter;
};

} // namespace

TEST_F(GradePointAverage, RowsAreTheTotalAndTheLivingClassesOfTheTerm) {
    AddClassRecord({.id = "7", .term = "1", .name = "Chemistry", .credits = "4"});
    AddClassRecord({.id = "8", .term = "2", .name = "History"});
    AddClassRecord({.id = "9", .term = "1", .name = "DELETED RECORD"});
    AddClassRecord({.id = "3", .term = "1", .name = "Algebra", .credits = ""});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPANames.values, (std::vector<std::string>{"Total", "Chemistry", "Algebra"}));
    EXPECT_EQ(table.GPAClassIds.values, (std::vector<std::string>{"0", "7", "3"}));
    EXPECT_EQ(table.GPACredits.values, (std::vector<std::string>{"4", "4", "0"}));
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(table.GPALetters.Item(row), "0");
        EXPECT_EQ(table.GPAPercents.Item(row), "0");
        EXPECT_EQ(table.GPAAssignments.Item(row), 0);
        EXPECT_EQ(table.GPAMinutes.Item(row), 0);
        EXPECT_EQ(Sign(table.GPAScores.Item(row)), 0);
        EXPECT_EQ(Sign(table.GPATotals.Item(row)), 0);
    }
}

TEST_F(GradePointAverage, OfATermWithoutAGradedClassIsZeroWithAllCredits) {
    AddClassRecord({.id = "1", .credits = "3"});
    AddClassRecord({.id = "2", .credits = "1.5"});
    AddScore("1", "5", "");
    const GPARow total = ShowGPARow(BuildGPATable(Chroma), "Total");
    EXPECT_EQ(total.TextboxPercent, "0.00");
    EXPECT_EQ(total.TextboxGPA, "0");
    EXPECT_EQ(total.TextBoxCredits, "4.5");
}

TEST_F(GradePointAverage, WeighsTheClassesByTheirCredits) {
    AddGradedClass("1", "95", "3");
    AddGradedClass("2", "85", "1");
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPALetters.values, (std::vector<std::string>{"A-", "A", "B"}));
    EXPECT_EQ(table.GPAPercents.values, (std::vector<std::string>{"3.75", "95", "85"}));
}

TEST_F(GradePointAverage, WithoutPlusAndMinusHasFewerLetters) {
    AddGradedClass("1", "95", "3");
    AddGradedClass("2", "85", "1");
    const GPATable table = BuildGPATable(Plain);
    EXPECT_EQ(table.GPALetters.values, (std::vector<std::string>{"B", "A", "B"}));
    EXPECT_EQ(table.GPAPercents.Item(1), "3.75");
}

TEST_F(GradePointAverage, LeavesOutAClassWithoutTotalButCountsItsCredits) {
    AddGradedClass("1", "95", "3");
    AddClassRecord({.id = "2", .name = "Art", .credits = "2"});
    AddScore("2", "10", "");
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAPercents.values, (std::vector<std::string>{"4.00", "95", "0"}));
    EXPECT_EQ(table.GPALetters.values, (std::vector<std::string>{"A", "A", "0"}));
    EXPECT_EQ(table.GPACredits.Item(1), "5");
}

TEST_F(GradePointAverage, GivesNoGradeToAClassWhoseTotalIsNothingOrLess) {
    for (const char* total : {"0", "-100"}) {
        ResetAssignmentLists();
        Store.ClassRecord = {};
        AddClassRecord({.id = "1", .credits = "2"});
        AddScore("1", "95", total);
        const GPATable table = BuildGPATable(Chroma);
        EXPECT_EQ(table.GPAPercents.values, (std::vector<std::string>{"0", "0"})) << total;
        EXPECT_EQ(table.GPALetters.values, (std::vector<std::string>{"0", "0"})) << total;
        EXPECT_EQ(table.GPACredits.Item(1), "2");
    }
}

TEST_F(GradePointAverage, CountsAnAssignmentThatIsDoneWithoutAScore) {
    AddClassRecord({.id = "1"});
    AddAssignmentRecord({.est_time = "01 : 30", .done = "True"});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAAssignments.values, (std::vector<int>{1, 1}));
    EXPECT_EQ(table.GPAMinutes.values, (std::vector<int>{90, 90}));
    EXPECT_EQ(Sign(table.GPAScores.Item(FirstClass)), 0);
}

TEST_F(GradePointAverage, AddsScoresAndTotalsEachForItself) {
    AddClassRecord({.id = "1"});
    AddScore("1", "", "50");
    AddScore("1", "30", "");
    AddScore("1", " 20.5 ", "50");
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(DecimalText(table.GPAScores.Item(FirstClass)), "50.5");
    EXPECT_EQ(DecimalText(table.GPATotals.Item(FirstClass)), "100");
    EXPECT_EQ(table.GPAPercents.Item(FirstClass), "51"); // 50.5 exactly
}

TEST_F(GradePointAverage, TakesBlanksForNoScoreNoTotalAndNoCredits) {
    AddClassRecord({.id = "1", .credits = "  "}); // as the editor of classes lets them stand
    AddScore("1", "  ", "50");
    AddScore("1", "40", " ");
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAPercents.Item(FirstClass), "80");
    EXPECT_EQ(table.GPACredits.values, (std::vector<std::string>{"0", "0"}));
}

TEST_F(GradePointAverage, GivesTwoClassesOfOneIdTheSameAssignmentsAndCountsThemTwice) {
    AddGradedClass("1", "80");
    AddClassRecord({.id = "1", .name = "Art", .credits = "1"});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAPercents.values, (std::vector<std::string>{"2.70", "80", "80"}));
    EXPECT_EQ(table.GPAAssignments.values, (std::vector<int>{2, 1, 1}));
    EXPECT_EQ(table.GPAMinutes.values, (std::vector<int>{120, 60, 60}));
}

TEST_F(GradePointAverage, PassesOverDeletedAssignmentsAndThoseOfOtherClasses) {
    AddGradedClass("1", "80");
    AddAssignmentRecord({.class_ = "1", .desc = "DELETED RECORD", .score = "0", .total = "100"});
    AddAssignmentRecord({.class_ = "99", .score = "0", .total = "100"});
    AddAssignmentRecord({.class_ = "", .score = "0", .total = "100"});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAAssignments.values, (std::vector<int>{1, 1}));
    EXPECT_EQ(table.GPAPercents.Item(FirstClass), "80");
}

TEST_F(GradePointAverage, GivesAClassTheLetterOfItsRoundedPercentage) {
    constexpr std::array<Limit, 25> limits{{
        {"100", "A"},   {"93", "A"},  {"92.5", "A"}, {"92.49", "A-"}, {"90", "A-"},
        {"89.5", "A-"}, {"89", "B+"}, {"87", "B+"},  {"86.4", "B"},   {"83", "B"},
        {"82", "B-"},   {"80", "B-"}, {"79", "C+"},  {"77", "C+"},    {"76", "C"},
        {"73", "C"},    {"72", "C-"}, {"70", "C-"},  {"69", "D+"},    {"67", "D+"},
        {"66", "D"},    {"63", "D"},  {"62", "D-"},  {"60", "D-"},    {"59.49", "E"},
    }};
    for (const Limit& limit : limits) {
        EXPECT_EQ(ClassLetter(limit.score, Chroma), limit.letter) << limit.score;
    }
}

TEST_F(GradePointAverage, GivesAClassFiveLettersWithoutPlusAndMinus) {
    constexpr std::array<Limit, 9> limits{{{"93", "A"},
                                           {"90", "A"},
                                           {"89.4", "B"},
                                           {"80", "B"},
                                           {"79", "C"},
                                           {"70", "C"},
                                           {"69", "D"},
                                           {"59.5", "D"},
                                           {"59", "E"}}};
    for (const Limit& limit : limits) {
        EXPECT_EQ(ClassLetter(limit.score, Plain), limit.letter) << limit.score;
    }
}

TEST_F(GradePointAverage, ReadsNinetyAtEightyNineAndAHalf) {
    AddGradedClass("1", "89.5");
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAPercents.Item(FirstClass), "90");
    EXPECT_EQ(table.GPALetters.Item(FirstClass), "A-");
}

TEST_F(GradePointAverage, IsAnAAtNinetyTwoPointSixWhereAnAssignmentIsNot) {
    AddGradedClass("1", "92.6");
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(FirstClass), "A");
    EXPECT_EQ(UpdateGrade("92.6", "100").letter, "A-");
}

TEST_F(GradePointAverage, HasALetterForEachStepOfItsPoints) {
    struct Step {
        const char* score;
        const char* letter;
        const char* average;
    };

    constexpr std::array<Step, 12> steps{{
        {"93", "A", "4.00"},
        {"90", "A-", "3.70"},
        {"87", "B+", "3.30"},
        {"83", "B", "3.00"},
        {"80", "B-", "2.70"},
        {"77", "C+", "2.30"},
        {"73", "C", "2.00"},
        {"70", "C-", "1.70"},
        {"67", "D+", "1.30"},
        {"63", "D", "1.00"},
        {"60", "D-", "0.70"},
        {"59", "0", "0.00"},
    }};
    for (const Step& step : steps) {
        ClassLetter(step.score, Chroma);
        const GPATable table = BuildGPATable(Chroma);
        EXPECT_EQ(table.GPAPercents.Item(1), step.average);
        EXPECT_EQ(table.GPALetters.Item(1), step.letter) << step.average;
    }
}

TEST_F(GradePointAverage, HasALetterForEachStepOfItsPlainPoints) {
    struct Step {
        const char* score;
        const char* letter;
        const char* average;
    };

    constexpr std::array<Step, 5> steps{{
        {"95", "A", "4.00"},
        {"85", "B", "3.00"},
        {"75", "C", "2.00"},
        {"65", "D", "1.00"},
        {"55", "0", "0.00"},
    }};
    for (const Step& step : steps) {
        ClassLetter(step.score, Plain);
        const GPATable table = BuildGPATable(Plain);
        EXPECT_EQ(table.GPAPercents.Item(1), step.average);
        EXPECT_EQ(table.GPALetters.Item(1), step.letter) << step.average;
    }
}

TEST_F(GradePointAverage, AHundredthBelowAPlainStepHasTheNextLetter) {
    struct Step {
        const char* score; // of ninety-nine credits
        const char* lower; // of one
        const char* letter;
        const char* average;
    };

    constexpr std::array<Step, 4> steps{{
        {"95", "85", "B", "3.99"},
        {"85", "75", "C", "2.99"},
        {"75", "65", "D", "1.99"},
        {"65", "55", "E", "0.99"},
    }};
    for (const Step& step : steps) {
        ResetAssignmentLists();
        Store.ClassRecord = {};
        AddGradedClass("1", step.score, "99");
        AddGradedClass("2", step.lower, "1");
        const GPATable table = BuildGPATable(Plain);
        EXPECT_EQ(table.GPAPercents.Item(1), step.average);
        EXPECT_EQ(table.GPALetters.Item(1), step.letter) << step.average;
    }
}

TEST_F(GradePointAverage, JustBelowAStepHasTheNextLetter) {
    AddGradedClass("1", "95", "19");
    AddGradedClass("2", "85", "1"); // 3.95
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(1), "A-");
    EXPECT_EQ(BuildGPATable(Plain).GPALetters.Item(1), "B");
    EXPECT_EQ(BuildGPATable(Plain).GPAPercents.Item(1), "3.95");
}

// Credits below nothing can only come from a file.
TEST_F(GradePointAverage, IsAnAAtExactlyFourAndNotAboveIt) {
    AddGradedClass("1", "95", "3");
    AddGradedClass("2", "50", "-1");
    EXPECT_EQ(BuildGPATable(Chroma).GPAPercents.Item(1), "6.00");
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(1), "A-");
    EXPECT_EQ(BuildGPATable(Plain).GPALetters.Item(1), "B");
}

TEST_F(GradePointAverage, IsThatOfTheGradedClassesWhereTheirCreditsAreBelowNothing) {
    AddGradedClass("1", "95", "-1");
    EXPECT_EQ(BuildGPATable(Chroma).GPAPercents.Item(1), "4.00");
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(1), "A");
    EXPECT_EQ(BuildGPATable(Chroma).GPACredits.Item(1), "-1");
}

TEST_F(GradePointAverage, AboveNothingAndBelowTheLowestStepIsAnE) {
    AddGradedClass("1", "60", "1");
    AddGradedClass("2", "10", "1"); // 0.35 and 0.50
    EXPECT_EQ(BuildGPATable(Chroma).GPAPercents.Item(1), "0.35");
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(1), "E");
    EXPECT_EQ(BuildGPATable(Plain).GPALetters.Item(1), "E");
}

TEST_F(GradePointAverage, IsNoneWhenTheGradedClassesHaveNoCredits) {
    AddGradedClass("1", "95", "0");
    AddGradedClass("2", "95", "");
    AddClassRecord({.id = "3", .name = "Art", .credits = "4"});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(table.GPAPercents.Item(1), "0");
    EXPECT_EQ(table.GPALetters.Item(1), "0");
    EXPECT_EQ(table.GPALetters.Item(FirstClass), "A");
    EXPECT_EQ(table.GPACredits.Item(1), "4");
}

TEST_F(GradePointAverage, SumsTenthsOfCreditsExactly) {
    for (int id = 1; id <= 10; ++id) {
        AddGradedClass(std::to_string(id), "95", "0.1");
    }
    EXPECT_EQ(BuildGPATable(Chroma).GPACredits.Item(1), "1");
    EXPECT_EQ(BuildGPATable(Chroma).GPALetters.Item(1), "A"); // 4.0 exactly
}

TEST_F(GradePointAverage, RoundsHalfAHundredthAway) {
    AddGradedClass("1", "95", "1"); // 4.0
    AddGradedClass("2", "50", "799");
    EXPECT_EQ(BuildGPATable(Chroma).GPAPercents.Item(1), "0.01"); // 0.005
}

TEST_F(GradePointAverage, TakesTextsThatAreNoNumbersAsErrors) {
    AddGradedClass("1", "many");
    EXPECT_THROW(BuildGPATable(Chroma), RunTimeError);
    ResetAssignmentLists();
    AddScore("1", "1", "a few");
    EXPECT_THROW(BuildGPATable(Chroma), RunTimeError);
    ResetAssignmentLists();
    EXPECT_NO_THROW(BuildGPATable(Chroma));
    Store.ClassRecord.credits.Replace(1, "three");
    EXPECT_THROW(BuildGPATable(Chroma), RunTimeError);
}

TEST_F(GradePointAverage, TellsWhichRecordHasTheCreditsThatAreNoNumber) {
    AddClassRecord({.id = "9", .term = "2"});
    AddClassRecord({.id = "1"});
    AddClassRecord({.id = "2", .name = "DELETED RECORD"});
    AddClassRecord({.id = "3", .credits = "three"});
    try {
        BuildGPATable(Chroma);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.place, Store.ClassRecord.credits.Item(4).data());
    }
}

TEST_F(GradePointAverage, ShowsTheTotalUnderItsOwnCaptions) {
    AddGradedClass("1", "95", "3");
    const GPARow shown = ShowGPARow(BuildGPATable(Chroma), "Total");
    const GPALabels labels{
        "Total Credits:", "GPA:", "Letter Grade:", "Total Assignments:", "Total Study Time:"};
    EXPECT_EQ(shown, (GPARow{labels, "3", "4.00", "A", "1", "01:00"}));
}

TEST_F(GradePointAverage, ShowsAClassUnderItsCaptions) {
    AddGradedClass("1", "95", "3.50");
    const GPARow shown = ShowGPARow(BuildGPATable(Chroma), "Class 1");
    const GPALabels labels{"Credits:", "Average Score:", "Letter Grade:", "Assignments:", "Study Time:"};
    EXPECT_EQ(shown, (GPARow{labels, "3.50", "95%", "A", "1", "01:00"}));
}

TEST_F(GradePointAverage, ShowsAClassWithoutAssignmentsAsZeros) {
    AddClassRecord({.id = "1", .name = "Art", .credits = "2"});
    const GPARow shown = ShowGPARow(BuildGPATable(Chroma), "Art");
    EXPECT_EQ(shown.TextboxAssignments, "0");
    EXPECT_EQ(shown.TextboxStudyTime, "00:00");
    EXPECT_EQ(shown.TextboxPercent, "0%");
    EXPECT_EQ(shown.TextboxGPA, "0");
}

TEST_F(GradePointAverage, ShowsTheFirstOfTwoRowsOfOneName) {
    AddClassRecord({.id = "1", .name = "Total", .credits = "7"});
    AddClassRecord({.id = "2", .name = "Art", .credits = "1"});
    AddClassRecord({.id = "3", .name = "Art", .credits = "2"});
    const GPATable table = BuildGPATable(Chroma);
    EXPECT_EQ(ShowGPARow(table, "Art").TextBoxCredits, "1");
    EXPECT_EQ(ShowGPARow(table, "Total").TextBoxCredits, "10");
    EXPECT_THROW(ShowGPARow(table, "Music"), RunTimeError);
}

TEST_F(GradePointAverage, ShowsStudyTimeByHoursAndMinutes) {
    struct Case {
        int minutes;
        const char* text;
    };

    AddClassRecord({.id = "1"});
    GPATable table = BuildGPATable(Chroma);
    for (const auto& [minutes, text] : {Case{0, "00:00"},
                                        {90, "01:30"},
                                        {750, "12:30"},
                                        {6000, "100:00"},
                                        {5999, "99:59"},
                                        {60005, "00:05"}}) {
        table.GPAMinutes.Replace(1, minutes);
        EXPECT_EQ(ShowGPARow(table, "Total").TextboxStudyTime, text) << minutes;
    }
}

RC_GTEST_PROP(GradeProperties, OfATermLieBetweenItsClasses, ()) {
    ResetStore();
    Store.Term.id.Add("1");
    Store.Term.name.Add("Fall");
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
    ChooseActiveTerm("Fall");
    const auto scores = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 101)));
    for (std::size_t i = 0; i < scores.size(); ++i) {
        AddGradedClass(std::to_string(i + 1), std::to_string(scores[i]),
                       std::to_string(*rc::gen::inRange(1, 6)));
    }
    const auto average = [](const GPATable& table) { return ToDecimal(table.GPAPercents.Item(1)); };
    const Decimal whole = average(BuildGPATable(Chroma));
    ResetAssignmentLists();
    Decimal least = DecimalOf(4);
    Decimal greatest = DecimalOf(0);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        ResetAssignmentLists();
        AddScore(std::to_string(i + 1), std::to_string(scores[i]), "100");
        const Decimal one = average(BuildGPATable(Chroma));
        least = Compare(one, least) < 0 ? one : least;
        greatest = Compare(one, greatest) > 0 ? one : greatest;
    }
    RC_ASSERT(Compare(least, whole) <= 0);
    RC_ASSERT(Compare(whole, greatest) <= 0);
}
