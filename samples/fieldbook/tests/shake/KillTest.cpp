// The program is killed at any moment while points are entered: whatever was confirmed is there.
#include <gtest/gtest.h>

#include "../TestFile.h"
#include "../WindowCloser.h"
#include "screens/JobFile.h"
#include "testkit/Application.h"
#include "testkit/Program.h"

#include <random>

namespace {

constexpr wchar_t FILE_NAME[] = L"fieldbook-killed.csv";
constexpr wchar_t COUNTER_NAME[] = L"FieldbookKilled";
constexpr int SAVE_EVERY = 7;

/// A number that both programs see.
struct CSharedNumber {
    CSharedNumber()
        : m_hMapping(::CreateFileMapping(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG),
                                         COUNTER_NAME)),
          m_pNumber(static_cast<volatile LONG*>(::MapViewOfFile(m_hMapping, FILE_MAP_WRITE, 0, 0, 0))) {}
    ~CSharedNumber() {
        ::UnmapViewOfFile(const_cast<LONG*>(m_pNumber));
        ::CloseHandle(m_hMapping);
    }
    volatile LONG& operator*() const { return *m_pNumber; }

private:
    HANDLE m_hMapping;
    volatile LONG* m_pNumber;
};

CString NameOf(int nPoint) {
    CString strName;
    strName.Format(L"P%d", nPoint);
    return strName;
}

/// Opens the file as it was left, with all changes. @return the number of points; -1 on failure
int OpenLeft(CJob& job) {
    const CWindowCloser closer; // of the line that says so
    testkit::Frame parent(CSize(1, 1), WS_POPUP);
    return OpenPointsFile(job, FILE_NAME, parent) ? job.book.GetCount() : -1;
}

/// What the killed program does: enters points and saves now and then, without end.
TEST(Killed, DISABLED_Child) {
    const CSharedNumber confirmed;
    CJob job(L"no-history.dat");
    const int nBefore = OpenLeft(job);
    ASSERT_GE(nBefore, 0);
    for (int nPoint = nBefore;; ++nPoint) {
        ASSERT_TRUE(job.book.Add({NameOf(nPoint), CCoordinate(nPoint, 1, 0, 1)}));
        *confirmed = nPoint + 1;
        ASSERT_TRUE(nPoint % SAVE_EVERY != SAVE_EVERY - 1 || SavePointsFile(job, FILE_NAME));
    }
}

/// A start takes most of a second; ./run shake, which names a seed, has the time for all.
TEST(Killed, ConfirmedPointsAreThereAfterEachKill) {
    const char* const pszSeed = std::getenv("SHAKE_SEED");
    const int KILLS = pszSeed != nullptr ? 200 : 20;
    constexpr int MOST_POINTS = 400; // then a new file: each start reads all of it
    const CTestFile file(FILE_NAME, "name,N,E,Z\r\n"), record(file.GetPath() + L".changes");
    const CSharedNumber confirmed;
    std::mt19937 random(pszSeed != nullptr ? std::strtoul(pszSeed, nullptr, 10) : 1);
    int nWithRecord = 0;
    for (int i = 0; i < KILLS && !HasFailure(); ++i) {
        const LONG nBefore = *confirmed;
        {
            const testkit::Program child(L"test_fieldbook_shake", nullptr,
                                         L"--gtest_filter=Killed.DISABLED_Child "
                                         L"--gtest_also_run_disabled_tests --gtest_brief=1");
            // It is killed a random number of points after its first one, and at any place between.
            const LONG nUntil = nBefore + 1 + static_cast<LONG>(random() % 20);
            while (*confirmed < nUntil && child.IsRunning())
                ::Sleep(0);
            for (unsigned nSpin = random() % 20000; nSpin > 0; --nSpin)
                ::GetTickCount64();
            ASSERT_TRUE(child.IsRunning()) << "kill " << i;
        }
        nWithRecord += CTestFile::Exists(record.GetPath()) ? 1 : 0;
        CJob job(L"no-history.dat");
        const int nPoints = OpenLeft(job);
        EXPECT_GE(nPoints, *confirmed) << "kill " << i;
        EXPECT_LE(nPoints, *confirmed + 1) << "kill " << i;
        for (int nPoint = 0; nPoint < nPoints; ++nPoint)
            EXPECT_TRUE(job.book.GetPoints()[static_cast<size_t>(nPoint)].strName == NameOf(nPoint));
        *confirmed = nPoints;
        if (nPoints < MOST_POINTS)
            continue;
        GiveUpChanges(job);
        file.Write("name,N,E,Z\r\n");
        *confirmed = 0;
    }
    EXPECT_GT(nWithRecord, KILLS / 2) << "kills with something to lose";
}

} // namespace
