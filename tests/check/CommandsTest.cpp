// What plancheck answers to its command line: the status, the lines, the JSON, and when it changes nothing.
#include "check/Commands.h"
#include "check/CheckedDrive.h"
#include "check/Report.h"
#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Command : public CheckedDrive {
protected:
    std::string Documents() const { return DocumentFolder.parent_path().string(); }

    static CommandResult Run(const Texts& arguments) {
        ResetStore();
        return RunCommand(arguments);
    }

    // What Python's reader of JSON makes of an expression over it, which it calls "it".
    static std::string Json(const std::string& json, const std::string& expression) {
        const fs::path file = BackupFolder / "answer.json";
        std::ofstream(file, std::ios::binary) << json;
        const std::string command = "python3 -c 'import json; it = json.load(open(\"" + file.string() +
                                    "\", encoding=\"utf-8\")); print(" + expression + ")' 2>&1";
        std::string output;
        FILE* const pipe = ::popen(command.c_str(), "r");
        for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe)) {
            output += static_cast<char>(character);
        }
        ::pclose(pipe);
        fs::remove(file);
        return output.substr(0, output.find('\n'));
    }
};

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(Command, ChecksTheDriveOfTheVariables) {
    const CommandResult result = Run({});
    EXPECT_EQ(result.status, 0) << result.output;
    EXPECT_EQ(result.output,
              fs::canonical(DataFolder).string() + ": 6 files with 15 records read, no fault found.\n");
    EXPECT_EQ(result.errors, "");
}

TEST_F(Command, TakesTheDriveTheDocumentsTheDocumentFolderAndTheDataFolder) {
    fs::create_directory(drive.root / "whole");
    fs::rename(Documents(), drive.root / "whole" / "Documents");
    const fs::path whole = drive.root / "whole";
    for (const fs::path& path : {whole, whole / "Documents", whole / "Documents" / "Planovarium",
                                 whole / "Documents" / "Planovarium" / "Data"}) {
        const CommandResult result = Run({path.string()});
        EXPECT_EQ(result.status, 0) << path << result.errors;
        EXPECT_EQ(DataFolder, fs::canonical(whole / "Documents" / "Planovarium" / "Data"));
    }
}

TEST_F(Command, TakesADataFolderByItsNameAndACopyByItsFiles) {
    const fs::path data = DataFolder;
    const fs::path copy = drive.root / "copy of Monday";
    fs::copy(data, copy, fs::copy_options::recursive);
    EXPECT_EQ(Run({copy.string()}).status, 0);
    EXPECT_EQ(DataFolder, fs::canonical(copy));
    fs::remove_all(data);
    fs::create_directory(data);
    for (const std::string& name : {data.string(), data.string() + "/"}) {
        DataFolder.clear();
        EXPECT_EQ(Run({name}).status, 0) << name;
        EXPECT_EQ(DataFolder, fs::canonical(data)) << name;
    }
}

TEST_F(Command, EndsWithOneWhereSomethingIsAtFaultAndSaysWhere) {
    Edit("tasks.xml", "<date>2009/10/11", "<date>soon");
    const CommandResult result = Run({});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Holds(result.output,
                      "tasks.xml, line 5, record 1 \"Task 1\", field date: \"soon\" is no date. "
                      "The planner ends with an error as it shows the tasks of a day.\n"))
        << result.output;
    EXPECT_TRUE(Holds(result.output, "1 fault found.\n")) << result.output;
}

TEST_F(Command, EndsWithTwoWhereItCannotLook) {
    EXPECT_EQ(Run({(drive.root / "nowhere").string()}).status, 2);
    EXPECT_EQ(Run({drive.root.string()}).status, 2) << "a folder without data";
    fs::remove(DataFolder / "events.xml");
    fs::create_directory(DataFolder / "events.xml");
    const CommandResult result = Run({});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(Holds(result.output, "events.xml: the file cannot be read.")) << result.output;
}

TEST_F(Command, EndsWithTwoWhereTheFoldersCannotBeListed) {
    SetDataFile("Backup/assignments_1_backup1.xml", DataFile("assignments_1.xml"));
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_getdents64, EIO);
        const CommandResult checked = Run({});
        EXPECT_EQ(checked.status, 2);
        EXPECT_TRUE(Holds(checked.output, "Data: the folder cannot be listed. Which assignment files are in "
                                          "it is not known.\n"))
            << checked.output;
        EXPECT_TRUE(Holds(checked.output, "5 files with 12 records read, 1 fault found.\n"))
            << checked.output;
        const CommandResult backups = Run({"--backups"});
        EXPECT_EQ(backups.status, 2);
        EXPECT_EQ(backups.errors, "Not all of the backups could be read.\n");
    }));
    EXPECT_EQ(Run({"--backups"}).status, 0);
}

