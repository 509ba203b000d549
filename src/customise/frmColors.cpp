// frmColors, the dialog in which the student chooses the colours of types and classes and names the types.
#include "customise/frmColors.h"

#include "core/Module1.h"
#include "customise/frmColorsName.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"
#include "toolkit/grid/ListInput.h"

#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

constexpr int NoColumn = -1; // nothing is sorted by

constexpr std::array<ListColumn, 4> ColorColumns{{
    {"#", RowNumberWidth, "Number"},
    {"Type", 56},
    {"Default Name", 0.5},
    {"Custom Name", 0.5},
}};

constexpr std::string_view ClassNote = "To change a class name, use the 'Class Schedule' feature.";
constexpr std::string_view StudyTimeNote = "'Study Time' is a special event name that can't be changed.";
constexpr std::string_view RestoreQuestion =
    "Are you sure you want to restore the default colors for Tasks and Events?";

} // namespace

frmColors* ColorsDialog = nullptr;

frmColors::frmColors(QWidget* parent) : EditorDialog(parent) {
    setupUi(this);
    picHelp->setIcon(ProgramIcon(QStringLiteral("picHelp.svg")));
    BuildList();
    BindAnswers(ButtonOK, ButtonCancel);
    connect(ButtonTextColor, &QPushButton::clicked, this,
            [this] { ChangeColor(&ColorRows::tempColorsForeColorArray); });
    connect(ButtonBGColor, &QPushButton::clicked, this,
            [this] { ChangeColor(&ColorRows::tempColorsBackColorArray); });
    connect(ButtonName, &QPushButton::clicked, this, &frmColors::ChangeName);
    connect(ButtonRestore, &QPushButton::clicked, this, &frmColors::Restore);
    connect(picHelp, &QToolButton::clicked, this, &frmColors::HelpAsked);
    SetHelpTopics({{picGrid, 801},
                   {ButtonTextColor, 802},
                   {ButtonBGColor, 803},
                   {ButtonName, 804},
                   {ButtonRestore, 805},
                   {picHelp, 806},
                   {ButtonOK, 807},
                   {ButtonCancel, 808}});
}

// --- The list ----------------------------------------------------------------------------------------------

void frmColors::BuildList() {
    BuildGrid(*this, ColorColumns.size(), this);
    SortKeepsRowInView = true;
    ListRow = [this](int number) { return RowShown(number); };
    RepaintGrid = [this] { PaintList(*this, ColorColumns, ColorRowNumbers.Count()); };
    ActOnList = [this](const ListAction& action) { return ActOn(action); };
    BindGrid(*this, this);
    picGrid->setObjectName(QStringLiteral("picGrid"));
    picGrid->setAccessibleName(QStringLiteral("Types and classes"));
    LayoutList->addWidget(picGrid);
    setTabOrder(picGrid, ButtonTextColor);
}

void frmColors::Fill() {
    ClearFlags(*this);
    SortColumn = NoColumn;
    SortDirection = Ascending;
    CurrentRow = 1;
    {
        const QSignalBlocker quiet(VSGridScroll); // the list is painted once, behind this
        VSGridScroll->setValue(1);
    }
    RepaintGrid();
    picGrid->setFocus();
}

GridRow frmColors::RowShown(int number) const {
    const int row = ColorRowNumbers.Item(number);
    return {tempColorsForeColorArray.Item(row),
            tempColorsBackColorArray.Item(row),
            {{FromStore(tempColorsTypeArray.Item(row))},
             {FromStore(tempColorsNameArray.Item(row))},
             {FromStore(tempColorsCustomNameArray.Item(row))}}};
}

int frmColors::SelectedRow() const {
    return ColorRowNumbers.Item(CurrentRow);
}

bool frmColors::ActOn(const ListAction& action) {
    switch (action.ask) {
    case ListAsk::Click:
        if (action.row > 0) {
            SelectRow(*this, action.row);
        }
        return true;
    case ListAsk::Move: // the keys stand on the selected row
        return true;
    case ListAsk::Sort:
        Sort();
        return true;
    case ListAsk::Enter: // presses OK
    case ListAsk::Delete:
    case ListAsk::Menu:
        return false;
    }
    return false;
}

void frmColors::Sort() {
    const int selected = SelectedRow();
    SortColorRows(*this, {SortColumn, SortDirection});
    const auto place = std::ranges::find(ColorRowNumbers.values, selected);
    CurrentRow = static_cast<int>(place - ColorRowNumbers.values.begin()) + 1;
}

// --- What the buttons do -----------------------------------------------------------------------------------

void frmColors::ChangeColor(NumberList ColorRows::*colors) {
    const int row = SelectedRow();
    const auto chosen = ChooseColor((this->*colors).Item(row), tempCustomColors);
    if (chosen && !ShuttingDown) {
        (this->*colors).Replace(row, *chosen);
        TakeChange();
    }
}

void frmColors::ChangeName() {
    if (tempColorsTypeArray.Item(SelectedRow()) == ClassCategory) {
        MsgBox(ClassNote, Buttons::Ok, Icon::Information);
    } else if (tempColorsNameArray.Item(SelectedRow()) == StudyTimeType) {
        MsgBox(StudyTimeNote, Buttons::Ok, Icon::Information);
    } else {
        AskForName();
    }
}

void frmColors::AskForName() {
    const int row = SelectedRow();
    frmColorsName& dialog = *ColorsNameDialog;
    dialog.Fill(tempColorsNameArray.Item(row), tempColorsCustomNameArray.Item(row));
    PlaceAtFirstOpen(dialog, ColorsNameDBFirstOpen, *parentWidget());
    RunModally(dialog);
    if (!dialog.CancelledFlag && !ShuttingDown) {
        tempColorsCustomNameArray.Replace(row, dialog.CustomName());
        TakeChange();
    }
}

void frmColors::Restore() {
    if (IsYes(RestoreQuestion) && !ShuttingDown) {
        RestoreDefaultColors(*this);
        TakeChange();
    }
}

void frmColors::TakeChange() {
    ChangeFlag = true;
    RepaintGrid();
}

// --- Closing -----------------------------------------------------------------------------------------------

void frmColors::accept() {
    AcceptEditor(*this, *this);
}

bool frmColors::ValidateField(const QObject* /*field*/, bool /*quiet*/) {
    return true;
}

std::string frmColors::CancelQuestion() const {
    return "Cancel all changes?";
}
