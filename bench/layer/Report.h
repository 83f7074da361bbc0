// What the measurements print and write.
#pragma once

#include "Measure.h"

#include <string>
#include <vector>

namespace bench {

/// Prints one line for each measurement, and keeps it for the file.
class Report {
public:
    /// @param only rows whose name contains this are measured
    explicit Report(std::string only) : m_only(std::move(only)) {}

    bool Wants(const std::string& name) const { return name.find(m_only) != std::string::npos; }
    /// @param goal how many times the bare cost is allowed
    void AddTime(const std::string& name, const Pair& pair, double goal);
    /// @param nItems what the memory is shared by
    void AddMemory(const std::string& name, const Pair& pair, int nItems);
    /// @param growth how much faster a cost grows than its work, or than the bare cost if that is worse
    void AddGrowth(const std::string& name, double growth);

    bool AllGoalsMet() const;
    /// @return false if the file cannot be written
    bool WriteJson(const char* pszPath) const;

private:
    struct Line {
        std::string name;
        const char* pszUnit;
        const char* pszResult; ///< What the result is: a ratio, a difference, a growth.
        Pair pair;             ///< In the unit; the ratio is the result.
        double goal;

        bool Met() const { return pair.ratio <= goal; }
    };

    void Add(const Line& line);

    std::string m_only;
    std::vector<Line> m_lines;
};

} // namespace bench
