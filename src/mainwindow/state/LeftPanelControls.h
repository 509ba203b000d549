// The left panel: the buttons for new records, the panels of the modes, the counters, the alerts, the timer.
#pragma once

#include "mainwindow/state/StudyTimerClock.h"

#include <array>

class PictureBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class QToolButton;
class QWidget;
class frmAlert;

struct LeftPanelControls {
    QToolButton *ButtonNewAssignmentSmall = nullptr, *ButtonNewEventSmall = nullptr,
                *ButtonNewTaskSmall = nullptr;
    QPushButton *ButtonNewAssignment = nullptr, *ButtonNewEvent = nullptr, *ButtonNewTask = nullptr;

    QWidget *PictureBoxTerm = nullptr, *PictureBoxViewMenus = nullptr, *PictureBoxStudySessions = nullptr,
            *PictureBoxReminders = nullptr, *PictureBoxStudyTime = nullptr, *PictureBoxTimer = nullptr;
    QLabel *LabelTerm = nullptr, *LabelDaysLeft = nullptr;
    QPushButton* ButtonSelectTerm = nullptr;
    QComboBox *ComboList = nullptr, *ComboDateRange = nullptr;
    QLineEdit *TextBoxMinimum = nullptr, *TextBoxSuggested = nullptr;

    // The three counters; each has one box for each mode that shows it.
    QLabel *LabelTotalAssignments = nullptr, *LabelFinishedAssignments = nullptr,
           *LabelTimeRemaining = nullptr;
    QLineEdit *TextBoxTotalAssignments = nullptr, *TextBoxFinishedAssignments = nullptr,
              *TextBoxTimeRemaining = nullptr;
    QLineEdit *TextBoxStudySessions = nullptr, *TextboxStudyTime = nullptr;
    QLineEdit *TextBoxTotalTasks = nullptr, *TextBoxFinishedTasks = nullptr, *TextBoxUndatedTasks = nullptr;
    QLineEdit *TextBoxClasses = nullptr, *TextBoxOtherEvents = nullptr, *TextBoxSchedStudy = nullptr;
    QLineEdit *TextboxAssignments = nullptr, *TextBoxTasks = nullptr, *TextBoxEvents = nullptr;

    std::array<QPushButton*, 4> ButtonAlert{};
    frmAlert* AlertDialog = nullptr; // shows what an alert button means

    PictureBox* picTime = nullptr;
    QPushButton *ButtonStart = nullptr, *ButtonReset = nullptr, *ButtonSeconds = nullptr;
    QTimer* Timer1 = nullptr;
    StudyTimerClock StudyTimer;
};
