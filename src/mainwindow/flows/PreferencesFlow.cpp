// Prefs.ini and the main window: the options taken over at the start, the window put where it was left, and
// both handed back at the shutdown.
#include "mainwindow/flows/PreferencesFlow.h"

#include "core/Module1.h"
#include "core/Preferences.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/menus/AutoStart.h"

namespace {

WindowState StateOf(const frmMain& window) {
    if (window.isMinimized()) {
        return WindowState::Minimized;
    }
    return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

// A maximized window keeps the place for when it returns to its normal size.
void PlaceWindow(frmMain& window, const PreferenceValues& values) {
    window.resize(values.FormMainSizeX.value_or(window.width()),
                  values.FormMainSizeY.value_or(window.height()));
    if (values.FormMainLocationX || values.FormMainLocationY) {
        window.move(values.FormMainLocationX.value_or(window.x()),
                    values.FormMainLocationY.value_or(window.y()));
    }
    if (values.FormMainState == WindowState::Maximized) {
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}

} // namespace

std::string ReadPreferences(frmMain& window) {
    const PreferenceValues values = ReadPreferencesFile(PrimaryScreenSize());
    window.StartDayOfWeek = values.StartDayofWeek;
    window.tempShowTipsAtStartup = values.ShowTipsAtStartup;
    window.AutoStart = values.AutoStart;
    CheckAutoStartItem(window, values.AutoStartChecked ? window.AutoStart : "");
    window.tempCurrentTip = values.CurrentTip;
    PlaceWindow(window, values);
    window.PreferencesWereRead = true;
    return values.ActiveTerm;
}

void WritePreferences(const frmMain& window) {
    PreferenceValues values;
    values.FormMainState = StateOf(window);
    values.FormMainLocationX = window.x();
    values.FormMainLocationY = window.y();
    values.FormMainSizeX = window.width();
    values.FormMainSizeY = window.height();
    values.ActiveTerm = ActiveTermName;
    values.StartDayofWeek = window.StartDayOfWeek;
    values.ShowTipsAtStartup = window.tempShowTipsAtStartup;
    values.AutoStart = window.AutoStart;
    values.CurrentTip = window.tempCurrentTip;
    WritePreferencesFile(values);
}
