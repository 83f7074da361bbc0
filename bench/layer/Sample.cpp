// The sample's list and plan of many points, beside a bare list control with the same data and the
// time that a frame has. A size is the number of points.
#include "Rows.h"
#include "Shown.h"

#include "samples/fieldbook/plan/PlanPainter.h"
#include "samples/fieldbook/points/ChangeFile.h"
#include "samples/fieldbook/points/FileReplacement.h"
#include "samples/fieldbook/points/PointFile.h"
#include "samples/fieldbook/screens/ListControls.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <numeric>

namespace bench {

namespace {

constexpr double kListGoal = 1.3;
constexpr double kLinesGoal = 2; // for all forms of files, and each line checked
constexpr double kChangesGoal = 3;
constexpr double kTimeGoal = 1.0;
constexpr double kFrame = 100;    // milliseconds
constexpr double kPatience = 500; // milliseconds that work takes without showing how far it is
constexpr int kDecimals = 3;
constexpr int kMany = 100000;
constexpr DWORD kListStyle = LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_OWNERDATA;
const CSize kPlanSize(240, 220);

/// Coordinates of point number i, far from any order.
double Spread(int i, int nStep) {
    return static_cast<double>(static_cast<long long>(i) * nStep % 1000003) / 1000;
}

struct Point {
    std::wstring name;
    double n, e, z;
};

std::vector<Point> BarePoints(int n) {
    std::vector<Point> points;
    for (int i = 0; i < n; ++i)
        points.push_back({L"K" + std::to_wstring(i), Spread(i, 7919), Spread(i, 104729), Spread(i, 31)});
    return points;
}

CPointBook BookOf(int n) {
    CPointBook book;
    for (const Point& point : BarePoints(n))
        book.AddRead({point.name.c_str(), CCoordinate(point.e, point.n, point.z, 3)});
    return book;
}

/// An owner-data list with the system's calls alone, over a plain vector.
class BareList : public Shown<CWnd> {
public:
    explicit BareList(int n) : Shown(WC_LISTVIEW, kListStyle), points(BarePoints(n)), order(points.size()) {
        std::iota(order.begin(), order.end(), std::size_t{0});
        m_pOld = reinterpret_cast<WNDPROC>(::GetWindowLongPtr(Parent(), GWLP_WNDPROC));
        ::SetProp(Parent(), L"list", this);
        ::SetWindowLongPtr(Parent(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BareList::OnParentMessage));
    }
    ~BareList() override {
        ::SetWindowLongPtr(Parent(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pOld));
        ::RemoveProp(Parent(), L"list");
    }

    void Fill() {
        ListView_SetExtendedListViewStyle(m_hWnd, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
        for (int i = 0; i < 5; ++i) {
            LVCOLUMN column = {};
            column.mask = LVCF_WIDTH | LVCF_SUBITEM;
            column.cx = 60;
            column.iSubItem = i;
            ListView_InsertColumn(m_hWnd, i, &column);
        }
        Show();
    }
    void Show() {
        ListView_SetItemCountEx(m_hWnd, static_cast<int>(order.size()), LVSICF_NOSCROLL);
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
        ::UpdateWindow(m_hWnd);
    }

    std::vector<Point> points;
    std::vector<std::size_t> order;

private:
    HWND Parent() const { return ::GetParent(m_hWnd); }

    static LRESULT CALLBACK OnParentMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam) {
        auto& list = *static_cast<BareList*>(::GetProp(hWnd, L"list"));
        if (nMessage == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == LVN_GETDISPINFO) {
            list.Tell(reinterpret_cast<NMLVDISPINFO*>(lParam)->item);
            return 0;
        }
        return ::CallWindowProc(list.m_pOld, hWnd, nMessage, wParam, lParam);
    }
    void Tell(LVITEM& item) const {
        if ((item.mask & LVIF_TEXT) == 0)
            return;
        const Point& point = points[order[static_cast<std::size_t>(item.iItem)]];
        const double values[] = {0, point.n, point.e, point.z};
        if (item.iSubItem == 0)
            ::lstrcpyn(item.pszText, point.name.c_str(), item.cchTextMax);
        else if (item.iSubItem < 4)
            std::swprintf(item.pszText, static_cast<std::size_t>(item.cchTextMax), L"%.3f",
                          values[item.iSubItem]);
    }

    WNDPROC m_pOld;
};

class OurList : public Shown<CPointListCtrl> {
public:
    explicit OurList(CPointBook& points) : Shown(WC_LISTVIEW, kListStyle, points, kDecimals), book(points) {}

