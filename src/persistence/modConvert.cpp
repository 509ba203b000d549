// The data of the older release, taken over once into the record files.
#include "persistence/modConvert.h"

#include "core/DateText.h"
#include "core/TextFiles.h"
#include "core/Values.h"
#include "persistence/LegacyFields.h"
#include "persistence/RecordFileText.h"

#include <filesystem>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Padding{" \0", 2};

bool Exists(const std::string& name) {
    std::error_code error;
    return fs::exists(name, error);
}

// The name by which the file stands in the current folder, in any case of its letters: as it is given, else
// the first in the order of the bytes. Empty where there is none.
std::string LegacyFileName(const std::string& name) {
    if (Exists(name)) {
        return name;
    }
    std::string found;
    std::error_code error;
    fs::directory_iterator entry(".", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string candidate = entry->path().filename().string();
        if (CompareFolded(candidate, name) == 0 && (found.empty() || candidate < found)) {
            found = candidate;
        }
    }
    return found;
}

// The bytes of the file; raises the run-time error when the folder cannot be entered or the file not be read.
std::string LegacyBytes(const std::string& name) {
    ChangeToDataFolder();
    return FileBytes(LegacyFileName(name));
}

std::string_view TextAt(std::string_view record, std::size_t offset, std::size_t width) {
    const std::string_view text = record.substr(std::min(offset, record.size()), width);
    return text.substr(0, text.find_last_not_of(Padding) + 1);
}

std::string NotesOf(std::string_view text) {
    std::string notes(text);
    for (const std::size_t place : PlacesOfBlanks(text, ClosingTag("notes"))) {
        notes.insert(place, 1, ' ');
    }
    return notes;
}

std::string ValueByRule(LegacyRule rule, std::string_view text) {
    switch (rule) {
    case LegacyRule::Plain:
        return std::string(text);
    case LegacyRule::Notes:
        return NotesOf(text);
    case LegacyRule::DateText:
        return WithSlashes(text);
    case LegacyRule::Day: {
        const std::optional<Date> date = DateIn(text);
        return date ? StoredDate(*date) : WithSlashes(text);
    }
    case LegacyRule::Time:
        return std::string(text == "None" ? LegacyTime : text);
    case LegacyRule::Progress:
        return text == LegacyTrue ? "100%" : "0%";
    }
    return {};
}

template <class Lists, std::size_t Count>
void AddRecord(Lists& lists, const std::array<LegacyField<Lists>, Count>& fields, std::string_view record) {
    for (const LegacyField<Lists>& field : fields) {
        const std::string_view text = TextAt(record, field.offset, field.width);
        (lists.*field.list).Add(ValueByRule(field.rule, text).append(field.text));
    }
}

// Takes the next record off the bytes. The last one may be cut short: blanks are all that it lacks.
std::string_view TakeRecord(std::string_view& bytes, std::size_t length) {
    const std::string_view record = bytes.substr(0, length);
    bytes.remove_prefix(record.size());
    return record;
}

template <class Lists, std::size_t Count>
void AddRecords(Lists& lists, const std::array<LegacyField<Lists>, Count>& fields, std::string_view bytes,
                std::size_t length) {
    while (!bytes.empty()) {
        AddRecord(lists, fields, TakeRecord(bytes, length));
    }
}

// The same without the records whose description marks them as deleted.
template <class Lists, std::size_t Count>
void AddLivingRecords(Lists& lists, const std::array<LegacyField<Lists>, Count>& fields,
                      std::string_view bytes, std::size_t length) {
    while (!bytes.empty()) {
        AddRecord(lists, fields, TakeRecord(bytes, length));
        const int position = lists.desc.Count();
        if (lists.desc.Item(position) == DeletedRecord) {
            RemoveRecord(lists, FieldTable(lists), position);
        }
    }
}

bool IsSameId(const std::string& first, const std::string& second) {
    const std::optional<double> number = NumberIn(first);
    const std::optional<double> other = NumberIn(second);
    return number && other ? *number == *other : first == second;
}

void ConvertTermsAndClasses() {
    AddRecords(Store.Term, LegacyTermFields, LegacyBytes("Terms.txt"), LegacyTermLength);
    AddRecords(Store.ClassRecord, LegacyClassFields, LegacyBytes("Classes.txt"), LegacyClassLength);
    WriteTermsAndClasses();
}