TEST_F(Command, EndsWithTwoWhereABackupCannotBeRead) {
    fs::create_directory(BackupFolder / "tasks_backup2.xml");
    const CommandResult result = Run({"--backups"});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(Holds(result.output, "  2: tasks_backup2.xml, written 20")) << result.output;
    EXPECT_TRUE(Holds(result.output, ", cannot be read.\n")) << result.output;
    EXPECT_EQ(result.errors, "Not all of the backups could be read.\n");
    EXPECT_EQ(Json(Run({"--backups", "--json"}).output, "it[\"backups\"][0][\"readable\"]"), "False");
}

TEST_F(Command, OfADriveWithoutABackupFolderIsToBeLookedAtAllTheSame) {
    fs::remove(BackupFolder);
    EXPECT_EQ(Run({"--backups"}).status, 0);
    SetDataFile("Backup", "a file");
    EXPECT_EQ(Run({"--backups"}).status, 0);
    EXPECT_EQ(Run({}).status, 0);
}

TEST_F(Command, TellsItsOwnWordsAsTheyWereTyped) {
    EXPECT_EQ(Run({"--restore",
                   "B\xC3\xBC"
                   "cher",
                   "1"})
                  .errors,
              "B\xC3\xBC"
              "cher is no record file of the planner.\n");
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "tasks", "f\xC3\xBCnf"});
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(Holds(result.errors, "There is no generation \"f\xC3\xBCnf\": 1 to 3, or waiting.\n"))
            << result.errors;
    }));
}

TEST_F(Command, EndsWithTwoAndTheUsageAtWordsThatItDoesNotKnow) {
    for (const Texts& arguments :
         {Texts{"--nonsense"}, Texts{""}, Texts{"one", "two"}, Texts{"--restore", "tasks.xml", "1", ""},
          Texts{"--restore", "tasks.xml"}, Texts{"--restore"}, Texts{"--set-aside", "tasks.xml"},
          Texts{"--backups", "--restore", "tasks.xml", "1"}}) {
        const CommandResult result = Run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(Holds(result.errors, "plancheck --restore FILE GENERATION")) << result.errors;
    }
    const CommandResult help = Run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(Holds(help.output, "plancheck --restore FILE GENERATION"));
    EXPECT_EQ(help.errors, "");
}

TEST_F(Command, TellsTheFindingsAsJson) {
    Edit("tasks.xml", "<desc>Task 1", "<desc>\"B\xFCro\"\\ \t\x80");
    Edit("tasks.xml", "<date>2009/10/11", "<date>so\"on");
    const std::string json = Run({"--json"}).output;
    EXPECT_EQ(Json(json, "len(it[\"findings\"])"), "1") << json;
    EXPECT_EQ(Json(json, "it[\"findings\"][0][\"file\"], it[\"findings\"][0][\"line\"]"), "tasks.xml 5");
    EXPECT_EQ(Json(json, "it[\"findings\"][0][\"record\"], it[\"findings\"][0][\"field\"]"), "1 date");
    EXPECT_EQ(Json(json, "ascii(it[\"findings\"][0][\"name\"])"), R"('"B\xfcro"\\ \t\u20ac')");
    EXPECT_EQ(Json(json, "it[\"findings\"][0][\"fault\"]"), "\"so\"on\" is no date");
    EXPECT_EQ(Json(json, "it[\"findings\"][0][\"meaning\"]"),
              "The planner ends with an error as it shows the tasks of a day.");
    EXPECT_EQ(Json(json, "it[\"files\"], it[\"records\"], it[\"looked_at_all\"]"), "6 15 True");
    fs::remove(DataFolder / "events.xml");
    fs::create_directory(DataFolder / "events.xml");
    EXPECT_EQ(Json(Run({"--json"}).output, "it[\"looked_at_all\"]"), "False");
}

