// The rest of the kit, used as one who has read nothing uses it.
#include "Caught.h"
#include "testkit/Canvas.h"
#include "testkit/Drive.h"
#include "testkit/Form.h"
#include "testkit/KeptPicture.h"
#include "testkit/Leftovers.h"
#include "testkit/Pen.h"
#include "testkit/Picture.h"
#include "testkit/Program.h"
#include "testkit/Shake.h"
#include "testkit/TitleBar.h"
#include "testkit/Watchdog.h"

#include <array>
#include <fstream>
#include <iterator>

using namespace testkit;
using fx::Caught;

namespace {

TEST(Pen, TapThatNobodyCouldMakeIsAFailureAndNoTap) {
    Frame frame, cover({300, 300}, WS_POPUP);
    CWnd child, hidden, outside;
    child.CreateEx(0, L"STATIC", L"child", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 7);
    hidden.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &frame, 8);
    outside.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, CRect(5000, 0, 5020, 20), &frame, 0);
    const Rows<HWND, bool, std::string> rows = {{child, false, ""},
                                                {hidden, false, "it is hidden"},
                                                {outside, false, "it is off the screen"},
                                                {nullptr, false, "no window"},
                                                {child, true, "it is covered by "}};
    for (const auto& [hWnd, bCovered, expected] : rows) {
        cover.ShowWindow(bCovered ? SW_SHOWNA : SW_HIDE);
        cover.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        Caught caught;
        pen::Tap(hWnd);
        ASSERT_EQ(caught.m_texts.empty(), expected.empty());
        EXPECT_TRUE(expected.empty() || caught.m_texts[0].find(expected) != std::string::npos)
            << testing::PrintToString(caught.m_texts);
    }
    Caught caught;
    TapOk(frame);
    EXPECT_EQ(1U, caught.m_texts.size()) << "no title bar";
}

