// The texts over the view.
#pragma once

#include <QString>

class frmMain;

// The two texts over the view: what it shows, and the selected day.
void ShowTopTitles(frmMain& window, const QString& top);

// The same for a view of one day: the words and the day in the form "Long Date".
void ShowTopTitlesOfDay(frmMain& window, const char* words);

// The same for a list of the active term, empty when there is none: with the range "Day" the words of a day
// and the day, else the words of a term and its name.
void ShowTopTitlesOfTerm(frmMain& window, const char* dayWords, const char* termWords);
