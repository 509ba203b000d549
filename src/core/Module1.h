// Module1 owns all that the planner knows while it runs: the store, the active term and the id counters.
// It is global and plain: whoever changes a record calls the writer of its file and asks for a refresh.
#pragma once

#include "core/Records.h"
#include "core/TypeTable.h"
#include "platform/Clock.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// --- The store -----------------------------------------------------------------------------------

struct PlannerStore {
    TermLists Term;
    ClassLists ClassRecord;
    AssignmentLists Assignment; // of the active term only
    TaskLists TaskRecord;
    EventLists EventRecord;
    StudySessionLists StudySessionRecord;
};

extern PlannerStore Store;
extern TypeTableLists TypeTable;

// The next id of each kind, from 1 on; rebuilt by each read of the kind's file.
extern int NextTermID, NextClassID, NextAssignmentID, NextTaskID, NextEventID;

// --- The active term -----------------------------------------------------------------------------

extern std::string ActiveTermName; // empty for none
extern int ActiveTermID;           // 0 for none
extern Date ActiveTermStart, ActiveTermEnd;

// The classes of the active term in file order, deleted ones left out.
struct ActiveClassLists {
    TextList id, name, credits, forecolor, backcolor;
};

extern ActiveClassLists ActiveClasses;

// Makes the last term of that name the active one; where there is none, the last term that is not deleted;
// where there is none at all, no term. The assignments of the term left are dropped from the store.
void ChooseActiveTerm(std::string_view name);

// True when a term is active whose assignments may be read.
bool ActiveTermIsLiving();

// True when the class record at the position is one of the active term's and not deleted; false without a
// term.
bool IsActiveClass(int position);

// Fills ActiveClasses anew from the classes of the active term.
void SetupActiveClasses();

// Replaces the assignment lists by empty ones.
void ResetAssignmentLists();

// --- Folders and files ---------------------------------------------------------------------------

extern std::filesystem::path DocumentFolder, DataFolder, BackupFolder, HelpFile;

// True for each file that was saved in this run and not failed since; they decide which backups move on.
struct FileFlags {
    bool terms = false;
    bool classes = false;
    bool assignments = false;
    bool tasks = false;
    bool events = false;
};

extern FileFlags FileWrittenFlags;

// How the last read of a file in this run ended.
struct FileRead {
    // It was not begun, stopped at a fault, or came to the end of the file within a record or without the
    // root's closing tag: records are missing, and nobody knows which.
    bool cutShort = false;
    bool toBeKept = false;     // the file has to be copied aside before the first save replaces it
    std::vector<int> finished; // counts of the kind's lists without a record that did not end; else empty
};

struct FileReads {
    FileRead terms, classes, assignments, tasks, events;
};

extern FileReads LastReads;

// --- The filter menus ----------------------------------------------------------------------------

// The words last chosen in ComboList and ComboDateRange while a mode was shown.
struct ChosenFilter {
    std::string list, range;
};

// Of Homework, Study Sessions, Tasks, Events and Reminders, in this order.
extern std::array<ChosenFilter, 5> ChosenFilters;

// --- The run -------------------------------------------------------------------------------------

// True until a dialog has opened for the first time in this run, when it is placed beside the main window.
extern bool AssignmentDBFirstOpen, SelectCourseScheduleDBFirstOpen, CourseScheduleDBFirstOpen,
    TaskDBFirstOpen, RecurrenceDBFirstOpen, EventDBFirstOpen, ColorsDBFirstOpen, ColorsNameDBFirstOpen,
    AboutDBFirstOpen, AlertDBFirstOpen, RemindersDBFirstOpen, GPADBFirstOpen;

// Sets all of them true.
void SetFirstOpenFlags();

// Set once the dialogs are loaded; the first saving of the list filters then saves nothing and clears it.
extern bool StartupComplete;

// What the reminder window asks the main window to open at its next activation.
extern bool CalledFromReminders;
extern std::string ReminderOpenMode; // "Task", "Event" or "Homework"
extern int ReminderIndex;            // position of the record, from 1
extern std::string ReminderOpenId;   // its id, by which it is found again as it opens

// Set as the ordered shutdown begins; from then on no flow writes.
extern bool ShuttingDown;
