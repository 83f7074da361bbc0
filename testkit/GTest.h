/// @file
/// Failures of the kit become GoogleTest's, at the line of the test, and each failed assertion
/// saves a picture of the screen. Include it in the sources of a test program; one is enough.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Picture.h"

#include "afxstr.h"

#include <gtest/gtest.h>

#include <ostream>

/// Failed comparisons of CString print the text, not the bytes of the object.
void PrintTo(const CString& str, std::ostream* os);

namespace testkit {

/// What stands on the screen at each failure.
class FailurePictures : public testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult& result) override {
        if (result.failed())
            SaveScreen();
    }
};

/// The reporter for GoogleTest.
inline void ReportToGTest(const std::string& text, const Place& place) {
    ADD_FAILURE_AT(place.pszFile, place.nLine) << text;
}

/// Sets it, and the pictures, before the tests begin.
inline const bool g_bReportsToGTest = [] {
    SetReporter(ReportToGTest);
    testing::UnitTest::GetInstance()->listeners().Append(new FailurePictures);
    return true;
}();

} // namespace testkit
