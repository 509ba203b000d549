// Texts that a walk over all records reads one after another: the longer ones lie far apart in memory, and to
// wait for each takes longer than all else that is done with it.
#pragma once

#include "core/TextList.h"

// Far enough for the memory, near enough for the cache.
inline constexpr std::size_t TextsFetchedAhead = 16;

// Has the memory fetch the text some places behind this one.
inline void FetchAhead(const TextList& texts, int position) {
    const std::size_t ahead = static_cast<std::size_t>(position) + TextsFetchedAhead;
    if (ahead + TextsFetchedAhead < texts.values.size()) {
        __builtin_prefetch(&texts.values[ahead + TextsFetchedAhead]);
        __builtin_prefetch(texts.values[ahead].data());
    }
}
