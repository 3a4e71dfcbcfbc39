#pragma once

#include <string>
#include <vector>

namespace WholeBench {

/// One run of a writer or reader.
struct Row {
    std::string subject;
    std::string sample;
    double records = 0.0;
    double seconds = 0.0;
    double bytes = 0.0;
    double extraMiB = 0.0;
    double floorRatio = 0.0;  ///< 0 none
    double exponent = 0.0;    ///< of time with the number of records, from the size before; 0 none
};

/// The time of another program over that of ours, for the same work.
struct Comparison {
    std::string what;
    double ratio = 0.0;
};

/// Sets the exponents of rows of one subject and sample that follow one another in size.
void SetExponents(std::vector<Row>& rows);

/// The tables in Markdown.
std::string Markdown(const std::vector<Row>& rows, const std::vector<Comparison>& comparisons);

}  // namespace WholeBench
