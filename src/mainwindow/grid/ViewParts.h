// What the views on the grid share: the texts over them, the scroll bar, the font and the colours of the
// rows.
#pragma once

#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"

#include <QString>

class frmMain;

// The font of the rows.
inline constexpr SurfaceFont ListFont{Face::List, 9, false};
inline constexpr int EdgeLineColor = 0x808080;   // over and left of the data area
inline constexpr int CurrentColor = AccentColor; // the frame of what the keys stand on

// The two texts over the view: what it shows, and the selected day.
void ShowTopTitles(frmMain& window, const QString& top);

// The same for a view of one day: the words and the day in the form "Long Date".
void ShowTopTitlesOfDay(frmMain& window, const char* words);

// The same for a list of the active term, empty when there is none: with the range "Day" the words of a day
// and the day, else the words of a term and its name.
void ShowTopTitlesOfTerm(frmMain& window, const char* dayWords, const char* termWords);

// Takes the titles of lists away, where a view has none.
void HideColumnTitles(frmMain& window);

// Puts the scroll bar at the right edge of the grid and shows it.
void PlaceScrollBar(frmMain& window);
