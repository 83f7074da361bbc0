/// @file
/// FIELDKIT_API marks what the library exports: nothing in a static build,
/// dllexport while Fieldkit.dll itself is built, dllimport for its users.
#pragma once

/// @def FIELDKIT_API
/// Marks what the library exports.

#if !defined(_WIN32) || defined(FIELDKIT_STATIC)
#define FIELDKIT_API
#elif defined(FIELDKIT_EXPORTS)
#define FIELDKIT_API __declspec(dllexport)
#else
#define FIELDKIT_API __declspec(dllimport)
#endif
