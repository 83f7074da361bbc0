#include "testkit/detail/Png.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace testkit::detail {

namespace {

using Bytes = std::vector<unsigned char>;

void AddLong(Bytes& bytes, std::uint32_t n) { // the high byte first
    for (int nShift = 24; nShift >= 0; nShift -= 8)
        bytes.push_back(static_cast<unsigned char>(n >> nShift));
}

std::uint32_t Crc(const Bytes& bytes) {
    constexpr std::uint32_t kPolynomial = 0xEDB88320;
    std::uint32_t nCrc = 0xFFFFFFFF;
    for (const unsigned char by : bytes) {
        nCrc ^= by;
        for (int i = 0; i < 8; ++i)
            nCrc = nCrc >> 1 ^ ((nCrc & 1) != 0 ? kPolynomial : 0);
    }
    return ~nCrc;
}

std::uint32_t Adler(const Bytes& bytes) {
    constexpr std::uint32_t kModulus = 65521;
    std::uint32_t nSum = 1, nSums = 0;
    for (const unsigned char by : bytes) {
        nSum = (nSum + by) % kModulus;
        nSums = (nSums + nSum) % kModulus;
    }
    return nSums << 16 | nSum;
}

void AddChunk(Bytes& file, const std::string& name, const Bytes& content) {
    AddLong(file, static_cast<std::uint32_t>(content.size()));
    Bytes chunk(name.begin(), name.end());
    chunk.insert(chunk.end(), content.begin(), content.end());
    file.insert(file.end(), chunk.begin(), chunk.end());
    AddLong(file, Crc(chunk));
}

/// A zlib stream of blocks that are stored as they are.
Bytes Stored(const Bytes& bytes) {
    constexpr size_t kMostInBlock = 65535;
    Bytes stream = {0x78, 0x01};
    for (size_t nBegin = 0; nBegin < bytes.size(); nBegin += kMostInBlock) {
        const size_t n = std::min(kMostInBlock, bytes.size() - nBegin);
        const bool bLast = nBegin + n == bytes.size();
        for (const size_t nByte : {size_t{bLast}, n & 0xFF, n >> 8, ~n & 0xFF, ~n >> 8 & 0xFF})
            stream.push_back(static_cast<unsigned char>(nByte));
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(nBegin);
        stream.insert(stream.end(), begin, begin + static_cast<std::ptrdiff_t>(n));
    }
    AddLong(stream, Adler(bytes));
    return stream;
}

} // namespace

std::vector<unsigned char> PngOf(const std::vector<unsigned long>& pixels, size_t nWidth, size_t nHeight) {
    constexpr unsigned char kBits = 8, kTrueColor = 2;
    Bytes head;
    AddLong(head, static_cast<std::uint32_t>(nWidth));
    AddLong(head, static_cast<std::uint32_t>(nHeight));
    head.insert(head.end(), {kBits, kTrueColor, 0, 0, 0});
    Bytes rows;
    for (size_t y = 0; y < nHeight; ++y) {
        rows.push_back(0); // no filter
        for (size_t x = 0; x < nWidth; ++x)
            for (const int nShift : {16, 8, 0})
                rows.push_back(static_cast<unsigned char>(pixels[y * nWidth + x] >> nShift));
    }
    Bytes file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AddChunk(file, "IHDR", head);
    AddChunk(file, "IDAT", Stored(rows));
    AddChunk(file, "IEND", {});
    return file;
}

} // namespace testkit::detail
