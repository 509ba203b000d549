// The lists of the main window: which one a mode shows, and its columns.
#pragma once

#include "mainwindow/state/Mode.h"
#include "toolkit/layout/GridLayout.h"

#include <optional>
#include <span>

enum class ListKind { Homework, StudySessions, Tasks, Events, Reminders };

// The list that the mode shows; nothing where it shows none.
std::optional<ListKind> ListOf(Mode mode);

std::span<const ListColumn> ColumnsOf(ListKind kind);
