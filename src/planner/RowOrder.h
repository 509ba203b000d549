// A new order of rows, found by a key of each row, and lists put into it.
// Rows of equal keys keep the order that they had, whichever the direction.
#pragma once

#include "core/TextList.h"
#include "core/Values.h"
#include "planner/ListFilter.h"

#include <string_view>
#include <utility>
#include <vector>

// The present positions of the rows, from 1, in their new order.
using RowOrder = std::vector<int>;

// What texts are compared by: their bytes, or those of their lower-case letters.
enum class TextOrder { Folded, Bytes };

RowOrder OrderOfNumbers(const std::vector<double>& keys, int direction);
RowOrder OrderOfTexts(const std::vector<std::string_view>& keys, TextOrder textOrder, int direction);

// The order by the key that is given for each row; with fewer than two rows no key is asked.
template <class KeyOfRow>
RowOrder OrderByNumber(int rows, int direction, KeyOfRow keyOfRow) {
    std::vector<double> keys;
    for (int row = 1; row <= rows && rows > 1; ++row) {
        keys.push_back(keyOfRow(row));
    }
    return OrderOfNumbers(keys, direction);
}

template <class KeyOfRow>
RowOrder OrderByText(int rows, int direction, KeyOfRow keyOfRow, TextOrder textOrder = TextOrder::Folded) {
    std::vector<std::string_view> keys;
    for (int row = 1; row <= rows && rows > 1; ++row) {
        keys.push_back(keyOfRow(row));
    }
    return OrderOfTexts(keys, textOrder, direction);
}

// Puts the list into the order. An empty order, that of fewer than two rows, leaves it as it is.
template <class Value>
void Reorder(List<Value>& list, const RowOrder& order) {
    if (order.empty()) {
        return;
    }
    std::vector<Value> values;
    values.reserve(order.size());
    for (const int row : order) {
        values.push_back(std::move(list.values[list.Index(row)]));
    }
    list.values = std::move(values);
}
