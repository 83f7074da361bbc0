// Worked examples from plain-text files, one case a line:
//
//   operation | input numbers | tolerance | expected numbers | where the figures come from
//
// Blank lines and lines that begin with # are skipped.
#pragma once

#include "support/TestData.h"

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace golden {

struct Case {
    std::string operation;
    std::vector<double> input;
    double tolerance;
    std::vector<double> expected;
    std::string place; // file and line, for messages
};

inline std::vector<double> Numbers(const std::string& field, const std::string& place) {
    std::istringstream text(field);
    std::vector<double> numbers;
    for (double v; text >> v;)
        numbers.push_back(v);
    if (!text.eof())
        throw std::runtime_error(place + ": not a number in \"" + field + '"');
    return numbers;
}

inline Case Parse(const std::string& line, const std::string& place) {
    std::istringstream text(line);
    std::vector<std::string> fields;
    for (std::string field; std::getline(text, field, '|');)
        fields.push_back(field);
    if (fields.size() != 5)
        throw std::runtime_error(place + ": five fields expected");
    Case c{fields[0], Numbers(fields[1], place), 0, Numbers(fields[3], place), place};
    c.operation.erase(c.operation.find_last_not_of(' ') + 1);
    const std::vector<double> tolerance = Numbers(fields[2], place);
    if (tolerance.size() != 1 || c.expected.empty())
        throw std::runtime_error(place + ": one tolerance and some result expected");
    c.tolerance = tolerance[0];
    return c;
}

/// All cases of a file under the test data folder; throws when it cannot be read.
inline std::vector<Case> Load(const std::string& name) {
    std::ifstream file = testdata::Open(name);
    std::vector<Case> cases;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (!line.empty() && line[0] != '#')
            cases.push_back(Parse(line, name + ':' + std::to_string(number)));
    }
    return cases;
}

} // namespace golden
