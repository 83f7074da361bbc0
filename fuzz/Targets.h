/// @file
/// The functions that are fed with bytes. Each ends the program when what it read breaks a
/// promise of the class that read it; a refusal by exception is a good end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

void FuzzArchive(const std::uint8_t* pData, std::size_t nSize);
void FuzzStack(const std::uint8_t* pData, std::size_t nSize);
void FuzzPoints(const std::uint8_t* pData, std::size_t nSize);
void FuzzPath(const std::uint8_t* pData, std::size_t nSize);
void FuzzLines(const std::uint8_t* pData, std::size_t nSize);
void FuzzNumber(const std::uint8_t* pData, std::size_t nSize);
void FuzzFormat(const std::uint8_t* pData, std::size_t nSize);

inline void Promise(bool bKept, const char* pszWhat) {
    if (bKept)
        return;
    std::fprintf(stderr, "broken: %s\n", pszWhat);
    std::abort();
}
