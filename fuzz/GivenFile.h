/// @file
/// CGivenFile: a text file whose content is given.
#pragma once

#include "util/AsciiFile.h"

#include <cstddef>
#include <cstdint>

/// Lies in memory; everything else is CAsciiFile's.
class CGivenFile : public CAsciiFile {
public:
    CGivenFile(const std::uint8_t* pData, std::size_t nSize) {
        m_content.Write(pData, static_cast<UINT>(nSize));
        m_content.SeekToBegin();
    }
    ULONGLONG GetPosition() const override { return m_content.GetPosition(); }
    ULONGLONG GetLength() const override { return m_content.GetLength(); }
    ULONGLONG Seek(LONGLONG nOffset, UINT nFrom) override { return m_content.Seek(nOffset, nFrom); }
    UINT Read(void* pBuffer, UINT nCount) override { return m_content.Read(pBuffer, nCount); }
    void Write(const void* pBuffer, UINT nCount) override { m_content.Write(pBuffer, nCount); }

private:
    CMemFile m_content;
};
