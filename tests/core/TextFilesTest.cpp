// The lines of a text, and files read and written whole.
#include "core/TextFiles.h"

#include "persistence/DataFolderTest.h"

#include <utility>

namespace fs = std::filesystem;

namespace {

Texts LinesIn(std::string_view text) {
    Texts lines;
    while (const std::optional<std::string_view> line = TakeLine(text)) {
        lines.emplace_back(*line);
    }
    return lines;
}

void WriteWhole(const std::string& name, const Texts& pieces) {
    OutputFile file = OpenForWriting(name);
    for (const std::string& piece : pieces) {
        WriteBytes(file, piece);
    }
    SyncAndClose(std::move(file));
}

class TextFiles : public DataFolderTest {};

} // namespace

TEST(TextLines, EndWithCarriageReturnAndLineFeedOrALoneLineFeed) {
    EXPECT_EQ(LinesIn("a\r\nb\nc\r\n"), (Texts{"a", "b", "c"}));
}

TEST(TextLines, KeepALoneCarriageReturn) {
    EXPECT_EQ(LinesIn("a\rb\r\r\nc\r"), (Texts{"a\rb\r", "c\r"}));
}

TEST(TextLines, MayBeEmptyAndTheLastNeedsNoEnd) {
    EXPECT_EQ(LinesIn(""), Texts{});
    EXPECT_EQ(LinesIn("\n"), Texts{""});
    EXPECT_EQ(LinesIn("\r\n\r\na"), (Texts{"", "", "a"}));
}

TEST(FieldTexts, WantABlankBehindAClosingTagThatEndsALineAndNowhereElse) {
    const auto places = [](std::string_view text) { return PlacesOfBlanks(text, "</notes>"); };
    using Places = std::vector<std::size_t>;
    EXPECT_EQ(places("a</notes>\r\nb"), Places{9});
    EXPECT_EQ(places("a</notes>\nb"), Places{9}) << "a lone line feed ends a line, too";
    EXPECT_EQ(places("</notes>\r\n\r\n</notes></notes>\r\n"), (Places{28, 8})) << "the last one first";
    EXPECT_EQ(places("a</notes>"), Places{}) << "the field's own closing tag follows on its line";
    EXPECT_EQ(places("a</notes> \r\nb"), Places{});
    EXPECT_EQ(places("a</notes>\rb"), Places{});
    EXPECT_EQ(places("a</note>\r\nb</Notes>\r\n"), Places{});
    EXPECT_EQ(places(""), Places{});
}

TEST_F(TextFiles, HoldEveryByteThatIsWritten) {
    std::string bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>(i);
    }
    WriteWhole("bytes", {bytes});
    EXPECT_EQ(FileBytes("bytes"), bytes);
    WriteWhole("bytes", {"a", "", "b"});
    EXPECT_EQ(FileBytes("bytes"), "ab");
    WriteWhole("bytes", {});
    EXPECT_EQ(FileBytes("bytes"), "");
}

TEST_F(TextFiles, RaiseTheErrorWhereTheyCannotBeOpenedReadOrWritten) {
    EXPECT_THROW(FileBytes("none"), RunTimeError);
    EXPECT_THROW(FileBytes("Backup"), RunTimeError) << "a folder opens but does not read";
    EXPECT_THROW(OpenForWriting("Backup"), RunTimeError);
    EXPECT_THROW(WriteWhole("/dev/full", {"x"}), RunTimeError);
    OutputFile full = OpenForWriting("/dev/full");
    EXPECT_THROW(WriteBytes(full, std::string(1000000, 'x')), RunTimeError);
}

TEST_F(TextFiles, AreThoseOfTheDataFolderOnceItIsEntered) {
    fs::current_path(drive.root);
    ChangeToDataFolder();
    EXPECT_EQ(fs::current_path(), fs::canonical(DataFolder));
    fs::current_path(drive.root);
    fs::rename(DataFolder, drive.root / "elsewhere");
    EXPECT_THROW(ChangeToDataFolder(), RunTimeError);
}
