/// @file
/// What the framework knows of the modules of the process.
#pragma once

#include "window/Resources.h"

#include <atomic>
#include <vector>

namespace fieldkit::detail {

struct CModuleState {
    const HINSTANCE hFramework;
    HINSTANCE hInstance = nullptr;
    HINSTANCE hResource = nullptr;
    std::vector<CDynLinkLibrary*> libraries = {}; ///< In the order of their loading.
    std::atomic<LANGID> wLanguage = 0;            ///< By AfxSetResourceLanguage; 0 for none.
    std::atomic<LANGID> wMarked = 0;              ///< Of the application's resources; 0 for none.
};

/// Never destroyed: whatever is destroyed last still finds its resources.
CModuleState& AfxModuleState();

/// The language that the resources of a module ask for with AFX_RESOURCE_LANGUAGE; 0 if they do not.
LANGID AfxLanguageMark(HINSTANCE hInstance);

} // namespace fieldkit::detail
