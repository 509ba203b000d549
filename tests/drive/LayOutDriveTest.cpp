// The step that lays out a smart drive: the dates of its tokens, and what it refuses.
#include "drive/DriveLayout.h"

#include "support/TemporaryDrive.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <ostream>

namespace fs = std::filesystem;

namespace {

class LayOutDriveTest : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(source / "Documents");
        fs::create_directories(source / "Program/Empty");
    }

    void SetSourceFile(const std::string& name, const std::string& bytes) const {
        std::ofstream(source / name, std::ios::binary) << bytes;
    }

    // A drive laid out from a source with a program folder.
    void LayOutWithProgram() const {
        fs::create_directories(source / "Planovarium/Help");
        SetSourceFile("Planovarium/Help/index.html", "a page");
        SetSourceFile("Planovarium/Task List Template.html", "a template");
        SetSourceFile("Planovarium/Calendar Template3.html", "another");
        SetSourceFile("Documents/Notes.txt", "notes");
        ASSERT_TRUE(LayOutDrive(source, target, "2009-10-14").succeeded);
    }

    TemporaryDrive drive;
    fs::path source = drive.root / "source";
    fs::path target = drive.root / "target";
};

struct TokenCase {
    const char* day;
    const char* token;
    const char* text;
};

std::ostream& operator<<(std::ostream& out, const TokenCase& row) {
    return out << row.token << " on " << row.day;
}

// 2009-10-14 is a Wednesday.
constexpr TokenCase Tokens[] = {
    {"2009-10-14", "{today}", "2009/10/14"},
    {"2009-10-14", "{today+18}", "2009/11/01"},
    {"2009-10-14", "{today-14}", "2009/09/30"},
    {"2009-10-14", "{monday}", "2009/10/12"},
    {"2009-10-12", "{monday}", "2009/10/12"},
    {"2009-10-18", "{monday}", "2009/10/12"},
    {"2009-10-14", "{monday+7}", "2009/10/19"},
    {"2009-10-14", "{next-wed}", "2009/10/21"},
    {"2009-10-14", "{next-thu}", "2009/10/15"},
    {"2009-10-14", "{next-tue}", "2009/10/20"},
    {"2009-10-14", "{next-sun-7}", "2009/10/11"},
    {"2009-10-14", "{month+0:1}", "2009/10/01"},
    {"2009-10-14", "{month-2:28}", "2009/08/28"},
    {"2009-10-14", "{month+3:9}", "2010/01/09"},
    {"2009-01-31", "{month-1:15}", "2008/12/15"},
    {"2009-10-14", "{month-13:15}", "2008/09/15"},
    {"2009-10-14", "{month+4:last}", "2010/02/28"},
    {"2009-10-14", "{month-20:last}", "2008/02/29"},
    {"2009-10-14", "{month+2:last}", "2009/12/31"},
    {"2009-10-14", "{month+0:first-thu}", "2009/10/01"},
    {"2009-10-14", "{month+0:second-fri}", "2009/10/09"},
    {"2009-10-14", "{month+0:third-wed}", "2009/10/21"},
    {"2009-10-14", "{month+0:last-fri}", "2009/10/30"},
    {"2009-10-14", "{month+0:last-sat}", "2009/08/29"}, // the 31st of October is the last day of the month
    {"2009-10-14", "{month+0:last-sun}", "2009/08/30"}, // the last Sunday of September is the 27th
    {"2009-10-14", "{today|short}", "Oct 14"},
    {"2009-10-14", "{today-7|short}", "Oct 7"},
    {"2009-10-14", "{today|season}", "Fall 2009"},
    {"2009-11-01", "{today|season}", "Winter 2009"},
    {"2010-01-31", "{today|season}", "Winter 2010"},
    {"2010-02-01", "{today|season}", "Spring 2010"},
    {"2010-05-01", "{today|season}", "Summer 2010"},
    {"2010-08-01", "{today|season}", "Fall 2010"},
    {"2009-10-14", "{month+0:7|rank} {month+0:7|rankday}", "First Wednesday"},
    {"2009-10-14", "{month+0:8|rank} {month+0:8|rankday}", "Second Thursday"},
    {"2009-10-14", "{today+7|rank} {today+7|rankday}", "Third Wednesday"},
    {"2009-10-14", "{today+14|rank} {today+14|rankday}", "Fourth Wednesday"},
    {"2009-10-14", "{today+15|rank} {today+15|rankday}", "Last Thursday"},
    {"2009-10-14", "{today+17|rank} {today+17|rankday}", "Last Day"},
    {"2009-02-28", "{today|rank} {today|rankday}", "Last Day"},
    {"2008-02-28", "{today|rank} {today|rankday}", "Fourth Thursday"},
    {"1900-02-28", "{today+1}", "1900/03/01"},
    {"2000-02-28", "{today+1}", "2000/02/29"},
};

class TokenTest : public LayOutDriveTest, public testing::WithParamInterface<TokenCase> {};

