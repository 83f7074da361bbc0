/// @file
/// Sums and comparisons of CString. Included by afxstr.h.
#pragma once

#include <type_traits>
#include <utility>

template <class Char>
class CStringT;

/// What stands between two strings, or a string and what becomes one; a base of CStringT, through
/// which the operators are found.
template <class Char>
class AfxStringOperators {
    using String = CStringT<Char>;
    using Other = std::conditional_t<std::is_same_v<Char, char>, wchar_t, char>;

public:
    /// Both texts in one new string.
    ///@{
    friend String operator+(const String& s1, const String& s2) {
        return String::Join(s1, s1.GetLength(), s2, s2.GetLength());
    }
    friend String operator+(const String& s1, const Char* s2) {
        return String::Join(s1, s1.GetLength(), s2, String::StringLength(s2));
    }
    friend String operator+(const Char* s1, const String& s2) {
        return String::Join(s1, String::StringLength(s1), s2, s2.GetLength());
    }
    friend String operator+(const String& s1, const Other* s2) { return s1 + String(s2); }
    friend String operator+(const Other* s1, const String& s2) { return String(s1) + s2; }
    friend String operator+(const String& s1, Char ch) { return String::Join(s1, s1.GetLength(), &ch, 1); }
    friend String operator+(Char ch, const String& s2) { return String::Join(&ch, 1, s2, s2.GetLength()); }
    friend String operator+(const String& s1, Other ch) { return s1 + String(&ch, 1); }
    friend String operator+(Other ch, const String& s2) { return String(&ch, 1) + s2; }
    // The room of an intermediate sum serves the next one.
    friend String operator+(String&& s1, const String& s2) { return std::move(s1 += s2); }
    friend String operator+(String&& s1, const Char* s2) { return std::move(s1 += s2); }
    friend String operator+(String&& s1, const Other* s2) { return std::move(s1 += s2); }
    friend String operator+(String&& s1, Char ch) { return std::move(s1 += ch); }
    friend String operator+(String&& s1, Other ch) { return std::move(s1 += ch); }
    ///@}

    // Text of the other form compares too: it converts first.
    // clang-format off
    /// Compare as by Compare.
    ///@{
    friend bool operator==(const String& s1, const String& s2) { return s1.GetString() == s2.GetString() || s1.Compare(s2) == 0; }
    friend bool operator==(const String& s1, const Char* s2) { return s1.Compare(s2) == 0; }
    friend bool operator==(const Char* s1, const String& s2) { return s2.Compare(s1) == 0; }
    friend bool operator==(const String& s1, Char ch) { return s1.GetLength() == 1 && s1[0] == ch; }
    friend bool operator==(Char ch, const String& s2) { return s2 == ch; }
    friend bool operator!=(const String& s1, const String& s2) { return !(s1 == s2); }
    friend bool operator!=(const String& s1, const Char* s2) { return !(s1 == s2); }
    friend bool operator!=(const Char* s1, const String& s2) { return !(s1 == s2); }
    friend bool operator!=(const String& s1, Char ch) { return !(s1 == ch); }
    friend bool operator!=(Char ch, const String& s2) { return !(s2 == ch); }
    friend bool operator<(const String& s1, const String& s2) { return s1.Compare(s2) < 0; }
    friend bool operator<(const String& s1, const Char* s2) { return s1.Compare(s2) < 0; }
    friend bool operator<(const Char* s1, const String& s2) { return s2.Compare(s1) > 0; }
    friend bool operator>(const String& s1, const String& s2) { return s1.Compare(s2) > 0; }
    friend bool operator>(const String& s1, const Char* s2) { return s1.Compare(s2) > 0; }
    friend bool operator>(const Char* s1, const String& s2) { return s2.Compare(s1) < 0; }
    friend bool operator<=(const String& s1, const String& s2) { return s1.Compare(s2) <= 0; }
    friend bool operator<=(const String& s1, const Char* s2) { return s1.Compare(s2) <= 0; }
    friend bool operator<=(const Char* s1, const String& s2) { return s2.Compare(s1) >= 0; }
    friend bool operator>=(const String& s1, const String& s2) { return s1.Compare(s2) >= 0; }
    friend bool operator>=(const String& s1, const Char* s2) { return s1.Compare(s2) >= 0; }
    friend bool operator>=(const Char* s1, const String& s2) { return s2.Compare(s1) <= 0; }
    ///@}
    // clang-format on
};
