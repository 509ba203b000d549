// frmReminders: the list of what has fired, and what stands around it.
#include "reminders/frmReminders.h"

#include "core/Module1.h"
#include "editors/EditorParts.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/DurationEntry.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/reminders/ReminderPhrases.h"
#include "toolkit/Text.h"
#include "toolkit/grid/ListInput.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

constexpr int TickMilliseconds = 40000;

constexpr std::array<ListColumn, 5> ReminderWindowColumns{{
    {"#", RowNumberWidth, "Number"},
    {"Mode", 56},
    {"Type", 0.3},
    {"Name", 0.7},
    {"Time", 132},
}};

struct ModePicture {
    std::string_view mode;
    const char* picture;
};

constexpr std::array<ModePicture, 3> ModePictures{{
    {TaskMode, "picStashCalTask.svg"},
    {HomeworkMode, "picStashCalHomework.svg"},
    {EventMode, "picStashCalEvent.svg"},
}};

GridCell ModeCell(const std::string& mode) {
    const auto* const row = std::ranges::find(ModePictures, mode, &ModePicture::mode);
    return {FromStore(mode), CellKind::Picture, QLatin1String(row->picture)};
}

GridCell TextCell(const std::string& text) {
    return {QLatin1Char(' ') + FromStore(text)};
}

} // namespace

frmReminders* ReminderListWindow = nullptr;

frmReminders::frmReminders() {
    setupUi(this);
    BuildList();
    SetupTypedCombo(ComboReminderTime, SnoozeRows);
    ComboReminderTime->installEventFilter(this);
    BindButtons();
    SetHelpTopics({{picGrid, 871},
                   {ButtonView, 872},
                   {ButtonRemove, 873},
                   {ButtonRemoveAll, 874},
                   {ComboReminderTime, 875},
                   {ButtonReset, 876}});
    TimerReminders = new QTimer(this);
    TimerReminders->setInterval(TickMilliseconds);
    connect(TimerReminders, &QTimer::timeout, this, &frmReminders::Tick);
    SetReminderButtons();
}

void frmReminders::BuildList() {
    BuildGrid(*this, ReminderWindowColumns.size(), this);
    SortColumn = static_cast<int>(ReminderListColumn::Time);
    SortDirection = Descending;
    ListRow = [this](int row) { return RowShown(row); };
    RepaintGrid = [this] { PaintList(*this, ReminderWindowColumns, ReminderIds.Count()); };
    ActOnList = [this](const ListAction& action) { return ActOn(action); };
    BindGrid(*this, this);
    picGrid->setObjectName(QStringLiteral("picGrid"));
    picGrid->setAccessibleName(QStringLiteral("Reminders"));
    picGrid->installEventFilter(this); // before the list has the key
    LayoutList->addWidget(picGrid);
    setTabOrder(picGrid, ButtonView);
    picGrid->setFocus();
}

void frmReminders::BindButtons() {
    connect(ButtonView, &QPushButton::clicked, this, &frmReminders::ViewItem);
    connect(ButtonRemove, &QPushButton::clicked, this, &frmReminders::RemoveItem);
    connect(ButtonRemoveAll, &QPushButton::clicked, this, &frmReminders::RemoveAllItems);
    connect(ButtonReset, &QPushButton::clicked, this, &frmReminders::ResetItem);
}

// --- The list ----------------------------------------------------------------------------------------------

GridRow frmReminders::RowShown(int row) const {
    return {ReminderForeColors.Item(row),
            ReminderBackColors.Item(row),
            {ModeCell(ReminderModes.Item(row)), TextCell(ReminderTypes.Item(row)),
             TextCell(ReminderNames.Item(row)), TextCell(ReminderWhens.Item(row))}};
}

void frmReminders::DrawReminderGrid() {
    SortReminderListRows(*this, {SortColumn, SortDirection});
    DrawSortedRows();
}

void frmReminders::DrawSortedRows() {
    CurrentRow = ReminderSelectedRow;
    RepaintGrid();
}

void frmReminders::SelectReminder(int row) {
    ReminderSelectedRow = row;
    SelectRow(*this, row);
    SetReminderButtons();
}

// The keys stand on the selected row, so that both are one.
bool frmReminders::ActOn(const ListAction& action) {
    switch (action.ask) {
    case ListAsk::Click:
        if (action.row > 0) {
            SelectReminder(action.row);
        }
        return true;
    case ListAsk::Move:
        SelectReminder(action.row);
        return true;
    case ListAsk::Sort: // the list is drawn behind this
        ReminderSelectedRow = CurrentRow = 0;
        SortReminderListRows(*this, {SortColumn, SortDirection});
        SetReminderButtons();
        return true;
    case ListAsk::Enter:
        ViewItem();
        return true;
    case ListAsk::Delete:
        RemoveItem();
        return true;
    case ListAsk::Menu:
        return false;
    }
    return false;
}

void frmReminders::SetReminderButtons() {
    const QWidget* const focused = focusWidget();
    for (QPushButton* button : {ButtonView, ButtonRemove, ButtonReset}) {
        button->setEnabled(ReminderSelectedRow > 0);
    }
    ButtonRemoveAll->setEnabled(ReminderIds.Count() > 0);
    if (focused != nullptr && !focused->isEnabled()) {
        picGrid->setFocus();
    }
}

void frmReminders::SetReminderTitle(int rows) {
    setWindowTitle(FromStore(ReminderTitle(rows)));
}

// --- Keys and entries --------------------------------------------------------------------------------------

void frmReminders::NormaliseInterval() {
    ShowComboText(ComboReminderTime, ValidateDuration(TextOf(ComboReminderTime), SnoozeTime));
}

bool frmReminders::eventFilter(QObject* watched, QEvent* event) {
    if (watched == picGrid) { // a key that is held down acts once
        return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat() &&
               static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete;
    }
    if (watched == ComboReminderTime && !ShuttingDown && EntryEnds(event)) {
        NormaliseInterval();
        return event->type() == QEvent::KeyPress; // Enter presses nothing
    }
    return QWidget::eventFilter(watched, event);
}

void frmReminders::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmReminders::closeEvent(QCloseEvent* event) {
    if (event->spontaneous() && !ShuttingDown) {
        event->ignore();
        hide();
        return;
    }
    event->accept();
}
