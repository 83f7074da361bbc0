/// @file
/// Angles as they are typed in the field.
#pragma once

#include <afx.h>

/// Why a text is no angle.
enum class AngleFault {
    None,
    NoNumber,
    TooLarge,   ///< More than 360 degrees.
    BadSixties, ///< Minutes or seconds from 60 on.
};

/// Reads an angle of degrees, minutes and seconds packed into one number: d.mmss, with
/// decimals of the second behind. 90.3015 is 90 degrees 30 minutes 15 seconds.
/// @param dRadians written on success only
AngleFault ParsePackedAngle(const CString& strText, double& dRadians);
