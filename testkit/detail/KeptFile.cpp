#include "testkit/detail/KeptFile.h"

#include "testkit/Window.h"

#include <algorithm>
#include <cstdio>

namespace testkit::detail {

bool IsKeeping() {
    return ::GetEnvironmentVariable(L"FIELDKIT_KEEP_PICTURES", nullptr, 0) != 0;
}

bool WriteKept(const std::wstring& path, const std::string& text) {
    std::FILE* const pFile = ::_wfopen(path.c_str(), L"wb");
    if (pFile == nullptr)
        return false;
    const bool bWritten = std::fwrite(text.data(), 1, text.size(), pFile) == text.size();
    return std::fclose(pFile) == 0 && bWritten;
}

std::string ReadKept(const std::wstring& path) {
    std::string text;
    if (std::FILE* const pFile = ::_wfopen(path.c_str(), L"rb")) {
        for (int c = std::fgetc(pFile); c != EOF; c = std::fgetc(pFile))
            text += static_cast<char>(c);
        std::fclose(pFile);
    }
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

std::wstring NameOfNow(const std::wstring& path) {
    return path.substr(path.find_last_of(L"\\/") + 1) + L".now";
}

} // namespace testkit::detail
