// The pages of the sample drive through the templates that come with the program, against stored ones.
#include "export/SamplePages.h"
#include "drive/DriveLayout.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const fs::path StoredPages = fs::path(PLANOVARIUM_SOURCE_DIR) / "tests/export/pages";

int LineOfDifference(const std::string& a, const std::string& b) {
    const auto at = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return 1 + static_cast<int>(std::count(a.begin(), at, '\n'));
}

TEST(SamplePages, AreAsStored) {
    const TemporaryDrive drive;
    ReadSampleDrive(drive.root / "drive");
    WritePages(drive.root / "pages");
    int pages = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(drive.root / "pages")) {
        const std::string stored = BytesOf(StoredPages / entry.path().filename());
        const std::string written = BytesOf(entry.path());
        EXPECT_TRUE(stored == written)
            << entry.path().filename() << " differs from line " << LineOfDifference(written, stored) << " on";
        ++pages;
    }
    EXPECT_EQ(pages, 8);
    ResetStore();
}

// --- The marks of the templates ------------------------------------------------------------------

int Count(const std::string& text, const std::string& piece) {
    int count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) {
        ++count;
    }
    return count;
}

std::string TemplateOf(std::string_view name) {
    const std::string text = BytesOf(TemplateFolder / std::string(name));
    EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c >= 0; })) << name << " holds ASCII alone";
    EXPECT_NE(text.find("<meta charset=\"windows-1252\">"), std::string::npos) << name;
    EXPECT_EQ(Count(text, "<script") + Count(text, "http") + Count(text, "url("), 0)
        << name << " needs nothing from elsewhere";
    return text;
}

std::string InSmallLetters(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
    return text;
}

TEST(SampleTemplates, OfListsHoldEachMarkOnce) {
    for (const ListPage page : ListPages) {
        const std::string text = TemplateOf(NamesOf(page).templateName);
        EXPECT_EQ(Count(text, "~"), 1) << NamesOf(page).templateName;
        EXPECT_EQ(Count(text, "`"), 0) << NamesOf(page).templateName;
        EXPECT_EQ(Count(InSmallLetters(text), "insert"), 1) << NamesOf(page).templateName;
    }
}

TEST(SampleTemplates, OfCalendarsHoldSixWeeksOfTwentyLinesAndTheStylesOfTheirDays) {
    for (const CalendarPage page : {CalendarPage::Homework, CalendarPage::Tasks}) {
        const std::string text = TemplateOf(NamesOf(page).templateName);
        const int weeks = 6;
        const int marksOfWeek = 7 * 20 + 7 * (page == CalendarPage::Homework ? 2 : 1);
        EXPECT_EQ(Count(text, "~"), 1 + 9 + weeks * marksOfWeek);
        std::size_t at = 0;
        const auto expectNext = [&](const std::string& command) {
            at = text.find(command, at);
            EXPECT_NE(at, std::string::npos) << command;
        };
        expectNext("`header`");
        for (int week = 0; week < weeks; ++week) {
            expectNext("`row " + std::to_string(week) + "`");
            for (int line = 0; line < 20; ++line) {
                expectNext("`line " + std::to_string(line) + "`");
            }
        }
        expectNext("`footer`");
        for (const char* name : {".xwhite1", ".xwhite2", ".xwhite3", ".xwhite4", ".xgray1", ".xgray2",
                                 ".xgray3", ".xgray4", ".xredbg", ".xblackbg"}) {
            EXPECT_NE(text.find(name), std::string::npos) << name;
        }
    }
}

} // namespace
