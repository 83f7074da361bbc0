/// @file
/// Holds nothing of its own: CRichEditCtrl is with the other common controls.
#pragma once

#include "afxcmn.h"
