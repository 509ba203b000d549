// An ordered list whose positions count from 1: the form of every field of every record kind.
#pragma once

#include "core/RunTimeError.h"

#include <string>
#include <utility>
#include <vector>

// Every operation raises the run-time error when it is given a position outside the list.
template <class Value>
struct List {
    int Count() const { return static_cast<int>(values.size()); }

    const Value& Item(int position) const { return values[Index(position)]; }

    void Add(Value value) { values.push_back(std::move(value)); }

    // Inserts behind the entry at the position.
    void AddAfter(Value value, int position) {
        values.insert(values.begin() + static_cast<std::ptrdiff_t>(Index(position)) + 1, std::move(value));
    }

    // Inserts in front of the entry at the position.
    void AddBefore(Value value, int position) {
        values.insert(values.begin() + static_cast<std::ptrdiff_t>(Index(position)), std::move(value));
    }

    // Takes the entry out; all entries behind it move up by one.
    void Remove(int position) { values.erase(values.begin() + static_cast<std::ptrdiff_t>(Index(position))); }

    // What an insertion behind the position and a removal at it come to.
    void Replace(int position, Value value) { values[Index(position)] = std::move(value); }

    void Clear() { values.clear(); }

    std::size_t Index(int position) const {
        if (position < 1 || position > Count()) {
            throw RunTimeError("Position outside the list", std::to_string(position));
        }
        return static_cast<std::size_t>(position - 1);
    }

    auto begin() const { return values.begin(); }

    auto end() const { return values.end(); }

    friend bool operator==(const List&, const List&) = default;

    std::vector<Value> values;
};

using TextList = List<std::string>;
using NumberList = List<int>;
