// Module1 owns all that the planner knows while it runs: the store, the active term and the id counters.
#include "core/Module1.h"

#include "core/DateText.h"
#include "core/Values.h"

using namespace std::chrono_literals;

PlannerStore Store;
TypeTableLists TypeTable;
int NextTermID = 1;
int NextClassID = 1;
int NextAssignmentID = 1;
int NextTaskID = 1;
int NextEventID = 1;

namespace {

constexpr Date NoTermBound{2000y / 1 / 1};

void TakeTerm(int position) {
    ActiveTermName = Store.Term.name.Item(position);
    ActiveTermID = ToInt16(Store.Term.id.Item(position));
    ActiveTermStart = DateValue(Store.Term.start.Item(position));
    ActiveTermEnd = DateValue(Store.Term.end.Item(position));
}

// Takes the last term that is not deleted, where there is one.
void TakeLastTerm() {
    for (int position = WholeRecords(Store.Term); position >= 1; --position) {
        if (Store.Term.name.Item(position) != DeletedRecord) {
            return TakeTerm(position);
        }
    }
}

} // namespace

std::string ActiveTermName;
int ActiveTermID = 0;
Date ActiveTermStart = NoTermBound;
Date ActiveTermEnd = NoTermBound;
ActiveClassLists ActiveClasses;

std::filesystem::path DocumentFolder;
std::filesystem::path DataFolder;
std::filesystem::path BackupFolder;
std::filesystem::path HelpFile;
FileFlags FileWrittenFlags;
FileReads LastReads;
std::array<ChosenFilter, 5> ChosenFilters;

bool AssignmentDBFirstOpen = false;
bool SelectCourseScheduleDBFirstOpen = false;
bool CourseScheduleDBFirstOpen = false;
bool TaskDBFirstOpen = false;
bool RecurrenceDBFirstOpen = false;
bool EventDBFirstOpen = false;
bool ColorsDBFirstOpen = false;
bool ColorsNameDBFirstOpen = false;
bool AboutDBFirstOpen = false;
bool AlertDBFirstOpen = false;
bool RemindersDBFirstOpen = false;
bool GPADBFirstOpen = false;
bool StartupComplete = false;
bool CalledFromReminders = false;
std::string ReminderOpenMode;
int ReminderIndex = 0;
std::string ReminderOpenId;
bool ShuttingDown = false;

void SetFirstOpenFlags() {
    for (bool* flag : {&AssignmentDBFirstOpen, &SelectCourseScheduleDBFirstOpen, &CourseScheduleDBFirstOpen,
                       &TaskDBFirstOpen, &RecurrenceDBFirstOpen, &EventDBFirstOpen, &ColorsDBFirstOpen,
                       &ColorsNameDBFirstOpen, &AboutDBFirstOpen, &AlertDBFirstOpen, &RemindersDBFirstOpen,
                       &GPADBFirstOpen}) {
        *flag = true;
    }
}

void ResetAssignmentLists() {
    for (const auto& field : AssignmentFields) {
        (Store.Assignment.*field.list).Clear(); // its room stays, for the records that are read next
    }
}

void ChooseActiveTerm(std::string_view name) {
    ActiveTermName.clear();
    ActiveTermID = 0;
    ActiveTermStart = NoTermBound;
    ActiveTermEnd = NoTermBound;
    ResetAssignmentLists();
    const TextList& names = Store.Term.name;
    for (int position = 1, records = WholeRecords(Store.Term); position <= records; ++position) {
        if (names.Item(position) == name) {
            TakeTerm(position);
        }
    }
    if (ActiveTermName.empty()) {
        TakeLastTerm();
    }
}

bool ActiveTermIsLiving() {
    return !ActiveTermName.empty() && ActiveTermName != DeletedRecord;
}

bool IsActiveClass(int position) {
    const ClassLists& classes = Store.ClassRecord;
    return ActiveTermID != 0 && NumberIn(classes.term.Item(position)) == ActiveTermID &&
           classes.name.Item(position) != DeletedRecord;
}

void SetupActiveClasses() {
    ActiveClasses = {};
    const ClassLists& classes = Store.ClassRecord;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        if (!IsActiveClass(position)) {
            continue;
        }
        ActiveClasses.id.Add(classes.id.Item(position));
        ActiveClasses.name.Add(classes.name.Item(position));
        ActiveClasses.credits.Add(classes.credits.Item(position));
        ActiveClasses.forecolor.Add(classes.forecolor.Item(position));
        ActiveClasses.backcolor.Add(classes.backcolor.Item(position));
    }
}
