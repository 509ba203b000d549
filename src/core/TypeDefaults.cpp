// The types of tasks and events as they are before the student changes them.
#include "core/TypeDefaults.h"

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

TypeTableLists DefaultTypes() {
    TypeTableLists types;
    for (const TypeDefault& row : TypeDefaults) {
        types.category.Add(std::string(row.category));
        types.key.Add(std::string(row.key));
        types.customname.Add(std::string(row.customname));
        types.forecolor.Add("0");
        types.backcolor.Add(std::to_string(row.backcolor));
    }
    return types;
}
