// A test of the grid: the main window with the term "Fall 2009" and one class, and what stands on the grid
// read back.
#pragma once

#include "core/Module1.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/list/ListColumns.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"
#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/ListPainting.h"

#include <QMenu>

// What is painted of one cell; rows count from 1 under the titles.
struct PaintedCell {
    QString text; // the name of the picture where there is one
    int forecolor = -1;
    int backcolor = -1;
};

class GridTest : public WindowTest {
protected:
    // Loads the window, gives it the term and the class "Algebra", white on 0x112233, and stands at
    // 2009-10-14.
    void SetUp() override;

    // The modal dialogs that have opened, each with its description. They are closed as they open.
    QStringList Opened;

    // Shows what the store holds by now.
    void Refresh();

    PaintedCell Cell(ListKind kind, int row, std::size_t column) const;

    // The texts of the row from column 0 on, as painted.
    QStringList RowTexts(ListKind kind, int row) const;

    // The number of rows painted.
    int RowsPainted() const;

    // The picture of the arrow over a title; empty without one.
    QString SortPicture(std::size_t column) const;
    QString TitleText(std::size_t column) const;

    // A click in the middle of a row of the list, or at a point of the grid in pixels.
    void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton);
    void Click(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QPoint RowPoint(int row) const;

    // The rows whose number was painted white on black, and black on white again, since the last layout.
    QStringList HighlightedNumbers() const;

    // Adds so many assignments, "A1" on.
    static void AddAssignments(int count);

private:
    QTimer dialogWatch;
};

// Runs the action as soon as a popup menu is open, and closes it behind it.
void WhenPopupOpens(const std::function<void(QMenu*)>& action);

// The captions of a menu without the marks of their keys; "-" for a separator.
QStringList Captions(const QMenu* menu);
