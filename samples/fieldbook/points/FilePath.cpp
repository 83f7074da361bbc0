#include "points/FilePath.h"

#include "Tesuvo.h"

#include <vector>

namespace {

constexpr int kDriveLength = 2; // "C:"

} // namespace

CString FullPathOf(const CString& strPath) {
    const DWORD nSize = ::GetFullPathName(strPath, 0, nullptr, nullptr);
    std::vector<wchar_t> full(nSize + 1);
    ::GetFullPathName(strPath, nSize, full.data(), nullptr);
    return full.data();
}

CString TitleOf(const CString& strPath) {
    CString strTitle;
    TVResolveFilePath(strPath, nullptr, &strTitle, nullptr);
    return strTitle;
}

CString FileNameOf(const CString& strPath) {
    CString strTitle;
    CString strExtension;
    TVResolveFilePath(strPath, nullptr, &strTitle, &strExtension);
    return strExtension.IsEmpty() ? strTitle : strTitle + L"." + strExtension;
}

CString PathIn(const CString& strFolder, const CString& strName) {
    // The root brings its own backslash: two of them would begin the name of a server.
    return strFolder.Right(1) == L"\\" ? strFolder + strName : strFolder + L"\\" + strName;
}

bool IsSamePath(const CString& strPath1, const CString& strPath2) {
    return FullPathOf(strPath1).CompareNoCase(FullPathOf(strPath2)) == 0;
}

CFileStamp StampOf(const CString& strPath) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesEx(strPath, GetFileExInfoStandard, &data))
        return {};
    const auto join = [](DWORD dwHigh, DWORD dwLow) { return ULONGLONG{dwHigh} << 32 | dwLow; };
    return {join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            join(data.nFileSizeHigh, data.nFileSizeLow), true};
}

CString FolderOf(const CString& strPath) {
    CString strFolder;
    TVResolveFilePath(FullPathOf(strPath), &strFolder, nullptr, nullptr);
    const CString strCurrentDrive = FullPathOf(L"\\").Left(kDriveLength);
    return strFolder.Left(kDriveLength).CompareNoCase(strCurrentDrive) == 0 ? strFolder.Mid(kDriveLength)
                                                                            : strFolder;
}
