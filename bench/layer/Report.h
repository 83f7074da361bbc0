// What the measurements print and write.
#pragma once

#include "Measure.h"

#include <string>
#include <vector>

namespace bench {

/// Prints one line for each measurement, and keeps it for the file.
class Report {
public:
    /// @param goal how many times the bare cost is allowed
    void AddTime(const std::string& name, const Pair& pair, double goal);
    /// @param nItems what the memory is shared by
    void AddMemory(const std::string& name, const Pair& pair, int nItems);

    bool AllGoalsMet() const;
    /// @return false if the file cannot be written
    bool WriteJson(const char* pszPath) const;

private:
    struct Line {
        std::string name;
        const char* pszUnit;
        bool bRatio; ///< The result is the ratio, else the difference.
        double bare;
        double ours;
        double result;
        double goal;
    };

    void Add(const Line& line);

    std::vector<Line> m_lines;
};

} // namespace bench
