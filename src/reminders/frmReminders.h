// frmReminders: the reminders that have fired, in a window of their own beside the planner. It is looked at
// in the corner of the screen; each item can be opened, be reminded of later or be dismissed.
#pragma once

#include "planner/reminders/ReminderEngine.h"
#include "toolkit/grid/PaintedList.h"

#include "ui_frmReminders.h"

#include <QTimer>

class frmReminders : public QWidget,
                     public Ui::frmReminders,
                     public PaintedList,
                     public ReminderFlags,
                     public ReminderListRows {
    Q_OBJECT

public:
    // It has no parent window, so that it stands alone while the main window is minimized or in the tray.
    frmReminders();

    QTimer* TimerReminders = nullptr; // stands until it is started
    bool ReminderBusy = false;        // a tick runs: the buttons do nothing
    bool ReminderHold = false;        // a button changes the store: a tick does nothing

    // --- The tick (ReminderTick.cpp) ---

    // What the timer does: a tick, unless a button is at work, another tick has a box open, a modal dialog is
    // open or the program ends.
    void Tick();

    // Scans, writes the files of what has fired, shows the rows, and shows the window where something has.
    // Raises the run-time error at a bad text in a reminder.
    void ReminderTick();

    // Leaves the rows that are those of one term, because another term is the active one now.
    void LeaveTerm();

    // Writes the files that the flags name, tasks first, then homework, then events, and clears the flags.
    void WriteChangedFiles();

    // --- The window (ShowReminders.cpp) ---

    // Brings the window up in front, without taking the keyboard, and sounds the alarm.
    void ShowReminderWindow();

    // Brings it up as asked for by hand: with the keyboard, without a sound and without a scan.
    void ShowByHand();

    // --- The list (frmReminders.cpp) ---

    // Sorts the rows and draws them with the selection.
    void DrawReminderGrid();

    // Enables the buttons by the selection and the rows; to be called after every change of either.
    void SetReminderButtons();

    // Selects the row; 0 selects none.
    void SelectReminder(int row);

    void SetReminderTitle(int rows);

    // --- The buttons (ReminderButtons.cpp) ---
    void ViewItem();
    void RemoveItem();
    void RemoveAllItems();
    void ResetItem();

signals:
    // The main window is to come forward and open the item that ReminderOpenMode and its like name.
    void OpenAsked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildList();
    void BindButtons();
    bool ActOn(const ListAction& action);
    GridRow RowShown(int row) const;
    ReminderItem ItemToActOn() const;
    void NormaliseInterval();
    void DrawSortedRows();
    void TakeOutSelectedRow();
    void Show(bool withKeyboard);
    void PlaceInCorner();

    bool waitsForFrame = false;  // it stands in the corner, but without the frame that it is to get
    bool waitsForScreen = false; // it was raised before it was on the screen
};

// The one window, from the load of the main window on.
extern frmReminders* ReminderListWindow;
