// What a label or a picture looks like, as the student would see it.
#pragma once

#include "toolkit/PictureBox.h"

#include <QLabel>

// Colours are 0xBBGGRR.
bool HasForeColor(const QLabel* label, int color);
bool HasBackColor(const QLabel* label, int color);

// The name of the picture drawn last; empty when there is none.
QString PictureOf(const PictureBox* box);
