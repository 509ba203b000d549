// How a page comes onto the disk, and the texts in it.
#include "export/Pages.h"
#include "core/RunTimeError.h"
#include "support/FileBytes.h"
#include "support/ScriptedPlatform.h"
#include "support/TemporaryDrive.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

class PageFile : public testing::Test {
protected:
    void SetUp() override { ResetScript(); }

    void Copy() {
        WritePage(page, templateFile, [](std::string_view text, const AddLine& add) { add(text); });
    }

    TemporaryDrive drive;
    fs::path page = drive.root / "Page.html";
    fs::path templateFile = drive.root / "Template.html";
};

TEST_F(PageFile, EndsEachLineWithCarriageReturnAndLineFeed) {
    SetBytes(templateFile, "");
    WritePage(page, templateFile, [](std::string_view, const AddLine& add) {
        add("one");
        add("");
        add("t\xE9n \x80");
    });
    EXPECT_EQ(BytesIn(page), "one\r\n\r\nt\xE9n \x80\r\n");
}

TEST_F(PageFile, TakesThePlaceOfWhatWasThere) {
    SetBytes(templateFile, "new");
    SetBytes(page, std::string(1000, 'x'));
    Copy();
    EXPECT_EQ(BytesIn(page), "new\r\n");
}

TEST_F(PageFile, HoldsEveryLineOfALongPage) {
    SetBytes(templateFile, "");
    std::string expected;
    WritePage(page, templateFile, [&expected](std::string_view, const AddLine& add) {
        for (int n = 0; n < 20000; ++n) {
            const std::string line = "line " + std::to_string(n);
            add(line);
            expected += line + "\r\n";
        }
    });
    EXPECT_TRUE(BytesIn(page) == expected);
}

TEST_F(PageFile, IsLeftEmptyWhereTheTemplateIsMissing) {
    SetBytes(page, "old");
    EXPECT_THROW(Copy(), RunTimeError);
    EXPECT_EQ(BytesIn(page), "");
}

TEST_F(PageFile, RaisesTheErrorWhereItCannotBeMade) {
    SetBytes(templateFile, "text");
    page = drive.root / "no folder" / "Page.html";
    EXPECT_THROW(Copy(), RunTimeError);
}

TEST_F(PageFile, RaisesTheErrorWhereTheDiskIsFull) {
    SetBytes(templateFile, "text");
    page = "/dev/full";
    EXPECT_THROW(Copy(), RunTimeError);
}

TEST(PageText, KeepsTheBytesOfTheFilesForTheirCharacters) {
    EXPECT_EQ(PageText({"Samstag, 21. M\xC3\xA4rz"}), "Samstag, 21. M\xE4rz");
    EXPECT_EQ(PageText({"\xE2\x82\xAC \xE2\x80\x94 ?"}), "\x80 \x97 ?");
    EXPECT_EQ(PageText({"\xC2\xA0"}), "\xA0");
    EXPECT_EQ(PageText({""}), "");
}

TEST(PageText, GivesReferencesForCharactersThatTheFilesLack) {
    EXPECT_EQ(PageText({"pa\xC5\xBA"
                        "dziernik"}),
              "pa&#378;dziernik");
    EXPECT_EQ(PageText({"11\xE6\x9C\x88"}), "11&#26376;");
    EXPECT_EQ(PageText({"\xE0\xB8\xA1.\xE0\xB8\x84."}), "&#3617;.&#3588;.");
    EXPECT_EQ(PageText({"\xF0\x9F\x93\x85."}), "&#128197;.");
    EXPECT_EQ(PageText({"\xF0\x90\x81\x81"}), "&#65601;") << "and no A, of which it has the lower half";
}

TEST(PageText, OfADateIsInTheUsersForms) {
    ResetScript();
    EXPECT_EQ(CreatedOn(), "Created on Wednesday, October 14, 2009");
    EXPECT_EQ(PageDate(Today()), "14-Oct-09");
}

TEST(Replacing, EachPlaceLooksNoMoreAtWhatItHasPutIn) {
    std::string line = "~a~~";
    ReplaceEach(line, "~", "<~~>");
    EXPECT_EQ(line, "<~~>a<~~><~~>");
}

TEST(Replacing, TheFirstPlaceLeavesTheOthers) {
    std::string line = "a~b~";
    EXPECT_TRUE(ReplaceFirst(line, "~", "1"));
    EXPECT_EQ(line, "a1b~");
    EXPECT_FALSE(ReplaceFirst(line, "`", "1"));
    EXPECT_EQ(line, "a1b~");
}

} // namespace
