// What the layouts and the fills of all lists share.
#pragma once

#include "mainwindow/grid/GridLayout.h"
#include "mainwindow/list/ListRows.h"
#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"

#include <QString>

class frmMain;

// The font of the rows.
inline constexpr SurfaceFont ListFont{Face::List, 9, false};
inline constexpr int EdgeLineColor = 0x808080;   // over and left of the data area
inline constexpr int CurrentColor = AccentColor; // the frame of what the keys stand on

// Places the titles of the list and the scroll bar and leaves an empty grid of its lines.
void LayoutList(frmMain& window, ListKind kind);

// What is painted of a cell's text in a column of that width.
QString ShownCellText(const GridCell& cell, const ColumnPlace& column);

// What is painted of the text of an event row in a box of that width.
QString ShownEventText(int eventRow, int boxWidth);

// Shows the rows that the selection and the sort have left, under their titles.
void ShowList(frmMain& window, ListKind kind);

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
