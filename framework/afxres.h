/// @file
/// Identifiers for resource scripts. Only macros: the resource compiler reads this too.
#pragma once

#ifdef RC_INVOKED
#include <windows.h>
#endif

/// Identifier of controls that are never looked for.
#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Why data exchange refused what stands in a field. An application's string of the same
// number replaces the framework's. %1 and %2 are the numbers of the rule.
/// A text that tells the user why an entry was refused.
///@{
#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_RADIO_BUTTON 0xF115
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117
///@}
