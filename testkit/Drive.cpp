#include "testkit/Drive.h"

#include "atlconv.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace testkit {

namespace {

void Check(bool bGood, const char* pszWhat) {
    if (!bGood)
        throw std::runtime_error(pszWhat);
}

void DeleteTree(const CString& strFolder) {
    WIN32_FIND_DATA entry;
    const HANDLE hFind = ::FindFirstFile(L"\\\\?\\" + strFolder + L"\\*", &entry);
    for (BOOL bMore = hFind != INVALID_HANDLE_VALUE; bMore; bMore = ::FindNextFile(hFind, &entry)) {
        const CString strName = entry.cFileName, strPath = strFolder + L"\\" + strName;
        ::SetFileAttributes(L"\\\\?\\" + strPath, FILE_ATTRIBUTE_NORMAL);
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            ::DeleteFile(L"\\\\?\\" + strPath);
        else if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
            ::RemoveDirectory(L"\\\\?\\" + strPath);
        else if (strName != L"." && strName != L"..")
            DeleteTree(strPath);
    }
    ::FindClose(hFind);
    ::RemoveDirectory(L"\\\\?\\" + strFolder);
}

// --- Wine defines drives, but does not find files on them; its own are links -----------

std::string UnixName(const CString& strPath) {
    using Function = char*(CDECL*)(LPCWSTR);
    const auto pfn = reinterpret_cast<Function>(reinterpret_cast<UINT_PTR>(
        ::GetProcAddress(::GetModuleHandle(L"kernel32.dll"), "wine_get_unix_file_name")));
    char* const pszName = pfn != nullptr ? pfn(strPath) : nullptr;
    std::string name = pszName != nullptr ? pszName : "";
    ::HeapFree(::GetProcessHeap(), 0, pszName);
    return name;
}

/// Wine gives no handle of such a process to wait for.
void RunUnix(const std::string& command, const std::function<bool()>& done) {
    CString strLine =
        L"sh -c \"" + CString(CA2W(command.c_str(), CP_UTF8)) + L"\""; // as Wine has names of files
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    ::CreateProcess(L"Z:\\bin\\sh", strLine.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, L"Z:\\",
                    &startup, &process);
    constexpr int kMaxWaits = 3000; // a minute: there may be thousands of files to delete
    for (int i = 0; i < kMaxWaits && !done(); ++i)
        ::Sleep(20);
}

struct Disk {
    Disk() : strLetter(FreeLetter()) {
        wchar_t szTemp[MAX_PATH];
        ::GetTempPath(MAX_PATH, szTemp);
        static int s_nDrives = 0;
        strFolder.Format(L"%sfk%u-%d", szTemp, ::GetCurrentProcessId(), ++s_nDrives);
        ::CreateDirectory(strFolder, nullptr);
        if (!::DefineDosDevice(0, strLetter, strFolder) ||
            ::GetFileAttributes(strLetter + L"\\") == INVALID_FILE_ATTRIBUTES)
            DefineUnderWine();
    }
    ~Disk() {
        if (unixLink.empty()) {
            DeleteTree(strFolder);
            ::DefineDosDevice(DDD_REMOVE_DEFINITION, strLetter, nullptr);
        } else {
            RunUnix("rm -rf '" + unixLink + "' '" + UnixName(strFolder) + "'",
                    [this] { return ::GetFileAttributes(strFolder) == INVALID_FILE_ATTRIBUTES; });
        }
    }

    void Clear(bool bByUnix) const {
        const auto isThere = [this] { return ::GetFileAttributes(strFolder) != INVALID_FILE_ATTRIBUTES; };
        if (bByUnix)
            RunUnix("rm -rf '" + UnixName(strFolder) + "'", [=] { return !isThere(); });
        else
            DeleteTree(strFolder);
        ::CreateDirectory(strFolder, nullptr);
    }
    void DefineUnderWine() {
        ::DefineDosDevice(DDD_REMOVE_DEFINITION, strLetter, nullptr);
        const std::string folder = UnixName(strFolder);
        unixLink = folder.substr(0, folder.find("/c:") + 1);
        unixLink += {static_cast<char>(strLetter[0] - L'A' + 'a'), ':'};
        RunUnix("ln -s '" + folder + "' '" + unixLink + "'",
                [this] { return ::GetFileAttributes(strLetter + L"\\") != INVALID_FILE_ATTRIBUTES; });
    }
    static CString FreeLetter() {
        wchar_t chLetter = L'Y';
        while (chLetter > L'D' && (::GetLogicalDrives() & 1U << (chLetter - L'A')) != 0)
            --chLetter;
        return CString(chLetter) + L":";
    }

