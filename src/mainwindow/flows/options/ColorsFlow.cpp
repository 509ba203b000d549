// The colours and names of types and classes.
#include "mainwindow/flows/options/ColorsFlow.h"

#include "core/FieldTables.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "customise/frmColors.h"
#include "mainwindow/frmMain.h"
#include "persistence/modIO.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"

namespace {

constexpr QPoint ColorsOffset{150, 115}; // pixels from the main window's corner at the first opening

void RemoveClassRows() {
    for (int row = TypeTable.category.Count(); row >= 1; --row) {
        if (TypeTable.category.Item(row) == ClassCategory) {
            for (TextList* list : {&TypeTable.category, &TypeTable.key, &TypeTable.customname,
                                   &TypeTable.forecolor, &TypeTable.backcolor}) {
                list->Remove(row);
            }
        }
    }
}

// Raises the run-time error where a class has no colour.
void AddClassRows() {
    const ClassLists& classes = Store.ClassRecord;
    for (int position = 1, records = WholeRecords(classes); position <= records; ++position) {
        if (IsActiveClass(position)) {
            TypeTable.category.Add(std::string(ClassCategory));
            TypeTable.key.Add(classes.name.Item(position));
            TypeTable.customname.Add("");
            TypeTable.forecolor.Add(std::to_string(ToColor(classes.forecolor.Item(position))));
            TypeTable.backcolor.Add(std::to_string(ToColor(classes.backcolor.Item(position))));
        }
    }
}

// The position of the first class of the active term with that name; 0 when there is none.
int ActiveClassNamed(const std::string& name) {
    for (int position = 1, records = WholeRecords(Store.ClassRecord); position <= records; ++position) {
        if (IsActiveClass(position) && Store.ClassRecord.name.Item(position) == name) {
            return position;
        }
    }
    return 0;
}

void GiveClassesTheirColors(const ColorRows& rows) {
    for (int row = 1; row <= rows.tempColorsTypeArray.Count(); ++row) {
        if (rows.tempColorsTypeArray.Item(row) != ClassCategory) {
            continue;
        }
        if (const int position = ActiveClassNamed(rows.tempColorsNameArray.Item(row)); position != 0) {
            Store.ClassRecord.forecolor.Replace(position,
                                                std::to_string(rows.tempColorsForeColorArray.Item(row)));
            Store.ClassRecord.backcolor.Replace(position,
                                                std::to_string(rows.tempColorsBackColorArray.Item(row)));
        }
    }
}

} // namespace

void ShowColors(frmMain& window) {
    frmColors& dialog = *ColorsDialog;
    RemoveClassRows();
    AddClassRows();
    static_cast<ColorRows&>(dialog) = ColorRowsOf(TypeTable);
    dialog.Fill();
    PlaceAtFirstOpen(dialog, ColorsDBFirstOpen, window, ColorsOffset);
    RunModally(dialog);
    RemoveClassRows();
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    TypeTable = TypesOf(dialog);
    DropUnfinishedRecord(TermFile());
    DropUnfinishedRecord(ClassFile());
    GiveClassesTheirColors(dialog);
    SetupActiveClasses();
    WriteTermsAndClasses();
    window.RefreshFor(ReasonColorChange);
}
