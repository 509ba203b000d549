// A new order of rows, found by a key of each row.
#include "planner/RowOrder.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

template <class Key>
RowOrder OrderOf(std::vector<std::pair<Key, int>>& rows, int direction) {
    const auto byKey = &std::pair<Key, int>::first;
    if (direction == Descending) {
        std::ranges::stable_sort(rows, std::ranges::greater{}, byKey);
    } else {
        std::ranges::stable_sort(rows, std::ranges::less{}, byKey);
    }
    RowOrder order;
    order.reserve(rows.size());
    for (const auto& row : rows) {
        order.push_back(row.second);
    }
    return order;
}

} // namespace

RowOrder OrderOfNumbers(const std::vector<double>& keys, int direction) {
    std::vector<std::pair<double, int>> rows;
    rows.reserve(keys.size());
    for (const double key : keys) {
        rows.emplace_back(key, static_cast<int>(rows.size()) + 1);
    }
    return OrderOf(rows, direction);
}

RowOrder OrderOfTexts(const std::vector<std::string_view>& keys, TextOrder textOrder, int direction) {
    std::size_t length = 0;
    for (const std::string_view key : keys) {
        length += key.size();
    }
    std::string bytes; // of all keys, one behind the other
    bytes.reserve(length);
    std::vector<std::pair<std::string_view, int>> rows;
    rows.reserve(keys.size());
    for (const std::string_view key : keys) {
        const std::size_t start = bytes.size();
        for (const char character : key) {
            const auto byte = static_cast<unsigned char>(character);
            bytes.push_back(static_cast<char>(textOrder == TextOrder::Folded ? FoldByte(byte) : byte));
        }
        rows.emplace_back(std::string_view(bytes).substr(start), static_cast<int>(rows.size()) + 1);
    }
    return OrderOf(rows, direction);
}
