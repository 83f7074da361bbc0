// Pictures as files that every viewer and browser knows.
#pragma once

#include <cstddef>
#include <vector>

namespace testkit::detail {

/// A PNG file of pixels 0x00RRGGBB, row by row from the top. It is not compressed.
std::vector<unsigned char> PngOf(const std::vector<unsigned long>& pixels, size_t nWidth, size_t nHeight);

} // namespace testkit::detail
