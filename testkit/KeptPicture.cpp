#include "testkit/KeptPicture.h"

#include "testkit/detail/KeptFile.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace testkit {

namespace {

/// A character for each color; what comes last, for all further ones.
constexpr char kCharacters[] = ".#abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*=%&?";

/// The colors, in the order of their numbers, and the pixels.
std::string TextOf(const Picture& picture) {
    const CSize size = picture.Size();
    std::map<COLORREF, char> colors;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            colors.emplace(picture.At(x, y), '?');
    std::string text;
    const char* pszNext = kCharacters;
    for (auto color = colors.rbegin(); color != colors.rend(); ++color) { // white is the last one
        color->second = *pszNext;
        char szLine[16];
        std::snprintf(szLine, sizeof szLine, "%c %02X%02X%02X\n", *pszNext, GetRValue(color->first),
                      GetGValue(color->first), GetBValue(color->first));
        text += szLine;
        pszNext += pszNext[1] != 0;
    }
    for (int y = 0; y < size.cy; ++y) {
        text += '\n';
        for (int x = 0; x < size.cx; ++x)
            text += colors.at(picture.At(x, y));
    }
    return text + '\n';
}

} // namespace

std::string PictureFaults(const Picture& picture, const std::wstring& path) {
    const std::string now = TextOf(picture);
    if (detail::IsKeeping())
        return detail::WriteKept(path, now) ? "" : Utf8(path.c_str()) + " cannot be written";
    const std::string kept = detail::ReadKept(path);
    if (now == kept)
        return {};
    const std::wstring name = detail::NameOfNow(path);
    const bool bWritten = detail::WriteKept(name, now);
    const auto end = std::mismatch(now.begin(), now.end(), kept.begin(), kept.end()).first;
    return (kept.empty() ? "there is no " + Utf8(path.c_str())
                         : "not as in " + Utf8(path.c_str()) + " from line " +
                               std::to_string(1 + std::count(now.begin(), end, '\n')) + " on") +
           (bWritten ? ", see " + Utf8(name.c_str()) + " in the current folder" : "");
}

} // namespace testkit
