// For "testkit/GTest.h", in a file of its own: programs without the framework do not need it.
#include "testkit/Window.h"

#include "afxstr.h"

#include <ostream>

void PrintTo(const CString& str, std::ostream* os);

void PrintTo(const CString& str, std::ostream* os) {
    *os << '"' << testkit::Utf8(str) << '"';
}
