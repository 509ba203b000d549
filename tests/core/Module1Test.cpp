// The store: which term is active, which classes are its own, and records by position.
#include "core/Module1.h"

#include "core/RunTimeError.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

void AddTerm(const std::string& id, const std::string& name) {
    Store.Term.id.Add(id);
    Store.Term.name.Add(name);
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
}

void AddClass(const std::string& id, const std::string& term, const std::string& name) {
    Store.ClassRecord.id.Add(id);
    Store.ClassRecord.term.Add(term);
    Store.ClassRecord.name.Add(name);
    Store.ClassRecord.credits.Add("3");
    Store.ClassRecord.forecolor.Add("0");
    Store.ClassRecord.backcolor.Add("16777215");
    Store.ClassRecord.notes.Add("");
}

class ActiveTerm : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }
};

} // namespace

TEST_F(ActiveTerm, IsNoneInAnEmptyStore) {
    ChooseActiveTerm("Fall 2009");
    EXPECT_EQ(ActiveTermName, "");
    EXPECT_EQ(ActiveTermID, 0);
    EXPECT_EQ(ActiveTermStart, Date{2000y / 1 / 1});
    EXPECT_EQ(ActiveTermEnd, Date{2000y / 1 / 1});
    EXPECT_FALSE(ActiveTermIsLiving());
}

TEST_F(ActiveTerm, IsTheOneOfThatName) {
    AddTerm("4", "Fall 2009");
    AddTerm("5", "Spring 2010");
    ChooseActiveTerm("Fall 2009");
    EXPECT_EQ(ActiveTermID, 4);
    EXPECT_EQ(ActiveTermEnd, Date{2009y / 12 / 18});
    EXPECT_TRUE(ActiveTermIsLiving());
}

TEST_F(ActiveTerm, OfTwoOfOneNameIsTheLaterOne) {
    AddTerm("4", "Fall");
    AddTerm("5", "Fall");
    ChooseActiveTerm("Fall");
    EXPECT_EQ(ActiveTermID, 5);
}

TEST_F(ActiveTerm, OfAnUnknownNameIsTheLastLivingOne) {
    AddTerm("1", "Fall");
    AddTerm("2", "Spring");
    AddTerm("3", "DELETED RECORD");
    ChooseActiveTerm("Summer");
    EXPECT_EQ(ActiveTermName, "Spring");
    EXPECT_EQ(ActiveTermID, 2);
}

TEST_F(ActiveTerm, NamedAsDeletedIsTakenButNotLiving) {
    AddTerm("3", "DELETED RECORD");
    ChooseActiveTerm("DELETED RECORD");
    EXPECT_EQ(ActiveTermName, "DELETED RECORD");
    EXPECT_FALSE(ActiveTermIsLiving());
    ChooseActiveTerm("Fall");
    EXPECT_EQ(ActiveTermID, 0);
}

TEST_F(ActiveTerm, OfAnUnknownNameMayBeOneWithoutAName) {
    AddTerm("1", "Fall");
    AddTerm("2", "");
    ChooseActiveTerm("Summer");
    EXPECT_EQ(ActiveTermName, "");
    EXPECT_EQ(ActiveTermID, 2);
    EXPECT_FALSE(ActiveTermIsLiving());
}

TEST_F(ActiveTerm, WithATextThatDoesNotConvertRaisesTheError) {
    AddTerm("1", "Fall");
    for (TextList* list : {&Store.Term.id, &Store.Term.start, &Store.Term.end}) {
        const std::string kept = list->Item(1);
        list->Replace(1, "soon");
        EXPECT_THROW(ChooseActiveTerm("Fall"), RunTimeError);
        list->Replace(1, kept);
    }
    EXPECT_NO_THROW(ChooseActiveTerm("Fall"));
}

TEST_F(ActiveTerm, OfAnotherNameLeavesNothingOfTheOneBefore) {
    AddTerm("4", "Fall 2009");
    ChooseActiveTerm("Fall 2009");
    Store = {};
    ChooseActiveTerm("Fall 2009");
    EXPECT_EQ(ActiveTermName, "");
    EXPECT_EQ(ActiveTermID, 0);
    EXPECT_EQ(ActiveTermStart, Date{2000y / 1 / 1});
    EXPECT_EQ(ActiveTermEnd, Date{2000y / 1 / 1});
}

