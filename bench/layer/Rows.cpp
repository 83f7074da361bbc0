#include "Rows.h"

#include "Report.h"

#include <algorithm>

namespace bench {

void MeasureRows(Report& report, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        if (!report.Wants(row.name))
            continue;
        std::vector<Pair> pairs;
        for (const int n : row.sizes) {
            pairs.push_back(Compare([&] { return row.bare(n); }, [&] { return row.ours(n); }));
            report.AddTime(row.name + ", " + std::to_string(n), pairs.back(), row.goal);
        }
        const double work = static_cast<double>(row.sizes.back()) / row.sizes.front();
        const double bare = pairs.back().bare.ms / pairs.front().bare.ms;
        if (pairs.size() > 1)
            report.AddGrowth(row.name + ", growth",
                             pairs.back().ours.ms / pairs.front().ours.ms / std::max(work, bare));
    }
}

std::wstring TextOf(int i, int n) {
    std::wstring text = L"Pt" + std::to_wstring(i);
    while (text.size() < static_cast<std::size_t>(n))
        text += static_cast<wchar_t>((text.size() % 3 == 0 ? L'A' : L'a') + text.size() % 26);
    return text;
}

} // namespace bench
