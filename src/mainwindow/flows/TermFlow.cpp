// The flow of a term and its classes: chosen, entered, written.
#include "mainwindow/flows/TermFlow.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/RecordFlow.h"
#include "mainwindow/frmMain.h"
#include "persistence/modIO.h"
#include "planner/rows/ClassLink.h"

#include <algorithm>

namespace {

std::string RightTrimmed(const std::string& text) {
    return std::string(RightTrim(text));
}

bool HasId(const std::string& text, int id) {
    return NumberIn(text) == id;
}

// The newest term stands first.
void FillChooser(frmSelectCourseSchedule& chooser) {
    chooser.tempTermIDArray = {};
    chooser.ComboTermList->clear();
    for (int position = WholeRecords(Store.Term); position >= 1; --position) {
        if (Store.Term.name.Item(position) != DeletedRecord) {
            chooser.tempTermIDArray.Add(Store.Term.id.Item(position));
            chooser.ComboTermList->addItem(FromStore(Store.Term.name.Item(position)));
        }
    }
    const bool hasTerms = chooser.ComboTermList->count() > 0;
    chooser.ButtonActive->setEnabled(hasTerms);
    chooser.ButtonEdit->setEnabled(hasTerms);
    ShowComboText(chooser.ComboTermList, ActiveTermName);
    chooser.ComboTermList->setFocus();
}

// Gives false when the student cancelled.
bool ShowChooser(const frmMain& window) {
    frmSelectCourseSchedule& chooser = *TermChooser;
    FillChooser(chooser);
    chooser.ClearAnswer();
    ShowDialog(chooser, SelectCourseScheduleDBFirstOpen, window);
    return !chooser.Cancelled && !ShuttingDown;
}

void CopyClass(frmCourseSchedule& dialog, int position) {
    dialog.tempClassTermLinkArray.Add(Store.ClassRecord.term.Item(position));
    for (const ClassField& field : ClassDialogFields) {
        (dialog.*field.list).Add((Store.ClassRecord.*field.record).Item(position));
    }
}

// The place in the record's text that this place in the dialog's copy of it was taken from.
const char* PlaceInRecord(const frmCourseSchedule& dialog, const char* place) {
    for (const ClassField& field : ClassDialogFields) {
        for (int row = 1; row <= dialog.tempClassIDArray.Count(); ++row) {
            if (!LiesIn((dialog.*field.list).Item(row), place)) {
                continue;
            }
            for (int position = 1, records = WholeRecords(Store.ClassRecord); position <= records;
                 ++position) {
                const std::string& text = (Store.ClassRecord.*field.record).Item(position);
                const std::string& id = Store.ClassRecord.id.Item(position);
                if (id == dialog.tempClassIDArray.Item(row) && text == (dialog.*field.list).Item(row)) {
                    return text.data();
                }
            }
        }
    }
    return place;
}

// A record of the kind lacks a field.
template <class Lists>
bool IsOutOfStep(const Lists& lists) {
    return std::ranges::any_of(FieldTable(lists), [&lists, whole = WholeRecords(lists)](const auto& field) {
        return (lists.*field.list).Count() > whole;
    });
}

// Records of these files are missing, and nobody knows which.
bool TermsOrClassesMissing() {
    return LastReads.terms.cutShort || LastReads.classes.cutShort || IsOutOfStep(Store.Term) ||
           IsOutOfStep(Store.ClassRecord);
}

// Ids of classes are unique across terms. While classes are missing, no id is given out that is known to be
// one of theirs: none that was read with a record that did not end, and none that an assignment has.
int FirstFreeClassId() {
    int next = 1;
    for (int position = 1, records = WholeRecords(Store.ClassRecord); position <= records; ++position) {
        next = std::max(next, ToInt16(Store.ClassRecord.id.Item(position)) + 1);
    }
    if (!TermsOrClassesMissing()) {
        return next;
    }
    next = std::max(next, NextClassID);
    for (int position = 1, records = WholeRecords(Store.Assignment); position <= records; ++position) {
        const int id = IdIn(Store.Assignment.class_.Item(position)).value_or(0);
        next = id < GreatestInt16 - 1 ? std::max(next, id + 1) : next;
    }
    return next;
}

// Gives the dialog the term and its classes; an id without a record gives an empty term of today.
void PrepareTermEditor(frmCourseSchedule& dialog, int id) {
    dialog.tempClassTermLinkArray.Clear();
    for (const ClassField& field : ClassDialogFields) {
        (dialog.*field.list).Clear();
    }
    dialog.tempTermID = std::to_string(id);
    dialog.tempTermName.clear();
    dialog.tempTermStart = ShortDateText(Today());
    dialog.tempTermEnd = ShortDateText(Today());
    for (int position = 1, records = WholeRecords(Store.Term); position <= records; ++position) {
        if (HasId(Store.Term.id.Item(position), id)) {
            dialog.tempTermName = Store.Term.name.Item(position);
            dialog.tempTermStart = ShortDateText(DateValue(Store.Term.start.Item(position)));
            dialog.tempTermEnd = ShortDateText(DateValue(Store.Term.end.Item(position)));
        }
    }
    dialog.NextClassID = FirstFreeClassId();
    for (int position = 1, records = WholeRecords(Store.ClassRecord); position <= records; ++position) {
        if (HasId(Store.ClassRecord.term.Item(position), id)) {
            CopyClass(dialog, position);
        }
    }
}

// All terms that exist, for the check of duplicate names.
void FillPreviousTerms(frmCourseSchedule& dialog, int id) {
    dialog.tempPreviousTermIDsArray = {};
    dialog.tempPreviousTermNamesArray = {};
    dialog.tempPreviousTermStartArray = {};
    dialog.tempPreviousTermEndArray = {};
    for (int position = 1, records = WholeRecords(Store.Term); position <= records; ++position) {
        if (Store.Term.name.Item(position) == DeletedRecord) {
            continue;
        }
        dialog.tempPreviousTermIDsArray.Add(Store.Term.id.Item(position));
        dialog.tempPreviousTermNamesArray.Add(Store.Term.name.Item(position));
        dialog.tempPreviousTermStartArray.Add(Store.Term.start.Item(position));
        dialog.tempPreviousTermEndArray.Add(Store.Term.end.Item(position));
    }
    dialog.ThisTermsPreviousID = std::to_string(id);
    dialog.ThisTermsPreviousName = dialog.tempTermName;
}

void AddTermRecords(const frmCourseSchedule& dialog, int id) {
    Store.Term.id.Add(std::to_string(id));
    Store.Term.name.Add(RightTrimmed(TextOf(dialog.TextBoxTermName)));
    Store.Term.start.Add(StoredDate(DateValue(RightTrim(dialog.tempTermStart))));
    Store.Term.end.Add(StoredDate(DateValue(RightTrim(dialog.tempTermEnd))));
    for (int row = 1; row <= dialog.tempClassIDArray.Count(); ++row) {
        Store.ClassRecord.term.Add(std::to_string(id));
        for (const ClassField& field : ClassDialogFields) {
            (Store.ClassRecord.*field.record).Add(RightTrimmed((dialog.*field.list).Item(row)));
        }
    }
}

void RemoveTermRecords(int id) {
    for (int position = WholeRecords(Store.Term); position >= 1; --position) {
        if (HasId(Store.Term.id.Item(position), id)) {
            RemoveRecord(Store.Term, TermFields, position);
        }
    }
    for (int position = WholeRecords(Store.ClassRecord); position >= 1; --position) {
        if (HasId(Store.ClassRecord.term.Item(position), id)) {
            RemoveRecord(Store.ClassRecord, ClassFields, position);
        }
    }
}

// A deleted class keeps its assignments.
bool TermHasClass(int termId, const std::string& classId) {
    const std::optional<double> id = NumberIn(classId);
    return id && FindClass({.id = *id, .term = termId, .deletedToo = true}) != 0;
}

// Adds the records again and takes the assignments out whose class has gone; their file is written only then.
// While classes are missing that nobody took away, none is taken out.
void ReplaceTermRecords(const frmCourseSchedule& dialog, int id) {
    AddTermRecords(dialog, id);
    if (TermsOrClassesMissing()) {
        return;
    }
    DropUnfinishedRecord(AssignmentFile());
    bool removed = false;
    for (int position = WholeRecords(Store.Assignment); position >= 1; --position) {
        if (!TermHasClass(id, Store.Assignment.class_.Item(position))) {
            RemoveRecord(Store.Assignment, AssignmentFields, position);
            removed = true;
        }
    }
    if (removed) {
        WriteAssignments();
    }
}

// Gives false when the student cancelled.
bool ShowTermEditor(const frmMain& window, std::string_view mode, int id) {
    frmCourseSchedule& dialog = *TermDialog;
    PrepareEditor(dialog, window, mode);
    PrepareTermEditor(dialog, id);
    FillPreviousTerms(dialog, id);
    dialog.PlaceInRecord = [&dialog](const char* place) { return PlaceInRecord(dialog, place); };
    dialog.Fill();
    ShowDialog(dialog, CourseScheduleDBFirstOpen, window);
    return !dialog.CancelledFlag && !ShuttingDown;
}

} // namespace

