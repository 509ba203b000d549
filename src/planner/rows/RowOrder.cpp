// A new order of rows, found by a key of each row.
#include "planner/rows/RowOrder.h"

#include <algorithm>
#include <string>

namespace {

// Below, at or above 0 as the first key sorts before, with or after the second.
int CompareKeys(double first, double second) {
    return static_cast<int>(first > second) - static_cast<int>(first < second);
}

int CompareKeys(std::string_view first, std::string_view second) {
    return first.compare(second);
}

template <class Key>
RowOrder OrderOf(std::vector<KeyedRow<Key>>& rows, int direction) {
    std::ranges::stable_sort(rows, [direction](const KeyedRow<Key>& a, const KeyedRow<Key>& b) {
        return direction == Descending ? CompareKeys(a.key, b.key) > 0 : CompareKeys(a.key, b.key) < 0;
    });
    RowOrder order;
    order.reserve(rows.size());
    for (const KeyedRow<Key>& row : rows) {
        order.push_back(row.row);
    }
    return order;
}

} // namespace

RowOrder OrderOfNumbers(std::vector<KeyedRow<double>> rows, int direction) {
    return OrderOf(rows, direction);
}

RowOrder OrderOfTexts(std::vector<KeyedRow<std::string_view>> rows, TextOrder textOrder, int direction) {
    std::size_t length = 0;
    for (const KeyedRow<std::string_view>& row : rows) {
        length += row.key.size();
    }
    std::string bytes(length, '\0'); // of all keys, one behind the other
    char* end = bytes.data();
    for (KeyedRow<std::string_view>& row : rows) {
        const char* const start = end;
        end = textOrder == TextOrder::Folded ? CopyFolded(row.key, end) : std::ranges::copy(row.key, end).out;
        row.key = std::string_view(start, row.key.size());
    }
    return OrderOf(rows, direction);
}
