/// @file
/// How the framework finds resources: in which module, and in which language of several.
#pragma once

#include "afxwin.h"

#include <span>

namespace fieldkit::detail {

/// A resource as it lies in the image of the module that AfxFindResourceHandle names, in the
/// language that AfxSetResourceLanguage describes. It stays as long as the module. Needs no memory.
///
/// @return empty if there is none
std::span<const BYTE> AfxFindResource(LPCTSTR lpszName, LPCTSTR lpszType);

/// The language that was chosen by a call or by the application's resources.
///
/// @return 0 if none was
LANGID AfxChosenLanguage();

} // namespace fieldkit::detail
