#include "Report.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

/// The most that a dialog may take for each file or folder beyond the system's own control.
constexpr double kBytesGoal = 2048;

} // namespace

void Report::AddTime(const std::string& name, const Pair& pair, double goal) {
    Add({name, "ms", true, pair.bare.ms, pair.ours.ms, pair.ratio, goal});
}

void Report::AddMemory(const std::string& name, const Pair& pair, int nItems) {
    const double bare = pair.bare.bytes / nItems;
    const double ours = pair.ours.bytes / nItems;
    Add({name + ", each", "bytes", false, bare, ours, ours - bare, kBytesGoal});
}

void Report::Add(const Line& line) {
    std::printf("%-28s bare %7.1f %-5s  ours %7.1f %-5s  %s %6.2f (goal %g)%s\n", line.name.c_str(),
                line.bare, line.pszUnit, line.ours, line.pszUnit, line.bRatio ? "ratio" : "more ",
                line.result, line.goal, line.result <= line.goal ? "" : "  MISSED");
    std::fflush(stdout);
    m_lines.push_back(line);
}

bool Report::AllGoalsMet() const {
    return std::all_of(m_lines.begin(), m_lines.end(),
                       [](const Line& line) { return line.result <= line.goal; });
}

bool Report::WriteJson(const char* pszPath) const {
    std::FILE* const pFile = std::fopen(pszPath, "w");
    if (pFile == nullptr)
        return false;
    const char* pszBefore = "[\n";
    for (const Line& line : m_lines) {
        std::fprintf(pFile,
                     "%s  {\"name\": \"%s\", \"unit\": \"%s\", \"bare\": %.3f, \"ours\": %.3f, "
                     "\"result\": %.3f, \"goal\": %g, \"met\": %s}",
                     pszBefore, line.name.c_str(), line.pszUnit, line.bare, line.ours, line.result, line.goal,
                     line.result <= line.goal ? "true" : "false");
        pszBefore = ",\n";
    }
    std::fputs("\n]\n", pFile);
    return std::fclose(pFile) == 0;
}

} // namespace bench
