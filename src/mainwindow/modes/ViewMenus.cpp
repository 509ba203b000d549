// The filter menus, and the filters kept from mode to mode.
#include "mainwindow/modes/ViewMenus.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "planner/lists/ViewMenuColor.h"
#include "toolkit/PictureBox.h"
#include "toolkit/Text.h"

#include <algorithm>

namespace {

static_assert(FilterRows.size() == std::tuple_size_v<decltype(ChosenFilters)>);

// The filters of the mode that is checked. Calendar is not looked at, so a mode entered from it keeps its
// filters all the same.
ChosenFilter* FilterOfCheckedMode(const frmMain& window) {
    const auto controls = window.AllModeControls();
    for (std::size_t i = 0; i < FilterRows.size(); ++i) {
        if (RowOf(controls, FilterRows[i].mode).item->isChecked()) {
            return &ChosenFilters[i];
        }
    }
    return nullptr;
}

void FillMenu(QComboBox* menu, const std::array<std::string_view, 4>& items) {
    menu->clear();
    for (const std::string_view item : items) {
        if (!item.empty()) {
            menu->addItem(FromStore(item));
        }
    }
}

void PaintViewMenus(const frmMain& window) {
    if (const auto color = ViewMenuColor(ToStore(window.ComboList->currentText()))) {
        SetColor(window.PictureBoxViewMenus, QPalette::Window, *color);
    }
}

void RestoreViewMenus(const frmMain& window) {
    if (const ChosenFilter* filter = FilterOfCheckedMode(window)) {
        window.ComboList->setCurrentText(FromStore(filter->list));
        window.ComboDateRange->setCurrentText(FromStore(filter->range));
    }
    PaintViewMenus(window);
}

} // namespace

void InitViewMenus() {
    for (std::size_t i = 0; i < FilterRows.size(); ++i) {
        ChosenFilters[i] = {std::string(FilterRows[i].startList), std::string(FilterRows[i].startRange)};
    }
}

void SaveViewMenus(const frmMain& window) {
    if (StartupComplete) {
        StartupComplete = false; // the menus are still empty
        return;
    }
    if (ChosenFilter* filter = FilterOfCheckedMode(window)) {
        *filter = {ToStore(window.ComboList->currentText()), ToStore(window.ComboDateRange->currentText())};
    }
}

void FillViewMenus(frmMain& window, Mode mode) {
    const auto* const row = std::ranges::find(FilterRows, mode, &FilterRow::mode);
    if (row == FilterRows.end()) {
        return;
    }
    FillMenu(window.ComboList, row->list);
    FillMenu(window.ComboDateRange, row->range);
    RestoreViewMenus(window);
}

void BindViewMenus(frmMain& window) {
    // The menus also tell of what the program itself puts into them: a mode entry, and a refresh under way,
    // are not the student's choice.
    const auto chosen = [&window] {
        if (!window.MenuCalendar->isChecked() && !window.MenuEvents->isChecked() && !window.ChangingMode &&
            window.RefreshReason == ReasonNone) {
            emit window.Asked({.kind = ViewActionKind::ChooseFilter});
        }
    };
    QObject::connect(window.ComboList, &QComboBox::currentIndexChanged, &window, [&window, chosen] {
        PaintViewMenus(window);
        chosen();
    });
    QObject::connect(window.ComboDateRange, &QComboBox::currentIndexChanged, &window, chosen);
}
