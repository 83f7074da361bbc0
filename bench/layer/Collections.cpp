// Collections beside those of the standard library. A size is the number of elements.
#include "Rows.h"

#include <afxtempl.h>

#include <algorithm>
#include <unordered_map>

namespace bench {

namespace {

constexpr double kGoal = 1.1;
constexpr double kMapGoal = 1.3;
constexpr int kElements = 200000; // of all collections in one measurement

int TimesFor(int n) {
    return std::max(kElements / n, 1);
}

template <class Element>
std::vector<Element> Elements(int n) {
    if constexpr (std::is_same_v<Element, int>)
        return std::vector<int>(static_cast<std::size_t>(n), 7);
    else
        return TextsOf<Element>(n, 8);
}

/// Into an array that is known by its address only, as a member of an object is.
template <class Element>
[[gnu::noinline]] void Append(std::vector<Element>& grown, const std::vector<Element>& elements) {
    for (const Element& element : elements)
        grown.push_back(element);
}

template <class Element>
[[gnu::noinline]] void Append(CArray<Element, const Element&>& grown, const std::vector<Element>& elements) {
    for (const Element& element : elements)
        grown.Add(element);
}

template <class Element>
Row Appended(const char* pszName) {
    return {pszName,
            kGoal,
            {1000, 100000},
            [](int n) {
                const auto elements = Elements<Element>(n);
                return Timed(TimesFor(n), [&] {
                    std::vector<Element> grown;
                    Append(grown, elements);
                    Take(grown.size());
                });
            },
            [](int n) {
                const auto elements = Elements<Element>(n);
                return Timed(TimesFor(n), [&] {
                    CArray<Element, const Element&> grown;
                    Append(grown, elements);
                    Take(static_cast<std::size_t>(grown.GetSize()));
                });
            }};
}

template <class Element>
Row Removed(const char* pszName) {
    return {pszName,
            kGoal,
            {1000, 100000},
            [](int n) {
                std::vector<std::vector<Element>> full(static_cast<std::size_t>(TimesFor(n)),
                                                       Elements<Element>(n));
                auto next = full.begin();
                return Timed(TimesFor(n), [&] {
                    for (auto& array = *next++; !array.empty();) {
                        Take(array.size());
                        array.pop_back();
                    }
                });
            },
            [](int n) {
                const auto elements = Elements<Element>(n);
                std::vector<CArray<Element, const Element&>> full(static_cast<std::size_t>(TimesFor(n)));
                for (auto& array : full)
                    Append(array, elements);
                auto next = full.begin();
                return Timed(TimesFor(n), [&] {
                    for (auto& array = *next++; !array.IsEmpty();) {
                        Take(static_cast<std::size_t>(array.GetSize()));
                        array.RemoveAt(array.GetUpperBound());
                    }
                });
            }};
}

Row Walked() {
    return {"map walked",
            kMapGoal,
            {1000, 100000},
            [](int n) {
                std::unordered_map<int, int> map;
                for (int i = 0; i < n; ++i)
                    map[i * 7] = i;
                return Timed(TimesFor(n), [&] {
                    for (const auto& [key, value] : map)
                        Take(static_cast<std::size_t>(key) + static_cast<std::size_t>(value));
                });
            },
            [](int n) {
                CMap<int, int, int, int> map;
                for (int i = 0; i < n; ++i)
                    map[i * 7] = i;
                return Timed(TimesFor(n), [&] {
                    int key = 0;
                    int value = 0;
                    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
                        map.GetNextAssoc(pos, key, value);
                        Take(static_cast<std::size_t>(key) + static_cast<std::size_t>(value));
                    }
                });
            }};
}

} // namespace

std::vector<Row> CollectionRows() {
    return {Appended<int>("array of integers appended"), Appended<CString>("array of strings appended"),
            Removed<int>("array of integers, end removed"), Removed<CString>("array of strings, end removed"),
            Walked()};
}

} // namespace bench
