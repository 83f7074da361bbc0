// Each call that saving and loading make into the system fails, for each reason that there is.
#include "testkit/Faults.h"
#include "points/History.h"
#include "points/ChangeFile.h"
#include "points/FileReplacement.h"
#include "screens/Settings.h"

#include "TestFile.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace testkit;

namespace {

using fault::Injection;

struct Trouble {
    const char* pszName;
    DWORD dwError; ///< ERROR_SUCCESS for reads and writes that do only a part of their work.
    Injection::Extent extent;
};

constexpr Trouble TROUBLES[] = {
    {"full disk", ERROR_DISK_FULL, Injection::Once},
    {"disk that stays full", ERROR_DISK_FULL, Injection::Onwards},
    {"card not ready", ERROR_NOT_READY, Injection::Once},
    {"pulled card", ERROR_DEVICE_REMOVED, Injection::Onwards},
    {"file in use", ERROR_SHARING_VIOLATION, Injection::Once},
    {"write protection", ERROR_WRITE_PROTECT, Injection::Onwards},
    {"no memory", ERROR_NOT_ENOUGH_MEMORY, Injection::Once},
    {"half a block", ERROR_SUCCESS, Injection::Once},
    {"half of each block", ERROR_SUCCESS, Injection::Onwards},
};

DWORD g_dwError = ERROR_SUCCESS; ///< Why calls fail at present.

template <class Result>
Result Refuse(Result failure) {
    ::SetLastError(g_dwError);
    return failure;
}

bool Fails() {
    return g_dwError != ERROR_SUCCESS;
}

std::vector<fault::Point> Points() {
    using fault::MakePoint;
    const auto no = [](auto real, auto... args) { return Fails() ? Refuse(FALSE) : real(args...); };
    const auto late = [](auto real, auto... args) {
        const BOOL bDone = real(args...);
        return Fails() ? Refuse(FALSE) : bDone;
    };
    const auto half = [](auto real, HANDLE hFile, auto pBlock, DWORD dwSize, auto... rest) {
        return Fails() ? Refuse(FALSE) : real(hFile, pBlock, std::max<DWORD>(dwSize / 2, 1), rest...);
    };
    const auto noFile = [](auto real, auto... args) {
        return Fails() ? Refuse(INVALID_HANDLE_VALUE) : real(args...);
    };
    const auto unknown = [](auto real, auto... args) {
        return Fails() ? Refuse(INVALID_FILE_ATTRIBUTES) : real(args...);
    };
    const auto noMemory = [](auto real, size_t nSize) {
        return g_dwError == ERROR_NOT_ENOUGH_MEMORY ? nullptr : real(nSize);
    };
    const auto noKey = [](auto real, auto... args) {
        return Fails() ? static_cast<LSTATUS>(g_dwError) : real(args...);
    };
    return {MakePoint("CreateFileW", ::CreateFileW, noFile),
            MakePoint("GetFileAttributesW", ::GetFileAttributesW, unknown),
            MakePoint("ReadFile", ::ReadFile, half),
            MakePoint("WriteFile", ::WriteFile, half),
            MakePoint("SetFilePointerEx", ::SetFilePointerEx, no),
            MakePoint("GetFileSizeEx", ::GetFileSizeEx, no),
            MakePoint("FlushFileBuffers", ::FlushFileBuffers, no),
            MakePoint("CloseHandle", ::CloseHandle, late),
            MakePoint("MoveFileExW", ::MoveFileExW, no),
            MakePoint("DeleteFileW", ::DeleteFileW, no),
            MakePoint("malloc", ::malloc, noMemory),
            MakePoint("RegCreateKeyExW", ::RegCreateKeyExW, noKey),
            MakePoint("RegSetValueExW", ::RegSetValueExW, noKey),
            MakePoint("RegSetKeyValueW", ::RegSetKeyValueW, noKey)};
}

/// Runs something with every single call failing, for every trouble, or for one alone.
/// @param run    tells whether it was done; it may throw
/// @param check  is told whether it was
void ForEveryFault(const std::function<bool()>& run, const std::function<void(bool)>& check,
                   DWORD dwErrorAlone = ERROR_SUCCESS) {
    for (const wchar_t* pszModule : {static_cast<LPCWSTR>(nullptr), L"FieldkitFx.dll", L"Fieldkit.dll"})
        fault::Install(::GetModuleHandle(pszModule), Points());
    for (const Trouble& trouble : TROUBLES) {
        g_dwError = trouble.dwError;
        if (dwErrorAlone != ERROR_SUCCESS && dwErrorAlone != g_dwError)
            continue;
        const char* pszFailed = "";
        for (int nCall = 1; pszFailed != nullptr; ++nCall) {
            bool bDone = false;
            {
                Injection injection(nCall, trouble.extent);
                try {
                    bDone = run();
                } catch (CException* pError) {
                    injection.Stop();
                    pError->Delete();
                } catch (const std::bad_alloc&) {
                }
                pszFailed = injection.m_pszFailed;
            }
            SCOPED_TRACE(testing::Message() << trouble.pszName << ", call " << nCall << ", "
                                            << (pszFailed != nullptr ? pszFailed : "none failed"));
            EXPECT_TRUE(bDone || pszFailed != nullptr);
            check(bDone);
        }
    }
}

/// A file under faults: the old one or the new one, whole, and only the new one without an error.
void ExpectOldOrNew(const CTestFile& file, const std::function<bool()>& save) {
    const std::string older = file.Read();
    ASSERT_TRUE(save());
    const std::string newer = file.Read();
    ASSERT_NE(older, newer);
    file.Write(older);
    ForEveryFault(save, [&](bool bDone) {
        EXPECT_EQ(bDone ? newer : older, file.Read());
        EXPECT_TRUE(save()) << "it must work as soon as the trouble is over";
        EXPECT_EQ(newer, file.Read());
        EXPECT_FALSE(CTestFile::Exists(file.GetPath() + L".new"));
        file.Write(older);
    });
}

TEST(SaveFaults, PointsAreTheOldOrTheNewOnes) {
    const CTestFile file(L"fieldbook-faults.csv", "P,1,2,3\r\n");
    ExpectOldOrNew(file, [&] {
        RewriteFile(file.GetPath(), std::string(10'000, 'n'));
        return true;
    });
}

TEST(SaveFaults, ChangeThatWasRecordedIsThereAfterARestart) {
    const CTestFile points(L"fieldbook-faults.csv"), record(points.GetPath() + L".changes");
    ::CreateDirectory(L"own", nullptr);
    auto pFile = std::make_unique<CChangeFile>(L"own");
    ASSERT_TRUE(pFile->Claim(points.GetPath()));
    pFile->Begin(1);
    size_t nRecorded = 0;
    const auto append = [&] {
        pFile->Append({{CPointChange::Kind::Add, 0, {}, {L"P", CCoordinate(1, 2, 3, 3)}}});
        return true;
    };
    ForEveryFault(append, [&](bool bDone) {
        pFile.reset(); // as if it were killed
        pFile = std::make_unique<CChangeFile>(L"own");
        ASSERT_TRUE(pFile->Claim(points.GetPath()));
        const std::optional<CLeftChanges> left = pFile->FindLeft(points.GetPath(), 1);
        const size_t nLeft = left ? left->changes.size() : 0;
        EXPECT_GE(nLeft, nRecorded + (bDone ? 1 : 0));
        EXPECT_LE(nLeft, nRecorded + 1);
        nRecorded = nLeft;
        if (left)
            pFile->Resume(*left);
    });
    pFile->Begin(1);
}

TEST(SaveFaults, BookAndItsRecordHaveTheSameChangesWithoutMemory) {
    const CTestFile points(L"fieldbook-faults.csv"), disk(points.GetPath() + L".changes");
    ::CreateDirectory(L"own", nullptr);
    CChangeFile record(L"own");
    ASSERT_TRUE(record.Claim(points.GetPath()));
    CPointBook book;
    const auto fresh = [&] {
        record.Begin(1);
        book = CPointBook();
        book.AddRead({L"A", CCoordinate(1, 2, 3, 3)});
        book.SetObserver([&](const CPointChange& change) { record.Append({change}); });
    };
    const auto change = [&] {
        CPointChange undone;
        return book.Replace(L"A", {L"B", CCoordinate(4, 5, 6, 3), L"", {L"x"}}) &&
               book.Add({L"C", CCoordinate(7, 8, 9, 3)}) && book.Remove(L"B") && book.Undo(undone);
    };
    const auto namesOf = [](const CPointBook& of) {
        CString strNames;
        for (const CNamedPoint& point : of.GetPoints()) {
            EXPECT_TRUE(of.Find(point.strName) == &point.point);
            strNames += point.strName;
        }
        return strNames;
    };
    fresh();
    const auto check = [&](bool) {
        EXPECT_TRUE(book.Add({L"Z", CCoordinate(1, 2, 3, 3)})) << "as soon as the trouble is over";
        CPointBook again;
        again.AddRead({L"A", CCoordinate(1, 2, 3, 3)});
        const std::optional<CLeftChanges> left = record.FindLeft(points.GetPath(), 1);
        for (const CPointChange& each : left->changes)
            EXPECT_TRUE(again.Apply(each));
        EXPECT_TRUE(namesOf(again) == namesOf(book));
        book.SetObserver({});
        for (CPointChange undone; book.Undo(undone);)
            continue;
        EXPECT_STREQ(L"A", namesOf(book)) << "all can be taken back";
        fresh();
    };
    ForEveryFault(change, check, ERROR_NOT_ENOUGH_MEMORY);
    record.Begin(1);
}

TEST(SaveFaults, HistoryIsTheOldOrTheNewOne) {
    const CTestFile file(L"fieldbook-faults.dat");
    CHistory history(file.GetPath());
    history.Add(L"T1");
    ASSERT_TRUE(history.Save());
    history.Add(L"境界7");
    ExpectOldOrNew(file, [&] { return history.Save(); });

    // Loading gives what was saved or nothing, and the next load all of it.
    const std::string saved = file.Read();
    ASSERT_TRUE(history.Save());
    const std::string whole = file.Read();
    EXPECT_NE(whole, saved);
    ForEveryFault(
        [&] {
            history.Load();
            return true;
        },
        [&](bool) {
            EXPECT_TRUE(history.Save()) << "an empty one perhaps";
            file.Write(whole);
            history.Load();
            EXPECT_TRUE(history.Save());
            EXPECT_EQ(whole, file.Read());
        });
}

TEST(SaveFaults, BackupIsTheOldOrTheNewOne) {
    const CTestFile file(L"fieldbook-faults.csv", std::string(10'000, 'n'));
    const CTestFile backup(file.GetPath() + L".bak", "older");
    ExpectOldOrNew(backup, [&] { return KeepBackup(file.GetPath()); });
}

TEST(SaveFaults, SettingsThatWereNotWrittenAreTold) {
    CWinApp& app = *AfxGetApp();
    app.SetRegistryKey(L"FieldbookFaults");
    const CSettings before = LoadSettings(app);
    CSettings settings;
    settings.bTenths = 1;
    settings.strFolder = L"\\測量";
    ForEveryFault([&] { return SaveSettings(app, settings); },
                  [&](bool bDone) {
                      const CSettings loaded = LoadSettings(app);
                      EXPECT_TRUE(!bDone || (loaded.bTenths == 1 && loaded.strFolder == settings.strFolder));
                      EXPECT_TRUE(loaded.strFolder.IsEmpty() || loaded.strFolder == settings.strFolder);
                      EXPECT_TRUE(SaveSettings(app, settings));
                      ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
                  });
    SaveSettings(app, before); // the decimals belong to all applications
    ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
    ::RegDeleteKey(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
}

} // namespace
