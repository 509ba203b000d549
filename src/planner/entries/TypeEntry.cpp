// The types of tasks and events between their editors and the store.
#include "planner/entries/TypeEntry.h"

#include "core/Module1.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/RowLook.h"

namespace {

// The last type of the category that is called so; an empty custom name is no name.
std::string ResolveKey(std::string_view category, std::string_view shown, std::string_view type) {
    std::string resolved(type);
    for (int row = 1; row <= TypeTable.category.Count(); ++row) {
        const std::string& custom = TypeTable.customname.Item(row);
        const bool called = (!custom.empty() && custom == shown) || TypeTable.key.Item(row) == shown;
        if (called && TypeTable.category.Item(row) == category) {
            resolved = TypeTable.key.Item(row);
        }
    }
    return resolved;
}

} // namespace

std::vector<std::string> TaskTypeRows() {
    std::vector<std::string> rows{std::string(NoType)};
    for (int row = 1; row <= TypeTable.category.Count(); ++row) {
        if (TypeTable.category.Item(row) == "Task") {
            rows.push_back(TypeDisplayName(row));
        }
    }
    return rows;
}

std::vector<std::string> EventTypeRows() {
    std::vector<std::string> rows{std::string(NoType), std::string(StudyTimeType), std::string(SeparatorRow)};
    rows.insert(rows.end(), ActiveClasses.name.begin(), ActiveClasses.name.end());
    rows.emplace_back(SeparatorRow);
    for (int row = 1; row <= TypeTable.category.Count(); ++row) {
        if (TypeTable.category.Item(row) == "Event" && TypeTable.key.Item(row) != StudyTimeType) {
            rows.push_back(TypeDisplayName(row));
        }
    }
    return rows;
}

std::string ShownTaskType(std::string_view type) {
    return TaskTypeLook(type).name;
}

std::string ShownEventType(std::string_view type) {
    return type == NoType ? std::string(NoType) : EventTypeLook(type).name;
}

std::string ResolveTaskType(std::string_view shown, std::string_view type) {
    return shown == NoType ? std::string(NoType) : ResolveKey("Task", shown, type);
}

std::string ResolveEventType(std::string_view shown, std::string_view type) {
    if (shown == NoType) {
        return std::string(NoType);
    }
    for (int row = 1; row <= ActiveClasses.name.Count(); ++row) {
        if (ActiveClasses.name.Item(row) == shown) {
            return ClassLinkText(ActiveTermID, ActiveClasses.id.Item(row));
        }
    }
    return ResolveKey("Event", shown, type);
}
