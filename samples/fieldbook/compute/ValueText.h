/// @file
/// Values as they are written in results.
#pragma once

#include <afx.h>

/// A direction in degrees, minutes and seconds, from 0 up to a full turn: 53°07'48".
///
/// It is rounded once, on the whole: no 60 seconds come out.
/// @param dRadians any number of turns up to about a million
/// @param bTenths  with tenths of seconds: 53°07'48.4"
CString DirectionText(double dRadians, bool bTenths);

/// A length or a coordinate in metres. Nothing for a coordinate that is missing, and no sign for
/// what is rounded to zero.
CString LengthText(double dMetres, int nDecimals);