TEST_F(ActiveTerm, ChangingItDropsTheAssignments) {
    AddTerm("1", "Fall");
    Store.Assignment.id.Add("1");
    ChooseActiveTerm("Fall");
    EXPECT_EQ(Store.Assignment.id.Count(), 0);
}

TEST_F(ActiveTerm, HasItsLivingClassesInFileOrder) {
    AddTerm("1", "Fall");
    AddTerm("2", "Spring");
    AddClass("10", "2", "Chemistry");
    AddClass("11", "1", "Algebra");
    AddClass("12", "2", "DELETED RECORD");
    AddClass("13", "2", "Biology");
    AddClass("14", "none", "Nowhere");
    ChooseActiveTerm("Spring");
    SetupActiveClasses();
    EXPECT_EQ(ActiveClasses.name.values, (std::vector<std::string>{"Chemistry", "Biology"}));
    EXPECT_EQ(ActiveClasses.id.values, (std::vector<std::string>{"10", "13"}));
    EXPECT_EQ(ActiveClasses.credits.Count(), 2);
    Store = {};
    ChooseActiveTerm("");
    SetupActiveClasses();
    EXPECT_EQ(ActiveClasses.name.Count(), 0);
}

TEST(Records, MoveUpWhenOneIsRemoved) {
    TaskLists tasks;
    for (int i = 1; i <= 5; ++i) {
        for (const Field<TaskLists>& field : TaskFields) {
            (tasks.*field.list).Add(std::to_string(i));
        }
    }
    RemoveRecord(tasks, TaskFields, 3);
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ((tasks.*field.list).Item(4), "5") << field.tag;
        EXPECT_EQ((tasks.*field.list).Count(), 4) << field.tag;
    }
}

namespace {

struct TypeCase {
    const char* category;
    const char* key;
    const char* backcolor;
};

constexpr std::array<TypeCase, 27> Types27{{
    {"Task", "School", "10732766"},     {"Task", "Class", "9934841"},        {"Task", "Home", "13035519"},
    {"Task", "Personal", "11399151"},   {"Task", "Friends", "16580310"},     {"Task", "Family", "12582847"},
    {"Task", "Recreation", "16770995"}, {"Task", "Work", "11075583"},        {"Task", "Project", "15262207"},
    {"Task", "Idea", "13687085"},       {"Task", "Custom1", "16777215"},     {"Task", "Custom2", "16777215"},
    {"Task", "Custom3", "16777215"},    {"Event", "Study Time", "4868863"},  {"Event", "Class", "9934841"},
    {"Event", "Birthday", "15120870"},  {"Event", "Holiday", "55807"},       {"Event", "School", "10732766"},
    {"Event", "Home", "13035519"},      {"Event", "Personal", "11399151"},   {"Event", "Friends", "16580310"},
    {"Event", "Family", "12582847"},    {"Event", "Recreation", "16770995"}, {"Event", "Work", "11075583"},
    {"Event", "Custom1", "16777215"},   {"Event", "Custom2", "16777215"},    {"Event", "Custom3", "16777215"},
}};

} // namespace

TEST(Types, HaveTheirTwentySevenDefaults) {
    SetDefaultTypeTable();
    SetDefaultTypeTable(); // which replaces what there was
    ASSERT_EQ(TypeTable.key.Count(), 27);
    for (int row = 1; row <= 27; ++row) {
        const TypeCase& type = Types27[static_cast<std::size_t>(row - 1)];
        EXPECT_EQ(TypeTable.category.Item(row), type.category) << row;
        EXPECT_EQ(TypeTable.key.Item(row), type.key) << row;
        EXPECT_EQ(TypeTable.customname.Item(row), row == 14 ? "Study Time" : "") << row;
        EXPECT_EQ(TypeTable.forecolor.Item(row), "0") << row;
        EXPECT_EQ(TypeTable.backcolor.Item(row), type.backcolor) << row;
    }
}

TEST(Types, AreFoundByCategoryAndKey) {
    SetDefaultTypeTable();
    EXPECT_EQ(TypeRow("Event", "Class"), 15);
    EXPECT_EQ(TypeRow("Task", "Class"), 2);
    EXPECT_EQ(TypeRow("Task", "Birthday"), 0);
}

TEST(Types, AreShownByTheirCustomNameOrElseTheirKey) {
    SetDefaultTypeTable();
    TypeTable.customname.Replace(3, "Chores");
    EXPECT_EQ(TypeDisplayName(3), "Chores");
    EXPECT_EQ(TypeDisplayName(4), "Personal");
}
