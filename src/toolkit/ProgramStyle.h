// The style that draws the controls of all windows: Fusion, with a focus that is seen on every control, boxes
// that are only read told from those that are typed into, names that are too long ending in dots, and the
// program's own pictures in message boxes.
#pragma once

#include <QPalette>

class QComboBox;
class QLineEdit;
class QStyle;

// A new style, which the application is to own.
QStyle* NewProgramStyle();

// The colours that go with the style.
QPalette ProgramPalette();

// Lets the box look like one that shows what has been worked out and is never typed into.
void ShowAsReadOnly(QLineEdit* box);

// Lets the list of the combo be as wide as the combo, whatever its rows are. To be called before it is used.
void KeepListNarrow(QComboBox* combo);
