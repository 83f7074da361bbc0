// What is done while something fails.
#pragma once

#include "support/TestApp.h"

#include <functional>

namespace fx {

struct Scenario {
    const char* pszName;
    /// @param owner a window of the application, for dialogs
    /// @return whether everything was done as usual; always true when nothing fails
    std::function<bool(CWnd& owner)> run;
    size_t nSystemBytes = 0; ///< What the system itself loses at most, a run.
};

/// In messages of tests.
inline void PrintTo(const Scenario& scenario, std::ostream* os) {
    *os << scenario.pszName;
}

std::vector<Scenario> Scenarios();

} // namespace fx
