// The history and the lists that the library fills or reads, beside the system's own controls and
// lists of the standard library. A size is the number of entries.
#include "Rows.h"
#include "Shown.h"

#include "dialogs/SelMemberDlg.h"
#include "util/StringStack.h"

#include <algorithm>
#include <list>
#include <string_view>

namespace bench {

namespace {

constexpr double kHistoryGoal = 1.2;
constexpr double kFillGoal = 1.1;
constexpr double kMembersGoal = 1.2;
constexpr int kLength = 12;

// --- History ----------------------------------------------------------------------------------

constexpr int kCompared = 400000; // entries in one measurement

int AddedTo(int n) {
    return std::max(kCompared / n, 4);
}

/// New texts that no history has, of other letters than those in it or of the same.
template <class String>
std::vector<String> NewTexts(int n) {
    std::vector<String> texts;
    for (int i = 0; i < AddedTo(n); ++i)
        texts.emplace_back((TextOf(i, kLength) + L"x" + std::to_wstring(i)).c_str());
    return texts;
}

std::wstring_view KeyOf(const std::wstring& text, bool bHeader) {
    return std::wstring_view(text).substr(0, bHeader ? text.find_last_not_of(L"0123456789") + 1
                                                     : std::wstring::npos);
}

Cost AddBare(int n, bool bHeader) {
    const auto known = TextsOf<std::wstring>(n, kLength);
    std::list<std::wstring> entries(known.begin(), known.end());
    const auto texts = NewTexts<std::wstring>(n);
    auto next = texts.begin();
    return Timed(AddedTo(n), [&] {
        const auto key = KeyOf(*next, bHeader);
        const auto same = std::find_if(entries.begin(), entries.end(), [&](const std::wstring& entry) {
            return KeyOf(entry, bHeader) == key;
        });
        entries.erase(same != entries.end() ? same : std::prev(entries.end()));
        entries.push_front(*next++);
    });
}

/// A history that is full, and has been filled without asking it for each text.
void Fill(CStringStack& history, int n, CStringStack::Mode mode) {
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        ar << n;
        for (const CString& text : TextsOf<CString>(n, kLength))
            ar << text;
        ar << static_cast<int>(mode) << n;
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    history.Serialize(ar);
}

Cost AddOurs(int n, CStringStack::Mode mode) {
    CStringStack history;
    Fill(history, n, mode);
    const auto texts = NewTexts<CString>(n);
    auto next = texts.begin();
    return Timed(AddedTo(n), [&] { history.Add(*next++, 0); });
}

Row Added(const char* pszName, CStringStack::Mode mode) {
    return {pszName,
            kHistoryGoal,
            {20, 1000, 100000},
            [=](int n) { return AddBare(n, mode == CStringStack::ModeHeader); },
            [=](int n) { return AddOurs(n, mode); }};
}

Cost SetupBare(int n) {
    const auto texts = TextsOf<std::wstring>(n, kLength);
    const Shown<CWnd> combo(WC_COMBOBOX, CBS_DROPDOWN);
    const HWND hCombo = combo.m_hWnd;
    return Timed(1, [&] {
        wchar_t szText[kLength + 1];
        ::GetWindowText(hCombo, szText, kLength + 1);
        ::SendMessage(hCombo, WM_SETREDRAW, FALSE, 0);
        ::SendMessage(hCombo, CB_RESETCONTENT, 0, 0);
        ::SendMessage(hCombo, CB_INITSTORAGE, texts.size(), static_cast<LPARAM>(texts.size() * kLength * 2));
        for (const std::wstring& text : texts)
            ::SendMessage(hCombo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        ::SendMessage(hCombo, WM_SETREDRAW, TRUE, 0);
        ::SetWindowText(hCombo, szText);
        ::RedrawWindow(hCombo, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    });
}

Cost SetupOurs(int n) {
    CStringStack history;
    Fill(history, n, CStringStack::ModeWhole);
    Shown<CComboBox> combo(WC_COMBOBOX, CBS_DROPDOWN);
    return Timed(1, [&] {
        history.SetupList(&combo);
        combo.UpdateWindow();
    });
}

// --- Members ----------------------------------------------------------------------------------

Cost TakeBackBare(int n) {
    struct Member {
        std::wstring text;
        LPARAM data;
    };
    Shown<CListBox> box(WC_LISTBOX, 0);
    box.SetRedraw(FALSE);
    for (const std::wstring& text : TextsOf<std::wstring>(n, kLength))
        box.AddString(text.c_str());
    const HWND hBox = box.m_hWnd;
    std::list<std::unique_ptr<Member>> members;
    for (const std::wstring& text : TextsOf<std::wstring>(n, kLength))
        members.push_back(std::make_unique<Member>(Member{text, 1}));
    return Timed(1, [&] {
        members.clear(); // as the dialog's OK does
        const auto nCount = static_cast<WPARAM>(::SendMessage(hBox, LB_GETCOUNT, 0, 0));
        for (WPARAM i = 0; i < nCount; ++i) {
            auto pMember = std::make_unique<Member>();
            pMember->text.resize(static_cast<std::size_t>(::SendMessage(hBox, LB_GETTEXTLEN, i, 0)));
            ::SendMessage(hBox, LB_GETTEXT, i, reinterpret_cast<LPARAM>(pMember->text.data()));
            pMember->data = ::SendMessage(hBox, LB_GETITEMDATA, i, 0);
            members.push_back(std::move(pMember));
        }
    });
}

/// Opens with members, and measures what its OK does before it ends.
class MembersDialog : public CSelMemberDlg {
public:
    explicit MembersDialog(int n) : CSelMemberDlg(L"members", nullptr) {
        for (const CString& text : TextsOf<CString>(n, kLength))
            AddSelMemberItemToList(m_listAvailable, text, 1);
    }
    ~MembersDialog() override {
        FlashSelMemberList(m_listAvailable);
        FlashSelMemberList(m_listCurrent);
    }
    Cost Run() {
        DoModal();
        return m_cost;
    }

protected:
    BOOL OnInitDialog() override {
        CSelMemberDlg::OnInitDialog();
        m_cost = Timed(1, [this] { OnOK(); });
        return TRUE;
    }

private:
    Cost m_cost;
};

} // namespace

std::vector<Row> ListRows() {
    return {
        Added("history: text added", CStringStack::ModeWhole),
        Added("history of headers: text added", CStringStack::ModeHeader),
        {"history shown by a combo box", kFillGoal, {1000, 10000}, SetupBare, SetupOurs},
        {"members taken back",
         kMembersGoal,
         {1000, 10000},
         TakeBackBare,
         [](int n) { return MembersDialog(n).Run(); }},
    };
}

} // namespace bench
