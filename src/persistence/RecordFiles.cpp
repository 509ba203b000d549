// The five record files: their names, tags and lists, and the procedures that read and write each kind.
#include "persistence/modIO.h"

#include <array>

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
    return {"terms.xml",      "term_data", "term", FieldsOf(Store.Term, TermFields),
            &Store.Term.name, &NextTermID};
}

RecordFile ClassFile() {
    return {"classes.xml",           "class_data", "class", FieldsOf(Store.ClassRecord, ClassFields),
            &Store.ClassRecord.name, &NextClassID};
}

RecordFile AssignmentFile() {
    return {"assignments_" + std::to_string(ActiveTermID) + ".xml", "assignment_data",    "assignment",
            FieldsOf(Store.Assignment, AssignmentFields),           &Store.Assignment.id, &NextAssignmentID};
}

RecordFile TaskFile() {
    return {"tasks.xml",          "task_data", "task", FieldsOf(Store.TaskRecord, TaskFields),
            &Store.TaskRecord.id, &NextTaskID};
}

RecordFile EventFile() {
    return {"events.xml",          "event_data", "event", FieldsOf(Store.EventRecord, EventFields),
            &Store.EventRecord.id, &NextEventID};
}

void ReadTermsAndClasses() {
    if (ScanRecordFile(TermFile())) {
        ScanRecordFile(ClassFile());
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
