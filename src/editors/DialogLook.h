// What the dialogs of the editors look like beyond the program's style: names that are too long, date boxes,
// labels of several lines.
#pragma once

#include <QString>

#include <initializer_list>

class QComboBox;
class QLineEdit;
class QToolButton;
class QWidget;

// A combo of the student's names keeps its width however long they are. What is cut off, in the combo and in
// its list, ends in dots and has the whole name as its tip.
void SetupNames(QComboBox* combo);

// Rows of the combo that only part the others: keys and wheel pass over them, and a press on one chooses the
// first row.
void SetupSeparators(QComboBox* combo);

// Makes separators of the rows of that text; to be called when the combo has been filled.
void MarkSeparators(QComboBox* combo, const QString& text);

// A box that shows a date and the small button that lets the student choose it.
struct DateBox {
    QLineEdit* box;
    QToolButton* button;
};

// Gives the boxes room for the longest date of the user's language, and the buttons their picture and tip.
void SetupDateBoxes(std::initializer_list<DateBox> boxes);

// Lets no label of several lines be cut off or covered, however small the dialog is made.
void KeepLines(const QWidget* dialog);
