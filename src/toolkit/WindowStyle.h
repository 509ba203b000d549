// The look of the windows: their measures, and the style that all of them have.
#pragma once

#include <QIcon>
#include <QKeySequence>
#include <QSize>
#include <QString>

class PictureBox;

inline constexpr QSize DesignSize{780, 575};
inline constexpr int LeftPanelWidth = 200; // pixels
inline constexpr int PanelMargin = 7;
inline constexpr int SmallButtonWidth = 45; // of one of several, which stand 750 units apart

// The icon of the picture with that name. All that ask for a picture share one icon, since to make one reads
// the picture twice.
QIcon ProgramIcon(const QString& picture);

// The tip of a control: what it does, and behind it the key that does the same, where there is one.
QString TipWithKey(const QString& what, const QKeySequence& key);

// A picture of that size to press, which says what it does and by which key.
PictureBox* PictureButton(int size, const char* name, const QKeySequence& key);

// Gives all windows of the program one style, one palette and one font, whatever the desktop's are.
void ApplyProgramStyle();