TEST_P(TokenTest, BecomesItsDate) {
    SetSourceFile("Documents/Notes.txt", std::string("due ") + GetParam().token + ".\r\n");
    ASSERT_TRUE(LayOutDrive(source, target, GetParam().day).succeeded);
    EXPECT_EQ(BytesOf(target / "Documents/Notes.txt"), std::string("due ") + GetParam().text + ".\r\n");
}

INSTANTIATE_TEST_SUITE_P(EachToken, TokenTest, testing::ValuesIn(Tokens));

class BadTokenTest : public LayOutDriveTest, public testing::WithParamInterface<const char*> {};

TEST_P(BadTokenTest, IsToldAndNothingIsLaidOut) {
    SetSourceFile("Documents/Notes.txt", GetParam());
    const LayoutResult result = LayOutDrive(source, target, "2009-10-14");
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.output, std::string("Documents/Notes.txt: ") + GetParam() + " is no date.\n");
    EXPECT_FALSE(fs::exists(target));
}

INSTANTIATE_TEST_SUITE_P(EachFault, BadTokenTest,
                         testing::Values("{}", "{tomorrow}", "{today+}", "{today 3}", "{next-day}",
                                         "{month:1}", "{month+0:0}", "{month+0:29}", "{month+0:fourth-fri}",
                                         "{month+0:first-day}", "{today|long}", "{|short}"));

TEST_F(LayOutDriveTest, SaysOneLine) {
    EXPECT_EQ(LayOutDrive(source, target, "2009-10-14").output,
              "Laid out a smart drive in " + target.string() + " for 2009-10-14.\n");
}

TEST_F(LayOutDriveTest, TakesTodayWhereNoDayIsGiven) {
    const auto day = [] { return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()); };
    ::setenv("TZ", "UTC", 1);
    const auto before = day();
    const std::string output = LayOutDrive(source, target, "").output;
    const auto after = day();
    const auto told = [&output](std::chrono::sys_days date) {
        const std::chrono::year_month_day parts{date};
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(parts.year()),
                      static_cast<unsigned>(parts.month()), static_cast<unsigned>(parts.day()));
        return output.find(text.data()) != std::string::npos;
    };
    EXPECT_TRUE(told(before) || told(after)) << output;
}

TEST_F(LayOutDriveTest, CopiesEveryFileAndFolder) {
    const std::string bytes("\x93{today}\x94\0\r\n\x96", 13);
    SetSourceFile("Program/Help.html", bytes);
    SetSourceFile("Documents/Empty.txt", "");
    fs::create_directories(source / "Documents/Deep/Deeper");
    SetSourceFile("Documents/Deep/Deeper/File", "\xE9 {today}");
    ASSERT_TRUE(LayOutDrive(source, target, "2009-10-14").succeeded);
    EXPECT_EQ(BytesOf(target / "Program/Help.html"), bytes) << "only documents have tokens";
    EXPECT_TRUE(fs::is_directory(target / "Program/Empty"));
    EXPECT_TRUE(fs::exists(target / "Documents/Empty.txt"));
    EXPECT_EQ(BytesOf(target / "Documents/Deep/Deeper/File"), "\xE9 2009/10/14");
}

TEST_F(LayOutDriveTest, LeavesATargetThatIsThereAsItIs) {
    fs::create_directories(target);
    std::ofstream(target / "Mine.txt") << "mine";
    const LayoutResult result = LayOutDrive(source, target, "2009-10-14");
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.output, target.string() + ": already there, left as it is.\n");
    EXPECT_EQ(BytesOf(target / "Mine.txt"), "mine");
    EXPECT_FALSE(fs::exists(target / "Documents"));
}

TEST_F(LayOutDriveTest, RefusesASourceThatIsNone) {
    const LayoutResult result = LayOutDrive(drive.root / "nowhere", target, "2009-10-14");
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.output, (drive.root / "nowhere").string() + ": no such folder.\n");
    EXPECT_FALSE(fs::exists(target));
}

TEST_F(LayOutDriveTest, RefusesADayThatIsNone) {
    for (const char* day : {"2009-02-29", "2009-13-01", "2009-1-1", "today", "2009/10/14"}) {
        EXPECT_FALSE(LayOutDrive(source, target, day).succeeded) << day;
        EXPECT_FALSE(fs::exists(target)) << day;
    }
}

TEST_F(LayOutDriveTest, LeavesNothingHalfWrittenBehind) {
    ASSERT_TRUE(LayOutDrive(source, target, "2009-10-14").succeeded);
    for (const fs::directory_entry& entry : fs::directory_iterator(drive.root)) {
        EXPECT_EQ(entry.path().filename().string().find("target."), std::string::npos) << entry.path();
    }
}

