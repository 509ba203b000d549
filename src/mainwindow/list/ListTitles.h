// Which list a mode shows, and the titles of its columns as they are said.
#pragma once

#include "mainwindow/grid/GridLayout.h"
#include "mainwindow/state/Mode.h"

#include <QString>

#include <optional>

// The list that the mode shows; nothing where it shows none.
std::optional<ListKind> ListOf(Mode mode);

// The word for the title of a column; nothing where that is no mark.
std::optional<QString> SpokenMarkOf(ListKind kind, int column);

// The title of a column, or the word for it where it is a mark.
QString ListTitle(ListKind kind, int column);
