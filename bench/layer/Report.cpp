#include "Report.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

/// The most that a dialog may take for each file or folder beyond the system's own control.
constexpr double kBytesGoal = 2048;
/// The same work in larger memory is a little slower; a search inside a loop is not a little.
constexpr double kGrowthGoal = 1.4;

} // namespace

void Report::AddTime(const std::string& name, const Pair& pair, double goal) {
    Add({name, "ms", "ratio", pair, goal});
}

void Report::AddMemory(const std::string& name, const Pair& pair, int nItems) {
    const double bare = pair.bare.bytes / nItems;
    const double ours = pair.ours.bytes / nItems;
    const double more = ours - bare;
    Add({name + ", each", "bytes", "more", {{bare}, {ours}, more, more, more}, kBytesGoal});
}

void Report::AddGrowth(const std::string& name, double growth) {
    Add({name, "", "growth", {{}, {}, growth, growth, growth}, kGrowthGoal});
}

void Report::Add(const Line& line) {
    const Pair& pair = line.pair;
    std::printf("%-40s", line.name.c_str());
    if (line.pszUnit[0] != '\0')
        std::printf("bare %9.3f  ours %9.3f %-5s", pair.bare.ms, pair.ours.ms, line.pszUnit);
    std::printf("  %s %.2f (%.2f..%.2f, goal %g)%s\n", line.pszResult, pair.ratio, pair.lower, pair.upper,
                line.goal, line.Met() ? "" : "  MISSED");
    std::fflush(stdout);
    m_lines.push_back(line);
}

bool Report::AllGoalsMet() const {
    return std::all_of(m_lines.begin(), m_lines.end(), [](const Line& line) { return line.Met(); });
}

bool Report::WriteJson(const char* pszPath) const {
    std::FILE* const pFile = std::fopen(pszPath, "w");
    if (pFile == nullptr)
        return false;
    const char* pszBefore = "[\n";
    for (const Line& line : m_lines) {
        const Pair& pair = line.pair;
        std::fprintf(pFile,
                     "%s  {\"name\": \"%s\", \"unit\": \"%s\", \"bare\": %.4f, \"ours\": %.4f, "
                     "\"kind\": \"%s\", \"result\": %.3f, \"quartiles\": [%.3f, %.3f], \"goal\": %g, "
                     "\"met\": %s}",
                     pszBefore, line.name.c_str(), line.pszUnit, pair.bare.ms, pair.ours.ms, line.pszResult,
                     pair.ratio, pair.lower, pair.upper, line.goal, line.Met() ? "true" : "false");
        pszBefore = ",\n";
    }
    std::fputs("\n]\n", pFile);
    return std::fclose(pFile) == 0;
}

} // namespace bench
