// The library's dialog templates, item by item, as tests/data/dialogs/templates.txt has them.
#include "support/TestApp.h"
#include "support/TestData.h"

#include <sstream>

using namespace testkit;

namespace {

/// Reads the words of a dialog template.
struct Reader {
    explicit Reader(const void* pTemplate) : m_p(static_cast<const WORD*>(pTemplate)), m_pBegin(m_p) {}

    WORD Word() { return *m_p++; }
    DWORD Long() {
        const WORD low = Word();
        return MAKELONG(low, Word());
    }
    /// A text, or a number behind 0xFFFF.
    std::string Text() {
        if (*m_p == 0xFFFF)
            return ++m_p, '#' + std::to_string(Word());
        const CString str(reinterpret_cast<const wchar_t*>(m_p));
        m_p += str.GetLength() + 1;
        return '"' + Utf8(str) + '"';
    }
    /// Left, top, width, height.
    std::string Rect() {
        std::ostringstream text;
        for (int i = 0; i < 4; ++i)
            text << (i > 0 ? "," : "") << static_cast<short>(Word());
        return text.str();
    }
    void Align() { m_p += (m_p - m_pBegin) % 2; }

private:
    const WORD* m_p;
    const WORD* m_pBegin;
};

std::string Describe(int nID) {
    const HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCE(nID), RT_DIALOG);
    const HRSRC hResource = ::FindResource(hModule, MAKEINTRESOURCE(nID), RT_DIALOG);
    if (hResource == nullptr)
        return std::to_string(nID) + " is missing\n";
    Reader reader(::LockResource(::LoadResource(hModule, hResource)));
    std::ostringstream text;
    const auto styles = [&] {
        text << std::hex << ' ' << reader.Long();
        text << ' ' << reader.Long() << std::dec;
    };
    text << nID;
    styles();
    const int nItems = reader.Word();
    text << ' ' << reader.Rect();
    text << ' ' << reader.Text(); // menu
    text << ' ' << reader.Text(); // class
    text << ' ' << reader.Text();
    text << ' ' << reader.Word();
    text << ' ' << reader.Text() << '\n';
    for (int i = 0; i < nItems; ++i) {
        reader.Align();
        std::string place;
        text << "   ";
        styles();
        text << ' ' << reader.Rect();
        text << ' ' << static_cast<short>(reader.Word());
        text << ' ' << reader.Text();
        text << ' ' << reader.Text() << '\n';
        EXPECT_EQ(0, reader.Word()) << "creation data";
    }
    return text.str();
}

TEST(Templates, AreAsTheyWereDesigned) {
    std::string found;
    for (const int nID : {134, 140, 141, 1070, 1120, 1150})
        found += Describe(nID);
    std::ostringstream wanted;
    wanted << testdata::Open("dialogs/templates.txt").rdbuf();
    EXPECT_EQ(wanted.str(), found);
}

} // namespace
