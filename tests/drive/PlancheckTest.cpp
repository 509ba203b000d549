// The program plancheck itself, on the sample drive.
#include "drive/SampleDrive.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace {

struct ProgramResult {
    int status = -1;
    std::string output;
};

// Runs plancheck with the arguments; the output holds its errors too.
ProgramResult RunPlancheck(const std::string& arguments) {
    ProgramResult result;
    const std::string command = "'" PLANOVARIUM_PLANCHECK "' " + arguments + " 2>&1";
    FILE* const pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe)) {
        result.output += static_cast<char>(character);
    }
    const int status = ::pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

class Plancheck : public SampleDriveTest {};

} // namespace

TEST_P(Plancheck, FindsNothingAtFaultInTheSampleDrive) {
    for (const std::string& arguments : {std::string(), "'" + laidOut.string() + "'"}) {
        const ProgramResult result = RunPlancheck(arguments);
        EXPECT_EQ(result.status, 0) << result.output;
        EXPECT_NE(result.output.find("no fault found.\n"), std::string::npos) << result.output;
    }
}

TEST_P(Plancheck, OnTheDriveFindsItsDataWithoutTheVariables) {
    const std::filesystem::path program = laidOut / "Planovarium" / "plancheck";
    const LayoutResult result = BringProgram(PLANOVARIUM_PLANCHECK, laidOut);
    ASSERT_TRUE(result.succeeded) << result.output;
    EXPECT_EQ(result.output, "");
    const std::string command = "cd / && env -i '" + program.string() + "' >/dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
}

TEST_P(Plancheck, TellsAFaultAndGetsABackupBack) {
    const std::filesystem::path data = laidOut / "Documents" / "Planovarium" / "Data";
    const std::string sound = BytesOf(data / "tasks.xml");
    std::filesystem::create_directory(data / "Backup");
    std::ofstream(data / "Backup" / "tasks_backup1.xml", std::ios::binary) << sound;
    std::ofstream(data / "tasks.xml", std::ios::binary) << sound.substr(0, sound.size() / 2);
    EXPECT_EQ(RunPlancheck("").status, 1);
    EXPECT_NE(RunPlancheck("--backups").output.find("1: tasks_backup1.xml"), std::string::npos);
    const ProgramResult restored = RunPlancheck("--restore tasks.xml 1");
    EXPECT_EQ(restored.status, 0) << restored.output;
    EXPECT_EQ(BytesOf(data / "tasks.xml"), sound);
    EXPECT_EQ(BytesOf(data / "Backup" / "tasks_replaced1.xml"), sound.substr(0, sound.size() / 2));
}

TEST_P(Plancheck, TakesAShellThatStartedItForNoPlanner) {
    const std::filesystem::path data = laidOut / "Documents" / "Planovarium" / "Data";
    std::filesystem::create_directory(data / "Backup");
    std::ofstream(data / "Backup" / "tasks_backup1.xml", std::ios::binary) << BytesOf(data / "tasks.xml");
    const ProgramResult restored = RunPlancheck("--restore tasks.xml 1; exit $?");
    EXPECT_EQ(restored.status, 0) << restored.output;
}

TEST_P(Plancheck, EndsWithTwoWhereItsAnswerCannotBeWritten) {
    EXPECT_EQ(RunPlancheck("> /dev/full").status, 2);
    EXPECT_EQ(RunPlancheck("--nonsense").status, 2);
}

INSTANTIATE_TEST_SUITE_P(LaidOut, Plancheck, testing::Values(LayoutDays[0], LayoutDays[1]), DayName);
