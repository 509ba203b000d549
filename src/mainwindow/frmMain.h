// frmMain, the main window: its controls, its public state and its procedures. The procedures are defined by
// subject in files of their own; other windows read the fields directly.
#pragma once

#include "platform/PictureBox.h"

#include <QLabel>
#include <QMainWindow>
#include <QScrollBar>

#include <string>
#include <vector>

// An item of a context menu or of the tray menu: a caption and the two words of its command. A caption of "-"
// is a separator.
struct PopupItem {
    std::string caption;
    std::string tag;
};

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain();

    // --- Controls ---
    QLabel* LabelTerm = nullptr;
    QLabel* LabelDaysLeft = nullptr;
    PictureBox* picGrid = nullptr;
    QScrollBar* VSGridScroll = nullptr;
    QAction* MenuExit = nullptr;

    // --- Options, kept in Prefs.ini ---
    std::string StartDayOfWeek = "Monday"; // or "Sunday", "Saturday"
    std::string AutoStart = "Tray";        // or "Full", "Min", "No"
    std::string tempShowTipsAtStartup = "Yes";
    int tempCurrentTip = 0;
    bool PreferencesWereRead = false; // a shutdown before that leaves the file as it is

    // --- Load.cpp, Unload.cpp: the run of the process ---

    // The ordered build of the window and all its data, without showing it. Gives false when the process has
    // to end instead, because the data folder cannot be entered or a shutdown came in between.
    bool LoadPlanner();

    // The ordered shutdown; ends the process.
    void Unload();

    // --- ActiveTerm.cpp ---

    // Makes the term of that name the active one, reads its assignments and shows them.
    void SetActiveTerm(const std::string& name);

    // --- PreferencesFlow.cpp ---

    // Takes the options over and puts the window where it was left. Gives the name of the term to activate.
    std::string ReadPreferences();
    void WritePreferences() const;

    // --- PopupMenus.cpp ---
    std::vector<PopupItem> mnuPopupItems;

    // Fills the popup items with the tray menu; with none while a modal dialog is open.
    void ShowTrayMenu();

    // Runs the command of the popup item at the index, counted from 0.
    void RunPopupCommand(int index);

    // --- BringForward.cpp: the ways in which the window appears and goes ---

    // The first appearance, by the command line and the start mode.
    void ShowAtStart(const std::string& commandLine);

    // What a second instance asks for; refused while a modal dialog is open.
    bool LinkExecute();
    void TrayDoubleClick();
    void HideWindows();

    // The plain list of the active term's homework.
    void FillHomeworkList();

protected:
    void closeEvent(QCloseEvent* event) override;
};

// The one main window, from its load until the process ends.
extern frmMain* MainWindow;
