// The mode bar under the menu bar: a picture and a word for each mode.
#pragma once

#include "mainwindow/state/Mode.h"

#include <array>

class ClickLabel;
class ModeBarEntry;
class PictureBox;

struct ModeBarControls {
    PictureBox *PictureBarCalendar = nullptr, *PictureBarHomework = nullptr,
               *PictureBarStudySessions = nullptr, *PictureBarEvents = nullptr, *PictureBarTasks = nullptr,
               *PictureBarReminders = nullptr, *PictureBarWeb = nullptr, *picHelp = nullptr;
    ClickLabel *LabelBarCalendar = nullptr, *LabelBarHomework = nullptr, *LabelBarEvents = nullptr,
               *LabelBarTasks = nullptr, *LabelBarReminders = nullptr, *LabelBarWeb = nullptr;
    std::array<ModeBarEntry*, ModeCount> BarEntries{}; // by Mode; each holds a picture and its word
};
