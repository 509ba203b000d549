// What the term dialog asks of a term and of its classes: names, dates, and the name that a new term begins
// with.
#pragma once

#include "core/TextList.h"
#include "platform/Clock.h"

#include <string>
#include <string_view>

// The season and the year of the day: "Spring" from February, "Summer" from May, "Fall" from August, and
// "Winter" for November to January, so that a January is the winter of the year just begun.
std::string DefaultTermName(Date today);

// --- A class -----------------------------------------------------------------------------------------------

struct ClassEntry {
    std::string_view name{};         // as it stands in the box
    std::string_view originalName{}; // at the start of its edit; empty for an added class
    int id = 0;
    bool termIsEdited = false; // the term is one that was saved before
};

enum class ClassCheck { Accepted, NameMissing, NameTaken, RenameAsked };

// The first that holds: the name is missing, another class has it, letter case and outer blanks aside, or a
// class of a saved term has been renamed. Deleted classes are no others. The lists are those of all classes
// in the dialog.
ClassCheck ValidateClass(const ClassEntry& entry, const TextList& ids, const TextList& names);

// What the dialog says to it; for a rename a question.
std::string ClassMessage(ClassCheck check, const ClassEntry& entry);

// --- A term ------------------------------------------------------------------------------------------------

struct TermEntry {
    Date start;
    Date end;
    std::string_view name;
    std::string_view previousName; // of a saved term; its own name is not taken
};

enum class TermCheck { Accepted, EndNotLater, NameMissing, NameTaken };

// The first that holds. Names of terms are compared as they stand, unlike those of classes, as is meant.
TermCheck ValidateTerm(const TermEntry& entry, const TextList& names);

std::string_view TermMessage(TermCheck check);
