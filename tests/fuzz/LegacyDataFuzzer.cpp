// Any bytes as one of the older release's files, between sound ones, are converted or passed over without a
// message, and a second start converts nothing.
#include "FuzzedDrive.h"

#include "persistence/modConvert.h"
#include "support/LegacyDrive.h"

#include <array>
#include <cstdint>
#include <string>

namespace {

const TemporaryDrive Drive;
constexpr std::array<const char*, 6> LegacyFiles{"Terms.txt",       "Classes.txt", "Notes.txt",
                                                 "Assignments.txt", "Tasks.txt",   "Events.txt"};

void RemoveRecordFiles() {
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(DataFolder)) {
        if (entry.path().extension() == ".xml") {
            std::filesystem::remove(entry.path());
        }
    }
}

void SetSoundFiles() {
    SetDataFile("Preferences.ini", "");
    SetDataFile("Terms.txt", LegacyTerm("1", "Fall 2009"));
    SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra"));
    SetDataFile("Notes.txt", LegacyNote("1", "Note"));
    SetDataFile("Assignments.txt", LegacyAssignment({}));
    SetDataFile("Tasks.txt", LegacyTask({}));
    SetDataFile("Events.txt", LegacyEvent({}));
}

} // namespace

// The first byte tells the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    SetUpDrive();
    RemoveRecordFiles();
    SetSoundFiles();
    SetDataFile(LegacyFiles[data[0] % LegacyFiles.size()], std::string(data + 1, data + size));
    ConvertLegacyData();
    Require(Script.boxes.empty());
    for (const RecordFile& file : RecordFiles()) {
        for (const RecordField& field : file.fields) {
            Require(field.list->Count() == 0);
        }
    }
    const std::string terms = DataFile("terms.xml");
    const std::string tasks = DataFile("tasks.xml");
    Require(terms != NoFile && tasks != NoFile);
    ConvertLegacyData();
    Require(DataFile("terms.xml") == terms && DataFile("tasks.xml") == tasks);
    return 0;
}