    CString strFolder, strLetter;
    std::string unixLink; ///< Under Wine: the link that is the drive.
};

std::unique_ptr<Disk> g_pDisk;

} // namespace

Drive::Drive() {
    ::GetCurrentDirectory(MAX_PATH, m_szPrevious);
    if (g_pDisk == nullptr)
        g_pDisk = std::make_unique<Disk>();
    m_strLetter = g_pDisk->strLetter;
    Check(::SetCurrentDirectory(Root()), "no drive to test on");
}

Drive::~Drive() {
    ::SetCurrentDirectory(m_szPrevious);
    if (m_bRemoved)
        g_pDisk.reset();
    else
        g_pDisk->Clear(m_bByUnix);
}

void Drive::MakeFolder(const CString& strPath) const {
    Check(::CreateDirectory(Long(strPath), nullptr), "cannot make a folder");
}
void Drive::MakeFile(const CString& strPath, DWORD nBytes) const {
    const HANDLE hFile =
        ::CreateFile(Long(strPath), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    Check(hFile != INVALID_HANDLE_VALUE, "cannot make a file");
    ::SetFilePointer(hFile, static_cast<LONG>(nBytes), nullptr, FILE_BEGIN);
    ::SetEndOfFile(hFile);
    ::CloseHandle(hFile);
}

void Drive::MakeMany(Kind kind, const CString& strFolder, const char* pszFormat, int nCount) {
    const auto path = [&](int i) {
        CString str;
        str.Format(strFolder + L"\\" + CString(pszFormat), static_cast<double>(i));
        return str;
    };
    if (g_pDisk->unixLink.empty()) {
        for (int i = 0; i < nCount; ++i)
            kind == Files ? MakeFile(path(i)) : MakeFolder(path(i));
        return;
    }
    const std::string command = "cd '" + UnixName(strFolder + L"\\") + "' && seq -f '" + pszFormat + "' 0 " +
                                std::to_string(nCount - 1) + " | xargs -d '\\n' " +
                                (kind == Files ? "touch" : "mkdir");
    MakeByUnix(command.c_str(), path(nCount - 1));
}

bool Drive::MakeForeignFiles(const CString& strFolder, std::initializer_list<const char*> names) {
    if (g_pDisk->unixLink.empty())
        return false;
    std::string command = "cd '" + UnixName(strFolder + L"\\") + "' && touch";
    for (const char* pszName : names)
        command += std::string(" '") + pszName + "'";
    MakeByUnix(command.c_str(), strFolder + L"\\" + CString(std::data(names)[names.size() - 1]));
    return true;
}

bool Drive::MakeLink(const CString& strPath, const CString& strTarget) {
    if (g_pDisk->unixLink.empty())
        return ::CreateSymbolicLink(Long(strPath), Root() + strTarget.Mid(1),
                                    SYMBOLIC_LINK_FLAG_DIRECTORY |
                                        SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE) != 0;
    const std::string command = "ln -s '" + UnixName(strTarget) + "' '" + UnixName(strPath) + "'";
    MakeByUnix(command.c_str(), strPath);
    return true;
}

void Drive::Remove() {
    const auto isGone = [this] { return ::GetFileAttributes(Root()) == INVALID_FILE_ATTRIBUTES; };
    if (g_pDisk->unixLink.empty())
        ::DefineDosDevice(DDD_REMOVE_DEFINITION, m_strLetter, nullptr);
    else
        RunUnix("rm '" + g_pDisk->unixLink + "'", isGone);
    m_bRemoved = true;
    Check(isGone(), "the drive is still there");
}

void Drive::MakeByUnix(const char* pszCommand, const CString& strLast) {
    const auto isThere = [&] { return ::GetFileAttributes(Long(strLast)) != INVALID_FILE_ATTRIBUTES; };
    m_bByUnix = true;
    RunUnix(pszCommand, isThere);
    Check(isThere(), "cannot make what is asked for");
}

} // namespace testkit