TEST_F(Command, TellsHowABackupDiffersInWordsAndAsJson) {
    SetDataFile("Backup/tasks_backup2.xml", DataFile("tasks.xml"));
    Edit("tasks.xml", "<desc>Task 2", "<desc>Other");
    Edit("tasks.xml", "<id>3</id>", "<id>4</id>");
    Edit("tasks.xml", "<desc>Task 3", "<desc>Fourth");
    EXPECT_TRUE(Holds(Run({"--backups"}).output,
                      ", 3 records; the present file lacks \"Task 3\"; it lacks \"Fourth\" of the present "
                      "file; 1 record differs.\n"));
    const std::string json = Run({"--backups", "--json"}).output;
    const std::string first = "it[\"backups\"][0]";
    EXPECT_EQ(Json(json, first + "[\"file\"], " + first + "[\"name\"], " + first + "[\"generation\"]"),
              "tasks.xml tasks_backup2.xml 2");
    EXPECT_EQ(Json(json, first + "[\"readable\"], " + first + "[\"records\"], " + first + "[\"changed\"]"),
              "True 3 1");
    EXPECT_EQ(Json(json, first + "[\"only_here\"], " + first + "[\"only_in_present\"]"),
              "['Task 3'] ['Fourth']");
    EXPECT_EQ(Json(json, first + "[\"written\"][:2]"), "20");
}

TEST_F(Command, OfASoundDriveGivesJsonWithoutFindings) {
    const CommandResult result = Run({"--json"});
    EXPECT_EQ(Json(result.output, "it[\"findings\"]"), "[]");
    EXPECT_EQ(result.status, 0);
}

TEST_F(Command, ShowsTheBackupsWithWhatTheyHold) {
    FileWrittenFlags = {.tasks = true};
    RotateBackups();
    Edit("tasks.xml", "<desc>Task 2", "<desc>Other");
    fs::copy(DataFolder / "events.xml", DataFolder / "events.xml.tmp");
    SetDataFile("Backup/assignments_4_backup2.xml", DataFile("assignments_1.xml"));
    fs::copy(DataFolder / "assignments_1.xml", DataFolder / "assignments_7.xml.tmp");
    SetDataFile("Backup/events_backup3.xml", DataFile("events.xml"));
    const CommandResult result = Run({"--backups"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(Holds(result.output, "assignments_7.xml\n  waiting: assignments_7.xml.tmp, written 20"));
    EXPECT_TRUE(Holds(result.output, "\n  3: events_backup3.xml, written 20")) << result.output;
    EXPECT_TRUE(Holds(result.output, "tasks.xml\n  1: tasks_backup1.xml, written 20")) << result.output;
    EXPECT_TRUE(Holds(result.output, ", 3 records; 1 record differs.\n")) << result.output;
    EXPECT_TRUE(Holds(result.output, "events.xml\n  waiting: events.xml.tmp, written 20")) << result.output;
    EXPECT_TRUE(Holds(result.output, ", 3 records; the same records as in the present file.\n"));
    EXPECT_TRUE(Holds(result.output, "assignments_4.xml\n  2: assignments_4_backup2.xml, written 20"));
    EXPECT_TRUE(Holds(result.output, "; the present file lacks \"Work 1\", \"Work 2\", \"Work 3\".\n"))
        << result.output;
    const std::string json = Run({"--backups", "--json"}).output;
    EXPECT_EQ(Json(json, "[b[\"name\"] for b in it[\"backups\"]]"),
              "['assignments_4_backup2.xml', 'assignments_7.xml.tmp', 'tasks_backup1.xml', 'events.xml.tmp', "
              "'events_backup3.xml']");
    EXPECT_EQ(Json(json, "it[\"backups\"][0][\"only_here\"]"), "['Work 1', 'Work 2', 'Work 3']");
}

TEST_F(Command, OfADriveWithoutBackupsSaysSo) {
    EXPECT_TRUE(Holds(Run({"--backups"}).output, "There are no backups"));
}

TEST_F(Command, ToChangeAFileIsRefusedWhileAPlannerHoldsTheDrive) {
    SetDataFile("Backup/tasks_backup1.xml", DataFile("tasks.xml"));
    const std::string before = DataFile("tasks.xml");
    const int folder = ::open(Documents().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(folder, LOCK_EX | LOCK_NB), 0);
    for (const Texts& arguments :
         {Texts{"--restore", "tasks.xml", "1"}, Texts{"--set-aside", "tasks.xml", "1"}}) {
        const CommandResult result = Run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.errors,
                  "The planner is at work on this drive. Shut it down first, from its icon in the tray.\n");
    }
    EXPECT_EQ(Run({}).status, 0) << "looking is allowed";
    ::close(folder);
    EXPECT_EQ(DataFile("tasks.xml"), before);
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), NoFile);
}

