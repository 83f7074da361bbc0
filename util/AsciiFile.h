/// @file
/// CAsciiFile: text files of 8-bit lines for an application that works with Unicode.
#pragma once

#include <afx.h>

#include "api/Export.h"

/// A file of 8-bit text lines in the OEM code page, each ended by CR LF.
///
/// Opening, closing, positions and errors are CFile's. Reading is meant for data files: a
/// line comes without its blanks and control characters.
class FIELDKIT_API CAsciiFile : public CFile {
public:
    CAsciiFile() = default;

    /// Reads the next line that ends with CR; LF alone ends none.
    ///
    /// Blanks, tabs and all other characters up to code 32 are left out of the line.
    /// @param str receives the line; not touched when the result is 0
    /// @return 1 for a line, an empty one too; 0 at the end of the file, where characters
    ///         without a closing CR are dropped, or for a line of 512 bytes and more: the
    ///         next call then goes on inside that line.
    /// @throw CFileException* as CFile::Read
    int ReadString(CString& str);

    /// Writes one line and CR LF.
    /// @param psz the line; its 8-bit form may have 511 bytes, a longer or unconvertible one
    ///            is written as an empty line. Characters that the code page has not got
    ///            become its default character.
    /// @throw CFileException* as CFile::Write
    virtual void WriteString(const wchar_t* psz);

private:
    void AsciiToString(const unsigned char* pszAscii, int nLen, CString& str);
    unsigned char* StringToAscii(const wchar_t* psz, unsigned char* pBuf, int nBufSize);
};
