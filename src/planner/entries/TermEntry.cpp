// What the term dialog asks of a term and of its classes.
#include "planner/entries/TermEntry.h"

#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<std::string_view, 12> SeasonOfMonth{"Winter", "Spring", "Spring", "Spring",
                                                         "Summer", "Summer", "Summer", "Fall",
                                                         "Fall",   "Fall",   "Winter", "Winter"};

bool IsTaken(const ClassEntry& entry, const TextList& ids, const TextList& names) {
    for (int row = 1; row <= ids.Count(); ++row) {
        const std::string& name = names.Item(row);
        const bool other = IdIn(ids.Item(row)) != entry.id && name != DeletedRecord;
        if (other && CompareFolded(Trim(name), Trim(entry.name)) == 0) {
            return true;
        }
    }
    return false;
}

std::string Quoted(std::string_view name) {
    return "'" + std::string(name) + "'";
}

} // namespace

std::string DefaultTermName(Date today) {
    const std::chrono::year_month_day date{today};
    const auto month = static_cast<unsigned>(date.month());
    return std::string(SeasonOfMonth.at(month - 1)) + " " + std::to_string(static_cast<int>(date.year()));
}

ClassCheck ValidateClass(const ClassEntry& entry, const TextList& ids, const TextList& names) {
    if (Trim(entry.name).empty()) {
        return ClassCheck::NameMissing;
    }
    if (IsTaken(entry, ids, names)) {
        return ClassCheck::NameTaken;
    }
    const bool renamed = !entry.originalName.empty() && entry.name != entry.originalName;
    return entry.termIsEdited && renamed ? ClassCheck::RenameAsked : ClassCheck::Accepted;
}

std::string ClassMessage(ClassCheck check, const ClassEntry& entry) {
    switch (check) {
    case ClassCheck::NameMissing:
        return "Enter a name for this class.";
    case ClassCheck::NameTaken:
        return "There is already a class with this name.";
    case ClassCheck::RenameAsked:
        return "You have changed the name of this class. If you have created assignments for " +
               Quoted(entry.originalName) + ", they will now be for " + Quoted(entry.name) +
               ".\r\n\r\nClick 'Yes' to rename this class.";
    case ClassCheck::Accepted:
        return {};
    }
    return {};
}

TermCheck ValidateTerm(const TermEntry& entry, const TextList& names) {
    if (DayDiff(entry.start, entry.end) < 1) {
        return TermCheck::EndNotLater;
    }
    if (Trim(entry.name).empty()) {
        return TermCheck::NameMissing;
    }
    const bool own = !entry.previousName.empty() && entry.name == entry.previousName;
    const bool taken = !own && std::ranges::find(names, entry.name) != names.end();
    return taken ? TermCheck::NameTaken : TermCheck::Accepted;
}

std::string_view TermMessage(TermCheck check) {
    switch (check) {
    case TermCheck::EndNotLater:
        return "The Term End Date must be later then the Term Start Date.";
    case TermCheck::NameMissing:
        return "Enter a name for the Term.";
    case TermCheck::NameTaken:
        return "There is already a Term with this name.";
    case TermCheck::Accepted:
        return {};
    }
    return {};
}
