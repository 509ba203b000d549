// Requirements that stop a fuzzer where they fail.
#pragma once

#include <cstdlib>

// Stops the fuzzer, which then keeps the bytes that led here.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}
