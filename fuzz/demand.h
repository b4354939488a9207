// A promise that a fuzzer checks: when it does not hold, the fuzzer stops and keeps the input.
#pragma once

#include <cstdlib>

inline void Demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