TEST_F(Command, ToChangeAFileIsRefusedWhileAProcessHasTheDriveInItsEnvironment) {
    SetDataFile("Backup/tasks_backup1.xml", DataFile("tasks.xml"));
    const std::string variable = "U3_DEVICE_DOCUMENT_PATH=" + Documents();
    const pid_t child = ::fork();
    if (child == 0) {
        char* const variables[] = {const_cast<char*>(variable.c_str()), nullptr};
        ::execle("/bin/sleep", "sleep", "60", nullptr, variables);
        ::_exit(1);
    }
    const fs::path environment = "/proc/" + std::to_string(child) + "/environ";
    while (DataFile(environment.string()).find(variable) == std::string::npos) {
        ::usleep(1000); // until the child has become the other program
    }
    const bool refused = SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "tasks.xml", "1"});
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(Holds(result.errors, "was started for this drive")) << result.errors;
    });
    EXPECT_TRUE(refused);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "tasks.xml", "1"});
        EXPECT_EQ(result.status, 0) << result.output << result.errors;
    }));
}

TEST_F(Command, ToChangeAFileThatIsNoneOfThePlannersIsRefused) {
    for (const char* name :
         {"Prefs.ini", "homework", "../tasks.xml", "assignments_01.xml", "assignments_.xml"}) {
        const CommandResult result = Run({"--restore", name, "1"});
        EXPECT_EQ(result.status, 2) << name;
        EXPECT_EQ(result.errors, std::string(name) + " is no record file of the planner.\n");
    }
}

TEST_F(Command, ToChangeAFileSaysWhichPlannerItCannotSee) {
    SetDataFile("Backup/tasks_backup1.xml", DataFile("tasks.xml"));
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "tasks", "1"});
        EXPECT_EQ(result.status, 0) << result.output << result.errors;
        EXPECT_TRUE(Holds(result.errors, "another user or another computer")) << result.errors;
        EXPECT_TRUE(Holds(result.output, "Kept in the folder Backup: tasks_replaced1.xml.\n"
                                         "tasks.xml: tasks_backup1.xml is in its place now.\n"))
            << result.output;
        EXPECT_TRUE(Holds(result.output, "no fault found.\n"));
    }));
}

TEST_F(Command, ThatCannotReplaceAFileTellsWhatItKeptAllTheSame) {
    SetDataFile("Backup/tasks_backup1.xml", DataFile("tasks.xml"));
    fs::create_directory(DataFolder / "tasks.xml.tmp");
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "tasks.xml", "1"});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "Kept in the folder Backup: tasks_replaced1.xml.\n");
        EXPECT_TRUE(Holds(result.errors, "tasks.xml could not be replaced, and nothing is lost: "))
            << result.errors;
    }));
}

TEST_F(Command, ToSetARecordAsideTellsItsLinesAndTakesNoOtherWordThanANumber) {
    EXPECT_TRUE(SucceedsInChild([] {
        const std::string before = DataFile("tasks.xml");
        const CommandResult refused = RunCommand({"--set-aside", "tasks.xml", "first"});
        EXPECT_EQ(refused.status, 2);
        EXPECT_EQ(refused.output, "");
        EXPECT_EQ(DataFile("tasks.xml"), before);
    }));
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--set-aside", "tasks.xml", "1"});
        EXPECT_EQ(result.status, 0) << result.output << result.errors;
        EXPECT_TRUE(Holds(result.output, "Kept in the folder Backup: tasks_set_aside.xml.\n"
                                         "Kept in the folder Backup: tasks_replaced1.xml.\n"
                                         "tasks.xml: lines 3 to 19 are taken out of it now.\n"))
            << result.output;
    }));
}

TEST_F(Command, BehindARestoreNamesWhatIsOutOfStepBetweenFiles) {
    std::string old = DataFile("classes.xml");
    old.replace(old.find("<id>3</id>"), 10, "<id>9</id>");
    SetDataFile("Backup/classes_backup2.xml", old);
    EXPECT_TRUE(SucceedsInChild([] {
        const CommandResult result = RunCommand({"--restore", "classes.xml", "2"});
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(Holds(result.output,
                          "assignments_1.xml, line 49, record 3 \"Work 3\", field class: the term "
                          "has no class with the id \"3\"."))
            << result.output;
    }));
}
