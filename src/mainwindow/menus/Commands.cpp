// The menu bar, the mode bar and the buttons: which command each of them asks for.
#include "mainwindow/menus/Commands.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/menus/CommandTable.h"
#include "mainwindow/modes/ModeTables.h"

namespace {

// A checkable item turns its check mark before it tells that it was chosen. It is turned back, so that the
// command finds the marks as they were.
void BindCheckable(QAction* item, const std::function<void()>& command) {
    QObject::connect(item, &QAction::triggered, item, [item, command](bool nowChecked) {
        item->setChecked(!nowChecked);
        command();
    });
}

// The picture of the reminders does not lead to their mode.
void BindModeChoices(frmMain& window) {
    const auto controls = window.AllModeControls();
    for (const ModeRow& row : ModeRows) {
        const ModeControls& mode = RowOf(controls, row.mode);
        const auto choose = [&window, chosen = row.mode] {
            emit window.Asked({.kind = ViewActionKind::ChooseMode, .mode = chosen});
        };
        BindCheckable(mode.item, choose);
        if (row.mode != Mode::Reminders) {
            QObject::connect(mode.picture, &PictureBox::Clicked, &window, choose);
        }
        if (mode.word != nullptr) {
            QObject::connect(mode.word, &ClickLabel::Clicked, &window, choose);
        }
    }
}

template <class Control>
struct CommandOf {
    Control* frmMain::*control;
    Command command;
};

constexpr auto SmallButtonCommands = std::to_array<CommandOf<QToolButton>>({
    {&frmMain::ButtonNewAssignmentSmall, Command::NewAssignment},
    {&frmMain::ButtonNewTaskSmall, Command::NewTask},
    {&frmMain::ButtonNewEventSmall, Command::NewEvent},
});

constexpr auto ButtonCommands = std::to_array<CommandOf<QPushButton>>({
    {&frmMain::ButtonNewAssignment, Command::NewAssignment},
    {&frmMain::ButtonNewTask, Command::NewTask},
    {&frmMain::ButtonNewEvent, Command::NewEvent},
    {&frmMain::ButtonSelectTerm, Command::ClassSchedule},
});

constexpr auto PictureCommands = std::to_array<CommandOf<PictureBox>>({
    {&frmMain::PictureBarReminders, Command::ShowReminders},
    {&frmMain::PictureBarWeb, Command::OpenHomeworkHelp},
    {&frmMain::picHelp, Command::OpenHelp},
});

constexpr auto WordCommands = std::to_array<CommandOf<ClickLabel>>({
    {&frmMain::LabelBarReminders, Command::ShowReminders},
    {&frmMain::LabelBarWeb, Command::OpenHomeworkHelp},
});

template <class Control, class Signal>
void Bind(frmMain& window, Control* control, Signal chosen, Command command) {
    QObject::connect(control, chosen, &window, [&window, command] {
        emit window.Asked({.kind = ViewActionKind::RunCommand, .command = command});
    });
}

void BindItems(frmMain& window) {
    for (const CommandRow& row : CommandRows) {
        if (row.item != nullptr) {
            Bind(window, window.*row.item, &QAction::triggered, row.command);
        }
    }
}

template <class Control, std::size_t Count, class Signal>
void BindControls(frmMain& window, const std::array<CommandOf<Control>, Count>& rows, Signal chosen) {
    for (const CommandOf<Control>& row : rows) {
        Bind(window, window.*row.control, chosen, row.command);
    }
}

} // namespace

void BindCommands(frmMain& window) {
    BindModeChoices(window);
    BindItems(window);
    BindControls(window, SmallButtonCommands, &QToolButton::clicked);
    BindControls(window, ButtonCommands, &QPushButton::clicked);
    BindControls(window, PictureCommands, &PictureBox::Clicked);
    BindControls(window, WordCommands, &ClickLabel::Clicked);
    QObject::connect(window.ButtonSelectTerm, &QPushButton::clicked, &window,
                     [&window] { window.picGrid->setFocus(); }); // behind its command
}
