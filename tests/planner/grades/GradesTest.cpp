// The grade of one assignment.
#include "planner/grades/Grades.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

struct Limit {
    const char* score; // out of 100
    const char* letter;
};

} // namespace

TEST(AssignmentGrades, HaveTheLettersOfTheirLimits) {
    constexpr std::array<Limit, 23> limits{{
        {"100", "A"}, {"93", "A"},     {"92.999", "A-"}, {"90", "A-"}, {"89.999", "B+"}, {"88", "B+"},
        {"87", "B"},  {"82.001", "B"}, {"82", "B-"},     {"80", "B-"}, {"79.999", "C+"}, {"78", "C+"},
        {"77", "C"},  {"72.001", "C"}, {"72", "C-"},     {"70", "C-"}, {"69.999", "D+"}, {"68", "D+"},
        {"67", "D"},  {"62.001", "D"}, {"62", "D-"},     {"60", "D-"}, {"59.999", "E"},
    }};
    for (const Limit& limit : limits) {
        EXPECT_EQ(UpdateGrade(limit.score, "100").letter, limit.letter) << limit.score;
    }
}

TEST(AssignmentGrades, GoWithTheExamples) {
    EXPECT_EQ(UpdateGrade("85", "100"), (AssignmentGrade{"85%", "B"}));
    EXPECT_EQ(UpdateGrade("82", "100"), (AssignmentGrade{"82%", "B-"}));
    EXPECT_EQ(UpdateGrade("1", "0"), AssignmentGrade{});
    EXPECT_EQ(UpdateGrade("0", "10"), (AssignmentGrade{"0%", "E"}));
}

TEST(AssignmentGrades, AboveTheTotalGiveMoreThanAHundredPercent) {
    EXPECT_EQ(UpdateGrade("12", "10"), (AssignmentGrade{"120%", "A"}));
}

TEST(AssignmentGrades, TakeTheLetterOfTheUnroundedPercentage) {
    EXPECT_EQ(UpdateGrade("92.6", "100"), (AssignmentGrade{"93%", "A-"}));
    EXPECT_EQ(UpdateGrade("82.4", "100"), (AssignmentGrade{"82%", "B"}));
    EXPECT_EQ(UpdateGrade("59.5", "100"), (AssignmentGrade{"60%", "E"}));
}

TEST(AssignmentGrades, AreNoneWithoutTwoNumbers) {
    for (const auto& [score, total] :
         {std::pair{"", "100"}, {"85", ""}, {"", ""}, {"many", "100"}, {"85", "."}}) {
        EXPECT_EQ(UpdateGrade(score, total), AssignmentGrade{}) << score << " of " << total;
    }
}

// 16.4 of 20 is 82 percent exactly, which a binary quotient may miss on either side.
TEST(AssignmentGrades, OfEqualSharesAreEqualWhateverTheTotal) {
    for (int tenths = 1; tenths <= 2000; ++tenths) {
        const std::string total = DecimalText(Quotient(DecimalOf(tenths), DecimalOf(10), 1));
        for (const auto& [percent, letter] :
             {std::pair{82, "B-"}, {72, "C-"}, {62, "D-"}, {93, "A"}, {60, "D-"}}) {
            const std::string score = DecimalText(Quotient(DecimalOf(tenths * percent), DecimalOf(1000), 3));
            ASSERT_EQ(UpdateGrade(score, total).letter, letter) << score << " of " << total;
            ASSERT_EQ(UpdateGrade(score, total).percentage, std::to_string(percent) + "%");
        }
    }
}

TEST(AssignmentGrades, RoundHalfAPercentUp) {
    EXPECT_EQ(UpdateGrade("1", "200").percentage, "1%");
    EXPECT_EQ(UpdateGrade("17.9", "20").percentage, "90%"); // 89.5
    EXPECT_EQ(UpdateGrade("0.145", "1").percentage, "15%"); // 14.5
    EXPECT_EQ(UpdateGrade("0.144999999999999999999", "1").percentage, "14%");
}

TEST(AssignmentGrades, OfVeryLongNumbersAreExactToo) {
    const std::string total = "1" + std::string(250, '0');
    EXPECT_EQ(UpdateGrade("93" + std::string(248, '0'), total), (AssignmentGrade{"93%", "A"}));
    EXPECT_EQ(UpdateGrade("92" + std::string(248, '9'), total), (AssignmentGrade{"93%", "A-"}));
}

TEST(AssignmentGrades, OfDataWithANegativeTotalFollowTheQuotient) {
    EXPECT_EQ(UpdateGrade("-95", "-100"), (AssignmentGrade{"95%", "A"}));
    EXPECT_EQ(UpdateGrade("95", "-100"), (AssignmentGrade{"-95%", "E"}));
}

RC_GTEST_PROP(AssignmentGradeProperties, NeverFallWithTheScore, ()) {
    const int total = *rc::gen::inRange(1, 1000);
    const int score = *rc::gen::inRange(0, 1200);
    const auto letter = [&](int points) {
        return UpdateGrade(std::to_string(points), std::to_string(total)).letter;
    };
    const std::string order = "A  A- B+ B  B- C+ C  C- D+ D  D- E  ";
    const auto place = [&](const std::string& text) {
        return order.find(text + std::string(3 - text.size(), ' '));
    };
    RC_ASSERT(place(letter(score + 1)) <= place(letter(score)));
}

TEST(NumberEntries, MayBeEmptyOrNotNegative) {
    for (const char* accepted : {"", "   ", "0", "85", " 85.5 ", ".5", "5.", "+3", "-0"}) {
        EXPECT_TRUE(IsAcceptedNumber(accepted)) << accepted;
    }
    for (const char* refused : {"-1", "-0.5", "ten", "1 0", "1,5", ".", "8/10"}) {
        EXPECT_FALSE(IsAcceptedNumber(refused)) << refused;
    }
}
