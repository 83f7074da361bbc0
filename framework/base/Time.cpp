// Times beyond 2038 on processors of 32 bits too.
#ifndef _WIN32
#define _FILE_OFFSET_BITS 64
#define _TIME_BITS 64
#endif

#include "afx.h"

#include <cwchar>
#include <string>

#ifndef _WIN32
static_assert(sizeof(std::time_t) == 8);
#endif

namespace {

constexpr int kFirstYear = 1970;
constexpr int kLastYear = 3000;

std::tm& OfThread() {
    static thread_local std::tm parts;
    return parts;
}

bool IsKnown(LONGLONG time) {
    constexpr LONGLONG kLastTime = 32'535'215'999; // of the year 3000
    return time >= 0 && time <= kLastTime;
}

#ifdef _WIN32
bool ToLocal(LONGLONG time, std::tm& parts) {
    return IsKnown(time) && _localtime64_s(&parts, &time) == 0;
}
bool ToUniversal(LONGLONG time, std::tm& parts) {
    return IsKnown(time) && _gmtime64_s(&parts, &time) == 0;
}
LONGLONG FromLocal(std::tm& parts) {
    return _mktime64(&parts);
}
#else
bool ToLocal(LONGLONG time, std::tm& parts) {
    const auto value = static_cast<std::time_t>(time);
    localtime_r(&value, &parts);
    return IsKnown(time);
}
bool ToUniversal(LONGLONG time, std::tm& parts) {
    const auto value = static_cast<std::time_t>(time);
    gmtime_r(&value, &parts);
    return IsKnown(time);
}
LONGLONG FromLocal(std::tm& parts) {
    return std::mktime(&parts);
}
#endif

LONGLONG Compose(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST) {
    const struct {
        int value, least, most;
    } ranges[] = {{nYear, kFirstYear, kLastYear},
                  {nMonth, 1, 12},
                  {nDay, 1, 31},
                  {nHour, 0, 23},
                  {nMin, 0, 59},
                  {nSec, 0, 59}};
    for (const auto& range : ranges)
        if (range.value < range.least || range.value > range.most)
            AfxThrowInvalidArgException();
    std::tm parts{};
    parts.tm_year = nYear - 1900;
    parts.tm_mon = nMonth - 1;
    parts.tm_mday = nDay;
    parts.tm_hour = nHour;
    parts.tm_min = nMin;
    parts.tm_sec = nSec;
    parts.tm_isdst = nDST;
    const LONGLONG time = FromLocal(parts);
    if (time < 0)
        AfxThrowInvalidArgException(); // before the beginning, east of Greenwich
    return time;
}

CString FormatParts(LPCTSTR pszFormat, const std::tm& parts) {
    constexpr std::size_t kMostOfOne = 128; // characters that a conversion makes
    const CString strFormat = pszFormat;
    std::wstring text(kMostOfOne * (static_cast<std::size_t>(strFormat.GetLength()) + 1), L'\0');
    const std::size_t nLength = std::wcsftime(text.data(), text.size(), strFormat, &parts);
    return {text.data(), static_cast<int>(nLength)};
}

CArchive& Serialize(CArchive& ar, LONGLONG& value) {
    return ar.IsStoring() ? ar << value : ar >> value;
}

} // namespace

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
    : m_time(Compose(nYear, nMonth, nDay, nHour, nMin, nSec, nDST)) {}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : m_time(Compose((wDosDate >> 9) + 1980, wDosDate >> 5 & 15, wDosDate & 31, wDosTime >> 11,
                     wDosTime >> 5 & 63, (wDosTime & 31) * 2, nDST)) {}

#ifdef _WIN32
CTime::CTime(const SYSTEMTIME& st, int nDST)
    : m_time(Compose(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST)) {}

CTime::CTime(const FILETIME& ft, int /*nDST*/) {
    // Steps of 100 nanoseconds since the beginning of 1601.
    constexpr LONGLONG kStepsASecond = 10'000'000;
    constexpr LONGLONG kSecondsTo1970 = 11'644'473'600;
    const LONGLONG nSteps = static_cast<LONGLONG>(ft.dwHighDateTime) << 32 | ft.dwLowDateTime;
    if (nSteps / kStepsASecond < kSecondsTo1970)
        AfxThrowInvalidArgException();
    m_time = nSteps / kStepsASecond - kSecondsTo1970;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const {
    std::tm parts{};
    if (GetLocalTm(&parts) == nullptr)
        return false;
    const auto word = [](int n) { return static_cast<WORD>(n); };
    st = {word(parts.tm_year + 1900), word(parts.tm_mon + 1), word(parts.tm_wday), word(parts.tm_mday),
          word(parts.tm_hour),        word(parts.tm_min),     word(parts.tm_sec),  0};
    return true;
}
#endif

std::tm* CTime::GetGmtTm(std::tm* ptm) const {
    std::tm& parts = ptm != nullptr ? *ptm : OfThread();
    return ToUniversal(m_time, parts) ? &parts : nullptr;
}

std::tm* CTime::GetLocalTm(std::tm* ptm) const {
    std::tm& parts = ptm != nullptr ? *ptm : OfThread();
    return ToLocal(m_time, parts) ? &parts : nullptr;
}

std::tm CTime::Parts() const {
    std::tm parts{};
    if (!ToLocal(m_time, parts))
        AfxThrowInvalidArgException();
    return parts;
}

CString CTime::Format(LPCTSTR pszFormat) const {
    std::tm parts{};
    return ToLocal(m_time, parts) ? FormatParts(pszFormat, parts) : CString();
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const {
    std::tm parts{};
    return ToUniversal(m_time, parts) ? FormatParts(pszFormat, parts) : CString();
}

CArchive& CTime::Serialize64(CArchive& ar) {
    return Serialize(ar, m_time);
}

CArchive& CTimeSpan::Serialize64(CArchive& ar) {
    return Serialize(ar, m_nSeconds);
}

CString CTimeSpan::Format(LPCTSTR pszFormat) const {
    CString text;
    for (LPCTSTR p = pszFormat != nullptr ? pszFormat : L""; *p != L'\0'; ++p) {
        if (*p != L'%') {
            text += *p;
            continue;
        }
        switch (*++p) {
        case L'D':
            text.AppendFormat(L"%I64d", GetDays());
            break;
        case L'H':
            text.AppendFormat(L"%02d", static_cast<int>(GetHours()));
            break;
        case L'M':
            text.AppendFormat(L"%02d", static_cast<int>(GetMinutes()));
            break;
        case L'S':
            text.AppendFormat(L"%02d", static_cast<int>(GetSeconds()));
            break;
        case L'%':
            text += L'%';
            break;
        default:
            AfxThrowInvalidArgException();
        }
    }
    return text;
}
