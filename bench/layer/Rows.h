// Works of several sizes, each beside the same by the system or the standard library alone.
#pragma once

#include "Measure.h"

#include <afx.h>

#include <string>
#include <vector>

namespace bench {

class Report;

struct Row {
    std::string name;
    double goal;            ///< How many times the bare cost is allowed.
    std::vector<int> sizes; ///< Ascending.
    std::function<Cost(int)> bare;
    std::function<Cost(int)> ours;
};

/// Measures each row in each size, and how the cost of the largest compares with that of the smallest.
void MeasureRows(Report& report, const std::vector<Row>& rows);

std::vector<Row> StringRows();
std::vector<Row> CollectionRows();
/// Archives and text files, which are written to the current drive.
std::vector<Row> FileRows();
/// Lists that the library fills or reads.
std::vector<Row> ListRows();
/// What the sample does with many points; a file is written to the current drive.
std::vector<Row> SampleRows();

/// Takes what a work gives, so that the compiler cannot leave the work out.
inline volatile std::size_t g_taken;
inline void Take(std::size_t n) {
    g_taken = g_taken + n;
}

/// Text number i of n characters or more, in letters of both cases with digits.
std::wstring TextOf(int i, int n);
/// As many of them.
template <class String>
std::vector<String> TextsOf(int nTexts, int n) {
    std::vector<String> texts;
    for (int i = 0; i < nTexts; ++i)
        texts.emplace_back(TextOf(i, n).c_str());
    return texts;
}

} // namespace bench
