// What holds tables of a record's fields against the fields of the kind, while they are compiled.
#pragma once

#include "core/Records.h"

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

// True when the lists are those of all fields of the kind, each once.
template <class Lists, std::size_t Count>
consteval bool AreAllFields(const std::array<TextList Lists::*, Count>& lists) {
    using Table = std::remove_cvref_t<decltype(FieldTable(std::declval<const Lists&>()))>;
    for (std::size_t i = 0; i < Count; ++i) {
        if (lists[i] == nullptr) {
            return false;
        }
        for (std::size_t other = 0; other < i; ++other) {
            if (lists[i] == lists[other]) {
                return false;
            }
        }
    }
    return Count == std::tuple_size_v<Table>;
}

// True when the rows of the table are those of all fields but the ones that are left out, each once.
template <class Row, class Lists, std::size_t Count, class... LeftOut>
consteval bool NamesAllFieldsBut(const std::array<Row, Count>& table, TextList Lists::*Row::*list,
                                 LeftOut... leftOut) {
    std::array<TextList Lists::*, Count + sizeof...(leftOut)> lists{leftOut...};
    for (std::size_t i = 0; i < Count; ++i) {
        lists[sizeof...(leftOut) + i] = table[i].*list;
    }
    return AreAllFields(lists);
}
