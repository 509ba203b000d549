// What the box says of a value that does not convert: where it stands, from wherever in the rules it was met.
#include "persistence/DataFolderTest.h"

#include "core/DateText.h"
#include "core/Decimal.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/DurationEntry.h"
#include "planner/grades/Grades.h"
#include "planner/lists/TaskSelection.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/study/StudyTimeToday.h"
#include "support/CutDrive.h"
#include "support/EventRecords.h"
#include "support/RuleResults.h"

namespace {

const std::string Advice =
    "\n\nCopies of the last good files, where there are any, lie in the Backup folder. The program plancheck "
    "beside the planner tells more of the fault and gets a copy back.";

class Fault : public DataFolderTest {
protected:
    void SetUp() override {
        DataFolderTest::SetUp();
        Store.Term.id.Add("1");
        Store.Term.name.Add("Fall 2009");
        Store.Term.start.Add("2009/08/24");
        Store.Term.end.Add("2009/12/18");
        ChooseActiveTerm("Fall 2009");
        AddClassRecord({});
        AddAssignmentRecord({.desc = "Sets"});
        AddTaskRecord({.desc = "Read"});
        AddTaskRecord({.desc = "Write"});
        AddEventRecord({.desc = "Match", .exceptions = "2009/10/14"});
    }

    template <class Use>
    static std::string TextOf(Use use) {
        try {
            use();
        } catch (const std::exception& error) {
            return FaultText(error);
        }
        return "no error";
    }
};

} // namespace

TEST_F(Fault, IsToldWithItsFileItsRecordAndItsField) {
    Store.TaskRecord.date.Replace(2, "someday");
    EXPECT_EQ(TextOf([] { SelectTasksForDay(Today()); }),
              "Not a date: \"someday\"\n\nFile: tasks.xml\nRecord: 2, \"Write\"\nField: date\n"
              "Value: \"someday\"" +
                  Advice);
}

TEST_F(Fault, InEachFieldOfEachKindIsFoundByItsPlace) {
    for (const RecordFile& file : RecordFiles()) {
        for (const RecordField& field : file.fields) {
            for (const std::string value : {"", "x", "a value of more than fifteen characters"}) {
                field.list->Replace(1, value);
                const std::string text = TextOf([&] { DateValue(field.list->Item(1)); });
                EXPECT_NE(text.find("\n\nFile: " + file.name + "\nRecord: 1, \""), std::string::npos) << text;
                EXPECT_NE(
                    text.find("\nField: " + std::string(field.tag) + "\nValue: \"" + value + "\"" + Advice),
                    std::string::npos)
                    << text;
            }
        }
    }
}

TEST_F(Fault, IsFoundByEachConversionAndFromAnyPartOfItsText) {
    const std::string value = " not so ";
    TextList& list = Store.EventRecord.duration;
    list.Replace(1, value);
    const std::vector<std::function<void()>> uses{
        [&] { ToNumber(list.Item(1)); },          [&] { ToInt16(list.Item(1)); },
        [&] { ToColor(list.Item(1)); },           [&] { IsTrue(list.Item(1)); },
        [&] { DateValue(list.Item(1)); },         [&] { TimeValue(list.Item(1)); },
        [&] { MomentValue(list.Item(1)); },       [&] { ClockToMinutes(list.Item(1)); },
        [&] { DurationToMinutes(list.Item(1)); }, [&] { LeadOf(list.Item(1)); },
        [&] { ToDecimal(list.Item(1)); },         [&] { IsException(list.Item(1), Today()); },
    };
    for (std::size_t i = 0; i < uses.size(); ++i) {
        EXPECT_NE(TextOf(uses[i]).find("\nField: duration\nValue: \"" + value + "\""), std::string::npos)
            << i;
    }
}

// The first record of each kind is met by all rules.
TEST_F(Fault, FromWhicheverRuleIsFoundByItsPlace) {
    FillCutDrive(2);
    const PlannerStore whole = Store;
    int faults = 0;
    for (const RecordFile& file : RecordFiles()) {
        for (const RecordField& field : file.fields) {
            Store = whole;
            field.list->Replace(1, "not so");
            const std::string text = TextOf([] { RuleResults(); });
            if (text != "no error") {
                ++faults;
                EXPECT_NE(text.find("\n\nFile: " + file.name + "\nRecord: 1, \""), std::string::npos) << text;
                EXPECT_NE(text.find("\nField: " + std::string(field.tag) + "\nValue: \"not so\""),
                          std::string::npos)
                    << file.name << ' ' << field.tag << ": " << text;
            }
        }
    }
    EXPECT_GE(faults, 15);
}

TEST_F(Fault, OfANumberThatDoesNotFitIsFoundToo) {
    Store.Term.id.Replace(1, "70000");
    EXPECT_NE(TextOf([] {
                  ChooseActiveTerm("Fall 2009");
              }).find("File: terms.xml\nRecord: 1, \"Fall 2009\"\nField: id"),
              std::string::npos);
}

TEST_F(Fault, OfTheActiveTermsHomeworkNamesItsFile) {
    Store.Assignment.est_time.Replace(1, "an hour");
    EXPECT_NE(TextOf([] {
                  StudyTimeToday(Today());
              }).find("File: assignments_1.xml\nRecord: 1, \"Sets\"\nField: est_time\nValue: \"an hour\""),
              std::string::npos);
}

TEST_F(Fault, ShowsTheBeginningOfLongTextsAlone) {
    Store.TaskRecord.desc.Replace(1, "first line\r\nsecond line");
    Store.TaskRecord.date.Replace(1, std::string(200, 'x'));
    const std::string text = TextOf([] { SelectTasksForDay(Today()); });
    EXPECT_NE(
        text.find("Record: 1, \"first line...\"\nField: date\nValue: \"" + std::string(80, 'x') + "...\"\n"),
        std::string::npos)
        << text;
}

TEST_F(Fault, OfAValueThatIsInNoFileSaysNoMoreThanTheError) {
    EXPECT_EQ(TextOf([] { DateValue("typed"); }), "Not a date: \"typed\"");
    EXPECT_EQ(TextOf([] { static_cast<void>(Store.TaskRecord.id.Item(9)); }),
              "Position outside the list: \"9\"");
    EXPECT_EQ(TextOf([] { throw std::runtime_error("Out of paint"); }), "Out of paint");
}
