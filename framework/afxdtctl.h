/// @file
/// Holds nothing of its own: the controls for dates are with the other common controls.
#pragma once

#include "afxcmn.h"
