// The scanner of the record files: what it makes of every form a file can have.
#include "persistence/DataFolderTest.h"

#include <string_view>

namespace {

class Scanner : public DataFolderTest {
protected:
    // Reads a terms.xml of these bytes.
    bool Read(const std::string& bytes) {
        SetDataFile("terms.xml", bytes);
        return ScanRecordFile(TermFile());
    }

    // Reads a terms.xml with these lines inside its root.
    bool ReadLines(std::initializer_list<std::string> lines) {
        return Read(FileOf("term_data", Lines(lines)));
    }
};

const Texts& Ids() {
    return Store.Term.id.values;
}

const Texts& Names() {
    return Store.Term.name.values;
}

std::string IdLine(const std::string& id) {
    return "  <id>" + id + "</id>";
}

} // namespace

TEST_F(Scanner, CreatesAMissingFileWithHeaderAndRootTagsOnlyAndReadsNothing) {
    EXPECT_TRUE(ScanRecordFile(TermFile()));
    EXPECT_EQ(DataFile("terms.xml"),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<term_data>\r\n</term_data>\r\n");
    EXPECT_EQ(Names(), Texts{});
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Scanner, ReadsTheSample) {
    EXPECT_TRUE(Read(
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<term_data>\r\n<term>\r\n  <id>1</id>\r\n"
        "  <name>Fall 2009</name>\r\n  <start>2009/08/24</start>\r\n  <end>2009/12/18</end>\r\n</term>\r\n"
        "</term_data>\r\n"));
    EXPECT_EQ(Ids(), Texts{"1"});
    EXPECT_EQ(Names(), Texts{"Fall 2009"});
    EXPECT_EQ(Store.Term.start.values, Texts{"2009/08/24"});
    EXPECT_EQ(Store.Term.end.values, Texts{"2009/12/18"});
    EXPECT_EQ(NextTermID, 2);
}

TEST_F(Scanner, AppendsBehindWhatTheListsHold) {
    EXPECT_TRUE(ReadLines({"<name>Fall</name>"}));
    EXPECT_TRUE(ReadLines({"<name>Spring</name>"}));
    EXPECT_EQ(Names(), (Texts{"Fall", "Spring"}));
}

TEST_F(Scanner, DoesNotLookAtTheFirstLine) {
    EXPECT_TRUE(Read("\xEF\xBB\xBFwhatever\r\n<term_data>\r\n<name>Fall</name>\r\n"));
    EXPECT_EQ(Names(), Texts{"Fall"});
}

TEST_F(Scanner, AcceptsABlankSecondLine) {
    EXPECT_TRUE(Read(Header + "\r\n   \r\n<name>Fall</name>\r\n"));
    EXPECT_TRUE(Read(Header + "\r\n\r\n<name>Spring</name>\r\n"));
    EXPECT_EQ(Names(), (Texts{"Fall", "Spring"}));
}

TEST_F(Scanner, AcceptsIndentedRootAndRecordTagsAndFieldsWithoutIndentation) {
    EXPECT_TRUE(Read(Lines({Header, "  <term_data>  ", "    <term>  ", "<name>Fall</name>", "  </term>   ",
                            "   <term>", "<name>Spring</name>", "</term>", "  </term_data> "})));
    EXPECT_EQ(Names(), (Texts{"Fall", "Spring"}));
}

TEST_F(Scanner, ReadsFieldsOutsideOfRecords) {
    EXPECT_TRUE(ReadLines({"<name>Fall</name>", "<term>", "</term>", "<name>Spring</name>"}));
    EXPECT_EQ(Names(), (Texts{"Fall", "Spring"}));
}

TEST_F(Scanner, ReadsOnBehindTheClosingTagOfTheRoot) {
    EXPECT_TRUE(
        Read(Lines({Header, "<term_data>", "</term_data>", "", "<term>", "<name>Fall</name>", "</term>"})));
    EXPECT_EQ(Names(), Texts{"Fall"});
}

TEST_F(Scanner, TakesALoneLineFeedAsTheEndOfALine) {
    EXPECT_TRUE(Read("header\n<term_data>\n<term>\n<name>Fall\nof 2009</name>\n</term>\n</term_data>\n"));
    EXPECT_EQ(Names(), Texts{"Fall\r\nof 2009"});
}

TEST_F(Scanner, TakesALoneCarriageReturnAsACharacter) {
    EXPECT_TRUE(ReadLines({"<name>\rFall\r\r", "2009\r</name>"}));
    EXPECT_EQ(Names(), Texts{"\rFall\r\r\r\n2009\r"});
}

TEST_F(Scanner, TakesTheBytes0And26AsCharacters) {
    using namespace std::string_literals;
    EXPECT_TRUE(ReadLines({"<name>a\0b\x1A"s + "c</name>", "<name>d</name>"}));
    EXPECT_EQ(Names(), (Texts{"a\0b\x1A"s + "c", "d"}));
}

TEST_F(Scanner, CountsALastLineWithoutAnEnd) {
    EXPECT_TRUE(Read(Header + "\r\n<term_data>\r\n<name>Fall</name>"));
    EXPECT_EQ(Names(), Texts{"Fall"});
}

TEST_F(Scanner, TakesOnlyTheBlankAsABlank) {
    EXPECT_FALSE(Read(Lines({Header, "\t<term_data>"})));
    EXPECT_FALSE(ReadLines({"<name>Fall</name>", "\t", "<name>Spring</name>"}));
    EXPECT_EQ(Names(), Texts{"Fall"});
    EXPECT_EQ(Script.boxes, Boxes(2, FileErrorBox("terms.xml", "reading")));
}

TEST_F(Scanner, TakesAnyFirstCharacterForTheTags) {
    EXPECT_TRUE(ReadLines({"?name>Fall</name>", "{name>Spring</name>", "\tname>Summer</name>"}));
    EXPECT_EQ(Names(), (Texts{"Fall", "Spring", "Summer"}));
}

TEST_F(Scanner, KeepsBlanksInsideAndAroundAValue) {
    EXPECT_TRUE(ReadLines({"  <name>  Fall  2009 </name>"}));
    EXPECT_EQ(Names(), Texts{"  Fall  2009 "});
}

TEST_F(Scanner, KeepsMarkupInAValue) {
    EXPECT_TRUE(ReadLines({"<name>A < B & C</name>", "<name><b>x</b></name></name>"}));
    EXPECT_EQ(Names(), (Texts{"A < B & C", "<b>x</b></name>"}));
}

TEST_F(Scanner, KeepsLinesOfAValueThatLookLikeRecordsOrNothing) {
    EXPECT_TRUE(ReadLines(
        {"<term>", "<name>a", "</term>", "", "  <id>7</id>", "</term_data>", "z</name>", "</term>"}));
    EXPECT_EQ(Names(), Texts{"a\r\n</term>\r\n\r\n  <id>7</id>\r\n</term_data>\r\nz"});
    EXPECT_EQ(Ids(), Texts{});
}

TEST_F(Scanner, JoinsTheLinesOfAValueWithCarriageReturnAndLineFeed) {
    SetDataFile("classes.xml",
                FileOf("class_data", Lines({"<class>", "  <notes>first", "second</notes>", "</class>"})));
    EXPECT_TRUE(ScanRecordFile(ClassFile()));
    EXPECT_EQ(Store.ClassRecord.notes.values, Texts{"first\r\nsecond"});
}

TEST_F(Scanner, ReadsOnAfterTrailingBlanksUntilALineEndsWithTheTag) {
    EXPECT_TRUE(ReadLines({"<name>a</name> ", "<id>1</id>", "<name>b</name>", "<name>c</name>"}));
    EXPECT_EQ(Names(), (Texts{"a</name> \r\n<id>1</id>\r\n<name>b", "c"}));
    EXPECT_EQ(Ids(), Texts{});
}

TEST_F(Scanner, ReadsARecordTagInsideARecordAsAFieldThatSwallowsTheRecord) {
    EXPECT_TRUE(ReadLines(
        {"<term>", "<name>a</name>", "<term>", "<name>b</name>", "</term>", "<name>c</name>", "</term>"}));
    EXPECT_EQ(Names(), (Texts{"a", "c"})) << "the closing line went with the swallowed ones";
}

TEST_F(Scanner, DropsUnknownTagsWithAllTheirLines) {
    EXPECT_TRUE(ReadLines({"<colour>", "<name>swallowed</name>", "</colour>", "<Name>x</Name>", "<>x</>",
                           "<name>Fall</name>"}));
    EXPECT_EQ(Names(), Texts{"Fall"});
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Scanner, TakesALineOfACloserAloneForATagOfNothing) {
    EXPECT_TRUE(ReadLines({">", "x</>", "></>", "<name>Fall</name>"}));
    EXPECT_EQ(Names(), Texts{"Fall"});
}

TEST_F(Scanner, LeavesAListOneShortForEachMissingTag) {
    EXPECT_TRUE(ReadLines(
        {"<term>", "<id>1</id>", "</term>", "<term>", "<id>2</id>", "<name>Spring</name>", "</term>"}));
    EXPECT_EQ(Ids(), (Texts{"1", "2"}));
    EXPECT_EQ(Names(), Texts{"Spring"});
}

TEST_F(Scanner, AddsADoubledTagTwiceAndTakesTagsInAnyOrder) {
    EXPECT_TRUE(ReadLines(
        {"<term>", "<end>2009/12/18</end>", "<name>a</name>", "<name>b</name>", "<id>1</id>", "</term>"}));
    EXPECT_EQ(Names(), (Texts{"a", "b"}));
    EXPECT_EQ(Ids(), Texts{"1"});
}

TEST_F(Scanner, TurnsDotsAndDashesOfDatesIntoSlashes) {
    EXPECT_TRUE(ReadLines({"<start>2009-08-24</start>", "<start>2009.08.24</start>",
                           "<start>  2009/08.24  </start>", "<start>not-a.date</start>", "<start></start>"}));
    EXPECT_EQ(Store.Term.start.values, (Texts{"2009/08/24", "2009/08/24", "2009/08/24", "not/a/date", ""}));
    EXPECT_EQ(Script.boxes, Boxes{}) << "a field with no date fails only where it is used";
}

TEST_F(Scanner, SetsTheCounterBehindTheGreatestId) {
    EXPECT_TRUE(ReadLines({IdLine("1"), IdLine("5"), IdLine("3")}));
    EXPECT_EQ(NextTermID, 6);
}

TEST_F(Scanner, StartsTheCounterAnewAtEachRead) {
    NextTermID = 40;
    EXPECT_TRUE(ReadLines({}));
    EXPECT_EQ(NextTermID, 1);
}

TEST_F(Scanner, TakesTheIdsThatAreDecimalNumbers) {
    const std::vector<std::pair<std::string, int>> counters{
        {"0", 1},    {"-3", 1},  {" 7 ", 8},       {"+7", 8},        {"2.4", 3},         {"2.5", 4},
        {"2.6", 4},  {"1.5", 2}, {"0.9", 1},       {"007", 8},       {"5.", 6},          {"1", 2},
        {"0.99", 1}, {".5", 1},  {"32765", 32766}, {"32766", 32767}, {"32766.4", 32767},
    };
    for (const auto& [id, counter] : counters) {
        EXPECT_TRUE(ReadLines({IdLine(id)})) << id;
        EXPECT_EQ(NextTermID, counter) << id;
        EXPECT_EQ(Ids().back(), id);
    }
}

TEST_F(Scanner, EndsInTheReadingMessageAtAnIdOf32767AndAtThoseThatAreNoNumbersWithTheIdInTheList) {
    for (const std::string id :
         {"32767", "99999", "abc", "", "1e3", "0x10", "1,5", "--1", "1 2", "\t1", "1\r\n2", "."}) {
        ResetStore();
        Script.boxes.clear();
        EXPECT_FALSE(ReadLines({"<name>a</name>", IdLine(id), "<name>b</name>"})) << id;
        EXPECT_EQ(Ids(), Texts{id});
        EXPECT_EQ(Names(), Texts{"a"}) << "what was read so far stays";
        EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("terms.xml", "reading")}) << id;
    }
}

