// The record files that a data folder holds, read without changing anything.
#pragma once

#include "check/faults/Finding.h"
#include "persistence/RecordScanner.h"

#include <optional>
#include <string>
#include <vector>

// A file as it was read into the lists of its kind.
struct ReadFile {
    RecordFile file;
    ScanTrace trace{};
    std::string fault{};  // of the scan, as the run-time error told it; empty where there was none
    bool complete = true; // it came to its end, with its root closed and no record open
    int records = 0;      // the whole ones
};

// The bytes of a file of the data or backup folder; nothing where there is none, or it cannot be read.
std::optional<std::string> BytesOf(const std::filesystem::path& path);

// True where something of that name is there, whatever it is.
bool IsThere(const std::filesystem::path& path);

// Empties the lists of the kind and reads the bytes into them.
ReadFile ReadBytes(const RecordFile& file, std::string_view bytes);

// How many records are whole in the lists of the kind.
int WholeRecordsOf(const RecordFile& file);

// The line on which the value stands at the position of the field's list; 0 where that is not known.
int LineOf(const ReadFile& read, std::size_t field, int position);

// Index of the field with the tag among the file's fields.
std::size_t FieldIndex(const RecordFile& file, std::string_view tag);

// The name by which a student knows the record at the position; empty where it has none.
std::string NameOf(const RecordFile& file, int position);

// A finding at the record and field, whose fault and meaning are still to be told.
Finding FindingAt(const ReadFile& read, std::size_t field, int position);

// The ids of terms, ascending, as the names of files tell them.
struct TermsFound {
    std::vector<int> terms;
    bool all = true; // false where a folder could not be listed to its end
};

// The terms that have an assignment file in the data folder or one waiting there.
TermsFound TermsWithAssignmentFiles();

// The terms of whose assignment file there is a backup, or one that waits.
TermsFound TermsWithAssignmentCopies();

// The record file of that name ("tasks.xml", also without its extension); nothing for any other name. One of
// assignments makes its term the active one.
std::optional<RecordFile> RecordFileNamed(std::string_view name);
