// The tips of the day and their numbers.
#include "mainwindow/dialogs/TipTexts.h"

#include "core/ProgramFacts.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

TEST(TipTexts, FirstAndLastAreTold) {
    EXPECT_EQ(TipText(0), "Create a new Term and Class Schedule before adding assignments.");
    EXPECT_EQ(TipText(17), "Add your score for completed assignments in the Edit Assignment window.");
    EXPECT_EQ(TipText(30),
              "Do you know all the features now? Uncheck the box below to turn off the Tip of the "
              "Day feature.");
}

TEST(TipTexts, AreThirtyOneOfWhichNoTwoAreAlike) {
    std::set<std::string> texts;
    for (int tip = 0; tip <= TotalTips; ++tip) {
        EXPECT_FALSE(TipText(tip).empty());
        texts.insert(TipText(tip));
    }
    EXPECT_EQ(texts.size(), 31U);
}

TEST(TipTexts, NumberWithoutATipTellsWhomToAsk) {
    const std::string ask = "Have any questions? Please ask! Just go to " + HomePage() + "contactus.html";
    for (const int number : {31, 32767, -1, -2}) {
        EXPECT_EQ(TipText(number), ask) << number;
    }
}

TEST(TipTexts, NumbersGoRound) {
    EXPECT_EQ(NumberAfter(0), 1);
    EXPECT_EQ(NumberAfter(29), 30);
    EXPECT_EQ(NumberAfter(30), 0);
}

TEST(TipTexts, NumbersOutsideFindTheirWayBack) {
    EXPECT_EQ(NumberAfter(31), 0);
    EXPECT_EQ(NumberAfter(std::numeric_limits<short>::max()), 0);
    EXPECT_EQ(NumberAfter(-1), 0);
    EXPECT_EQ(NumberAfter(-2), -1);
}
