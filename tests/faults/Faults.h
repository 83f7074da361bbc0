// Lets each call of the DLLs into the system fail, in each scenario.
#pragma once

#include "support/TestApp.h"
#include "testkit/Faults.h"

#include <functional>
#include <set>

namespace fx {

/// What is done while something fails.
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

/// Runs a scenario with a call failing, with another one, and so on, until it comes to its end
/// without a failure. Each time everything must be released, and a run without a failure must work
/// afterwards. A crash or a hang ends the program and tells which call had failed.
/// @param bAll every call, or some of them, which change each day
void RunLoop(const Scenario& scenario, bool bAll);

/// All functions of the system that can fail, and how.
const std::vector<fault::Point>& Table();

/// Functions that the DLLs use as well, and that do what they are asked for when they are given
/// valid arguments, or whose failure shows nowhere but on the screen.
const std::set<std::string>& Infallible();

} // namespace fx
