/// @file
/// Archives as hexadecimal text, so that tests can show every byte.
#pragma once

#include "support/Rows.h"

#include "afx.h"

#include <string>
#include <vector>

using Bytes = std::vector<BYTE>;

/// "01 ff" or "01ff" as bytes.
inline Bytes FromHex(const std::string& hex) {
    Bytes bytes;
    std::string digits;
    for (const char c : hex) {
        if (c != ' ')
            digits += c;
        if (digits.size() == 2) {
            bytes.push_back(static_cast<BYTE>(std::stoi(digits, nullptr, 16)));
            digits.clear();
        }
    }
    return bytes;
}

inline std::string ToHex(const Bytes& bytes) {
    std::string hex;
    for (const BYTE by : bytes) {
        hex += hex.empty() ? "" : " ";
        hex += "0123456789abcdef"[by >> 4];
        hex += "0123456789abcdef"[by & 15];
    }
    return hex;
}

inline Bytes ContentOf(CFile& file) {
    Bytes bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// What `fill(archive)` stores.
template <class Fill>
Bytes Stored(Fill fill) {
    CMemFile file;
    CArchive ar(&file, CArchive::store, 128);
    fill(ar);
    ar.Close();
    return ContentOf(file);
}

/// The cause of the exception that `use()` throws, 0 if it throws none.
template <class Exception = CFileException, class Use>
int CauseOf(Use use) {
    try {
        use();
    } catch (Exception* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return 0;
}

/// Lets `use(archive)` load from the bytes.
/// @return the cause of its CArchiveException, none if it threw none.
template <class Use>
int Loaded(const Bytes& bytes, Use use) {
    CMemFile file;
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    file.SeekToBegin();
    return CauseOf<CArchiveException>([&] {
        CArchive ar(&file, CArchive::load, 128);
        use(ar);
    });
}
