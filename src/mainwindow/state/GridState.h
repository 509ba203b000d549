// The grid on the right side with what stands over it.
#pragma once

#include "toolkit/grid/PaintedList.h"

class QLabel;

struct GridState : PaintedList {
    QWidget* picTop = nullptr;
    QLabel *LabelTop = nullptr, *LabelInfoTitle = nullptr;
};
