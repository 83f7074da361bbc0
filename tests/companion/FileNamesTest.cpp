#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <string>
#include <vector>

namespace {

std::wstring Text(const CString& text) {
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

TEST(NumberedName, CountsUpTheDigitsAtTheEnd) {
    struct Row {
        const wchar_t* name;
        const wchar_t* next;
    };
    const Row rows[] = {
        {L"P009", L"P010"},
        {L"P999", L"P1000"},
        {L"P0", L"P1"},
        {L"P", L"P1"},
        {L"data", L"data1"},
        {L"", L"1"},
        {L"9", L"10"},
        {L"000", L"001"},
        {L"P12a", L"P12a1"},
        {L"P9-9", L"P9-10"},
        {L"P-1", L"P-2"},
        {L"P３", L"P３1"},
        {L"測点099", L"測点100"},
        {L"P 1", L"P 2"},
        {L"a.9", L"a.10"},
        {L"P18446744073709551615", L"P18446744073709551616"},
        {L"P99999999999999999999999", L"P100000000000000000000000"},
    };
    for (const Row& row : rows) {
        CString name = row.name;
        TVIncrementName(name);
        EXPECT_EQ(Text(name), row.next);
    }
}

TEST(PathSplit, GivesFolderNameAndExtension) {
    struct Row {
        const wchar_t* path;
        const wchar_t* folder;
        const wchar_t* name;
        const wchar_t* extension;
    };
    const Row rows[] = {
        {L"C:\\Data\\site.csv", L"C:\\Data", L"site", L"csv"},
        {L"C:\\site.csv", L"C:\\", L"site", L"csv"},
        {L"\\site.csv", L"\\", L"site", L"csv"},
        {L"\\My Documents\\site.csv", L"\\My Documents", L"site", L"csv"},
        {L"C:site.csv", L"C:", L"site", L"csv"},
        {L"site.csv", L"", L"site", L"csv"},
        {L"C:/Data/a.b\\site", L"C:/Data/a.b", L"site", L""},
        {L"C:\\Data\\\\site.csv", L"C:\\Data", L"site", L"csv"},
        {L"C:\\Data\\", L"C:\\Data", L"", L""},
        {L"C:\\", L"C:\\", L"", L""},
        {L"C:", L"C:", L"", L""},
        {L"\\", L"\\", L"", L""},
        {L"\\\\server\\share\\site.csv", L"\\\\server\\share", L"site", L"csv"},
        {L"\\\\server\\share.d\\d\\site", L"\\\\server\\share.d\\d", L"site", L""},
        {L"\\\\server\\share.d", L"\\\\server\\share.d", L"", L""},
        {L"\\\\server", L"\\\\server", L"", L""},
        {L"//server/share/site.csv", L"//server/share", L"site", L"csv"},
        {L"\\\\?\\C:\\site.csv", L"\\\\?\\C:\\", L"site", L"csv"},
        {L"\\\\?\\UNC\\server\\share\\site.csv", L"\\\\?\\UNC\\server\\share", L"site", L"csv"},
        {L"site.2024.csv", L"", L"site.2024", L"csv"},
        {L"site", L"", L"site", L""},
        {L"site.", L"", L"site", L""},
        {L"site.csv...", L"", L"site", L"csv"},
        {L".profile", L"", L".profile", L""},
        {L".profile.csv", L"", L".profile", L"csv"},
        {L"..csv", L"", L"..csv", L""},
        {L"C:\\Data\\..", L"C:\\Data", L"..", L""},
        {L"測点.ＣＳＶ", L"", L"測点", L"ＣＳＶ"},
        {L"", L"", L"", L""},
        {nullptr, L"", L"", L""},
    };
    for (const Row& row : rows) {
        CString folder = L"?";
        CString name = L"?";
        CString extension = L"?";
        TVResolveFilePath(row.path, &folder, &name, &extension);
        const std::wstring path = row.path != nullptr ? row.path : L"(null)";
        EXPECT_EQ(Text(folder), row.folder) << path;
        EXPECT_EQ(Text(name), row.name) << path;
        EXPECT_EQ(Text(extension), row.extension) << path;
    }
}

TEST(PathSplit, NeedsNeitherAllResultsNorAPathOfItsOwn) {
    CString name;
    TVResolveFilePath(L"C:\\Data\\site.csv", nullptr, &name, nullptr);
    EXPECT_EQ(Text(name), L"site");

    CString path = L"C:\\Data\\site.csv";
    CString extension;
    TVResolveFilePath(path, &path, &name, &extension);
    EXPECT_EQ(Text(path), L"C:\\Data");
    EXPECT_EQ(Text(name), L"site");
    EXPECT_EQ(Text(extension), L"csv");
}

/// A folder of the test's own under the temporary folder, removed with its contents.
class FileExists : public testing::Test {
protected:
    void SetUp() override {
        wchar_t temp[MAX_PATH];
        ASSERT_NE(::GetTempPathW(MAX_PATH, temp), 0u);
        m_folder = std::wstring(temp) + L"tesuvo" + std::to_wstring(::GetCurrentProcessId());
        MakeFolder(m_folder);
    }

    void TearDown() override {
        for (auto file = m_files.rbegin(); file != m_files.rend(); ++file)
            EXPECT_TRUE(::DeleteFileW(Long(*file).c_str()));
        for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder)
            EXPECT_TRUE(::RemoveDirectoryW(Long(*folder).c_str()));
    }

    void MakeFolder(const std::wstring& path) {
        ASSERT_TRUE(::CreateDirectoryW(Long(path).c_str(), nullptr)) << path;
        m_folders.push_back(path);
    }

    void MakeFile(const std::wstring& path) {
        const HANDLE file =
            ::CreateFileW(Long(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE) << path;
        ::CloseHandle(file);
        m_files.push_back(path);
    }

    std::wstring m_folder;

private:
    static std::wstring Long(const std::wstring& path) { return L"\\\\?\\" + path; }

    std::vector<std::wstring> m_folders;
    std::vector<std::wstring> m_files;
};

TEST_F(FileExists, TellsFilesFromEverythingElse) {
    MakeFile(m_folder + L"\\測点.csv");
    MakeFolder(m_folder + L"\\sub.csv");
    std::wstring forward = m_folder + L"/測点.csv";
    for (wchar_t& c : forward)
        c = c == L'\\' ? L'/' : c;

    struct Row {
        std::wstring path;
        BOOL exists;
    };
    const Row rows[] = {
        {m_folder + L"\\測点.csv", TRUE},
        {forward, TRUE},
        {m_folder + L"\\sub.csv\\..\\測点.csv", TRUE},
        {L"\\\\?\\" + m_folder + L"\\測点.csv", TRUE},
        {m_folder + L"\\sub.csv", FALSE},
        {m_folder + L"\\absent.csv", FALSE},
        {m_folder + L"\\absent\\測点.csv", FALSE},
        {m_folder + L"\\*.csv", FALSE},
        {m_folder + L"\\測点?csv", FALSE},
        {m_folder + L"\\<|>\".csv", FALSE},
        {m_folder, FALSE},
        {L"C:\\", FALSE},
        {L"\\", FALSE},
        {L"NUL", FALSE},
        {m_folder + L"\\NUL", FALSE},
        {L"?:\\測点.csv", FALSE},
        {L"\\\\.\\", FALSE},
        {std::wstring(40'000, L'a'), FALSE},
        {L"", FALSE},
    };
    for (const Row& row : rows)
        EXPECT_EQ(TVCheckFileExist(row.path.c_str()), row.exists) << row.path.substr(0, 300);
    EXPECT_FALSE(TVCheckFileExist(nullptr));
}

TEST_F(FileExists, TakesRelativePaths) {
    MakeFile(m_folder + L"\\here.csv");
    wchar_t previous[MAX_PATH];
    ASSERT_NE(::GetCurrentDirectoryW(MAX_PATH, previous), 0u);
    ASSERT_TRUE(::SetCurrentDirectoryW(m_folder.c_str()));
    EXPECT_TRUE(TVCheckFileExist(L"here.csv"));
    EXPECT_TRUE(TVCheckFileExist(L".\\here.csv"));
    EXPECT_FALSE(TVCheckFileExist(L"absent.csv"));
    EXPECT_TRUE(::SetCurrentDirectoryW(previous));
}

TEST_F(FileExists, SeesFilesBeyondTheOldPathLimit) {
    std::wstring deep = m_folder;
    for (int level = 0; level < 4; ++level) {
        deep += L"\\" + std::wstring(90, L'd');
        MakeFolder(deep);
    }
    MakeFile(deep + L"\\site.csv");
    ASSERT_GT(deep.size(), static_cast<std::size_t>(MAX_PATH));
    EXPECT_TRUE(TVCheckFileExist((deep + L"\\site.csv").c_str()));
    EXPECT_FALSE(TVCheckFileExist((deep + L"\\other.csv").c_str()));
    EXPECT_FALSE(TVCheckFileExist(deep.c_str()));
}

} // namespace
