// What holds for any store and for any bytes: records survive a save and a read, and no file breaks the
// reader.
#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "persistence/RecordScanner.h"

#include "persistence/DataFolderTest.h"

#include <rapidcheck.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

class AnyStore : public DataFolderTest {};

class AnyBytes : public DataFolderTest {};

struct Kind {
    std::string subject;
    std::function<RecordFile()> file;
};

const std::vector<Kind> Kinds{
    {"terms", TermFile}, {"classes", ClassFile}, {"assignments", AssignmentFile},
    {"tasks", TaskFile}, {"events", EventFile},
};

// A piece of a value or of a file: markup of the format, line ends, or any byte.
rc::Gen<std::string> AnyPiece() {
    return rc::gen::oneOf(
        rc::gen::element<std::string>("<", ">", "/", "</", "\r\n", "\n", "\r", " ", "  ", "&", "True", "<id>",
                                      "</id>", "<notes>", "</notes>", "</name>", "<name>", "<term>",
                                      "</term>", "</term_data>", "<term_data>", "1", "32766", "32767",
                                      "2009/08/24", "2009-8-24", "."),
        rc::gen::map(rc::gen::arbitrary<char>(), [](char byte) { return std::string(1, byte); }));
}

rc::Gen<std::string> AnyText() {
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(AnyPiece()),
                        [](const std::vector<std::string>& pieces) {
                            std::string text;
                            for (const std::string& piece : pieces) {
                                text += piece;
                            }
                            return text;
                        });
}

// The nearest text that a field can carry: its lines end with CR LF, and none but the last ends with its
// closing tag.
std::string Carriable(const std::string& text, std::string_view tag) {
    const std::string closing = "</" + std::string(tag) + ">";
    std::string result;
    std::string_view rest = text;
    while (const std::optional<std::string_view> line = TakeLine(rest)) {
        result += result.empty() && line->data() == text.data() ? "" : "\r\n";
        result += *line;
        result += line->ends_with(closing) && !rest.empty() ? "." : "";
    }
    return result;
}

std::string AnyValue(const RecordField& field) {
    switch (field.rule) {
    case FieldRule::Id:
        return std::to_string(*rc::gen::inRange(0, 32767));
    case FieldRule::DateText:
        return *rc::gen::element<std::string>("2009/08/24", "2012/02/29", "1753/01/01", "9999/12/31", "//");
    case FieldRule::Plain:
        return Carriable(*AnyText(), field.tag);
    }
    return {};
}

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

// Lines of the kind as the planner writes them, of which some have gone, come twice, change places or are
// others.
std::string DamagedRecords(const RecordFile& file) {
    std::vector<std::string> lines;
    for (int record = *rc::gen::inRange(0, 3); record >= 0; --record) {
        lines.push_back("<" + std::string(file.record) + ">");
        for (const RecordField& field : file.fields) {
            lines.push_back("  <" + std::string(field.tag) + ">" + AnyValue(field) + "</" +
                            std::string(field.tag) + ">");
        }
        lines.push_back("</" + std::string(file.record) + ">");
    }
    const auto anyLine = [&lines] { return *rc::gen::inRange<std::size_t>(0, lines.size()); };
    for (int damages = *rc::gen::inRange(0, 4); damages > 0; --damages) {
        const std::size_t line = anyLine();
        switch (*rc::gen::inRange(0, 4)) {
        case 0:
            lines[line] = *AnyText();
            break;
        case 1:
            lines[line].clear();
            break;
        case 2:
            lines[line] = lines[anyLine()];
            break;
        default:
            std::swap(lines[line], lines[anyLine()]);
        }
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return FileOf(file.root, text);
}

// All that a scan leaves behind.
struct ScanResult {
    std::string ending;
    std::vector<TextList> lists;
    std::vector<int> finished;
    int nextId = 0;

    friend bool operator==(const ScanResult&, const ScanResult&) = default;
};

ScanResult Scan(const RecordFile& file, std::string_view bytes, ScanTrace* trace) {
    ScanResult result;
    ClearLists(file);
    *file.nextId = 1;
    try {
        result.ending = ScanRecords(file, bytes, result.finished, trace) ? "whole" : "cut short";
    } catch (const RunTimeError& error) {
        result.ending = error.what();
    }
    result.lists = ListsOf(file);
    result.nextId = *file.nextId;
    return result;
}

} // namespace

TEST_F(AnyBytes, AreReadAlikeWhetherTheScanTellsWhereAllStandsOrNot) {
    for (const Kind& kind : Kinds) {
        const RecordFile file = kind.file();
        EXPECT_TRUE(rc::check(kind.subject, [&file] {
            const std::string bytes = DamagedRecords(file);
            ScanTrace trace;
            RC_ASSERT(Scan(file, bytes, nullptr) == Scan(file, bytes, &trace));
        }));
    }
}

TEST_F(AnyStore, SurvivesASaveAndARead) {
    for (const Kind& kind : Kinds) {
        const RecordFile file = kind.file();
        EXPECT_TRUE(rc::check(kind.subject, [&file] {
            ClearLists(file);
            const int records = *rc::gen::inRange(0, 4);
            for (const RecordField& field : file.fields) {
                for (int i = 0; i < records; ++i) {
                    field.list->Add(AnyValue(field));
                }
            }
            const std::vector<TextList> written = ListsOf(file);
            RC_ASSERT(SaveRecordFile(file));
            ClearLists(file);
            RC_ASSERT(ScanRecordFile(file));
            RC_ASSERT(ListsOf(file) == written);
        }));
    }
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(AnyBytes, EndInRecordsOrInOneReadingMessage) {
    const RecordFile file = TermFile();
    EXPECT_TRUE(rc::check([&file] {
        Script.boxes.clear();
        ClearLists(file);
        const std::string start = *rc::gen::element<std::string>("", Header + "\r\n<term_data>\r\n");
        SetDataFile(file.name, start + *AnyText());
        const bool read = ScanRecordFile(file);
        RC_ASSERT(Script.boxes == (read ? Boxes{} : Boxes{FileErrorBox("terms.xml", "reading")}));
        RC_ASSERT(NextTermID >= 1 && NextTermID <= 32767);
    }));
}

TEST_F(AnyBytes, ThatAreReadAsRecordsKeepTheirTextsThroughASave) {
    const RecordFile file = ClassFile();
    EXPECT_TRUE(rc::check([&file] {
        ClearLists(file);
        std::string body;
        for (const RecordField& field : file.fields) {
            const std::string value = field.rule == FieldRule::Id ? "7" : *AnyText();
            body += "<" + std::string(field.tag) + ">" + value + "</" + std::string(field.tag) + ">\n";
        }
        SetDataFile(file.name, FileOf(file.root, body));
        RC_PRE(ScanRecordFile(file));
        const std::vector<TextList> first = ListsOf(file);
        RC_PRE(std::ranges::all_of(first, [](const TextList& list) { return list.Count() == 1; }));
        RC_ASSERT(SaveRecordFile(file));
        ClearLists(file);
        RC_ASSERT(ScanRecordFile(file));
        RC_ASSERT(ListsOf(file) == first);
    }));
}
