/// @file
/// The system's 8-bit code page, in which text files without any mark are. Strict: nothing becomes
/// something else on the way.
#pragma once

#include <afx.h>

#include <string>

/// @param text written on success only
/// @return false for bytes that are no text in the code page
bool OemToWide(const std::string& bytes, std::wstring& text);

/// @param bytes receives the text in the code page behind what is there; untouched on failure
/// @return false for a character that has no place in the code page
bool AppendOem(const CString& strText, std::string& bytes);

/// A text that the code page can hold: characters without a place there are written by their
/// numbers, as <U+20BB7>.
CString SpellForOem(const CString& strText);
