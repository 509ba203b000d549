// Class meetings: which events they are, and which class their link names.
#include "planner/rows/ClassLink.h"
#include "core/Module1.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

void AddClass(const std::string& id, const std::string& term, const std::string& name) {
    AddClassRecord({.id = id, .term = term, .name = name});
}

class ClassLinks : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        AddClass("10", "4", "Chemistry");
        AddClass("11", "4", "DELETED RECORD");
        AddClass("12", "5", "Algebra");
        AddClass("13.0", " 4 ", "Biology");
        AddClass("none", "4", "Nowhere");
        ActiveTermID = 4;
    }

    void TearDown() override { ResetStore(); }
};

} // namespace

TEST_F(ClassLinks, AreTypesThatHoldBothWords) {
    EXPECT_TRUE(IsClassMeeting("TermID4-ClassID10"));
    EXPECT_TRUE(IsClassMeeting("ClassID10-TermID4"));
    EXPECT_FALSE(IsClassMeeting("TermID4"));
    EXPECT_FALSE(IsClassMeeting("ClassID10"));
    EXPECT_FALSE(IsClassMeeting("Class"));
    EXPECT_FALSE(IsClassMeeting("termid4-classid10"));
    EXPECT_FALSE(IsClassMeeting(""));
}

TEST_F(ClassLinks, NameATermAndAClass) {
    const std::optional<ClassLink> link = ClassLinkIn("TermID4-ClassID1012");
    ASSERT_TRUE(link);
    EXPECT_EQ(link->term, 4);
    EXPECT_EQ(link->class_, 1012);
    EXPECT_EQ(ClassLinkIn("TermID 4 -ClassID 12.0")->class_, 12);
}

TEST_F(ClassLinks, OfAnyOtherFormNameNothing) {
    for (const char* type :
         {"ClassID10-TermID4", "TermID4ClassID10", "TermID4-ClassID10-1", "TermID-ClassID10",
          "TermID4-ClassID", "TermIDx-ClassID10", "TermID4.5-ClassID10", "TermID4-ClassID99999999",
          "My TermID4-ClassID10", "None", "Study Time", ""}) {
        EXPECT_FALSE(ClassLinkIn(type)) << type;
    }
}

TEST_F(ClassLinks, FindTheirClassInAnyTerm) {
    EXPECT_EQ(ClassPosition({4, 10}), 1);
    EXPECT_EQ(ClassPosition({5, 12}), 3);
    EXPECT_EQ(ClassPosition({4, 12}), 0);
    EXPECT_EQ(ClassPosition({4, 99}), 0);
}

TEST_F(ClassLinks, ReadIdsAsNumbers) {
    EXPECT_EQ(ClassPosition({4, 13}), 4);
}

TEST_F(ClassLinks, DoNotFindADeletedClass) {
    EXPECT_EQ(ClassPosition({4, 11}), 0);
}

TEST_F(ClassLinks, FindAClassOfAnyTermWhereNoneIsTold) {
    AddClass("12", "4", "Algebra of this term");
    EXPECT_EQ(FindClass({.id = 12}), 3);
    EXPECT_EQ(FindClass({.id = 12}, 4), 6);
    EXPECT_EQ(FindClass({.id = 12}, 7), 0);
    EXPECT_EQ(FindClass({.id = 12, .term = 4}), 6);
}

TEST_F(ClassLinks, FindADeletedClassWhereItWillDo) {
    EXPECT_EQ(FindClass({.id = 11}), 0);
    EXPECT_EQ(FindClass({.id = 11, .deletedToo = true}), 2);
    EXPECT_EQ(FindClass({.id = 11, .term = 4, .deletedToo = true}), 2);
    EXPECT_EQ(FindClass({.id = 11, .term = 5, .deletedToo = true}), 0);
}

TEST_F(ClassLinks, FindAClassWhoseIdIsNoWholeNumberByThatNumber) {
    AddClass("10.5", "4", "Half");
    EXPECT_EQ(FindClass({.id = 10.5, .term = 4}), 6);
    EXPECT_EQ(FindClass({.id = 10, .term = 4}), 1);
}

TEST_F(ClassLinks, KeepClassMeetingsToTheActiveTerm) {
    EXPECT_TRUE(BelongsToActiveTerm("TermID4-ClassID10"));
    EXPECT_TRUE(BelongsToActiveTerm("TermID4-ClassID13"));
    EXPECT_FALSE(BelongsToActiveTerm("TermID5-ClassID12"));
    ActiveTermID = 5;
    EXPECT_FALSE(BelongsToActiveTerm("TermID4-ClassID10"));
    EXPECT_TRUE(BelongsToActiveTerm("TermID5-ClassID12"));
}

TEST_F(ClassLinks, LeaveOutMeetingsOfAClassThatIsGoneOrDeleted) {
    EXPECT_FALSE(BelongsToActiveTerm("TermID4-ClassID99"));
    EXPECT_FALSE(BelongsToActiveTerm("TermID4-ClassID11"));
    EXPECT_FALSE(BelongsToActiveTerm("TermID4-ClassID12"));
}

TEST_F(ClassLinks, LeaveOutMeetingsWhoseLinkHasAnotherForm) {
    EXPECT_FALSE(BelongsToActiveTerm("ClassID10-TermID4"));
    EXPECT_FALSE(BelongsToActiveTerm("TermID4-ClassID10-1"));
}

TEST_F(ClassLinks, LetAllOtherEventsPass) {
    for (const char* type : {"Class", "Study Time", "None", "TermID5", "ClassID12", ""}) {
        EXPECT_TRUE(BelongsToActiveTerm(type)) << type;
    }
}

TEST_F(ClassLinks, FindNoClassWithoutATerm) {
    AddClass("20", "0", "Stray");
    ActiveTermID = 0;
    EXPECT_FALSE(BelongsToActiveTerm("TermID0-ClassID20"));
    EXPECT_TRUE(ActiveClassIds().empty());
}

TEST_F(ClassLinks, AnswerForManyEventsFromTheIdsOfTheActiveTerm) {
    EXPECT_EQ(ActiveClassIds(), (std::vector<int>{10, 13}));
    EXPECT_TRUE(BelongsToActiveTerm("TermID4-ClassID10", ActiveClassIds()));
    EXPECT_FALSE(BelongsToActiveTerm("TermID5-ClassID10", ActiveClassIds()));
    EXPECT_TRUE(BelongsToActiveTerm("None", {}));
}

TEST_F(ClassLinks, AreReadAsTheyWereWritten) {
    EXPECT_EQ(ClassLinkText(4, "10"), "TermID4-ClassID10");
    const std::optional<ClassLink> link = ClassLinkIn(ClassLinkText(4, "10"));
    ASSERT_TRUE(link);
    EXPECT_EQ(link->term, 4);
    EXPECT_EQ(link->class_, 10);
}
