// The process killed at each step of a save: the records are always whole, in the file or in its .tmp.
#include "persistence/DataFolderTest.h"
#include "support/ChildProcess.h"

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
