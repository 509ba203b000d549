// The store: which term is active, which classes are its own, and records by position.
#include "core/Module1.h"
#include "support/ScriptedPlatform.h"

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
        Store = {};
        ActiveClasses = {};
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

TEST(Types, HaveTheirTwentySevenDefaults) {
    SetDefaultTypeTable();
    EXPECT_EQ(TypeTable.key.Count(), TypeRows);
    EXPECT_EQ(TypeTable.backcolor.Item(1), "10732766");
    EXPECT_EQ(TypeTable.key.Item(14), "Study Time");
    EXPECT_EQ(TypeTable.customname.Item(14), "Study Time");
    EXPECT_EQ(TypeTable.backcolor.Item(17), "55807");
    EXPECT_EQ(TypeTable.category.Item(13), "Task");
    EXPECT_EQ(TypeTable.category.Item(14), "Event");
    EXPECT_EQ(TypeRow("Event", "Class"), 15);
    EXPECT_EQ(TypeRow("Task", "Class"), 2);
    EXPECT_EQ(TypeRow("Task", "Birthday"), 0);
    TypeTable.customname.Replace(3, "Chores");
    EXPECT_EQ(TypeDisplayName(3), "Chores");
    EXPECT_EQ(TypeDisplayName(4), "Personal");
}
