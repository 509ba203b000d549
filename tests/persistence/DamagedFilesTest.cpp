// The files in tests/data/terms, each named for its fault: what is read from it, whether a message appears,
// and what a save makes of it.
#include "persistence/DataFolderTest.h"

#include <filesystem>
#include <set>

namespace fs = std::filesystem;

namespace {

enum class Message { None, Reading };

struct DamagedFile {
    std::string name;
    Texts terms; // the names read
    Message message = Message::None;
    int nextId = 1;
};

const std::string Fall = "Fall 2009";
const std::string Spring = "Spring 2010";

const std::vector<DamagedFile> DamagedFiles{
    {"BlanksBehindAField",
     {"Fall 2009</name>  \r\n  <start>2009/08/24</start>\r\n  <end>2009/12/18</end>\r\n</term>\r\n<term>\r\n "
      " <id>2</id>\r\n  <name>Spring 2010"},
     Message::None,
     2},
    {"BlanksBehindTheLastField", {Fall, Spring}, Message::Reading, 3},
    {"ByteOrderMark", {Fall, Spring}, Message::None, 3},
    {"CarriageReturnsAlone", {}, Message::Reading, 1},
    {"CutInTheMiddle", {Fall, Spring}, Message::Reading, 3},
    {"DateMissing", {Fall, Spring}, Message::None, 3},
    {"DateWithDotsAndDashes", {Fall, Spring}, Message::None, 3},
    {"EmptyFile", {}, Message::Reading, 1},
    {"FieldClosedByAnotherTag", {Fall}, Message::Reading, 3},
    {"FieldNotClosed", {Fall}, Message::Reading, 3},
    {"HeaderAlone", {}, Message::Reading, 1},
    {"HeaderWithoutLineEnd", {}, Message::Reading, 1},
    {"IdBeyond16Bits", {Fall}, Message::Reading, 2},
    {"IdEmpty", {Fall}, Message::Reading, 2},
    {"IdNoNumber", {Fall}, Message::Reading, 2},
    {"IdTheGreatest", {Fall, Spring}, Message::None, 32767},
    {"LastLineWithoutEnd", {Fall, Spring}, Message::None, 3},
    {"LineFeedsAlone", {Fall, Spring}, Message::None, 3},
    {"LineLongerThan16Bits", {Fall}, Message::Reading, 2},
    {"LineWithoutTag", {Fall}, Message::Reading, 2},
    {"RecordClosedTwice", {Fall}, Message::Reading, 2},
    {"RecordNotClosed", {Fall}, Message::None, 2}, // the second record is one unknown field of the first
    {"RecordOpenedTwice", {}, Message::None, 1},
    {"RootClosedTooEarly", {Fall, Spring}, Message::None, 3},
    {"RootMissing", {}, Message::Reading, 1},
    {"RootNotClosed", {Fall}, Message::None, 2},
    {"RootOfAnotherKind", {}, Message::Reading, 1},
    {"RootOpenedTwice", {Spring}, Message::None, 3},
    {"SecondLineBlank", {Fall}, Message::None, 2},
    {"TagDoubled", {Fall, "Fall again", Spring}, Message::None, 3},
    {"TagInCapitals", {Spring}, Message::None, 3},
    {"TagMissing", {Spring}, Message::None, 3},
    {"TagUnknown", {Fall, Spring}, Message::None, 3},
    {"TagWithoutCloser", {Fall}, Message::Reading, 2},
    {"TagsOutOfOrder", {Fall, Spring}, Message::None, 3},
    {"TwoBytesACharacter", {}, Message::Reading, 1},
    {"Whole", {Fall, Spring}, Message::None, 3},
    {"ZeroBytes", {}, Message::Reading, 1},
};

const fs::path Folder = fs::path(PLANOVARIUM_TEST_DATA) / "terms";

// Those of them that hold the records of the whole file in another form.
const Texts OtherForms{"ByteOrderMark",  "DateWithDotsAndDashes", "LastLineWithoutEnd",
                       "LineFeedsAlone", "RootClosedTooEarly",    "TagUnknown",
                       "TagsOutOfOrder"};

void TakeDamagedFile(const std::string& name) {
    fs::copy_file(Folder / (name + ".xml"), DataFolder / "terms.xml", fs::copy_options::overwrite_existing);
}

class DamagedFileTest : public DataFolderTest, public testing::WithParamInterface<DamagedFile> {};

class SaveOfADamagedFile : public DataFolderTest {};

} // namespace

TEST_P(DamagedFileTest, GivesWhatCanBeReadAndTheMessage) {
    TakeDamagedFile(GetParam().name);
    const std::string before = DataFile("terms.xml");
    ReadTermsAndClasses();
    const bool failed = GetParam().message == Message::Reading;
    EXPECT_EQ(Store.Term.name.values, GetParam().terms);
    EXPECT_EQ(NextTermID, GetParam().nextId);
    EXPECT_EQ(Script.boxes, failed ? Boxes{FileErrorBox("terms.xml", "reading")} : Boxes{});
    EXPECT_EQ(DataFile("classes.xml"), failed ? NoFile : FileOf("class_data", ""))
        << "read only behind whole terms";
    EXPECT_EQ(DataFile("terms.xml"), before) << "reading never changes a file";
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedFileTest, testing::ValuesIn(DamagedFiles),
                         [](const testing::TestParamInfo<DamagedFile>& row) { return row.param.name; });

TEST_F(SaveOfADamagedFile, GivesTheWholeOneWhereOnlyTheFormIsAnother) {
    TakeDamagedFile("Whole");
    const std::string whole = DataFile("terms.xml");
    for (const std::string& name : OtherForms) {
        ResetStore();
        TakeDamagedFile(name);
        ASSERT_NE(DataFile("terms.xml"), whole) << name;
        ReadTermsAndClasses();
        WriteTermsAndClasses();
        EXPECT_EQ(DataFile("terms.xml"), whole) << name;
    }
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(SaveOfADamagedFile, WithoutATagKeepsTheRecordsOutOfStep) {
    TakeDamagedFile("TagMissing");
    ReadTermsAndClasses();
    WriteTermsAndClasses();
    EXPECT_EQ(
        DataFile("terms.xml"),
        FileOf("term_data", Lines({"<term>", "  <id>1</id>", "  <name>Spring 2010</name>",
                                   "  <start>2009/08/24</start>", "  <end>2009/12/18</end>", "</term>"})));
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(SaveOfADamagedFile, WithATagTwiceEndsInTheWritingMessageWithTheFileWhole) {
    TakeDamagedFile("TagDoubled");
    const std::string before = DataFile("terms.xml");
    ReadTermsAndClasses();
    WriteTermsAndClasses();
    EXPECT_EQ(DataFile("terms.xml"), before);
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("terms.xml.tmp", "writing")});
}

TEST(DamagedFilesFolder, HasARowForEachOfItsFiles) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder)) {
        names.insert(entry.path().stem().string());
    }
    std::set<std::string> rows;
    for (const DamagedFile& file : DamagedFiles) {
        rows.insert(file.name);
    }
    EXPECT_EQ(names, rows);
}
