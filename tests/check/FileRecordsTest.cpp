// What the check says of other copies of a file: their age, the records in them, and how two differ.
#include "check/faults/FileRecords.h"
#include "check/CheckedDrive.h"
#include "check/faults/FileAge.h"

using namespace std::chrono_literals;

namespace {

const Moment Written = Moment{Date{2009y / 10 / 14}} + 9h;

RecordTexts Record(const std::string& id, const std::string& name, const std::string& all) {
    return {id, name, all};
}

} // namespace

TEST(FileAges, AreToldInTheGreatestUnitThatIsFull) {
    const auto age = [](std::chrono::seconds seconds) { return AgeText(Written, Written + seconds); };
    EXPECT_EQ(age(0s), "0 minutes");
    EXPECT_EQ(age(59s), "0 minutes");
    EXPECT_EQ(age(1min), "1 minute");
    EXPECT_EQ(age(1h - 1s), "59 minutes");
    EXPECT_EQ(age(1h), "1 hour");
    EXPECT_EQ(age(24h - 1s), "23 hours");
    EXPECT_EQ(age(24h), "1 day");
    EXPECT_EQ(age(48h), "2 days");
    EXPECT_EQ(age(-5h), "0 minutes") << "a clock that was put back";
}

TEST(FileAges, AreOfAMomentToTheMinuteOrUnknown) {
    EXPECT_EQ(WrittenText(Written + 3min + 59s), "2009-10-14 09:03");
    EXPECT_EQ(WrittenText(std::nullopt), "an unknown day");
}

TEST(RecordNames, AreThreeAndTheNumberOfTheOthers) {
    EXPECT_EQ(NamesText({}), "");
    EXPECT_EQ(NamesText({"a"}), "\"a\"");
    EXPECT_EQ(NamesText({"a", "b", "c"}), "\"a\", \"b\", \"c\"");
    EXPECT_EQ(NamesText({"a", "b", "c", "d"}), "\"a\", \"b\", \"c\" and 1 more");
    EXPECT_EQ(NamesText({"a", "b", "c", "d", "e"}), "\"a\", \"b\", \"c\" and 2 more");
}

TEST(RecordDifferences, GoByTheIdAndThenByAllTexts) {
    const Difference difference =
        Differ({Record("1", "same", "x"), Record("2", "changed", "x"), Record("3", "only first", "x")},
               {Record("4", "only second", "x"), Record("2", "changed", "y"), Record("1", "same", "x")});
    EXPECT_EQ(difference.onlyInFirst, Texts{"only first"});
    EXPECT_EQ(difference.onlyInSecond, Texts{"only second"});
    EXPECT_EQ(difference.changed, 1);
}

TEST_F(CheckedDrive, KeepsListsAndCounterOfTheStoreWhileItReadsOtherBytes) {
    Check();
    const std::string bytes = DataFile("tasks.xml");
    Store.TaskRecord = {};
    Store.TaskRecord.id.Add("41");
    NextTaskID = 42;
    EXPECT_EQ(RecordsIn(TaskFile(), bytes).size(), 3U);
    EXPECT_EQ(Store.TaskRecord.id.values, Texts{"41"});
    EXPECT_EQ(Store.TaskRecord.desc.Count(), 0);
    EXPECT_EQ(NextTaskID, 42);
}
