// The two directions of an order, as the store of the options and the titles of lists have them.
#pragma once

inline constexpr int Ascending = 1;
inline constexpr int Descending = 2;
