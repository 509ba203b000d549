// The 27 types of tasks and events with their custom names and colours.
#include "core/TypeTable.h"

#include "core/Module1.h"
#include "core/TypeDefaults.h"

void SetDefaultTypeTable() {
    TypeTable = DefaultTypes();
}

int TypeRow(std::string_view category, std::string_view key) {
    for (int row = 1; row <= TypeTable.category.Count(); ++row) {
        if (TypeTable.key.Item(row) == key && TypeTable.category.Item(row) == category) {
            return row;
        }
    }
    return 0;
}

const std::string& TypeDisplayName(int row) {
    const std::string& custom = TypeTable.customname.Item(row);
    return custom.empty() ? TypeTable.key.Item(row) : custom;
}
