// Archives, and text files that are read in blocks, beside the C library's files. A size is the number
// of texts. The texts that are written are the same, and in the archives every byte.
#include "Rows.h"

#include "util/BufferedAsciiFile.h"

#include <cstdio>
#include <memory>

namespace bench {

namespace {

constexpr double kArchiveGoal = 1.2;
constexpr double kLinesGoal = 3;
constexpr double kUnbufferedGoal = 1.2;
constexpr int kLength = 24;
constexpr auto kPath = L"\\texts";

using FilePtr = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

FilePtr OpenBare(const wchar_t* pszMode) {
    return {::_wfopen(kPath, pszMode), std::fclose};
}

// --- Archives: integers -----------------------------------------------------------------------

Cost StoreNumbersBare(int n) {
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"wb");
        for (int i = 0; i < n; ++i)
            std::fwrite(&i, sizeof i, 1, file.get());
    });
}

Cost StoreNumbersOurs(int n) {
    return Timed(1, [&] {
        CFile file(kPath, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        for (int i = 0; i < n; ++i)
            ar << i;
    });
}

Cost LoadNumbersBare(int n) {
    StoreNumbersBare(n);
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"rb");
        for (int i = 0; i < n; ++i) {
            int nRead = 0;
            std::fread(&nRead, sizeof nRead, 1, file.get());
            Take(static_cast<std::size_t>(nRead));
        }
    });
}

Cost LoadNumbersOurs(int n) {
    StoreNumbersBare(n);
    return Timed(1, [&] {
        CFile file(kPath, CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        for (int i = 0; i < n; ++i) {
            int nRead = 0;
            ar >> nRead;
            Take(static_cast<std::size_t>(nRead));
        }
    });
}

// --- Archives: FF FE FF, the length in a byte, the units ------------------------------------

Cost StoreBare(int n) {
    const auto texts = TextsOf<std::wstring>(n, kLength);
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"wb");
        for (const std::wstring& text : texts) {
            const unsigned char head[] = {0xFF, 0xFE, 0xFF, static_cast<unsigned char>(text.size())};
            std::fwrite(head, 1, sizeof head, file.get());
            std::fwrite(text.data(), sizeof(wchar_t), text.size(), file.get());
        }
    });
}

Cost StoreOurs(int n) {
    const auto texts = TextsOf<CString>(n, kLength);
    return Timed(1, [&] {
        CFile file(kPath, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        for (const CString& text : texts)
            ar << text;
    });
}

Cost LoadBare(int n) {
    StoreBare(n);
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"rb");
        std::wstring text;
        for (int i = 0; i < n; ++i) {
            unsigned char head[4];
            std::fread(head, 1, sizeof head, file.get());
            text.resize(head[3]);
            std::fread(text.data(), sizeof(wchar_t), text.size(), file.get());
            Take(text.size());
        }
    });
}

Cost LoadOurs(int n) {
    StoreBare(n);
    return Timed(1, [&] {
        CFile file(kPath, CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        CString str;
        for (int i = 0; i < n; ++i) {
            ar >> str;
            Take(static_cast<std::size_t>(str.GetLength()));
        }
    });
}

// --- Lines of a text file -------------------------------------------------------------------

Cost WriteBare(int n) {
    const auto texts = TextsOf<std::wstring>(n, kLength);
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"wb");
        char bytes[256];
        for (const std::wstring& text : texts) {
            const int nBytes = ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                                     bytes, sizeof bytes, nullptr, nullptr);
            std::fwrite(bytes, 1, static_cast<std::size_t>(nBytes), file.get());
            std::fwrite("\r\n", 1, 2, file.get());
        }
    });
}

/// A line is two writes of the system here as there.
Cost WriteUnbufferedBare(int n) {
    const auto texts = TextsOf<std::wstring>(n, kLength);
    return Timed(1, [&] {
        const HANDLE hFile =
            ::CreateFile(kPath, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        char bytes[256];
        DWORD nWritten;
        for (const std::wstring& text : texts) {
            const int nBytes = ::WideCharToMultiByte(CP_OEMCP, 0, text.data(), static_cast<int>(text.size()),
                                                     bytes, sizeof bytes, nullptr, nullptr);
            ::WriteFile(hFile, bytes, static_cast<DWORD>(nBytes), &nWritten, nullptr);
            ::WriteFile(hFile, "\r\n", 2, &nWritten, nullptr);
        }
        ::CloseHandle(hFile);
    });
}

template <class File>
Cost WriteOurs(int n) {
    const auto texts = TextsOf<CString>(n, kLength);
    return Timed(1, [&] {
        File file;
        file.Open(kPath, CFile::modeCreate | CFile::modeWrite);
        for (const CString& text : texts)
            file.WriteString(text);
        file.Close();
    });
}

Cost ReadBare(int n) {
    WriteBare(n);
    return Timed(1, [&] {
        const FilePtr file = OpenBare(L"rb");
        char line[256];
        wchar_t wide[256];
        std::wstring text;
        while (std::fgets(line, sizeof line, file.get()) != nullptr) {
            const int nChars =
                ::MultiByteToWideChar(CP_ACP, 0, line, -1, wide, static_cast<int>(std::size(wide)));
            text.assign(wide, static_cast<std::size_t>(nChars - 3));
            Take(text.size());
        }
    });
}

Cost ReadOurs(int n) {
    WriteBare(n);
    return Timed(1, [&] {
        CBufferedAsciiFile file;
        file.Open(kPath, CFile::modeRead);
        for (CString str; file.ReadString(str) != 0;)
            Take(static_cast<std::size_t>(str.GetLength()));
    });
}

} // namespace

std::vector<Row> FileRows() {
    return {
        {"archive: integers written", kArchiveGoal, {1000, 100000}, StoreNumbersBare, StoreNumbersOurs},
        {"archive: integers read", kArchiveGoal, {1000, 100000}, LoadNumbersBare, LoadNumbersOurs},
        {"archive: strings written", kArchiveGoal, {1000, 100000}, StoreBare, StoreOurs},
        {"archive: strings read", kArchiveGoal, {1000, 100000}, LoadBare, LoadOurs},
        {"lines written one by one",
         kUnbufferedGoal,
         {1000, 10000},
         WriteUnbufferedBare,
         WriteOurs<CAsciiFile>},
        {"lines written in blocks", kLinesGoal, {10000, 1000000}, WriteBare, WriteOurs<CBufferedAsciiFile>},
        {"lines read in blocks", kLinesGoal, {10000, 1000000}, ReadBare, ReadOurs}};
}

} // namespace bench
