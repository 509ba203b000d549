// A new order of rows, found by a key of each row, and lists put into it.
// Rows of equal keys keep the order that they had, whichever the direction.
#pragma once

#include "core/TextList.h"
#include "core/Values.h"
#include "planner/rows/ListFilter.h"

#include <string_view>
#include <utility>
#include <vector>

// The present positions of the rows, from 1, in their new order.
using RowOrder = std::vector<int>;

template <class Key>
struct KeyedRow {
    Key key;
    int row;
};

// What texts are compared by: their bytes, or those of their lower-case letters.
enum class TextOrder { Folded, Bytes };

RowOrder OrderOfNumbers(std::vector<KeyedRow<double>> rows, int direction);
RowOrder OrderOfTexts(std::vector<KeyedRow<std::string_view>> rows, TextOrder textOrder, int direction);

// The rows from 1 on with their keys; none where there are fewer than two, so that no key is asked.
template <class Key, class KeyOfRow>
std::vector<KeyedRow<Key>> KeyedRows(int rows, KeyOfRow keyOfRow) {
    std::vector<KeyedRow<Key>> keyed;
    keyed.reserve(static_cast<std::size_t>(rows));
    for (int row = 1; row <= rows && rows > 1; ++row) {
        keyed.push_back({keyOfRow(row), row});
    }
    return keyed;
}

template <class KeyOfRow>
RowOrder OrderByNumber(int rows, int direction, KeyOfRow keyOfRow) {
    return OrderOfNumbers(KeyedRows<double>(rows, keyOfRow), direction);
}

template <class KeyOfRow>
RowOrder OrderByText(int rows, int direction, KeyOfRow keyOfRow, TextOrder textOrder = TextOrder::Folded) {
    return OrderOfTexts(KeyedRows<std::string_view>(rows, keyOfRow), textOrder, direction);
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
