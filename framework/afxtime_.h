/// @file
/// CTime and CTimeSpan. Included by afx.h.
#pragma once

#include "afxarc_.h"

#include <ctime>

#ifdef GetCurrentTime
#undef GetCurrentTime // an old system macro of this name takes the place of CTime's function
#endif

/// A length of time in seconds, negative ones too.
class AFX_CORE CTimeSpan {
public:
    CTimeSpan() noexcept = default;
    /// That many seconds.
    CTimeSpan(LONGLONG nSeconds) noexcept : m_nSeconds(nSeconds) {}
    /// The sum of the parts.
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
        : m_nSeconds(((LONGLONG{lDays} * 24 + nHours) * 60 + nMins) * 60 + nSecs) {}

    /// The whole span in one unit, cut towards zero, and the rest beyond the next larger unit.
    ///@{
    LONGLONG GetDays() const noexcept { return m_nSeconds / 86400; }
    LONGLONG GetTotalHours() const noexcept { return m_nSeconds / 3600; }
    LONG GetHours() const noexcept { return static_cast<LONG>(GetTotalHours() % 24); }
    LONGLONG GetTotalMinutes() const noexcept { return m_nSeconds / 60; }
    LONG GetMinutes() const noexcept { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONGLONG GetTotalSeconds() const noexcept { return m_nSeconds; }
    LONG GetSeconds() const noexcept { return static_cast<LONG>(m_nSeconds % 60); }
    LONGLONG GetTimeSpan() const noexcept { return m_nSeconds; }
    ///@}

    // clang-format off
    /// Sums, differences and comparisons in seconds.
    ///@{
    CTimeSpan operator+(CTimeSpan span) const noexcept { return m_nSeconds + span.m_nSeconds; }
    CTimeSpan operator-(CTimeSpan span) const noexcept { return m_nSeconds - span.m_nSeconds; }
    CTimeSpan& operator+=(CTimeSpan span) noexcept { m_nSeconds += span.m_nSeconds; return *this; }
    CTimeSpan& operator-=(CTimeSpan span) noexcept { m_nSeconds -= span.m_nSeconds; return *this; }
    bool operator==(CTimeSpan span) const noexcept { return m_nSeconds == span.m_nSeconds; }
    bool operator!=(CTimeSpan span) const noexcept { return m_nSeconds != span.m_nSeconds; }
    bool operator<(CTimeSpan span) const noexcept { return m_nSeconds < span.m_nSeconds; }
    bool operator>(CTimeSpan span) const noexcept { return m_nSeconds > span.m_nSeconds; }
    bool operator<=(CTimeSpan span) const noexcept { return m_nSeconds <= span.m_nSeconds; }
    bool operator>=(CTimeSpan span) const noexcept { return m_nSeconds >= span.m_nSeconds; }
    ///@}
    // clang-format on

    /// %D days, %H hours, %M minutes and %S seconds of two digits, %% a percent sign; anything else
    /// throws CInvalidArgException*. Negative parts have their sign.
    CString Format(LPCTSTR pszFormat) const;
#ifdef _WIN32
    /// With a format of the string table.
    CString Format(UINT nFormatID) const {
        return Format(CString(MAKEINTRESOURCE(nFormatID)));
    }
#endif
    /// Stores or loads 8 bytes.
    CArchive& Serialize64(CArchive& ar);

private:
    LONGLONG m_nSeconds = 0;
};

/// A point in time, to the second: seconds since the beginning of 1970 in universal time. The parts
/// are those of local time, from 1970 to 3000. What is outside throws CInvalidArgException*.
class AFX_CORE CTime {
public:
    /// Now.
    static CTime AFXAPI GetCurrentTime() noexcept { return CTime(static_cast<LONGLONG>(std::time(nullptr))); }

    /// The beginning of 1970.
    CTime() noexcept = default;
    /// That many seconds after it, as by the C library's time.
    CTime(LONGLONG time) noexcept : m_time(time) {}
    /// From parts of local time. @param nDST whether summer time holds, -1 if the system shall know.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    /// From the packed form of file systems, 2 seconds a step.
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
#ifdef _WIN32
    /// From local time, and from universal time.
    ///@{
    CTime(const SYSTEMTIME& st, int nDST = -1);
    CTime(const FILETIME& ft, int nDST = -1);
    ///@}
    /// The parts of local time. @return false if the time is outside of what the system knows
    bool GetAsSystemTime(SYSTEMTIME& st) const;
#endif

    /// Seconds since the beginning of 1970.
    LONGLONG GetTime() const noexcept {
        return m_time;
    }
    /// All parts in universal and in local time, as the C library has them.
    /// @param ptm receives them; if it is NULL, memory of the calling thread does.
    /// @return where they are; NULL if the time is outside of what the system knows.
    ///@{
    std::tm* GetGmtTm(std::tm* ptm = nullptr) const;
    std::tm* GetLocalTm(std::tm* ptm = nullptr) const;
    ///@}
    /// Parts of local time: month from 1, day of the week from 1 for Sunday.
    ///@{
    int GetYear() const {
        return Parts().tm_year + 1900;
    }
    int GetMonth() const {
        return Parts().tm_mon + 1;
    }
    int GetDay() const {
        return Parts().tm_mday;
    }
    int GetHour() const {
        return Parts().tm_hour;
    }
    int GetMinute() const {
        return Parts().tm_min;
    }
    int GetSecond() const {
        return Parts().tm_sec;
    }
    int GetDayOfWeek() const {
        return Parts().tm_wday + 1;
    }
    ///@}

    // clang-format off
    /// Arithmetic and comparisons in seconds.
    ///@{
    CTimeSpan operator-(CTime time) const noexcept { return m_time - time.m_time; }
    CTime operator-(CTimeSpan span) const noexcept { return m_time - span.GetTimeSpan(); }
    CTime operator+(CTimeSpan span) const noexcept { return m_time + span.GetTimeSpan(); }
    CTime& operator+=(CTimeSpan span) noexcept { m_time += span.GetTimeSpan(); return *this; }
    CTime& operator-=(CTimeSpan span) noexcept { m_time -= span.GetTimeSpan(); return *this; }
    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }
    ///@}
    // clang-format on

    /// By the C library's strftime, in local and in universal time. A time that the system does not
    /// know gives an empty text.
    ///@{
    CString Format(LPCTSTR pszFormat) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    ///@}
#ifdef _WIN32
    /// With a format of the string table.
    ///@{
    CString Format(UINT nFormatID) const {
        return Format(CString(MAKEINTRESOURCE(nFormatID)));
    }
    CString FormatGmt(UINT nFormatID) const {
        return FormatGmt(CString(MAKEINTRESOURCE(nFormatID)));
    }
    ///@}
#endif
    /// Stores or loads 8 bytes.
    CArchive& Serialize64(CArchive& ar);

private:
    std::tm Parts() const;

    LONGLONG m_time = 0;
};

// clang-format off
/// Stored in 8 bytes.
///@{
inline CArchive& operator<<(CArchive& ar, CTime time) { return time.Serialize64(ar); }
inline CArchive& operator>>(CArchive& ar, CTime& time) { return time.Serialize64(ar); }
inline CArchive& operator<<(CArchive& ar, CTimeSpan span) { return span.Serialize64(ar); }
inline CArchive& operator>>(CArchive& ar, CTimeSpan& span) { return span.Serialize64(ar); }
///@}
// clang-format on