TEST(Picture, SavesPng) {
    const Drive drive;
    Frame frame;
    CClientDC dc(&frame);
    dc.SetPixel(0, 0, RGB(255, 0, 0));
    dc.SetPixel(0, 1, RGB(0, 0, 255));
    const Picture picture(dc, {1, 2});
    EXPECT_EQ(picture.At(0, 1), RGB(0, 0, 255));
    ASSERT_TRUE(picture.Save(L"a.png"));
    EXPECT_FALSE(picture.Save(L"none\\a.png"));
    std::ifstream file("a.png", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    // What zlib reads back, and every viewer shows.
    constexpr unsigned char EXPECTED[] = {
        0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52,
        0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x02, 0x08, 0x02, 0x00, 0x00, 0x00, 0x16, 0xe3, 0x21,
        0x70, 0x00, 0x00, 0x00, 0x13, 0x49, 0x44, 0x41, 0x54, 0x78, 0x01, 0x01, 0x08, 0x00, 0xf7, 0xff,
        0x00, 0xff, 0x00, 0x00, 0x00, 0x00, 0x00, 0xff, 0x08, 0x00, 0x01, 0xff, 0xf0, 0xe2, 0x8c, 0xde,
        0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
    EXPECT_EQ(bytes, std::string(std::begin(EXPECTED), std::end(EXPECTED)));
}

TEST(KeptPicture, IsComparedAndOnlyReplacedIfSomebodySaysSo) {
    Canvas canvas(3, 2);
    const auto faults = [&](LPCWSTR pszPath) { return PictureFaults(canvas.Look(), pszPath); };
    const auto keep = [&](LPCWSTR pszPath) {
        ::SetEnvironmentVariable(L"FIELDKIT_KEEP_PICTURES", L"1");
        const std::string result = faults(pszPath);
        ::SetEnvironmentVariable(L"FIELDKIT_KEEP_PICTURES", nullptr);
        return result;
    };
    ::DeleteFile(L"dot.txt");
    EXPECT_EQ("there is no dot.txt, see dot.txt.now in the current folder", faults(L"dot.txt"));
    EXPECT_EQ("none\\dot.txt cannot be written", keep(L"none\\dot.txt"));
    EXPECT_EQ("", keep(L"dot.txt"));
    EXPECT_EQ("", faults(L"dot.txt"));
    canvas.m_dc.SetPixel(1, 1, RGB(0x12, 0x34, 0x56));
    EXPECT_EQ("not as in dot.txt from line 2 on, see dot.txt.now in the current folder", faults(L"dot.txt"));
    std::ifstream now("dot.txt.now");
    EXPECT_EQ(". FFFFFF\n# 123456\n\n...\n.#.\n", std::string(std::istreambuf_iterator<char>(now), {}));
}

TEST(Drive, TakesManyFilesInAFolderOfAnyName) {
    Drive drive;
    drive.MakeFolder(L"\\測量");
    drive.MakeMany(Drive::Files, L"\\測量", "f%.0f", 3);
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, ::GetFileAttributes(L"\\測量\\f2"));
}

TEST(Shake, FindsWhatIsLeftByEachOpening) {
    std::vector<HWND> lost;
    Caught caught;
    Shake(
        [&](CWnd* pOwner) {
            lost.push_back(
                ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
            fx::Form(pOwner).DoModal();
        },
        3, 1000);
    ASSERT_EQ(1U, caught.m_texts.size());
    EXPECT_NE(caught.m_texts[0].find("seed 3 leaves with each 500 events: "), std::string::npos)
        << caught.m_texts[0];
    EXPECT_NE(caught.m_texts[0].find(" windows"), std::string::npos) << caught.m_texts[0];
    for (const HWND hWnd : lost)
        ::DestroyWindow(hWnd);
}

// The counters behind "leaves nothing": each kind of leftover must show in them.
TEST(Leftovers, CountWhatIsHeld) {
    const Frame first; // the first window of a thread brings one of the input method along
    const Leftovers before = Leftovers::Now();
    {
        const Frame frame;
        const CBrush brush(RGB(1, 2, 3));
        const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
        const auto block = std::make_unique<std::array<char, 10000>>();
        block->fill(1);
        const Leftovers held = Leftovers::Now();
        EXPECT_EQ(held.nWindows, before.nWindows + 1);
        EXPECT_GE(held.nGdiObjects, before.nGdiObjects + 1);
        EXPECT_GE(held.nHandles, before.nHandles + 1);
        EXPECT_GE(held.nHeapBytes, before.nHeapBytes + 10000);
        ::CloseHandle(hEvent);
    }
    EXPECT_EQ(Leftovers::Now().nWindows, before.nWindows);
}

// The ends of programs that the next test starts.
TEST(Ends, DISABLED_Hang) {
    const Watchdog watchdog(1);
    for (;;)
        ::Sleep(1);
}
TEST(Ends, DISABLED_Crash) {
    fx::Form form;
    form.m_onMessage = [](UINT message, WPARAM) {
        if (message == WM_TIMER || message == WM_SETTINGCHANGE)
            *static_cast<volatile int*>(nullptr) = 0;
    };
    Shake(form);
}

TEST(Ends, ProgramThatHangsOrCrashesEndsWithItsOwnCode) {
    const Rows<std::wstring, DWORD> rows = {{L"Hang", 99}, {L"Crash", 98}};
    for (const auto& [name, nCode] : rows) {
        const std::wstring argument = L"--gtest_also_run_disabled_tests --gtest_filter=Ends.DISABLED_" + name;
        EXPECT_EQ(Program(fx::OwnPath(), nullptr, argument).End(), nCode);
    }
}

TEST(Program, WhatDoesNotComeIsTold) {
    Caught caught;
    const Program none(L"no such program", L"");
    none.ExpectText(1, L"a"); // at once: it has failed already
    ASSERT_EQ(2U, caught.m_texts.size());
    EXPECT_EQ(0U, caught.m_texts[0].find("cannot start ")) << caught.m_texts[0];
    EXPECT_EQ("the text is not \"a\" but that of no window", caught.m_texts[1]);
}

} // namespace
