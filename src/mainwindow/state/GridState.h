// The grid on the right side with what stands over it, and the list that it shows.
#pragma once

#include "planner/rows/ListFilter.h"

#include <array>

class PictureBox;
class QLabel;
class QScrollBar;
class QWidget;

struct GridState {
    QWidget* picTop = nullptr;
    QLabel *LabelTop = nullptr, *LabelInfoTitle = nullptr;
    PictureBox* picGrid = nullptr;
    std::array<PictureBox*, 10> picColHeader{}; // on picGrid, like the scroll bar
    QScrollBar* VSGridScroll = nullptr;

    int SortColumn = 0; // column that the rows are sorted by; what it means depends on the mode
    int SortDirection = Ascending;
    int FirstRow = 1;     // number of the row at the top of the list
    int RowCount = 0;     // rows of the mode's list
    int RowsVisible = 0;  // whole rows that fit under the titles
    int HeaderHeight = 0; // height of the titles in pixels
    int ClickedRow = 0;   // row under the last press; 999 in a list when there is none
    int CurrentRow = 0;   // row of the list on which the keys stand; 0 for none
    int WheelRest = 0;    // eighths of a degree that the wheel was turned beyond a notch
};
