// Prefs.ini: a file of keys and values. Its section lines are for the eye; each line is known by its key
// alone.
#include "core/Preferences.h"

#include "core/Module1.h"
#include "core/TextFiles.h"
#include "core/Values.h"
#include "platform/Process.h"
#include "platform/Units.h"

#include <algorithm>
#include <string_view>

namespace {

// The window's place is kept in units of 15 to the pixel, in 16 bits, so this is the greatest that can be
// read.
constexpr int GreatestPlace = GreatestInt16 / UnitsPerPixel;

struct PlaceKey {
    std::string_view key;
    std::optional<int> PreferenceValues::*place;
    int ScreenSize::*limit;
};

constexpr std::array<PlaceKey, 4> PlaceKeys{{
    {"FormMainLocationX=", &PreferenceValues::FormMainLocationX, &ScreenSize::width},
    {"FormMainLocationY=", &PreferenceValues::FormMainLocationY, &ScreenSize::height},
    {"FormMainSizeX=", &PreferenceValues::FormMainSizeX, &ScreenSize::width},
    {"FormMainSizeY=", &PreferenceValues::FormMainSizeY, &ScreenSize::height},
}};

constexpr std::string_view StateKey = "FormMainState=";
constexpr std::string_view TermKey = "ActiveTerm=";
constexpr std::string_view StartDayKey = "StartDayofWeek=";
constexpr std::string_view TipsKey = "ShowTipsAtStartup=";
constexpr std::string_view AutoStartKey = "AutoStart=";
constexpr std::string_view TipKey = "CurrentTip=";

struct TypeSection {
    std::string_view title;
    std::string_view key;
    std::string_view category;
    TextList TypeTableLists::*list;
};

constexpr std::array<TypeSection, 6> TypeSections{{
    {"[Task Custom Names]", "TaskCN_", "Task", &TypeTableLists::customname},
    {"[Task Backcolors]", "TaskBC_", "Task", &TypeTableLists::backcolor},
    {"[Task Forecolors]", "TaskFC_", "Task", &TypeTableLists::forecolor},
    {"[Event Custom Names]", "EventCN_", "Event", &TypeTableLists::customname},
    {"[Event Backcolors]", "EventBC_", "Event", &TypeTableLists::backcolor},
    {"[Event Forecolors]", "EventFC_", "Event", &TypeTableLists::forecolor},
}};

// What stands behind the key where the line begins with it.
std::optional<std::string_view> ValueBehind(std::string_view line, std::string_view key) {
    return line.starts_with(key) ? std::optional(line.substr(key.size())) : std::nullopt;
}

void ReadPlace(std::optional<int>& place, std::string_view value, int limit) {
    const int pixels = ToInt16(value);
    if (pixels <= 0 || pixels >= limit) {
        return;
    }
    Int16Of(pixels * UnitsPerPixel); // raises the overflow
    place = pixels;
}

bool ReadPlaceLine(PreferenceValues& values, ScreenSize screen, std::string_view line) {
    for (const PlaceKey& row : PlaceKeys) {
        if (const auto value = ValueBehind(line, row.key)) {
            ReadPlace(values.*row.place, *value, screen.*row.limit);
            return true;
        }
    }
    return false;
}

bool ReadOptionLine(PreferenceValues& values, std::string_view line) {
    if (const auto state = ValueBehind(line, StateKey)) {
        values.FormMainState = *state == "2" ? WindowState::Maximized : WindowState::Normal;
    } else if (const auto term = ValueBehind(line, TermKey)) {
        values.ActiveTerm = *term;
    } else if (const auto day = ValueBehind(line, StartDayKey)) {
        values.StartDayofWeek = std::ranges::find(StartDays, *day) != StartDays.end() ? *day : "Monday";
    } else if (const auto tips = ValueBehind(line, TipsKey)) {
        values.ShowTipsAtStartup = *tips == "No" ? "No" : "Yes";
    } else if (const auto mode = ValueBehind(line, AutoStartKey)) {
        values.AutoStartChecked = std::ranges::find(StartModes, *mode) != StartModes.end();
        if (values.AutoStartChecked) {
            values.AutoStart = *mode;
        }
    } else if (const auto tip = ValueBehind(line, TipKey)) {
        values.CurrentTip = ToInt16(*tip);
    } else {
        return false;
    }
    return true;
}

void ReadTypeLine(std::string_view line) {
    for (const TypeSection& section : TypeSections) {
        if (const auto rest = ValueBehind(line, section.key)) {
            const std::size_t equals = std::min(rest->find('='), rest->size());
            const int row = TypeRow(section.category, rest->substr(0, equals));
            if (row != 0) {
                const std::size_t value = std::min(equals + 1, rest->size());
                (TypeTable.*section.list).Replace(row, std::string(rest->substr(value)));
            }
            return;
        }
    }
}

std::string PlaceText(const PreferenceValues& values, const PlaceKey& row) {
    const int pixels = (values.*row.place).value_or(0);
    const bool kept = values.FormMainState == WindowState::Normal && pixels <= GreatestPlace;
    return std::to_string(kept ? pixels : 0);
}

void AddLine(std::string& text, std::string_view key, std::string_view value = {}) {
    text.append(key).append(value).append(LineEnd);
}

void AddTypeSection(std::string& text, const TypeSection& section) {
    AddLine(text, "");
    AddLine(text, section.title);
    for (int row = 1; row <= TypeTable.category.Count(); ++row) {
        if (TypeTable.category.Item(row) == section.category) {
            AddLine(text, section.key, TypeTable.key.Item(row) + "=" + (TypeTable.*section.list).Item(row));
        }
    }
}

} // namespace

void ReadPreferencesLine(PreferenceValues& values, ScreenSize screen, std::string_view line) {
    if (!ReadPlaceLine(values, screen, line) && !ReadOptionLine(values, line)) {
        ReadTypeLine(line);
    }
}

PreferenceValues ReadPreferencesFile(ScreenSize screen) {
    PreferenceValues values;
    try {
        ChangeToDataFolder();
        const std::string bytes = FileBytes(PreferencesFileName);
        std::string_view rest = bytes;
        while (const std::optional<std::string_view> line = TakeLine(rest)) {
            ReadPreferencesLine(values, screen, *line);
        }
    } catch (const RunTimeError&) {
        // Errors ignored: the planner starts with what was read, and the defaults for the rest.
    }
    return values;
}

void WritePreferencesFile(const PreferenceValues& values) {
    ChangeToDataFolder();
    OutputFile file = OpenForWriting(PreferencesFileName);
    std::string text;
    AddLine(text, "[Window Position]");
    AddLine(text, StateKey, std::to_string(static_cast<int>(values.FormMainState)));
    for (const PlaceKey& row : PlaceKeys) {
        AddLine(text, row.key, PlaceText(values, row));
    }
    AddLine(text, "");
    AddLine(text, "[Options]");
    AddLine(text, TermKey, values.ActiveTerm);
    AddLine(text, StartDayKey, values.StartDayofWeek);
    AddLine(text, TipsKey, values.ShowTipsAtStartup);
    AddLine(text, AutoStartKey, values.AutoStart);
    AddLine(text, TipKey, std::to_string(values.CurrentTip));
    for (const TypeSection& section : TypeSections) {
        AddTypeSection(text, section);
    }
    WriteBytes(file, text);
    SyncAndClose(std::move(file));
    SyncFolder(DataFolder);
}
