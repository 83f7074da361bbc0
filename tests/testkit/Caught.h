// Failures of the kit that a test expects.
#pragma once

#include "support/TestApp.h"

#include <string>
#include <vector>

namespace fx {

/// While it exists, failures are kept here.
struct Caught {
    Caught() {
        m_before = SetReporter([this](const std::string& text, const Place&) { m_texts.push_back(text); });
    }
    ~Caught() { SetReporter(m_before); }

    std::vector<std::string> m_texts;

private:
    Reporter m_before;
};

/// The path of this program.
inline std::wstring OwnPath() {
    wchar_t szPath[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    return szPath;
}

} // namespace fx
