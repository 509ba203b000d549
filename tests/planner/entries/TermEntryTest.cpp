// Names and dates of terms and classes.
#include "planner/entries/TermEntry.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

const TextList Ids{{"1", "2", "3"}};
const TextList Names{{"Algebra", "  biology ", "DELETED RECORD"}};

constexpr Date Start{2009y / 8 / 24};
constexpr Date End{2009y / 12 / 18};
const TextList TermNames{{"Spring 2009", "Fall 2009"}};

ClassCheck CheckNew(std::string_view name) {
    return ValidateClass({.name = name, .originalName = "", .id = 4, .termIsEdited = true}, Ids, Names);
}

} // namespace

TEST(DefaultTermNames, AreTheSeasonAndTheYear) {
    constexpr std::array<const char*, 12> names{"Winter 2010", "Spring 2010", "Spring 2010", "Spring 2010",
                                                "Summer 2010", "Summer 2010", "Summer 2010", "Fall 2010",
                                                "Fall 2010",   "Fall 2010",   "Winter 2010", "Winter 2010"};
    for (unsigned month = 1; month <= 12; ++month) {
        EXPECT_EQ(DefaultTermName(Date{2010y / std::chrono::month{month} / 1}), names[month - 1]);
    }
}

TEST(DefaultTermNames, TurnAtTheFirstOfFebruary) {
    EXPECT_EQ(DefaultTermName(Date{2010y / 1 / 1}), "Winter 2010");
    EXPECT_EQ(DefaultTermName(Date{2010y / 1 / 31}), "Winter 2010");
    EXPECT_EQ(DefaultTermName(Date{2010y / 2 / 1}), "Spring 2010");
    EXPECT_EQ(DefaultTermName(Date{2010y / 12 / 31}), "Winter 2010");
}

TEST(ClassNames, AreNeeded) {
    EXPECT_EQ(CheckNew(""), ClassCheck::NameMissing);
    EXPECT_EQ(CheckNew("   "), ClassCheck::NameMissing);
    EXPECT_EQ(ClassMessage(ClassCheck::NameMissing, {}), "Enter a name for this class.");
}

TEST(ClassNames, AreTakenWithoutRegardToCaseAndOuterBlanks) {
    for (const char* name : {"Algebra", "ALGEBRA", " algebra  ", "Biology", "biology"}) {
        EXPECT_EQ(CheckNew(name), ClassCheck::NameTaken) << name;
    }
    EXPECT_EQ(CheckNew("Alge bra"), ClassCheck::Accepted);
    EXPECT_EQ(ClassMessage(ClassCheck::NameTaken, {}), "There is already a class with this name.");
}

TEST(ClassNames, FoldTheLettersBeyondAsciiToo) {
    const TextList names{{"\xC9tudes", "x", "y"}};
    EXPECT_EQ(ValidateClass({.name = "\xE9tudes", .id = 4}, Ids, names), ClassCheck::NameTaken);
}

TEST(ClassNames, OfTheClassItselfAndOfDeletedOnesAreFree) {
    EXPECT_EQ(ValidateClass({.name = "ALGEBRA", .originalName = "Algebra", .id = 1}, Ids, Names),
              ClassCheck::Accepted);
    EXPECT_EQ(CheckNew("deleted record"), ClassCheck::Accepted);
}

TEST(ClassNames, AskOnlyWhenAClassOfASavedTermIsRenamed) {
    const ClassEntry renamed{.name = "Calculus", .originalName = "Algebra", .id = 1, .termIsEdited = true};
    EXPECT_EQ(ValidateClass(renamed, Ids, Names), ClassCheck::RenameAsked);
    EXPECT_EQ(
        ClassMessage(ClassCheck::RenameAsked, renamed),
        "You have changed the name of this class. If you have created assignments for 'Algebra', they will "
        "now be for 'Calculus'.\r\n\r\nClick 'Yes' to rename this class.");
    EXPECT_EQ(ValidateClass({.name = "Calculus", .originalName = "Algebra", .id = 1}, Ids, Names),
              ClassCheck::Accepted);
    EXPECT_EQ(ValidateClass({.name = "Algebra", .originalName = "Algebra", .id = 1, .termIsEdited = true},
                            Ids, Names),
              ClassCheck::Accepted);
    EXPECT_EQ(CheckNew("Calculus"), ClassCheck::Accepted);
}

TEST(ClassNames, ThatAreTakenAskForNoRename) {
    EXPECT_EQ(ValidateClass({.name = "Biology", .originalName = "Algebra", .id = 1, .termIsEdited = true},
                            Ids, Names),
              ClassCheck::NameTaken);
}

TEST(TermChecks, WantTheEndAfterTheStart) {
    EXPECT_EQ(ValidateTerm({Start, Start, "New", ""}, TermNames), TermCheck::EndNotLater);
    EXPECT_EQ(ValidateTerm({End, Start, "", ""}, TermNames), TermCheck::EndNotLater);
    EXPECT_EQ(ValidateTerm({Start, Start + std::chrono::days{1}, "New", ""}, TermNames), TermCheck::Accepted);
    EXPECT_EQ(TermMessage(TermCheck::EndNotLater),
              "The Term End Date must be later then the Term Start Date.");
}

TEST(TermChecks, WantAName) {
    EXPECT_EQ(ValidateTerm({Start, End, "  ", ""}, TermNames), TermCheck::NameMissing);
    EXPECT_EQ(TermMessage(TermCheck::NameMissing), "Enter a name for the Term.");
}

TEST(TermChecks, TellNamesApartByCaseAndBlanks) {
    EXPECT_EQ(ValidateTerm({Start, End, "Spring 2009", ""}, TermNames), TermCheck::NameTaken);
    EXPECT_EQ(ValidateTerm({Start, End, "spring 2009", ""}, TermNames), TermCheck::Accepted);
    EXPECT_EQ(ValidateTerm({Start, End, "Spring 2009 ", ""}, TermNames), TermCheck::Accepted);
    EXPECT_EQ(TermMessage(TermCheck::NameTaken), "There is already a Term with this name.");
}

TEST(TermChecks, LeaveASavedTermItsOwnName) {
    EXPECT_EQ(ValidateTerm({Start, End, "Fall 2009", "Fall 2009"}, TermNames), TermCheck::Accepted);
    EXPECT_EQ(ValidateTerm({Start, End, "Spring 2009", "Fall 2009"}, TermNames), TermCheck::NameTaken);
    EXPECT_EQ(ValidateTerm({Start, End, "SPRING 2009", "Fall 2009"}, TermNames), TermCheck::Accepted);
}
