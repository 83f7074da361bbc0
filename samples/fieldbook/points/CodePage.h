/// @file
/// What text files can hold.
#pragma once

#include <afx.h>

/// Whether a text is the same after its way through a text file, which is in the system's 8-bit
/// code page.
bool SurvivesCodePage(const CString& strText);
