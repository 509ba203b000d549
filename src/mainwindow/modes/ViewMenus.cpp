// The filter menus, and the filters kept from mode to mode.
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

} // namespace

void frmMain::InitViewMenus() {
    for (std::size_t i = 0; i < FilterRows.size(); ++i) {
        ChosenFilters[i] = {std::string(FilterRows[i].startList), std::string(FilterRows[i].startRange)};
    }
}

void frmMain::SaveViewMenus() {
    if (StartupComplete) {
        StartupComplete = false; // the menus are still empty
        return;
    }
    if (ChosenFilter* filter = FilterOfCheckedMode(*this)) {
        *filter = {ToStore(ComboList->currentText()), ToStore(ComboDateRange->currentText())};
    }
}

void frmMain::RestoreViewMenus() {
    if (const ChosenFilter* filter = FilterOfCheckedMode(*this)) {
        ComboList->setCurrentText(FromStore(filter->list));
        ComboDateRange->setCurrentText(FromStore(filter->range));
    }
    PaintViewMenus();
}

void frmMain::PaintViewMenus() {
    if (const auto color = ViewMenuColor(ToStore(ComboList->currentText()))) {
        SetColor(PictureBoxViewMenus, QPalette::Window, *color);
    }
}

void frmMain::FillViewMenus(Mode mode) {
    const auto* const row = std::ranges::find(FilterRows, mode, &FilterRow::mode);
    if (row == FilterRows.end()) {
        return;
    }
    FillMenu(ComboList, row->list);
    FillMenu(ComboDateRange, row->range);
    RestoreViewMenus();
}

void frmMain::BindViewMenus() {
    // The menus also tell of what the program itself puts into them: a mode entry, and a refresh under way,
    // are not the student's choice.
    const auto chosen = [this] {
        if (!MenuCalendar->isChecked() && !MenuEvents->isChecked() && !ChangingMode &&
            RefreshReason == ReasonNone) {
            RefreshFor(ReasonViewChange);
        }
    };
    connect(ComboList, &QComboBox::currentIndexChanged, this, [this, chosen] {
        PaintViewMenus();
        chosen();
    });
    connect(ComboDateRange, &QComboBox::currentIndexChanged, this, chosen);
}

ListFilter frmMain::CurrentFilter() const {
    return {ToStore(ComboList->currentText()), ToStore(ComboDateRange->currentText()), ClickedDate,
            CurrentMode() == Mode::Calendar};
}

SortOrder frmMain::CurrentSort() const {
    return {SortColumn, SortDirection};
}
