// What the loop over the troubles of a disk finds, and what it says of its misuse.
#include "Caught.h"
#include "testkit/DiskFaults.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

using namespace testkit;
using fx::Caught;

namespace {

bool Create() {
    const HANDLE h = ::CreateFile(L"faults.dat", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    return h != INVALID_HANDLE_VALUE && ::CloseHandle(h);
}

bool Save(const std::string& text) {
    std::ofstream file("faults.dat");
    file << text;
    file.close();
    return file.good();
}

std::string Load() {
    std::ifstream file("faults.dat");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(DiskFaults, FailEachCallAndTellWhatIsNoTrial) {
    int nCalls = 0;
    const auto never = []() -> bool { throw std::runtime_error("never"); };
    const auto growing = [&nCalls] {
        for (int i = 0; i < nCalls; ++i)
            Create();
        ++nCalls;
        return true;
    };
    const Rows<std::function<bool()>, size_t, std::string> rows = {
        // Seven troubles of both calls, two of neither, each before and after them without one.
        {Create, 7 * 2 + 9 * 2, ""},
        {[] { return true; }, 9 * 2, "no call could fail: are the modules installed that make them?"},
        {never, 0, "not done, though nothing fails: full disk, call 0, threw never"},
        {growing, 102, "more calls from run to run, it would never end: full disk, call 101, CreateFileW"},
    };
    fault::Install(::GetModuleHandle(nullptr), fault::DiskPoints());
    for (const auto& [run, nChecks, expected] : rows) {
        Caught caught;
        size_t nChecked = 0;
        fault::FailEachDiskCall(run, [&](const fault::DiskRun&) {
            ++nChecked;
            EXPECT_TRUE(Create()) << "nothing fails any more";
        });
        EXPECT_EQ(nChecks, nChecked) << expected;
        ASSERT_EQ(expected.empty(), caught.m_texts.empty()) << expected;
        EXPECT_TRUE(expected.empty() || caught.m_texts[0].find(expected) == 0) << caught.m_texts[0];
    }
    fault::Install(::GetModuleHandle(nullptr), {});
    ::DeleteFile(L"faults.dat");
}

TEST(DiskFaults, ShowWhatIsLostBySavingInPlace) {
    std::vector<std::string> lost;
    Save("old");
    fault::Install(::GetModuleHandle(L"msvcrt.dll"), fault::DiskPoints()); // which streams call
    fault::FailEachDiskCall([] { return Save("new"); },
                            [&](const fault::DiskRun& run) {
                                if (Load() != (run.bDone ? "new" : "old"))
                                    lost.push_back(run.text.substr(0, run.text.find('\n')));
                                Save("old");
                            });
    fault::Install(::GetModuleHandle(L"msvcrt.dll"), {});
    ::DeleteFile(L"faults.dat");
    ASSERT_EQ(7U * 2 + 2, lost.size()) << "the block and its end; half of a block";
    EXPECT_EQ("full disk, call 2, WriteFile", lost.front());
    EXPECT_EQ("half of each block, call 1, WriteFile", lost.back());
}

} // namespace
