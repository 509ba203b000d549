// The five record files: their names, tags and lists, and the procedures that read and write each kind.
#include "persistence/modIO.h"

namespace {

template <class Lists, std::size_t Count>
std::vector<RecordField> FieldsOf(Lists& lists, const std::array<Field<Lists>, Count>& fields) {
    std::vector<RecordField> result;
    result.reserve(Count);
    for (const Field<Lists>& field : fields) {
        result.push_back({field.tag, &(lists.*field.list), field.rule});
    }
    return result;
}

} // namespace

RecordFile TermFile() {
    return {.name = "terms.xml",
            .kind = "terms",
            .written = &FileFlags::terms,
            .read = &FileReads::terms,
            .root = "term_data",
            .record = "term",
            .fields = FieldsOf(Store.Term, TermFields),
            .counted = &Store.Term.name,
            .named = &Store.Term.name,
            .nextId = &NextTermID};
}

RecordFile ClassFile() {
    return {.name = "classes.xml",
            .kind = "classes",
            .written = &FileFlags::classes,
            .read = &FileReads::classes,
            .root = "class_data",
            .record = "class",
            .fields = FieldsOf(Store.ClassRecord, ClassFields),
            .counted = &Store.ClassRecord.name,
            .named = &Store.ClassRecord.name,
            .nextId = &NextClassID};
}

RecordFile AssignmentFile() {
    return {.name = "assignments_" + std::to_string(ActiveTermID) + ".xml",
            .kind = "assignments",
            .written = &FileFlags::assignments,
            .read = &FileReads::assignments,
            .root = "assignment_data",
            .record = "assignment",
            .fields = FieldsOf(Store.Assignment, AssignmentFields),
            .counted = &Store.Assignment.id,
            .named = &Store.Assignment.desc,
            .nextId = &NextAssignmentID};
}

RecordFile TaskFile() {
    return {.name = "tasks.xml",
            .kind = "tasks",
            .written = &FileFlags::tasks,
            .read = &FileReads::tasks,
            .root = "task_data",
            .record = "task",
            .fields = FieldsOf(Store.TaskRecord, TaskFields),
            .counted = &Store.TaskRecord.id,
            .named = &Store.TaskRecord.desc,
            .nextId = &NextTaskID};
}

RecordFile EventFile() {
    return {.name = "events.xml",
            .kind = "events",
            .written = &FileFlags::events,
            .read = &FileReads::events,
            .root = "event_data",
            .record = "event",
            .fields = FieldsOf(Store.EventRecord, EventFields),
            .counted = &Store.EventRecord.id,
            .named = &Store.EventRecord.desc,
            .nextId = &NextEventID};
}

std::array<RecordFile, 5> RecordFiles() {
    return {TermFile(), ClassFile(), AssignmentFile(), TaskFile(), EventFile()};
}

void ReadTermsAndClasses() {
    if (ScanRecordFile(TermFile())) {
        ScanRecordFile(ClassFile());
    } else {
        LastReads.classes = {.cutShort = true, .toBeKept = true, .finished = {}};
    }
}

void WriteTermsAndClasses() {
    if (SaveRecordFile(TermFile())) {
        SaveRecordFile(ClassFile());
    }
}

void ReadAssignments() {
    ScanRecordFile(AssignmentFile());
}

void WriteAssignments() {
    SaveRecordFile(AssignmentFile());
}

void ReadTasks() {
    ScanRecordFile(TaskFile());
}

void WriteTasks() {
    SaveRecordFile(TaskFile());
}

void ReadEvents() {
    ScanRecordFile(EventFile());
}

void WriteEvents() {
    SaveRecordFile(EventFile());
}
