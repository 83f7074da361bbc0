// Searching message maps.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// The first entry for a message, a code and an identifier in a map or its base maps, or
/// null. Window messages have code and identifier 0.
const AFX_MSGMAP_ENTRY* FindMapEntry(const AFX_MSGMAP* pMap, UINT message, int nCode = 0, UINT nID = 0);

} // namespace fieldkit::detail
