/// @file
/// The device's shell as programs for it include it: see afxext.h.
#pragma once

#include "afxext.h"
