// Each call that saving and loading make into the system fails, for each reason that there is.
#include "testkit/DiskFaults.h"
#include "points/History.h"
#include "points/ChangeFile.h"
#include "points/FileReplacement.h"
#include "screens/Settings.h"

#include "TestFile.h"

#include <gtest/gtest.h>

using namespace testkit;

namespace {

struct SaveFaults : testing::Test {
    static void SetUpTestSuite() {
        for (const wchar_t* pszModule : {static_cast<LPCWSTR>(nullptr), L"FieldkitFx.dll", L"Fieldkit.dll"})
            fault::Install(::GetModuleHandle(pszModule), fault::DiskPoints());
    }
};

/// A file under faults: the old one or the new one, whole, and only the new one without an error.
void ExpectOldOrNew(const CTestFile& file, const std::function<bool()>& save) {
    const std::string older = file.Read();
    ASSERT_TRUE(save());
    const std::string newer = file.Read();
    ASSERT_NE(older, newer);
    file.Write(older);
    fault::FailEachDiskCall(save, [&](const fault::DiskRun& run) {
        SCOPED_TRACE(run.text);
        EXPECT_EQ(run.bDone ? newer : older, file.Read());
        EXPECT_TRUE(save()) << "it must work as soon as the trouble is over";
        EXPECT_EQ(newer, file.Read());
        EXPECT_FALSE(CTestFile::Exists(file.GetPath() + L".new"));
        file.Write(older);
    });
}

TEST_F(SaveFaults, PointsAreTheOldOrTheNewOnes) {
    const CTestFile file(L"fieldbook-faults.csv", "P,1,2,3\r\n");
    ExpectOldOrNew(file, [&] {
        RewriteFile(file.GetPath(), std::string(10'000, 'n'));
        return true;
    });
}

TEST_F(SaveFaults, ChangeThatWasRecordedIsThereAfterARestart) {
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
    fault::FailEachDiskCall(append, [&](const fault::DiskRun& run) {
        SCOPED_TRACE(run.text);
        pFile.reset(); // as if it were killed
        pFile = std::make_unique<CChangeFile>(L"own");
        ASSERT_TRUE(pFile->Claim(points.GetPath()));
        const std::optional<CLeftChanges> left = pFile->FindLeft(points.GetPath(), 1);
        const size_t nLeft = left ? left->changes.size() : 0;
        EXPECT_GE(nLeft, nRecorded + (run.bDone ? 1 : 0));
        EXPECT_LE(nLeft, nRecorded + 1);
        nRecorded = nLeft;
        if (left)
            pFile->Resume(*left);
    });
    pFile->Begin(1);
}

TEST_F(SaveFaults, BookAndItsRecordHaveTheSameChangesWithoutMemory) {
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
    const auto check = [&](const fault::DiskRun& run) {
        SCOPED_TRACE(run.text);
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
    fault::FailEachDiskCall(change, check, {{"no memory", ERROR_NOT_ENOUGH_MEMORY, fault::Injection::Once}});
    record.Begin(1);
}

TEST_F(SaveFaults, HistoryIsTheOldOrTheNewOne) {
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
    fault::FailEachDiskCall(
        [&] {
            history.Load();
            return true;
        },
        [&](const fault::DiskRun& run) {
            SCOPED_TRACE(run.text);
            EXPECT_TRUE(history.Save()) << "an empty one perhaps";
            file.Write(whole);
            history.Load();
            EXPECT_TRUE(history.Save());
            EXPECT_EQ(whole, file.Read());
        });
}

TEST_F(SaveFaults, BackupIsTheOldOrTheNewOne) {
    const CTestFile file(L"fieldbook-faults.csv", std::string(10'000, 'n'));
    const CTestFile backup(file.GetPath() + L".bak", "older");
    ExpectOldOrNew(backup, [&] { return KeepBackup(file.GetPath()); });
}

TEST_F(SaveFaults, SettingsThatWereNotWrittenAreTold) {
    CWinApp& app = *AfxGetApp();
    app.SetRegistryKey(L"FieldbookFaults");
    const CSettings before = LoadSettings(app);
    CSettings settings;
    settings.bTenths = 1;
    settings.strFolder = L"\\測量";
    fault::FailEachDiskCall(
        [&] { return SaveSettings(app, settings); },
        [&](const fault::DiskRun& run) {
            SCOPED_TRACE(run.text);
            const CSettings loaded = LoadSettings(app);
            EXPECT_TRUE(!run.bDone || (loaded.bTenths == 1 && loaded.strFolder == settings.strFolder));
            EXPECT_TRUE(loaded.strFolder.IsEmpty() || loaded.strFolder == settings.strFolder);
            EXPECT_TRUE(SaveSettings(app, settings));
            ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
        });
    SaveSettings(app, before); // the decimals belong to all applications
    ::RegDeleteTree(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
    ::RegDeleteKey(HKEY_CURRENT_USER, L"Software\\FieldbookFaults");
}

} // namespace
