/// @file
/// Angles as they are typed in the field.
#pragma once

#include <afx.h>

/// Reads an angle of degrees, minutes and seconds packed into one number: d.mmss, with
/// decimals of the second behind. 90.3015 is 90 degrees 30 minutes 15 seconds.
/// @param dRadians written on success only
/// @return false for a text that is no number, more than 360 degrees, and minutes or
///         seconds from 60 on
bool ParsePackedAngle(const CString& strText, double& dRadians);