void ClassSchedule(frmMain& window) {
    if (!ShowChooser(window)) {
        return;
    }
    if (TermChooser->MakeActive) {
        SetActiveTerm(window, TermChooser->SelectedCourse);
        return;
    }
    const int id = TermChooser->NewCourse ? NextId(NextTermID) : ActiveTermID;
    if (!ShowTermEditor(window, TermChooser->NewCourse ? "New" : "Edit", id)) {
        return;
    }
    const frmCourseSchedule& dialog = *TermDialog;
    DropUnfinishedRecord(TermFile());
    DropUnfinishedRecord(ClassFile());
    const std::string name = TextOf(dialog.TextBoxTermName);
    if (dialog.EditMode == "New") {
        AddTermRecords(dialog, id);
        WriteTermsAndClasses();
        SetActiveTerm(window, name);
    } else if (dialog.DeleteFlag) {
        const std::string gone = ActiveTermName; // the rule for a name that is no more picks another term
        RemoveTermRecords(id);
        WriteTermsAndClasses();
        SetActiveTerm(window, gone);
    } else if (dialog.EditMode == "Edit") {
        RemoveTermRecords(id);
        ReplaceTermRecords(dialog, id);
        WriteTermsAndClasses();
        SetActiveTerm(window, name);
    }
}