void ReadLegacyNotes(LegacyNotes& notes) {
    const std::string bytes = LegacyBytes("Notes.txt");
    std::string_view rest = bytes;
    while (!rest.empty()) {
        const std::string_view record = TakeRecord(rest, LegacyNoteLength);
        AddRecord(notes, LegacyNoteFields, record);
        const int position = notes.owner.Count();
        if (NumberIn(notes.owner.Item(position)).value_or(0) == 0) {
            notes.owner.Remove(position);
            notes.text.Remove(position);
        }
    }
}

bool HasClassInActiveTerm(int assignment) {
    const ClassLists& classes = Store.ClassRecord;
    for (int position = 1; position <= classes.id.Count(); ++position) {
        if (IsSameId(classes.id.Item(position), Store.Assignment.class_.Item(assignment)) &&
            NumberIn(classes.term.Item(position)) == ActiveTermID &&
            classes.name.Item(position) != DeletedRecord) {
            return true;
        }
    }
    return false;
}

void KeepAssignmentsOfActiveTerm() {
    AssignmentLists& assignments = Store.Assignment;
    for (int position = assignments.id.Count(); position >= 1; --position) {
        if (!HasClassInActiveTerm(position)) {
            RemoveRecord(assignments, AssignmentFields, position);
        } else if (assignments.done.Item(position) == LegacyTrue) {
            assignments.time_left.Replace(position, std::string(NoTimeLeft));
        }
    }
}

// A later note of an assignment replaces an earlier one.
void AddNotes(const LegacyNotes& notes) {
    AssignmentLists& assignments = Store.Assignment;
    for (int row = 1; row <= notes.owner.Count(); ++row) {
        for (int position = 1; position <= assignments.id.Count(); ++position) {
            if (IsSameId(assignments.id.Item(position), notes.owner.Item(row))) {
                assignments.notes.Replace(position, notes.text.Item(row));
                break;
            }
        }
    }
}

void ConvertAssignments(const LegacyNotes& notes) {
    AddLivingRecords(Store.Assignment, LegacyAssignmentFields, LegacyBytes("Assignments.txt"),
                     LegacyAssignmentLength);
    KeepAssignmentsOfActiveTerm();
    AddNotes(notes);
    WriteAssignments();
}

void ConvertEvents() {
    AddLivingRecords(Store.EventRecord, LegacyEventFields, LegacyBytes("Events.txt"), LegacyEventLength);
    WriteEvents();
}

void ConvertTasks() {
    AddLivingRecords(Store.TaskRecord, LegacyTaskFields, LegacyBytes("Tasks.txt"), LegacyTaskLength);
    WriteTasks();
}

// An error ends the step alone, without its writing and without a message: so it is meant.
template <class Step>
void Try(Step step) {
    try {
        step();
    } catch (const RunTimeError&) {
        // The next step goes on with what there is.
    }
}

void ConvertAssignmentsOfEachTerm() {
    LegacyNotes notes;
    Try([&notes] { ReadLegacyNotes(notes); });
    for (int position = 1; position <= Store.Term.id.Count(); ++position) {
        Try([&notes, position] {
            ActiveTermID = ToInt16(Store.Term.id.Item(position));
            ResetAssignmentLists();
            ConvertAssignments(notes);
        });
    }
}

bool HasLegacyFile(const std::string& name) {
    return !LegacyFileName(name).empty();
}

} // namespace

void ConvertLegacyData() {
    Try([] {
        ChangeToDataFolder();
        if (!HasLegacyFile("Preferences.ini") || Exists("terms.xml")) {
            return;
        }
        if (HasLegacyFile("Terms.txt")) {
            Try(ConvertTermsAndClasses);
        }
        if (HasLegacyFile("Assignments.txt")) {
            ConvertAssignmentsOfEachTerm();
        }
        if (HasLegacyFile("Events.txt")) {
            Try(ConvertEvents);
        }
        if (HasLegacyFile("Tasks.txt")) {
            Try(ConvertTasks);
        }
        Store = {};
    });
}
