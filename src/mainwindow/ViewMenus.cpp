// The filter menus, and the filters kept from mode to mode.
#include "mainwindow/frmMain.h"
#include "platform/Text.h"

void frmMain::InitViewMenus() {
}

void frmMain::SaveViewMenus() {
}

void frmMain::RestoreViewMenus() {
}

void frmMain::PaintViewMenus() {
}

void frmMain::BindViewMenus() {
}

ListFilter frmMain::CurrentFilter() const {
    return {ToStore(ComboList->currentText()), ToStore(ComboDateRange->currentText()), ClickedDate,
            CurrentMode() == Mode::Calendar};
}

SortOrder frmMain::CurrentSort() const {
    return {SortColumn, SortDirection};
}
