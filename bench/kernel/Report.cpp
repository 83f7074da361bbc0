#include "Report.h"

#include <cstdio>
#include <fstream>
#include <iomanip>

namespace {

const char* NameOf(Kind kind) {
    switch (kind) {
    case Kind::Floor:
        return "floor";
    case Kind::Plain:
        return "plain";
    case Kind::Kernel:
        return "kernel";
    default:
        return "peer";
    }
}

const char* Verdict(const Row& row) {
    const double kernel = row.Of(Kind::Kernel).ratio.median;
    const Measurement* peer = row.BestPeer();
    if (peer && peer->ratio.median < kernel)
        return "behind a peer";
    return kernel <= row.workload->goal ? "met" : "above the goal";
}

void PrintForm(const Measurement& m) {
    std::printf("    %-16s %7.1f ns   x %6.2f  (%.2f..%.2f)   %s\n", m.form->name, m.nanoseconds.median,
                m.ratio.median, m.ratio.low, m.ratio.high, m.identical ? "same bits" : "other bits");
}

void WriteSpread(std::ostream& out, const char* name, const Spread& s) {
    out << '"' << name << "\": {\"low\": " << s.low << ", \"median\": " << s.median
        << ", \"high\": " << s.high << '}';
}

void WriteJson(std::ostream& out, const std::vector<Row>& rows) {
    out << std::setprecision(5) << "{\"workloads\": [";
    for (const Row& row : rows) {
        out << (&row == &rows.front() ? "\n" : ",\n") << " {\"key\": \"" << row.workload->key
            << "\", \"name\": \"" << row.workload->name << "\", \"goal\": " << row.workload->goal
            << ", \"verdict\": \"" << Verdict(row) << "\", \"forms\": [";
        for (const Measurement& m : row.forms) {
            out << (&m == &row.forms.front() ? "\n" : ",\n") << "  {\"name\": \"" << m.form->name
                << "\", \"kind\": \"" << NameOf(m.form->kind)
                << "\", \"bit_identical\": " << (m.identical ? "true" : "false") << ", ";
            WriteSpread(out, "nanoseconds", m.nanoseconds);
            out << ", ";
            WriteSpread(out, "ratio", m.ratio);
            out << '}';
        }
        out << "]}";
    }
    out << "\n]}\n";
}

/// A line a workload: name, then the ratios of plain form, kernel, goal and best peer.
void WriteChartData(std::ostream& out, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        const Measurement* peer = row.BestPeer();
        out << '"' << row.workload->name << "\" " << row.Of(Kind::Plain).ratio.median << ' '
            << row.Of(Kind::Kernel).ratio.median << ' ' << row.workload->goal << ' ';
        if (peer)
            out << peer->ratio.median << '\n';
        else
            out << "NaN\n";
    }
}

} // namespace

void PrintTable(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        std::printf("%s: goal x %.2f, %s\n", row.workload->name, row.workload->goal, Verdict(row));
        for (const Measurement& m : row.forms)
            PrintForm(m);
    }
    std::printf("\n%-26s %8s %7s %7s %-6s %-22s %6s\n", "workload", "floor ns", "plain", "kernel", " bits",
                " best peer", "goal");
    for (const Row& row : rows) {
        const Measurement* peer = row.BestPeer();
        char best[40] = "none has it";
        if (peer)
            std::snprintf(best, sizeof best, "%6.2f %s", peer->ratio.median, peer->form->name);
        const Measurement& kernel = row.Of(Kind::Kernel);
        std::printf("%-26s %8.1f %7.2f %7.2f  %-5s %-22s %6.2f  %s\n", row.workload->name,
                    row.Of(Kind::Floor).nanoseconds.median, row.Of(Kind::Plain).ratio.median,
                    kernel.ratio.median, kernel.identical ? "same" : "OTHER", best, row.workload->goal,
                    Verdict(row));
    }
}

bool WriteFiles(const std::vector<Row>& rows, const std::string& folder) {
    std::ofstream json(folder + "/kernel.json");
    WriteJson(json, rows);
    std::ofstream chart(folder + "/kernel.dat");
    WriteChartData(chart, rows);
    json.close();
    chart.close();
    return json.good() && chart.good();
}