    void Open() {
        Fill();
        UpdateWindow();
    }
    void TapHeading(PointColumn column) {
        NMLISTVIEW tap = {};
        tap.hdr = {m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), LVN_COLUMNCLICK};
        tap.iSubItem = static_cast<int>(column);
        GetParent()->SendMessage(WM_NOTIFY, tap.hdr.idFrom, reinterpret_cast<LPARAM>(&tap));
        UpdateWindow();
    }
    void FollowLast() {
        Follow(book.GetLastChange());
        UpdateWindow();
    }

    CPointBook& book;
};

/// @param nTimes how often the work is done in one measurement
/// @param work   gets a filled list and the number of the round
template <class Work>
auto WithBareList(int nTimes, Work work) {
    return [=](int n) {
        BareList list(n);
        list.Fill();
        int i = 0;
        return Timed(nTimes, [&] { work(list, ++i); });
    };
}

template <class Work>
auto WithOurList(int nTimes, Work work) {
    return [=](int n) {
        CPointBook book = BookOf(n);
        OurList list(book);
        list.Open();
        int i = 0;
        return Timed(nTimes, [&] { work(list, ++i); });
    };
}

Row Opened() {
    return {"points: list opened",
            kListGoal,
            {kMany},
            [](int n) {
                BareList list(n);
                return Timed(1, [&] { list.Fill(); });
            },
            [](int n) {
                CPointBook book = BookOf(n);
                OurList list(book);
                return Timed(1, [&] { list.Open(); });
            }};
}

Row Scrolled() {
    constexpr int kTimes = 20, kWay = 20000; // pixels
    const auto scroll = [](CWnd& list) {
        list.SendMessage(LVM_SCROLL, 0, kWay);
        list.UpdateWindow();
    };
    return {"points: list scrolled",
            kListGoal,
            {kMany},
            WithBareList(kTimes, [=](BareList& list, int) { scroll(list); }),
            WithOurList(kTimes, [=](OurList& list, int) { scroll(list); })};
}

Row Sorted() {
    constexpr int kTimes = 2; // to and fro
    return {
        "points: list sorted",
        kListGoal,
        {kMany},
        WithBareList(kTimes,
                     [](BareList& list, int i) {
                         const std::vector<Point>& points = list.points;
                         std::sort(list.order.begin(), list.order.end(), [&](std::size_t a, std::size_t b) {
                             return i % 2 != 0 ? points[a].n < points[b].n : points[b].n < points[a].n;
                         });
                         list.Show();
                     }),
        WithOurList(kTimes, [](OurList& list, int) { list.TapHeading(PointColumn::N); })};
}

Row Removed() {
    constexpr int kTimes = 20, kStep = 997;
    return {"points: point removed",
            kListGoal,
            {kMany},
            WithBareList(kTimes,
                         [](BareList& list, int i) {
                             const auto nPlace = static_cast<std::size_t>(i) * kStep;
                             list.points.erase(list.points.begin() + static_cast<std::ptrdiff_t>(nPlace));
                             list.order.erase(std::find(list.order.begin(), list.order.end(), nPlace));
                             for (std::size_t& nOther : list.order)
                                 nOther -= nOther > nPlace ? 1 : 0;
                             list.Show();
                         }),
            WithOurList(kTimes, [](OurList& list, int i) {
                const CString strName = list.book.GetPoints()[static_cast<std::size_t>(i) * kStep].strName;
                list.book.Remove(strName);
                list.FollowLast();
            })};
}

Row Edited() {
    constexpr int kTimes = 20, kStep = 997;
    return {"points: point edited",
            kListGoal,
            {kMany},
            WithBareList(kTimes,
                         [](BareList& list, int i) {
                             list.points[static_cast<std::size_t>(i) * kStep].n += 1;
                             list.Show();
                         }),
            WithOurList(kTimes, [](OurList& list, int i) {
                CNamedPoint point = list.book.GetPoints()[static_cast<std::size_t>(i) * kStep];
                point.point.SetN(point.point.GetN() + 1);
                list.book.Replace(point.strName, point);
                list.FollowLast();
            })};
}

Row PartTyped() {
    constexpr int kTimes = 4; // a part that all have, and none, with the rows sorted by names
    return {"points: part of a name typed",
            kTimeGoal,
            {kMany},
            [](int) { return Cost{kPatience}; },
            [](int n) {
                CPointBook book = BookOf(n);
                OurList list(book);
                list.Open();
                list.TapHeading(PointColumn::Name);
                int i = 0;
                return Timed(kTimes, [&] {
                    list.ShowOnly(++i % 2 != 0 ? L"k" : L"");
                    list.UpdateWindow();
                });
            }};
}

Row PlanPainted() {
    return {"points: plan painted in a frame",
            kTimeGoal,
            {kMany},
            [](int) { return Cost{kFrame}; },
            [](int n) {
                const CPointBook book = BookOf(n);
                CDrawing drawing;
                for (const CNamedPoint& point : book.GetPoints())
                    drawing.AddPoint(point.strName, point.point, Role::Given);
                CPlanFonts fonts;
                CWindowDC screen(nullptr);
                CBitmap bitmap;
                CDC memory;
                memory.CreateCompatibleDC(&screen);
                bitmap.CreateCompatibleBitmap(&screen, kPlanSize.cx, kPlanSize.cy);
                memory.SelectObject(&bitmap);
                CCoordinate lo, hi;
                drawing.GetExtent(lo, hi);
                const CPlanScale scale(lo, hi, kPlanSize);
                return Timed(1, [&] { CPlanPainter(memory, kPlanSize, scale, fonts).Paint(drawing); });
            }};
}

// --- Files --------------------------------------------------------------------------------------

std::string FileOf(int n) {
    std::string bytes = "name,N,E,Z\r\n";
    char line[96];
    for (const Point& point : BarePoints(n))
        bytes.append(line,
                     static_cast<std::size_t>(std::snprintf(line, sizeof line, "%ls,%.6f,%.6f,%.6f\r\n",
                                                            point.name.c_str(), point.n, point.e, point.z)));
    return bytes;
}

/// As plain as it can be: no quotation marks, no other encoding, nothing is checked but names.
/// Each line is ended by a zero, since wcstod measures the rest of its text at every call.
std::size_t ReadBare(const wchar_t* pszPath) {
    std::string bytes;
    {
        CFile file(pszPath, CFile::modeRead);
        bytes.resize(static_cast<std::size_t>(file.GetLength()));
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    std::wstring text(bytes.size(), L'\0');
    ::MultiByteToWideChar(CP_OEMCP, 0, bytes.data(), static_cast<int>(bytes.size()), text.data(),
                          static_cast<int>(text.size()));
    std::vector<Point> points;
    std::map<std::wstring, std::size_t> index;
    for (std::size_t nStart = text.find(L'\n') + 1, nEnd = 0;
         (nEnd = text.find(L'\n', nStart)) != std::wstring::npos; nStart = nEnd + 1) {
        text[nEnd] = L'\0';
        const std::size_t nComma = text.find(L',', nStart);
        Point point{text.substr(nStart, nComma - nStart), 0, 0, 0};
        wchar_t* pchEnd = nullptr;
        point.n = std::wcstod(text.data() + nComma + 1, &pchEnd);
        point.e = std::wcstod(pchEnd + 1, &pchEnd);
        point.z = std::wcstod(pchEnd + 1, &pchEnd);
        index.emplace(point.name, points.size());
        points.push_back(std::move(point));
    }
    return points.size();
}

Row LinesRead() {
    constexpr auto kPath = L"\\points.csv";
    const auto timed = [=](int n, auto read) {
        RewriteFile(kPath, FileOf(n));
        return Timed(1, read);
    };
    return {"points: lines read",
            kLinesGoal,
            {kMany},
            [=](int n) { return timed(n, [=] { Take(ReadBare(kPath)); }); },
            [=](int n) {
                return timed(n, [=] {
                    CPointBook book;
                    ReadPoints(DecodeText(ReadWholeFile(kPath)), book);
                    Take(static_cast<std::size_t>(book.GetCount()));
                });
            }};
}

/// New points, each then given a height, as an unlucky day would leave them: beside as many lines of a
/// points file, which have half as many numbers and no check sums.
Row ChangesRepeated() {
    constexpr auto kPath = L"\\points.csv";
    return {"points: changes repeated",
            kChangesGoal,
            {kMany},
            [=](int n) {
                RewriteFile(kPath, FileOf(n));
                return Timed(1, [=] { Take(ReadBare(kPath)); });
            },
            [=](int n) {
                CChangeFile record(L"\\");
                record.Claim(kPath);
                record.Begin(1);
                CPointBook book;
                std::vector<CPointChange> changes;
                book.SetObserver([&](const CPointChange& change) { changes.push_back(change); });
                for (const Point& point : BarePoints(n / 2)) {
                    CNamedPoint each{point.name.c_str(), CCoordinate(point.e, point.n, 0, 1)};
                    book.Add(each);
                    each.point.SetZ(point.z);
                    book.Replace(each.strName, each);
                }
                record.Append(changes);
                const Cost cost = Timed(1, [&] {
                    CPointBook again;
                    const std::optional<CLeftChanges> left = record.FindLeft(kPath, 1);
                    for (const CPointChange& change : left->changes)
                        again.Apply(change);
                    Take(static_cast<std::size_t>(again.GetCount()));
                });
                record.Begin(1);
                return cost;
            }};
}

} // namespace

std::vector<Row> SampleRows() {
    return {Opened(),    Scrolled(),    Sorted(),    Removed(),        Edited(),
            PartTyped(), PlanPainted(), LinesRead(), ChangesRepeated()};
}

} // namespace bench
