#include "whole/Report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace WholeBench {

namespace {

/// The processor's name, as the system tells it.
std::string Processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        if (line.rfind("model name", 0) == 0) {
            return line.substr(line.find(':') + 2);
        }
    }
    return "unknown processor";
}

std::string Today() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 16> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &local)};
}

std::string Figure(const char* format, double value) {
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), format, value);
    return {text.data(), std::min(text.size() - 1, static_cast<std::size_t>(std::max(0, length)))};
}

std::string OrDash(const char* format, double value) {
    return value != 0.0 ? Figure(format, value) : "-";
}

std::string Line(const Row& row) {
    return "| " + row.subject + " | " + row.sample + " | " + Figure("%.0f", row.records) + " | " +
           Figure("%.3g", row.seconds) + " | " + Figure("%.1f", row.bytes / 1e6) + " | " +
           Figure("%.0f", row.bytes / row.seconds / 1e6) + " | " +
           Figure("%.0f", row.records / row.seconds / 1e3) + " | " + Figure("%.1f", row.extraMiB) +
           " | " + OrDash("%.2f", row.floorRatio) + " | " + OrDash("%.2f", row.exponent) + " |\n";
}

}  // namespace

void SetExponents(std::vector<Row>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (rows[j].subject == rows[i].subject && rows[j].sample == rows[i].sample &&
                rows[j].records < rows[i].records) {
                rows[i].exponent = std::log(rows[i].seconds / rows[j].seconds) /
                                   std::log(rows[i].records / rows[j].records);
            }
        }
    }
}

std::string Markdown(const std::vector<Row>& rows, const std::vector<Comparison>& comparisons) {
    std::string text = "Measured " + Today() + " on " + Processor() +
                       ", processor time, the best of several runs. The floor is the same nodes "
                       "and elements by `std::to_chars` into a buffer.\n\n";
    text +=
        "| What | Model | Records | s | MB | MB/s | 1000 records/s | Extra MiB | Of the floor | "
        "Exponent |\n| --- | --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: | ---: |\n";
    for (const Row& row : rows) {
        text += Line(row);
    }
    if (!comparisons.empty()) {
        text += "\n| Beside | Times its time |\n| --- | ---: |\n";
    }
    for (const Comparison& comparison : comparisons) {
        text += "| " + comparison.what + " | " + Figure("%.1f", comparison.ratio) + " |\n";
    }
    return text;
}

}  // namespace WholeBench
