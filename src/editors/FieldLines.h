// The lines of a box whose text is a field of a record file: none may look like the end of that field.
#pragma once

#include <QPlainTextEdit>

// Puts a blank behind a line of the box that ends with the closing tag of its field where another line
// follows, as the break is made or pasted, in one step of undo with it: without the blank the reader of the
// file takes the line for the field's last. Delete before such a blank joins the lines.
void KeepLinesOfField(QPlainTextEdit* box, const QString& tag);
