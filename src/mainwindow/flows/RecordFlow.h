// What the flows of all kinds of record share: a dialog filled from a record, shown, and its entries written
// into the lists of the kind.
#pragma once

#include "core/FieldTables.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "editors/EditorParts.h"
#include "mainwindow/frmMain.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"

#include <array>
#include <string>
#include <tuple>

// A field of a dialog and the list of the record's field that fills it.
template <class Dialog, class Lists>
struct FilledField {
    std::string Dialog::*field;
    TextList Lists::*list;
};

// What a closed dialog has for the field of the record that has this list.
template <auto List>
struct EnteredField {
    std::string text;
};

// Gives the editor, before it is filled, its mode and what it needs of the window that it opens over.
inline void PrepareEditor(EditorState& editor, const frmMain& window, std::string_view mode) {
    editor.EditMode = mode;
    editor.tempClickedDate = window.ClickedDate;
    editor.tempStartDayOfWeek = window.StartDayOfWeek;
}

// Gives the dialog the values of the record at the position.
template <class Dialog, class Lists, std::size_t Count>
void CopyFields(Dialog& dialog, const std::array<FilledField<Dialog, Lists>, Count>& fields,
                const Lists& lists, int position) {
    for (const FilledField<Dialog, Lists>& filled : fields) {
        dialog.*filled.field = (lists.*filled.list).Item(position);
    }
}

// Fills the dialog, which has the values of the record at the position. One that does not convert is told by
// its place in the record, not in the dialog's copy.
template <class Dialog, class Lists, std::size_t Count>
void FillCopied(Dialog& dialog, const std::array<FilledField<Dialog, Lists>, Count>& fields,
                const Lists& lists, int position) {
    try {
        dialog.Fill();
    } catch (RunTimeError& error) {
        for (const FilledField<Dialog, Lists>& filled : fields) {
            if (LiesIn(dialog.*filled.field, error.place)) {
                error.place = (lists.*filled.list).Item(position).data();
                break;
            }
        }
        throw;
    }
}

// Both, for a dialog that takes the record as it is.
template <class Dialog, class Lists, std::size_t Count>
void FillFromRecord(Dialog& dialog, const std::array<FilledField<Dialog, Lists>, Count>& fields,
                    const Lists& lists, int position) {
    CopyFields(dialog, fields, lists, position);
    FillCopied(dialog, fields, lists, position);
}

// Lets the student work in the filled dialog, beside the window at its first opening, until it closes.
inline void ShowDialog(QDialog& dialog, bool& firstOpen, const QWidget& window) {
    PlaceAtFirstOpen(dialog, firstOpen, window);
    RunModally(dialog);
}

// Adds a record with the next id. Fields that are not all of the record's but its id do not compile.
template <class Lists, auto... List>
void AppendRecord(Lists& lists, const std::tuple<EnteredField<List>...>& fields, int& nextId) {
    static_assert(AreAllFields(std::array{&Lists::id, List...}));
    lists.id.Add(std::to_string(NextId(nextId)));
    ((lists.*List).Add(std::get<EnteredField<List>>(fields).text), ...);
}

// The values as lists that hold one entry each; the id is empty.
template <class Lists, auto... List>
Lists OneRecord(const std::tuple<EnteredField<List>...>& fields) {
    static_assert(AreAllFields(std::array{&Lists::id, List...}));
    Lists values;
    ((values.*List).Add(std::get<EnteredField<List>>(fields).text), ...);
    return values;
}

// Overwrites the record at the position, which keeps its id; all its other fields must be among those given.
template <class Lists, auto... List>
void ReplaceRecord(Lists& lists, const std::tuple<EnteredField<List>...>& fields, int position) {
    static_assert(AreAllFields(std::array{&Lists::id, List...}));
    ((lists.*List).Replace(position, std::get<EnteredField<List>>(fields).text), ...);
}
