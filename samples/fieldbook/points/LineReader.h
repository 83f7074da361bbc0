/// @file
/// CLineReader: reads a text file to its end without losing a line.
#pragma once

#include "util/AsciiFile.h"

/// CAsciiFile::ReadString gives 0 both at the end of the file and inside a line that is too
/// long, and drops what stands behind the last CR. This class tells the cases apart.
class CLineReader {
public:
    enum class Line { Text, TooLong, NotTerminated, End };

    /// @param file open for reading; must outlive the reader
    explicit CLineReader(CAsciiFile& file) : m_file(file) {}

    /// Moves to the next line.
    /// @param strLine receives the line for Line::Text only
    /// @throw CFileException* as CFile::Read
    Line Next(CString& strLine);

private:
    void SkipRestOfLine();
    bool HasTextFrom(ULONGLONG nPosition);

    CAsciiFile& m_file;
};
