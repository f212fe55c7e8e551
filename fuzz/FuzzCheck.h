#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the run, with the input that led here kept by the fuzzer, when a condition does not hold.
#define FUZZ_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);              \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)
