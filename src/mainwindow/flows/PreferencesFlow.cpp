// Prefs.ini and the main window: the options taken over at the start, the window put where it was left, and
// both handed back at the shutdown.
#include "core/Module1.h"
#include "core/Preferences.h"
#include "mainwindow/frmMain.h"

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

std::string frmMain::ReadPreferences() {
    const PreferenceValues values = ReadPreferencesFile(PrimaryScreenSize());
    StartDayOfWeek = values.StartDayofWeek;
    tempShowTipsAtStartup = values.ShowTipsAtStartup;
    AutoStart = values.AutoStart;
    CheckAutoStartItem(values.AutoStartChecked ? AutoStart : "");
    tempCurrentTip = values.CurrentTip;
    PlaceWindow(*this, values);
    PreferencesWereRead = true;
    return values.ActiveTerm;
}

void frmMain::WritePreferences() const {
    PreferenceValues values;
    values.FormMainState = StateOf(*this);
    values.FormMainLocationX = x();
    values.FormMainLocationY = y();
    values.FormMainSizeX = width();
    values.FormMainSizeY = height();
    values.ActiveTerm = ActiveTermName;
    values.StartDayofWeek = StartDayOfWeek;
    values.ShowTipsAtStartup = tempShowTipsAtStartup;
    values.AutoStart = AutoStart;
    values.CurrentTip = tempCurrentTip;
    WritePreferencesFile(values);
}
