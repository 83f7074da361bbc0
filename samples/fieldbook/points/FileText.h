/// @file
/// Text files as people send them: in which encoding, with which line ends.
#pragma once

#include "points/Progress.h"

#include <afx.h>

#include <string>
#include <vector>

enum class Encoding {
    Oem, ///< The system's 8-bit code page.
    Utf8,
    Utf8Bom,
    Utf16Le, ///< With its mark, as all UTF-16 here.
    Utf16Be,
};

enum class LineEnd { CrLf, Lf, Cr };

struct CTextForm {
    Encoding encoding = Encoding::Oem;
    LineEnd lineEnd = LineEnd::CrLf;
};

/// A text file taken apart.
struct CFileText {
    CTextForm form; ///< The line end is that of the first line.
    std::vector<CString> lines;
    bool bEnded = true;          ///< Whether the last line has its line end.
    std::vector<int> unreadable; ///< Numbers, from 1, of lines that are no text; all others are dropped then.
};

/// Recognises the encoding and takes the lines apart. CR, LF and CR LF each end a line; a Ctrl-Z at
/// the end does not count.
///
/// Without a mark, bytes are UTF-8 if they can be, and the code page's otherwise. Short runs of
/// half-width katakana are both: they are taken for the code page's.
CFileText DecodeText(const std::string& bytes, const Progress& progress = {});

/// Lines as the bytes of a file.
class CTextEncoder {
public:
    explicit CTextEncoder(const CTextForm& form);

    /// Appends a line and its end.
    /// @return false, with nothing appended, if the encoding has no place for a character
    bool Add(const CString& strLine);
    const std::string& GetBytes() const { return m_bytes; }

private:
    CTextForm m_form;
    std::string m_bytes;
};

/// Whether an encoding has a place for each character.
bool CanEncode(const CString& strText, Encoding encoding);

/// A text in UTF-8, and back.
///@{
std::string ToUtf8(const CString& strText);
/// @return false, with nothing written, for bytes that are no UTF-8
bool FromUtf8(const std::string& bytes, CString& strText);
///@}
