// A file of each kind cut at any byte. What was whole is read, seen by the rules and saved again with what
// the student changes; the bytes of the cut file are kept.
#include "persistence/DataFolderTest.h"
#include "support/CutDrive.h"
#include "support/RuleResults.h"

#include <algorithm>
#include <filesystem>
#include <random>

namespace {

constexpr unsigned Seed = 20091014;
constexpr int SmallCount = 3;
constexpr int GreatCount = 20;

#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t Part = 10; // of the cuts, one in so many
#else
constexpr std::size_t Part = 1;
#endif

constexpr std::size_t RandomCuts = 2000 / Part;

std::vector<TextList> ListsOf(const RecordFile& file) {
    std::vector<TextList> lists;
    for (const RecordField& field : file.fields) {
        lists.push_back(*field.list);
    }
    return lists;
}

void ClearLists(const RecordFile& file) {
    for (const RecordField& field : file.fields) {
        field.list->Clear();
    }
}

class CutFiles : public DataFolderTest, public testing::WithParamInterface<CutKind> {
protected:
    void Fill(int records) {
        ResetStore();
        FillCutDrive(records);
        all = Store;
        original = ListsOf(GetParam().file());
        ASSERT_TRUE(SaveRecordFile(GetParam().file()));
        bytes = DataFile(GetParam().file().name);
        FindRecordEnds();
    }

    // Where the last field of each record ends.
    void FindRecordEnds() {
        const RecordFile file = GetParam().file();
        const std::string end = "\r\n</" + file.record + ">\r\n";
        ends.clear();
        for (std::size_t at = bytes.find(end); at != std::string::npos; at = bytes.find(end, at + 1)) {
            ends.push_back(at);
        }
        ASSERT_EQ(static_cast<int>(ends.size()), original.front().Count());
    }

    void ExpectAllOf(std::size_t cut) {
        for (const std::string& text : {bytes.substr(0, cut), bytes.substr(0, cut) + "\r\n"}) {
            ExpectWholeRecordsOf(text, cut);
        }
    }

    // The student reads the file, looks at everything, changes the first record, adds one, and starts anew.
    void ExpectWholeRecordsOf(const std::string& text, std::size_t cut) {
        const RecordFile file = GetParam().file();
        const int records = WholeRecordsUpTo(cut);
        SetDataFile(file.name, text);
        Read(file);
        ASSERT_NO_THROW(Look()) << file.name << " cut at " << cut;
        std::vector<TextList> expected = FirstOf(original, records);
        ASSERT_EQ(FirstOf(ListsOf(file), WholeCount(file)), expected) << file.name << " cut at " << cut;
        DropUnfinishedRecord(file);
        ChangeRecords(file, expected);
        ASSERT_TRUE(SaveRecordFile(file)) << file.name << " cut at " << cut;
        const std::string rootEnd = "</" + file.root + ">";
        const bool whole = text.ends_with(rootEnd) || text.ends_with(rootEnd + "\r\n");
        ASSERT_EQ(BackupFile(DamagedName(file)), whole ? NoFile : text) << "cut at " << cut;
        Script.boxes.clear();
        Read(file);
        ASSERT_EQ(Script.boxes, Boxes{}) << file.name << " cut at " << cut;
        ASSERT_EQ(ListsOf(file), expected) << file.name << " cut at " << cut;
        std::filesystem::remove(BackupFolder / DamagedName(file));
    }

    // A carriage return alone is a character of its line, so the field that it follows is not closed.
    int WholeRecordsUpTo(std::size_t cut) const {
        return static_cast<int>(
            std::ranges::count_if(ends, [cut](std::size_t end) { return end <= cut && cut != end + 1; }));
    }

    static void Look() {
        const AssignmentLists assignments = Store.Assignment;
        ChooseActiveTerm(ActiveTermName);
        Store.Assignment = assignments;
        RuleResults();
    }

    void Read(const RecordFile& file) {
        Store = all;
        ClearLists(file);
        ScanRecordFile(file);
        ASSERT_LE(Script.boxes.size(), 1);
    }

    static std::string DamagedName(const RecordFile& file) {
        return std::filesystem::path(file.name).stem().string() + "_damaged.xml";
    }

    static int WholeCount(const RecordFile& file) {
        int count = file.fields.front().list->Count();
        for (const RecordField& field : file.fields) {
            count = std::min(count, field.list->Count());
        }
        return count;
    }

    static std::vector<TextList> FirstOf(std::vector<TextList> lists, int records) {
        for (TextList& list : lists) {
            list.values.resize(static_cast<std::size_t>(records));
        }
        return lists;
    }

    // Gives the first record other notes, or another name, and adds one behind the last; both in the store
    // and in what is expected of it.
    static void ChangeRecords(const RecordFile& file, std::vector<TextList>& expected) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const RecordField& field = file.fields[i];
            const bool isId = field.rule == FieldRule::Id;
            const std::string added = isId ? std::to_string((*file.nextId)++) : "added";
            field.list->Add(field.rule == FieldRule::DateText ? "2009/10/15" : added);
            expected[i].Add(field.list->Item(field.list->Count()));
            if (field.list == file.named && expected[i].Count() > 1) {
                field.list->Replace(1, "changed");
                expected[i].Replace(1, "changed");
            }
        }
    }

    PlannerStore all;
    std::vector<TextList> original;
    std::string bytes;
    std::vector<std::size_t> ends;
};

} // namespace

TEST_P(CutFiles, KeepTheirWholeRecordsAtEachByteOfASmallOne) {
    ASSERT_NO_FATAL_FAILURE(Fill(SmallCount));
    for (std::size_t cut = 0; cut < bytes.size(); cut += Part) {
        ASSERT_NO_FATAL_FAILURE(ExpectAllOf(cut));
    }
}

TEST_P(CutFiles, KeepTheirWholeRecordsAtRandomBytesOfAGreatOne) {
    ASSERT_NO_FATAL_FAILURE(Fill(GreatCount));
    std::mt19937 random(Seed);
    for (std::size_t i = 0; i < RandomCuts; ++i) {
        ASSERT_NO_FATAL_FAILURE(ExpectAllOf(random() % bytes.size()));
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, CutFiles, testing::ValuesIn(CutKinds),
                         [](const testing::TestParamInfo<CutKind>& row) { return row.param.name; });
