// Which list of a kind says how many records its file gets.
#include "persistence/DataFolderTest.h"

#include <functional>

namespace {

struct Counted {
    std::function<RecordFile()> file;
    std::string_view tag; // of the list that counts
};

const std::vector<Counted> Kinds{
    {TermFile, "name"}, {ClassFile, "name"}, {AssignmentFile, "id"}, {TaskFile, "id"}, {EventFile, "id"},
};

class CountedLists : public DataFolderTest {};

// The records of the file as it is saved with two entries in the list of that tag and three in every other.
int RecordsWritten(const RecordFile& file, std::string_view tag) {
    for (const RecordField& field : file.fields) {
        field.list->values.assign(field.tag == tag ? 2 : 3, "1");
    }
    EXPECT_TRUE(SaveRecordFile(file));
    const std::string bytes = DataFile(file.name);
    const std::string start = "<" + file.record + ">\r\n";
    int records = 0;
    for (std::size_t at = bytes.find(start); at != std::string::npos; at = bytes.find(start, at + 1)) {
        ++records;
    }
    return records;
}

} // namespace

TEST_F(CountedLists, AreTheNamesOfTermsAndClassesAndTheIdsOfAllOthers) {
    for (const Counted& kind : Kinds) {
        const RecordFile file = kind.file();
        EXPECT_EQ(RecordsWritten(file, kind.tag), 2) << file.name;
    }
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(CountedLists, LetNoOtherListBeShorter) {
    for (const Counted& kind : Kinds) {
        const RecordFile file = kind.file();
        for (const RecordField& shorter : file.fields) {
            for (const RecordField& field : file.fields) {
                field.list->values.assign(3, "1");
            }
            shorter.list->values.pop_back();
            Script.boxes.clear();
            EXPECT_EQ(SaveRecordFile(file), shorter.tag == kind.tag) << file.name << " " << shorter.tag;
            EXPECT_EQ(Script.boxes.empty(), shorter.tag == kind.tag) << file.name << " " << shorter.tag;
        }
    }
}
