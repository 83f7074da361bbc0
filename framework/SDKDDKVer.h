/// @file
/// The system's versions, under the name that scripts and headers of programs write: where file
/// names differ by case, that is not the name of the system's own header.
#pragma once
#pragma GCC system_header // it hands on to the header of the same name, an extension

#include_next <sdkddkver.h>
