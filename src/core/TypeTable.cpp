// The 27 types of tasks and events with their custom names and colours.
#include "core/TypeTable.h"

#include "core/Module1.h"

#include <array>
#include <string>

namespace {

struct TypeDefault {
    std::string_view category;
    std::string_view key;
    int backcolor; // 0xBBGGRR
    std::string_view customname = {};
};

constexpr std::array<TypeDefault, TypeRows> TypeDefaults{{
    {"Task", "School", 0xA3C4DE},      {"Task", "Class", 0x9797F9},
    {"Task", "Home", 0xC6E7FF},        {"Task", "Personal", 0xADEFEF},
    {"Task", "Friends", 0xFCFED6},     {"Task", "Family", 0xBFFFBF},
    {"Task", "Recreation", 0xFFE7B3},  {"Task", "Work", 0xA8FFFF},
    {"Task", "Project", 0xE8E1FF},     {"Task", "Idea", 0xD0D92D},
    {"Task", "Custom1", 0xFFFFFF},     {"Task", "Custom2", 0xFFFFFF},
    {"Task", "Custom3", 0xFFFFFF},     {"Event", "Study Time", 0x4A4AFF, "Study Time"},
    {"Event", "Class", 0x9797F9},      {"Event", "Birthday", 0xE6B9E6},
    {"Event", "Holiday", 0x00D9FF},    {"Event", "School", 0xA3C4DE},
    {"Event", "Home", 0xC6E7FF},       {"Event", "Personal", 0xADEFEF},
    {"Event", "Friends", 0xFCFED6},    {"Event", "Family", 0xBFFFBF},
    {"Event", "Recreation", 0xFFE7B3}, {"Event", "Work", 0xA8FFFF},
    {"Event", "Custom1", 0xFFFFFF},    {"Event", "Custom2", 0xFFFFFF},
    {"Event", "Custom3", 0xFFFFFF},
}};

} // namespace

void SetDefaultTypeTable() {
    TypeTable = {};
    for (const TypeDefault& row : TypeDefaults) {
        TypeTable.category.Add(std::string(row.category));
        TypeTable.key.Add(std::string(row.key));
        TypeTable.customname.Add(std::string(row.customname));
        TypeTable.forecolor.Add("0");
        TypeTable.backcolor.Add(std::to_string(row.backcolor));
    }
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