TEST_F(Scanner, FindsTheFirstCloserUpToPosition32767OfItsLine) {
    const std::string longTag(32765, 'x');
    EXPECT_TRUE(ReadLines({"    <" + longTag + ">a</" + longTag + ">", "<name>Fall</name>"}));
    EXPECT_EQ(Names(), Texts{"Fall"});
    const std::string tooLong = longTag + "x";
    EXPECT_FALSE(ReadLines({"<" + tooLong + ">a</" + tooLong + ">", "<name>Spring</name>"}));
    EXPECT_EQ(Names(), Texts{"Fall"});
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("terms.xml", "reading")});
}

TEST_F(Scanner, ClearsTheWrittenFlagOfAFileThatFails) {
    FileWrittenFlags.terms = true;
    FileWrittenFlags.classes = true;
    EXPECT_FALSE(Read(""));
    EXPECT_FALSE(FileWrittenFlags.terms);
    EXPECT_TRUE(FileWrittenFlags.classes);
}

TEST_F(Scanner, ShowsTheDirectoryMessageWhenTheFolderIsGone) {
    std::filesystem::current_path(drive.root);
    std::filesystem::rename(DataFolder, drive.root / "elsewhere");
    EXPECT_FALSE(ScanRecordFile(TermFile()));
    EXPECT_EQ(Script.boxes, Boxes{DirectoryErrorBox()});
}

TEST_F(Scanner, EntersTheDataFolderItself) {
    SetDataFile("terms.xml", FileOf("term_data", "<name>Fall</name>\r\n"));
    std::filesystem::current_path(drive.root);
    EXPECT_TRUE(ScanRecordFile(TermFile()));
    EXPECT_EQ(Names(), Texts{"Fall"});
    EXPECT_FALSE(std::filesystem::exists(drive.root / "terms.xml"));
}
