/// @file
/// What newer resource scripts include for their version.
#pragma once

#include <winver.h>
