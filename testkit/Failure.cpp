#include "testkit/Failure.h"

#include "testkit/Picture.h"

#include <cstdio>
#include <utility>

namespace testkit {

namespace {

void Print(const std::string& text, const Place& place) {
    std::fprintf(stderr, "%s: %s\n", TextOf(place).c_str(), text.c_str());
    SaveScreen();
}

// Made at the first use: reporters are set before main() begins.
Reporter& TheReporter() {
    static Reporter s_reporter = Print;
    return s_reporter;
}

int g_nFailures = 0;

} // namespace

std::string TextOf(const Place& place) {
    const std::string file = place.pszFile;
    return file.substr(file.find_last_of("/\\") + 1) + ':' + std::to_string(place.nLine);
}

Reporter SetReporter(Reporter reporter) {
    return std::exchange(TheReporter(), reporter ? std::move(reporter) : Print);
}

void Fail(const std::string& text, const Place& place) {
    ++g_nFailures;
    TheReporter()(text, place);
}

int Failures() {
    return g_nFailures;
}

} // namespace testkit
