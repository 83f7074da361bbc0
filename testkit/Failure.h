/// @file
/// How the kit tells that something is not as a test wants it.
#pragma once

#include <functional>
#include <string>

namespace testkit {

/// A line of a test, for messages. As a default argument it is the line of the call.
struct Place {
    /// The line where this is written.
    Place(const char* psz = __builtin_FILE(), int n = __builtin_LINE()) : pszFile(psz), nLine(n) {}

    const char* pszFile; ///< As the compiler was told.
    int nLine;           ///< From 1.
};

/// "Test.cpp:12", without folders.
std::string TextOf(const Place& place);

/// What a failure is handed to. It may throw: the exception comes out of the function of the kit
/// that the test has called, after the dialogs that were open are closed.
using Reporter = std::function<void(const std::string& text, const Place& place)>;

/// Reports to something else from now on: to a test framework, or by an exception. Without one,
/// failures are printed to stderr, with a picture of the screen (SaveScreen()). "testkit/GTest.h"
/// sets one for GoogleTest.
/// @return the one before
Reporter SetReporter(Reporter reporter);

/// Reports a failure; for the kit, and for tests that have no framework.
/// @param text in UTF-8
void Fail(const std::string& text, const Place& place = {});

/// The failures up to now, of this process: what main() returns if there is no test framework.
int Failures();

} // namespace testkit