TEST_F(LayOutDriveTest, RenewsWhatIsMissingOrDiffersInTheProgramFolder) {
    LayOutWithProgram();
    fs::create_directories(source / "Planovarium/New/Deep");
    SetSourceFile("Planovarium/New/Deep/page.html", std::string("\0\r\n{today}", 10));
    SetSourceFile("Planovarium/Help/index.html", "a better page");
    const LayoutResult result = RenewDrive(source, target);
    EXPECT_TRUE(result.succeeded);
    EXPECT_EQ(result.output,
              "Renewed 2 of the program's files in " + (target / "Planovarium").string() + ".\n");
    EXPECT_EQ(BytesOf(target / "Planovarium/New/Deep/page.html"), std::string("\0\r\n{today}", 10));
    EXPECT_EQ(BytesOf(target / "Planovarium/Help/index.html"), "a better page");
    EXPECT_EQ(RenewDrive(source, target).output, "") << "once is enough";
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(target)) {
        EXPECT_TRUE(entry.is_directory() || entry.path().has_extension()) << entry.path();
        EXPECT_EQ(entry.path().filename().string().find(".html."), std::string::npos) << entry.path();
    }
}

TEST_F(LayOutDriveTest, RenewsADriveWithoutAProgramFolder) {
    LayOutWithProgram();
    fs::remove_all(target / "Planovarium");
    EXPECT_TRUE(RenewDrive(source, target).succeeded);
    EXPECT_EQ(BytesOf(target / "Planovarium/Help/index.html"), "a page");
}

TEST_F(LayOutDriveTest, RenewsNeitherDocumentsNorTemplatesThatAreThere) {
    LayOutWithProgram();
    for (const char* file :
         {"Documents/Notes.txt", "Planovarium/Task List Template.html", "Planovarium/Mine.txt"}) {
        std::ofstream(target / file, std::ios::binary) << "mine";
    }
    SetSourceFile("Documents/More.txt", "more");
    fs::remove(target / "Planovarium/Calendar Template3.html");
    ASSERT_TRUE(RenewDrive(source, target).succeeded);
    for (const char* file :
         {"Documents/Notes.txt", "Planovarium/Task List Template.html", "Planovarium/Mine.txt"}) {
        EXPECT_EQ(BytesOf(target / file), "mine") << file;
    }
    EXPECT_FALSE(fs::exists(target / "Documents/More.txt"));
    EXPECT_EQ(BytesOf(target / "Planovarium/Calendar Template3.html"), "another");
}

TEST_F(LayOutDriveTest, BringsAProgramThatStartsAndANewerOneInItsPlace) {
    LayOutWithProgram();
    const fs::path program = drive.root / "check";
    const fs::path brought = target / "Planovarium/check";
    std::ofstream(program) << "#!/bin/sh\nexit 7\n";
    ASSERT_TRUE(BringProgram(program, target).succeeded);
    EXPECT_EQ(std::system(("'" + brought.string() + "'").c_str()), 7 << 8);
    std::ofstream(program) << "#!/bin/sh\nexit 8\n";
    ASSERT_TRUE(BringProgram(program, target).succeeded);
    EXPECT_EQ(std::system(("'" + brought.string() + "'").c_str()), 8 << 8);
    fs::permissions(brought, fs::perms{0644});
    ASSERT_TRUE(BringProgram(program, target).succeeded);
    EXPECT_EQ(std::system(("'" + brought.string() + "'").c_str()), 8 << 8)
        << "the same one, not to be started";
    ASSERT_TRUE(RenewDrive(source, target).succeeded);
    EXPECT_TRUE(fs::exists(brought)) << "a renewal leaves it there";
}

TEST_F(LayOutDriveTest, BringsNoProgramThatIsNoneNorToADriveThatIsNone) {
    LayOutWithProgram();
    EXPECT_FALSE(BringProgram(drive.root / "nothing", target).succeeded);
    EXPECT_FALSE(fs::exists(target / "Planovarium/nothing"));
    const LayoutResult result = BringProgram(source / "Planovarium/Help/index.html", drive.root / "nowhere");
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.output, (drive.root / "nowhere").string() + "/Planovarium: no such folder.\n");
    EXPECT_FALSE(fs::exists(drive.root / "nowhere"));
}

TEST_F(LayOutDriveTest, OfTheRunCommandBringsTheCheck) {
    const std::string run = BytesOf(fs::path(PLANOVARIUM_SOURCE_DIR) / "run");
    EXPECT_NE(run.find("\ntools/lay-out-drive --program build/run/src/plancheck \"$drive\""),
              std::string::npos);
    EXPECT_LT(run.find("cmake --build --preset run"), run.find("--program")) << "behind the build";
}

TEST_F(LayOutDriveTest, RenewsNoDriveThatIsNone) {
    LayOutWithProgram();
    const LayoutResult result = RenewDrive(source, drive.root / "nowhere");
    EXPECT_FALSE(result.succeeded);
    EXPECT_EQ(result.output, (drive.root / "nowhere").string() + ": no such folder.\n");
    EXPECT_FALSE(fs::exists(drive.root / "nowhere"));
}

} // namespace
