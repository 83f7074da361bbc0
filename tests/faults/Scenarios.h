// What is done while something fails.
#pragma once

#include "support/FrameworkEnvironment.h"

#include <functional>

namespace fault {

struct Scenario {
    const char* pszName;
    /// @param owner a window of the application, for dialogs
    /// @return whether everything was done as usual; always true when nothing fails
    std::function<bool(CWnd& owner)> run;
};

const std::vector<Scenario>& Scenarios();

} // namespace fault
