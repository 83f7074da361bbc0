// Numbers as text: readable, and the bits, which have to be the same on every system.
#pragma once

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

inline void Print(const char* pszName, std::initializer_list<double> values) {
    std::printf("%s", pszName);
    for (const double value : values) {
        std::uint64_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        std::printf(", %.4f %016" PRIx64, value, bits);
    }
    std::printf("\n");
}
