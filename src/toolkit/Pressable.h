// The painted controls as a screen reader is told of them: what they are, whether they are chosen, what they
// show, and how they are pressed.
#pragma once

#include <QAccessible>

// Lets the toolkit tell of the control, a ClickLabel or a PictureBox, in that role and by its accessible
// name. A button, a tab and a column's head can be pressed. To be called before
// the control gets a text or a name, as the toolkit keeps what it has found first.
void DescribeAs(QWidget* control, QAccessible::Role role);

// From now on the control counts as chosen or as one that could be.
void DescribeChosen(QWidget* control, bool chosen);

// What the control shows, where that is not its name.
void DescribeValue(QWidget* control, const QString& value);

// Gives the control the name, and tells of it when it is another one than before.
void DescribeName(QWidget* control, const QString& name);

// Whether a screen reader may press the control: it is there, and no modal dialog keeps its window from being
// pressed.
bool IsInReach(const QWidget& control);
