// The lists of the main window and their columns.
#pragma once

#include "toolkit/layout/GridLayout.h"

#include <span>

enum class ListKind { Homework, StudySessions, Tasks, Events, Reminders };

std::span<const ListColumn> ColumnsOf(ListKind kind);
