// The types of tasks and events between their editors and the store.
#include "planner/entries/TypeEntry.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

class TypeEntries : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        for (const char* id : {"4", "5"}) {
            Store.Term.id.Add(id);
            Store.Term.name.Add("Term " + std::string(id));
            Store.Term.start.Add("2009/08/24");
            Store.Term.end.Add("2009/12/18");
        }
        AddClassRecord({.id = "11", .term = "4", .name = "Algebra"});
        AddClassRecord({.id = "12", .term = "5", .name = "Biology"});
        AddClassRecord({.id = "13", .term = "4", .name = "DELETED RECORD"});
        AddClassRecord({.id = "14", .term = "4", .name = "Work"});
        ChooseActiveTerm("Term 4");
        SetupActiveClasses();
    }

    void TearDown() override { ResetStore(); }
};

void Rename(std::string_view category, std::string_view key, const std::string& customName) {
    TypeTable.customname.Replace(TypeRow(category, key), customName);
}

} // namespace

TEST_F(TypeEntries, OfTasksAreOfferedInTableOrderBehindNone) {
    Rename("Task", "Home", "Chores");
    const std::vector<std::string> rows = TaskTypeRows();
    ASSERT_EQ(rows.size(), 14U);
    EXPECT_EQ(rows[0], "None");
    EXPECT_EQ(rows[1], "School");
    EXPECT_EQ(rows[3], "Chores");
    EXPECT_EQ(rows[13], "Custom3");
}

TEST_F(TypeEntries, OfEventsAreOfferedWithTheClassesOfTheTerm) {
    Rename("Event", "Birthday", "Party");
    const std::vector<std::string> rows = EventTypeRows();
    const std::vector<std::string> expected{"None",    "Study Time", "------------------------------",
                                            "Algebra", "Work",       "------------------------------",
                                            "Class",   "Party",      "Holiday",
                                            "School",  "Home",       "Personal",
                                            "Friends", "Family",     "Recreation",
                                            "Work",    "Custom1",    "Custom2",
                                            "Custom3"};
    EXPECT_EQ(rows, expected);
}

TEST_F(TypeEntries, AreShownByCustomNameOrKey) {
    Rename("Task", "Home", "Chores");
    EXPECT_EQ(ShownTaskType("Home"), "Chores");
    EXPECT_EQ(ShownTaskType("School"), "School");
    EXPECT_EQ(ShownTaskType("None"), "None");
    EXPECT_EQ(ShownTaskType("Birthday"), "");
    EXPECT_EQ(ShownEventType("Birthday"), "Birthday");
    EXPECT_EQ(ShownEventType("None"), "None");
    EXPECT_EQ(ShownEventType("Hobby"), "");
}

TEST_F(TypeEntries, OfClassMeetingsAreShownByTheClassOfAnyTerm) {
    EXPECT_EQ(ShownEventType("TermID4-ClassID11"), "Algebra");
    EXPECT_EQ(ShownEventType("TermID5-ClassID12"), "Biology");
    EXPECT_EQ(ShownEventType("TermID5-ClassID11"), "");
}

TEST_F(TypeEntries, OfTasksAreStoredByTheirKey) {
    Rename("Task", "Home", "Chores");
    EXPECT_EQ(ResolveTaskType("Chores", "School"), "Home");
    EXPECT_EQ(ResolveTaskType("Home", "School"), "Home"); // the key still names it
    EXPECT_EQ(ResolveTaskType("None", "School"), "None");
}

TEST_F(TypeEntries, ThatNothingMatchesStayAsTheyWere) {
    EXPECT_EQ(ResolveTaskType("Hobby", "School"), "School");
    EXPECT_EQ(ResolveTaskType("", "Gone"), "Gone"); // an empty custom name is no match
    EXPECT_EQ(ResolveTaskType("Birthday", "School"), "School");
    EXPECT_EQ(ResolveEventType("", "Gone"), "Gone");
    EXPECT_EQ(ResolveEventType("------------------------------", "Holiday"), "Holiday");
}

TEST_F(TypeEntries, OfTwoMatchesTakeTheLast) {
    Rename("Task", "School", "Work");
    EXPECT_EQ(ResolveTaskType("Work", "None"), "Work");
    Rename("Task", "Custom3", "School");
    EXPECT_EQ(ResolveTaskType("School", "None"), "Custom3");
}

TEST_F(TypeEntries, NeverLookUpNone) {
    Rename("Task", "Home", "None");
    Rename("Event", "Home", "None");
    EXPECT_EQ(ResolveTaskType("None", "School"), "None");
    EXPECT_EQ(ResolveEventType("None", "School"), "None");
    EXPECT_EQ(ShownTaskType("None"), "None");
    EXPECT_EQ(ShownEventType("None"), "None");
}

TEST_F(TypeEntries, OfAClassGoBeforeATypeOfTheSameName) {
    EXPECT_EQ(ResolveEventType("Algebra", "None"), "TermID4-ClassID11");
    EXPECT_EQ(ResolveEventType("Work", "None"), "TermID4-ClassID14");
    EXPECT_EQ(ResolveEventType("Biology", "Holiday"), "Holiday"); // a class of another term
    EXPECT_EQ(ResolveEventType("Study Time", "None"), "Study Time");
}

TEST_F(TypeEntries, OfTheFirstOfTwoClassesOfOneName) {
    AddClassRecord({.id = "15", .term = "4", .name = "Algebra"});
    SetupActiveClasses();
    EXPECT_EQ(ResolveEventType("Algebra", "None"), "TermID4-ClassID11");
}

TEST_F(TypeEntries, ComeBackWhenAnUntouchedEventIsSaved) {
    for (const char* type :
         {"None", "Study Time", "TermID4-ClassID11", "Birthday", "TermID5-ClassID12", "Gone"}) {
        EXPECT_EQ(ResolveEventType(ShownEventType(type), type), type);
    }
}
