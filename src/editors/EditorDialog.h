// The base of the editors: what ends an entry in one of its fields, and what ends the editor.
#pragma once

#include "editors/EditorParts.h"

#include <QPushButton>

class EditorDialog : public QDialog, public EditorState {
    Q_OBJECT

public:
    using QDialog::QDialog;

    // Cancel, which Escape counts as.
    void reject() override;

protected:
    // Validates an entry that has ended; gives false when the field is to be entered again. Quietly, nothing
    // is asked for. A field without a rule is valid.
    virtual bool ValidateField(const QObject* field, bool quiet) = 0;

    // The question before what was changed is given up.
    virtual std::string CancelQuestion() const = 0;

    // Validates the entries in these fields as they end, quietly where a press on the cancel button ends
    // them.
    void WatchEntries(const QWidget* cancelButton, std::initializer_list<QWidget*> fields);

    // Lets the buttons answer OK and Cancel.
    void BindAnswers(QPushButton* ok, QPushButton* cancel);

    // Lets the button answer Delete, after a question that names the item.
    void BindDelete(QPushButton* remove, std::string_view item);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    const QWidget* quietButton = nullptr;
};
