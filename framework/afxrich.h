/// @file
/// Holds nothing of its own: CRichEditCtrl is with the other common controls.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXRICH_H__

#include "afxcmn.h"
