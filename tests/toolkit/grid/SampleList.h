// A window with nothing but a painted list: names with a mark, a done box and a picture, as many as a test
// wants, and what was asked of them.
#pragma once

#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListScroll.h"
#include "toolkit/grid/PaintedList.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

inline constexpr std::array<ListColumn, 5> SampleColumns{{
    {"#", RowNumberWidth, "Number"},
    {"\xAE", 19, "Reminder"},
    {"Name", 0.5},
    {"Done", 60},
    {"Kind", 40},
}};

// The columns by their titles.
enum SampleColumn { NumberColumn, MarkColumn, NameColumn, DoneColumn, KindColumn };

struct SampleRow {
    QString name;
    bool marked = false;
    bool done = false;
};

struct SampleWindow : QWidget, PaintedList {
    SampleWindow();

    std::vector<SampleRow> rows;
    std::vector<ListAction> asked;
    bool hasMenu = true;
    bool clickSelects = true;
    int repaints = 0;
};

class SampleList : public testing::Test {
protected:
    // A window of 400 by 285 pixels, in which twelve rows fit, with five rows.
    void SetUp() override;

    void ShowNames(int count);
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Click(QPoint point, Qt::MouseButton button = Qt::LeftButton) const;
    void ClickPlace(int place, Qt::MouseButton button = Qt::LeftButton) const;
    void TurnWheelOver(QWidget* over, int eighths) const;
    void PointAt(QPoint point) const;

    // A point in the middle of a row, or of a cell of it.
    QPoint PlacePoint(int place) const;
    QPoint CellPoint(int place, SampleColumn column) const;

    // What was asked last, and forgets it; fails the test when nothing was.
    ListAction TakeAsked();

    // The numbers of the rows painted, and those painted white on black.
    QStringList NumbersPainted() const;
    QStringList NumbersHighlighted() const;
    QString Arrow(SampleColumn column) const;

    // The tops of the frames around current rows.
    std::vector<int> FramesPainted() const;

    std::unique_ptr<SampleWindow> window;
};
