// The types and classes with their names and colours, as the student changes them before they count.
#include "customise/ColorRows.h"

#include "core/RunTimeError.h"
#include "core/TypeDefaults.h"
#include "core/Values.h"
#include "planner/rows/Colors.h"
#include "planner/rows/RowOrder.h"

namespace {

// What the classes behind the types would have for a default.
struct DefaultColors {
    int forecolor = ColorBlack;
    int backcolor = ColorWhite;
};

DefaultColors DefaultsOf(const TypeTableLists& defaults, int row) {
    if (row > TypeRows) {
        return {};
    }
    return {ToColor(defaults.forecolor.Item(row)), ToColor(defaults.backcolor.Item(row))};
}

int ColorOr(const std::string& text, int color) {
    try {
        return ToColor(text);
    } catch (const RunTimeError&) {
        return color; // what a student may have made of the preferences by hand
    }
}

} // namespace

ColorRows ColorRowsOf(const TypeTableLists& types) {
    const TypeTableLists defaults = DefaultTypes();
    ColorRows rows;
    rows.tempColorsTypeArray = types.category;
    rows.tempColorsNameArray = types.key;
    rows.tempColorsCustomNameArray = types.customname;
    for (int row = 1; row <= types.category.Count(); ++row) {
        const DefaultColors colors = DefaultsOf(defaults, row);
        rows.tempColorsForeColorArray.Add(ColorOr(types.forecolor.Item(row), colors.forecolor));
        rows.tempColorsBackColorArray.Add(ColorOr(types.backcolor.Item(row), colors.backcolor));
        rows.ColorRowNumbers.Add(row);
    }
    return rows;
}

void SortColorRows(ColorRows& rows, SortOrder order) {
    const auto sortBy = [&rows, direction = order.direction](const TextList& texts) {
        const auto textOf = [&rows, &texts](int place) -> std::string_view {
            return texts.Item(rows.ColorRowNumbers.Item(place));
        };
        Reorder(rows.ColorRowNumbers, OrderByText(rows.ColorRowNumbers.Count(), direction, textOf));
    };
    switch (static_cast<ColorColumn>(order.column)) {
    case ColorColumn::Type:
        return sortBy(rows.tempColorsTypeArray);
    case ColorColumn::DefaultName:
        return sortBy(rows.tempColorsNameArray);
    case ColorColumn::CustomName:
        return sortBy(rows.tempColorsCustomNameArray);
    }
}

void RestoreDefaultColors(ColorRows& rows) {
    const TypeTableLists defaults = DefaultTypes();
    for (int row = 1; row <= rows.tempColorsTypeArray.Count(); ++row) {
        if (rows.tempColorsTypeArray.Item(row) == ClassCategory) {
            continue;
        }
        const DefaultColors colors = DefaultsOf(defaults, row);
        rows.tempColorsCustomNameArray.Replace(row, "");
        rows.tempColorsForeColorArray.Replace(row, colors.forecolor);
        rows.tempColorsBackColorArray.Replace(row, colors.backcolor);
    }
}

TypeTableLists TypesOf(const ColorRows& rows) {
    TypeTableLists types;
    for (int row = 1; row <= rows.tempColorsTypeArray.Count(); ++row) {
        if (rows.tempColorsTypeArray.Item(row) == ClassCategory) {
            continue;
        }
        types.category.Add(rows.tempColorsTypeArray.Item(row));
        types.key.Add(rows.tempColorsNameArray.Item(row));
        types.customname.Add(rows.tempColorsCustomNameArray.Item(row));
        types.forecolor.Add(std::to_string(rows.tempColorsForeColorArray.Item(row)));
        types.backcolor.Add(std::to_string(rows.tempColorsBackColorArray.Item(row)));
    }
    return types;
}
