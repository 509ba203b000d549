// The names and colours that rows take from classes and types.
#include "planner/rows/RowLook.h"
#include "core/RunTimeError.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

class RowLooks : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

void ExpectLook(const RowLook& look, const std::string& name, int forecolor, int backcolor) {
    EXPECT_EQ(look.name, name);
    EXPECT_EQ(look.forecolor, forecolor);
    EXPECT_EQ(look.backcolor, backcolor);
}

} // namespace

TEST_F(RowLooks, OfATaskTypeAreItsKeyAndColors) {
    ExpectLook(TaskTypeLook("School"), "School", 0, 0xA3C4DE);
}

TEST_F(RowLooks, TakeTheCustomNameOfATypeThatHasOne) {
    TypeTable.customname.Replace(TypeRow("Task", "School"), "Campus");
    TypeTable.forecolor.Replace(TypeRow("Task", "School"), "255");
    ExpectLook(TaskTypeLook("School"), "Campus", 255, 0xA3C4DE);
    ExpectLook(TaskTypeLook("Campus"), "", 0, 0xFFFFFF);
}

TEST_F(RowLooks, TellTaskAndEventTypesOfOneKeyApart) {
    TypeTable.customname.Replace(TypeRow("Task", "Class"), "Lessons");
    EXPECT_EQ(TaskTypeLook("Class").name, "Lessons");
    EXPECT_EQ(EventTypeLook("Class").name, "Class");
}

TEST_F(RowLooks, OfTheTaskTypeNoneAreItsNameBlackOnWhite) {
    ExpectLook(TaskTypeLook("None"), "None", 0, 0xFFFFFF);
}

TEST_F(RowLooks, OfUnknownTypesAreNamelessBlackOnWhite) {
    ExpectLook(TaskTypeLook("Hobby"), "", 0, 0xFFFFFF);
    ExpectLook(TaskTypeLook("Birthday"), "", 0, 0xFFFFFF);
    ExpectLook(EventTypeLook("Hobby"), "", 0, 0xFFFFFF);
    ExpectLook(EventTypeLook("None"), "", 0, 0xFFFFFF);
}

TEST_F(RowLooks, OfAClassMeetingAreThoseOfItsClassInAnyTerm) {
    AddClassRecord({.id = "12", .term = "4", .name = "Biology", .forecolor = "128", .backcolor = "65280"});
    ExpectLook(EventTypeLook("TermID4-ClassID12"), "Biology", 128, 65280);
    ExpectLook(EventTypeLook("TermID5-ClassID12"), "", 0, 0xFFFFFF);
    ExpectLook(EventTypeLook("TermID4-ClassID12-1"), "", 0, 0xFFFFFF);
}

TEST_F(RowLooks, OfAClassAreItsNameAndColors) {
    AddClassRecord({.id = "3", .name = "Algebra", .forecolor = "1", .backcolor = "2"});
    ExpectLook(ClassLook(1), "Algebra", 1, 2);
    ExpectLook(ClassLook(0), "", 0, 0xFFFFFF);
}

TEST_F(RowLooks, WithAColorThatIsNoneEndInTheRunTimeError) {
    AddClassRecord({.forecolor = "red"});
    EXPECT_THROW(ClassLook(1), RunTimeError);
}

TEST_F(RowLooks, FindAClassByTheNumberOfItsId) {
    AddClassRecord({.id = "9", .name = "DELETED RECORD"});
    AddClassRecord({.id = "9", .name = "Algebra"});
    AddClassRecord({.id = "9", .name = "Biology"});
    AddClassRecord({.id = "none", .name = "Chemistry"});
    const ClassPositions classes = ClassPositionsById();
    EXPECT_EQ(ClassPositionOf(classes, "9"), 2);
    EXPECT_EQ(ClassPositionOf(classes, " 9.0 "), 2);
    EXPECT_EQ(ClassPositionOf(classes, "10"), 0);
    EXPECT_EQ(ClassPositionOf(classes, "none"), 0);
    EXPECT_EQ(ClassPositionOf(classes, ""), 0);
}
