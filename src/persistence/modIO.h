// The data folder and the files in it: folders, record files, the safe save, the backups, and the messages
// shown when a file fails. None of the readers and writers raises an error: each shows its message and
// returns. Once a shutdown has begun, which may come while a message is shown, they do nothing any more and
// give false.
#pragma once

#include "core/Module1.h"

#include <array>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

// --- Folders -----------------------------------------------------------------------------------------------

// Sets the help file and the three folders of the drive, creates those that are missing and enters the data
// folder. False when it cannot be entered: the message has been shown, and the process is to end. Raises the
// run-time error when a folder cannot be created.
bool SetupFolders();

// Enters the data folder, as each reader and writer does first; false after the directory message when that
// fails.
bool EnterDataFolder();

// --- Messages ----------------------------------------------------------------------------------------------

// Tells that reading or writing a file failed (the action is "reading" or "writing"), and clears the written
// flag of the record file whose name begins alike, so that its backups stay as they are.
void ShowFileError(std::string_view fileName, std::string_view action);

// Tells that the data folder could not be entered.
void ShowDirectoryError();

// What the box says of an error that nothing has handled. A value of the store is told with its file, its
// record, by place and name, and its field.
std::string FaultText(const std::exception& error);

// --- Record files ------------------------------------------------------------------------------------------

// A field of a record file: its tag, the store's list that holds its values, and how they are read and
// written.
struct RecordField {
    std::string_view tag;
    TextList* list;
    FieldRule rule;
};

struct RecordFile {
    std::string name;                // the bare file name
    std::string_view kind;           // what the name begins with
    bool FileFlags::*written;        // the file's flag
    FileRead FileReads::*read;       // how its last read ended
    std::string root;                // the tag around all records
    std::string record;              // the tag around each
    std::vector<RecordField> fields; // in the order in which they are written
    const TextList* counted;         // the list whose count is the number of records written
    const TextList* named;           // the list of the texts by which a student knows the records
    int* nextId;                     // the kind's id counter
};

RecordFile TermFile();
RecordFile ClassFile();
RecordFile AssignmentFile(); // of the active term
RecordFile TaskFile();
RecordFile EventFile();

// All five, in this order.
std::array<RecordFile, 5> RecordFiles();

// Reads the file's records behind those that its lists hold, and sets the id counter from this file alone. A
// missing file is created without records. False after the reading or the directory message; what was read
// stays. Tells in LastReads how it ended.
bool ScanRecordFile(const RecordFile& file);

// Saves the file from its lists so that it is whole at every moment, under its own name or with ".tmp" behind
// it, and sets its written flag. A file whose read was cut short is copied into the backup folder before.
// False after the writing or the directory message; the old file is then untouched.
bool SaveRecordFile(const RecordFile& file);

// Takes the entries of a record that the last read began and did not finish out of the kind's lists, once,
// so that the next record does not merge with it. Each flow does so before it changes records of the kind.
void DropUnfinishedRecord(const RecordFile& file);

// Both read and write the terms first; a failure there leaves the classes unread or unwritten.
void ReadTermsAndClasses();
void WriteTermsAndClasses();

// The file of the active term.
void ReadAssignments();
void WriteAssignments();

void ReadTasks();
void WriteTasks();

void ReadEvents();
void WriteEvents();

// --- Backups -----------------------------------------------------------------------------------------------

// Moves the backups of each file that was written in this run on by one of three generations and makes the
// present file the newest. Of the assignments that is the active term's file. All errors are ignored.
void RotateBackups();
