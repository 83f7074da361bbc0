/// @file
/// Holds nothing of its own: the controls for dates are with the other common controls.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXDTCTL_H__

#include "afxcmn.h"
