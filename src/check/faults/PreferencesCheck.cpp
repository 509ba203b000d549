// Faults in Prefs.ini.
#include "check/faults/PreferencesCheck.h"

#include "core/Module1.h"
#include "core/Preferences.h"
#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "core/TypeTable.h"
#include "core/Values.h"
#include "persistence/FaultText.h"

#include <array>

namespace {

// No screen is greater, so every place and size counts.
constexpr ScreenSize GreatestScreen{GreatestInt16, GreatestInt16};

struct ColorColumn {
    std::string_view category;
    std::string_view key;
    TextList TypeTableLists::*list;
};

constexpr std::array<ColorColumn, 4> ColorColumns{{
    {"Task", "TaskBC_", &TypeTableLists::backcolor},
    {"Task", "TaskFC_", &TypeTableLists::forecolor},
    {"Event", "EventBC_", &TypeTableLists::backcolor},
    {"Event", "EventFC_", &TypeTableLists::forecolor},
}};

bool IsColor(const std::string& text) {
    try {
        ToColor(text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

// The last line with the key, which may have been cut before its "=", from 1 on; 0 where none has it.
int LineOfKey(std::string_view bytes, const std::string& key) {
    int found = 0;
    int number = 0;
    while (const std::optional<std::string_view> line = TakeLine(bytes)) {
        ++number;
        if (line->substr(0, line->find('=')) == key) {
            found = number;
        }
    }
    return found;
}

void CheckColor(std::string_view bytes, const ColorColumn& column, int row, Findings& findings) {
    const std::string& color = (TypeTable.*column.list).Item(row);
    if (IsColor(color)) {
        return;
    }
    const std::string key = std::string(column.key) + TypeTable.key.Item(row);
    findings.push_back({.file = std::string(PreferencesFileName),
                        .line = LineOfKey(bytes, key),
                        .field = key,
                        .fault = QuotedBeginning(color) + " is no colour",
                        .meaning = "The planner ends with an error as soon as a view shows the type."});
}

} // namespace

void CheckPreferences(std::string_view bytes, Findings& findings) {
    SetDefaultTypeTable();
    PreferenceValues values;
    int number = 0;
    for (std::string_view rest = bytes; const std::optional<std::string_view> line = TakeLine(rest);) {
        ++number;
        try {
            ReadPreferencesLine(values, GreatestScreen, *line);
        } catch (const RunTimeError& error) {
            findings.push_back({.file = std::string(PreferencesFileName),
                                .line = number,
                                .field = std::string(line->substr(0, line->find('='))),
                                .fault = error.what(),
                                .meaning = "The planner stops reading here without a message: it starts with "
                                           "the defaults for all that stands behind."});
            break;
        }
    }
    for (const ColorColumn& column : ColorColumns) {
        for (int row = 1; row <= TypeTable.category.Count(); ++row) {
            if (TypeTable.category.Item(row) == column.category) {
                CheckColor(bytes, column, row, findings);
            }
        }
    }
}
