// Times, memory and the lines that the measurements print.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>

namespace bench {

/// Milliseconds since some fixed moment.
double Now();
/// Bytes in use in all heaps of the process.
size_t HeapBytes();

struct Cost {
    double ms = 0;
    double bytes = 0; ///< Still in use at the end of the work.
};

struct Pair {
    Cost bare;
    Cost ours;
};

/// Does both works by turns and takes the best time of each: what else the computer does can
/// only add to them.
Pair Compare(const std::function<Cost()>& bare, const std::function<Cost()>& ours);

/// @param limit how many times the bare cost is allowed @return whether it was kept
bool Report(const char* pszWhat, const Pair& pair, double limit);
/// @param nItems what the memory is shared by
bool ReportMemory(const Pair& pair, int nItems);

} // namespace bench
