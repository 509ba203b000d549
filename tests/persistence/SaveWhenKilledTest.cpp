// The process killed at each step of a save: the records are always whole, in the file or in its .tmp.
#include "persistence/DataFolderTest.h"
#include "support/ChildProcess.h"
#include "support/Reminders.h"

#include <array>
#include <functional>
#include <map>

namespace {

// Where the records of a file are after the process was killed.
enum class Whereabouts { OldInFile, NewInFile, NewInTmp, Lost };

class KilledSave : public DataFolderTest {};

Whereabouts Find(const std::string& name, const std::string& old, const std::string& saved) {
    const std::string file = DataFile(name);
    if (file == saved) {
        return Whereabouts::NewInFile;
    }
    if (file == old) {
        return Whereabouts::OldInFile;
    }
    return file == NoFile && DataFile(name + ".tmp") == saved ? Whereabouts::NewInTmp : Whereabouts::Lost;
}

// The bytes that a save gives the file.
std::string Saved(const std::string& name, const std::function<void()>& save) {
    save();
    return DataFile(name);
}

void Restore(const std::string& name, const std::string& bytes) {
    std::filesystem::remove(DataFolder / (name + ".tmp"));
    SetDataFile(name, bytes);
}

} // namespace

TEST_F(KilledSave, OfTasksLeavesThemWholeInTheFileOrInTheTmp) {
    AddTaskRecord({.desc = "old"});
    const std::string old = Saved("tasks.xml", WriteTasks);
    for (int i = 0; i < 200; ++i) {
        AddTaskRecord({.desc = "new", .notes = std::string(500, 'n')});
    }
    const std::string saved = Saved("tasks.xml", WriteTasks);
    std::map<Whereabouts, int> seen;
    Restore("tasks.xml", old);
    for (int stop = 1; KilledAtStop(stop, WriteTasks); ++stop) {
        ++seen[Find("tasks.xml", old, saved)];
        Restore("tasks.xml", old);
    }
    EXPECT_EQ(seen[Whereabouts::Lost], 0);
    EXPECT_GT(seen[Whereabouts::OldInFile], 5);
    EXPECT_GT(seen[Whereabouts::NewInTmp], 0);
    EXPECT_GT(seen[Whereabouts::NewInFile], 0);
}

TEST_F(KilledSave, OfTermsAndClassesLeavesEachWholeAndTheTermsFirst) {
    AddClassRecord({.name = "old"});
    WriteTermsAndClasses();
    const std::string oldTerms = DataFile("terms.xml");
    const std::string oldClasses = DataFile("classes.xml");
    for (TextList* list : {&Store.Term.id, &Store.Term.name, &Store.Term.start, &Store.Term.end}) {
        list->Add("1");
    }
    AddClassRecord({.name = "new"});
    WriteTermsAndClasses();
    const std::string newTerms = DataFile("terms.xml");
    const std::string newClasses = DataFile("classes.xml");
    std::map<std::pair<Whereabouts, Whereabouts>, int> seen;
    const auto restore = [&] {
        Restore("terms.xml", oldTerms);
        Restore("classes.xml", oldClasses);
    };
    restore();
    for (int stop = 1; KilledAtStop(stop, WriteTermsAndClasses); ++stop) {
        const Whereabouts terms = Find("terms.xml", oldTerms, newTerms);
        const Whereabouts classes = Find("classes.xml", oldClasses, newClasses);
        ++seen[{terms, classes}];
        EXPECT_NE(terms, Whereabouts::Lost);
        EXPECT_NE(classes, Whereabouts::Lost);
        EXPECT_TRUE(terms == Whereabouts::NewInFile || classes == Whereabouts::OldInFile);
        restore();
    }
    const auto newTermsAndOldClasses = std::pair(Whereabouts::NewInFile, Whereabouts::OldInFile);
    EXPECT_GT(seen[newTermsAndOldClasses], 0);
    EXPECT_EQ(seen.size(), 5U) << "old and old, tmp and old, new and old, new and tmp, new and new";
}

// The files of a scan are saved one behind the other, so each has its reminder armed or standing as a whole,
// and none is saved before the one in front of it.
TEST_F(KilledSave, OfFiredRemindersLeavesEachFileWithItsReminderArmedOrStanding) {
    constexpr const char* due = "2009/10/14 09:00:00";
    const std::array<std::string, 3> names{"tasks.xml", "assignments_1.xml", "events.xml"};
    ActiveTermID = 1;
    AddTaskRecord({.reminder = "True", .reminder_alarm = due});
    AddAssignmentRecord({.reminder = "True", .reminderalarm = due});
    AddEventRecord({.reminder = "True", .reminder_alarm = due});
    const auto saveAll = [] {
        WriteTasks();
        WriteAssignments();
        WriteEvents();
    };
    const auto files = [&] { return std::array{DataFile(names[0]), DataFile(names[1]), DataFile(names[2])}; };
    saveAll();
    const auto armed = files();
    ReminderWindow window;
    window.Tick();
    ASSERT_EQ(window.Standing().size(), 3U);
    saveAll();
    const auto standing = files();
    const auto restore = [&] {
        for (std::size_t i = 0; i < names.size(); ++i) {
            Restore(names[i], armed[i]);
        }
    };
    restore();
    std::map<std::array<Whereabouts, 3>, int> seen;
    for (int stop = 1; KilledAtStop(stop, saveAll); ++stop) {
        std::array<Whereabouts, 3> found{};
        for (std::size_t i = 0; i < names.size(); ++i) {
            found[i] = Find(names[i], armed[i], standing[i]);
            EXPECT_NE(found[i], Whereabouts::Lost) << names[i];
            EXPECT_TRUE(i == 0 || found[i - 1] == Whereabouts::NewInFile ||
                        found[i] == Whereabouts::OldInFile);
        }
        ++seen[found];
        restore();
    }
    EXPECT_EQ(seen.size(), 7U) << "three files, each old, in its tmp and new, one behind the other";
}
