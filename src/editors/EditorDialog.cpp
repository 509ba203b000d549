// The base of the editors: what ends an entry in one of its fields, and what ends the editor.
#include "editors/EditorDialog.h"

#include "core/Module1.h"

void EditorDialog::WatchEntries(const QWidget* cancelButton, std::initializer_list<QWidget*> fields) {
    quietButton = cancelButton;
    for (QWidget* field : fields) {
        field->installEventFilter(this);
    }
}

void EditorDialog::BindAnswers(QPushButton* ok, QPushButton* cancel) {
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void EditorDialog::BindDelete(QPushButton* remove, std::string_view item) {
    connect(remove, &QPushButton::clicked, this, [this, item] { DeleteInEditor(*this, *this, item); });
}

bool EditorDialog::eventFilter(QObject* watched, QEvent* event) {
    if (CloseOK || ShuttingDown || !EntryEnds(event)) {
        return QDialog::eventFilter(watched, event);
    }
    return EndEntry(event, quietButton,
                    [this, watched](bool quiet) { return ValidateField(watched, quiet); });
}

void EditorDialog::reject() {
    CancelEditor(*this, *this, CancelQuestion());
}

void EditorDialog::closeEvent(QCloseEvent* event) {
    CloseEditor(*this, *this, CancelQuestion(), *event);
}
