// The commands of the menu bar, the mode bar and the buttons, bound to their procedures.
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "platform/Process.h"

namespace {

// A checkable item turns its check mark before it tells that it was chosen. It is turned back, so that the
// command finds the marks as they were.
void BindCheckable(QAction* item, const std::function<void()>& command) {
    QObject::connect(item, &QAction::triggered, item, [item, command](bool nowChecked) {
        item->setChecked(!nowChecked);
        command();
    });
}

// The picture and the word of the reminders open their own window instead of the mode.
void BindModeChoices(frmMain& window) {
    const auto controls = window.AllModeControls();
    for (const ModeRow& row : ModeRows) {
        const ModeControls& mode = RowOf(controls, row.mode);
        const auto choose = [&window, chosen = row.mode] { window.ChooseMode(chosen); };
        BindCheckable(mode.item, choose);
        if (row.mode != Mode::Reminders) {
            QObject::connect(mode.picture, &PictureBox::Clicked, &window, choose);
        }
        if (mode.word != nullptr) {
            QObject::connect(mode.word, &ClickLabel::Clicked, &window, choose);
        }
    }
}

} // namespace

void frmMain::BindCommands() {
    BindModeChoices(*this);
    connect(MenuNewAssignment, &QAction::triggered, this, &frmMain::NewAssignment);
    connect(MenuNewTask, &QAction::triggered, this, &frmMain::NewTask);
    connect(MenuNewEvent, &QAction::triggered, this, &frmMain::NewMorningEvent);
    connect(ButtonNewAssignmentSmall, &QToolButton::clicked, this, &frmMain::NewAssignment);
    connect(ButtonNewTaskSmall, &QToolButton::clicked, this, &frmMain::NewTask);
    connect(ButtonNewEventSmall, &QToolButton::clicked, this, &frmMain::NewMorningEvent);
    connect(ButtonNewAssignment, &QPushButton::clicked, this, &frmMain::NewAssignment);
    connect(ButtonNewTask, &QPushButton::clicked, this, &frmMain::NewTask);
    connect(ButtonNewEvent, &QPushButton::clicked, this, &frmMain::NewMorningEvent);
    connect(MenuClassSchedule, &QAction::triggered, this, &frmMain::ClassSchedule);
    connect(ButtonSelectTerm, &QPushButton::clicked, this, [this] {
        ClassSchedule();
        picGrid->setFocus();
    });
    connect(MenuData, &QAction::triggered, this, [] { StartProcess("explorer", {DataFolder.string()}); });
    connect(MenuExit, &QAction::triggered, this, &frmMain::HideWindows);
}
