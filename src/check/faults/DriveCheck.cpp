// The check of a whole drive: every record file and the preferences as the planner would read them.
#include "check/faults/DriveCheck.h"

#include "check/faults/DataFiles.h"
#include "check/faults/FileAge.h"
#include "check/faults/FileRecords.h"
#include "check/faults/LinkCheck.h"
#include "check/faults/PreferencesCheck.h"
#include "check/faults/StructureCheck.h"
#include "check/faults/ValueCheck.h"
#include "core/Preferences.h"
#include "core/TextFiles.h"
#include "persistence/SafeSave.h"

namespace {

void TellUnreadable(const std::string& name, CheckResult& result) {
    result.lookedAtAll = false;
    result.findings.push_back({.file = name,
                               .fault = "the file cannot be read",
                               .meaning = "The planner cannot read it either. Whether something in it is at "
                                          "fault is not known."});
}

void TellUnlisted(CheckResult& result) {
    result.lookedAtAll = false;
    result.findings.push_back({.file = PathText(DataFolder.filename()),
                               .fault = "the folder cannot be listed",
                               .meaning = "Which assignment files are in it is not known."});
}

// What waits for a file: a save that was cut short behind its writing, or within it.
void CheckWaiting(const RecordFile& file, Moment now, CheckResult& result) {
    const std::string name = WaitingName(file.name);
    const std::filesystem::path path = DataFolder / name;
    if (!IsThere(path)) {
        return;
    }
    const std::optional<std::string> bytes = BytesOf(path);
    if (!bytes) {
        return TellUnreadable(name, result);
    }
    const std::string present = BytesOf(DataFolder / file.name).value_or("");
    const std::vector<RecordTexts> waiting = RecordsIn(file, *bytes);
    const Difference difference = Differ(waiting, RecordsIn(file, present));
    const std::optional<Moment> written = WrittenAt(path);
    std::string fault = "a save waits here since " + WrittenText(written);
    if (written) {
        fault += " (" + AgeText(*written, now) + ")";
    }
    std::string meaning = "The planner does not read it. It holds " +
                          Counted(static_cast<std::int64_t>(waiting.size()), "record");
    if (!difference.onlyInFirst.empty()) {
        meaning += ", of which the file lacks " + std::to_string(difference.onlyInFirst.size()) + ": " +
                   NamesText(difference.onlyInFirst);
    }
    if (difference.changed > 0) {
        meaning += ", and " + std::to_string(difference.changed) + " that differ from the file's";
    }
    result.findings.push_back({.file = name, .fault = fault, .meaning = meaning + "."});
}

// Reads the file where it is there; what is missing the planner makes, and that is no fault.
ReadFile CheckFile(const RecordFile& file, Moment now, CheckResult& result) {
    const std::filesystem::path path = DataFolder / file.name;
    const std::optional<std::string> bytes = BytesOf(path);
    ReadFile read{.file = file};
    if (bytes) {
        read = ReadBytes(file, *bytes);
        ++result.files;
        result.records += read.records;
        CheckStructure(read, result.findings);
        CheckIds(read, result.findings);
        CheckValues(read, result.findings);
    } else {
        read.complete = !IsThere(path);
        for (const RecordField& field : file.fields) {
            field.list->Clear();
        }
        read.trace.values.resize(file.fields.size());
        if (IsThere(path)) {
            TellUnreadable(file.name, result);
        }
    }
    CheckWaiting(file, now, result);
    return read;
}

void CheckPreferencesFile(CheckResult& result) {
    const std::filesystem::path path = DataFolder / PreferencesFileName;
    if (const std::optional<std::string> bytes = BytesOf(path)) {
        ++result.files;
        CheckPreferences(*bytes, result.findings);
    } else if (IsThere(path)) {
        TellUnreadable(PreferencesFileName, result);
    }
}

} // namespace

CheckResult CheckDrive(Moment now) {
    CheckResult result;
    const ReadFile terms = CheckFile(TermFile(), now, result);
    const ReadFile classes = CheckFile(ClassFile(), now, result);
    const bool linksAreKnown = terms.complete && classes.complete; // else half the links would lead nowhere
    if (linksAreKnown) {
        CheckClassLinks(classes, result.findings);
    }
    const TermsFound found = TermsWithAssignmentFiles();
    if (!found.all) {
        TellUnlisted(result);
    }
    for (const int term : found.terms) {
        ActiveTermID = term;
        const ReadFile assignments = CheckFile(AssignmentFile(), now, result);
        if (linksAreKnown) {
            CheckAssignmentLinks(assignments, result.findings);
        }
    }
    CheckFile(TaskFile(), now, result);
    const ReadFile events = CheckFile(EventFile(), now, result);
    if (linksAreKnown) {
        CheckEventLinks(events, result.findings);
    }
    CheckPreferencesFile(result);
    return result;
}
