#include "Targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string ContentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Cut anywhere, too: files are truncated in real life.
constexpr std::size_t kCuts = 64;

void FeedAll(const char* target, void (*feed)(const std::uint8_t*, std::size_t)) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(FUZZ_SEEDS "/") + target)) {
        SCOPED_TRACE(entry.path().filename().string());
        const std::string seed = ContentOf(entry.path());
        const auto* data = reinterpret_cast<const std::uint8_t*>(seed.data());
        for (std::size_t size = 0; size < seed.size(); size += 1 + seed.size() / kCuts)
            feed(data, size);
        feed(data, seed.size());
        ++count;
    }
    EXPECT_GT(count, 0);
}

TEST(Seeds, OfArchivesAreRead) {
    FeedAll("Archive", FuzzArchive);
}
TEST(Seeds, OfTextHistoriesAreRead) {
    FeedAll("Stack", FuzzStack);
}
TEST(Seeds, OfPointsFilesAreRead) {
    FeedAll("Points", FuzzPoints);
}
TEST(Seeds, OfFileNamesAreRead) {
    FeedAll("Path", FuzzPath);
}
TEST(Seeds, OfTextLinesAreRead) {
    FeedAll("Lines", FuzzLines);
}
TEST(Seeds, OfNumbersAreRead) {
    FeedAll("Number", FuzzNumber);
}
TEST(Seeds, OfConversionsAreFormatted) {
    FeedAll("Format", FuzzFormat);
}

} // namespace
