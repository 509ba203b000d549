// Faults in Prefs.ini: the first bad number ends its reading, and a colour counts as its last line has it.
#include "check/CheckedDrive.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

class CheckedPreferences : public CheckedDrive {
protected:
    // The findings of preferences with these lines behind the sound ones.
    static Findings Behind(const std::string& lines) {
        const std::string sound = DataFile("Prefs.ini");
        SetDataFile("Prefs.ini", sound + lines);
        Findings findings = Check().findings;
        SetDataFile("Prefs.ini", sound);
        return findings;
    }

    int Lines() const {
        const std::string bytes = DataFile("Prefs.ini");
        return static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n'));
    }
};

} // namespace

TEST_F(CheckedPreferences, EndAtTheirFirstBadNumber) {
    const Findings findings = Behind("CurrentTip=first\r\nCurrentTip=second\r\nEventBC_Class=red\r\n");
    ASSERT_EQ(findings.size(), 1U) << Shown(findings);
    EXPECT_EQ(findings[0].line, Lines() + 1);
    EXPECT_EQ(findings[0].field, "CurrentTip");
}

TEST_F(CheckedPreferences, HaveTheColorOfTheLastOfTwoLines) {
    EXPECT_EQ(Shown(Behind("EventBC_Class=red\r\nEventBC_Class=255\r\n")), "") << "a later one is sound";
    const Findings findings = Behind("EventBC_Class=red\r\nEventBC_Class=blue\r\n");
    ASSERT_EQ(findings.size(), 1U) << Shown(findings);
    EXPECT_EQ(findings[0].line, Lines() + 2);
    EXPECT_EQ(findings[0].fault, "\"blue\" is no colour");
}

TEST_F(CheckedPreferences, ThatWereCutWithinAColorAreToldAtThatLine) {
    for (const char* cut : {"EventBC_Class", "EventBC_Class="}) {
        const Findings findings = Behind(cut);
        ASSERT_EQ(findings.size(), 1U) << Shown(findings);
        EXPECT_EQ(findings[0].line, Lines() + 1) << cut;
        EXPECT_EQ(findings[0].field, "EventBC_Class");
    }
}

TEST_F(CheckedPreferences, ThatCannotBeReadAreTold) {
    fs::remove(DataFolder / "Prefs.ini");
    EXPECT_EQ(Shown(Check().findings), "") << "a missing file is no fault";
    fs::create_directory(DataFolder / "Prefs.ini");
    const CheckResult result = Check();
    EXPECT_FALSE(result.lookedAtAll);
    EXPECT_TRUE(HasFinding(result.findings, "Prefs.ini", 0, "")) << Shown(result.findings);
}

TEST_F(CheckedPreferences, HaveColorsOfBothGroundsAndOfBothCategories) {
    for (const char* key : {"TaskBC_Home", "TaskFC_Home", "EventBC_Class", "EventFC_Class"}) {
        const Findings findings = Behind(std::string(key) + "=red\r\n");
        ASSERT_EQ(findings.size(), 1U) << key << Shown(findings);
        EXPECT_EQ(findings[0].field, key);
    }
}
