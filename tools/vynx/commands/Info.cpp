#include <algorithm>
#include <iomanip>
#include <iostream>

#include "document/ModelDocument.h"
#include "platform/text/Utf8.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::Text::ToUtf8;

constexpr int kColumn = 24;
constexpr int kCountColumn = 8;

void Line(std::string_view label, const std::string& text) {
    std::cout << "  " << std::left << std::setw(kColumn) << label << text << '\n';
}

void PrintTitles(const CVynData& model) {
    const Tevra::CTitles& titles = model.Title();
    const std::pair<const char*, const std::wstring*> lines[] = {
        {"title", &titles.JobTitle()},          {"subtitle", &titles.SubTitle()},
        {"calculation", &titles.CalcHeading()}, {"job number", &titles.JobNumber()},
        {"initials", &titles.Initials()},       {"saved", &titles.DateSaved()}};
    for (const auto& [label, text] : lines) {
        if (!text->empty()) {
            Line(label, ToUtf8(*text));
        }
    }
}

void PrintCounts(const CVynData& model) {
    std::cout << "records\n";
    for (const auto& [key, count] : Tevra::Document::CountRecords(model)) {
        std::string label(key);
        std::replace(label.begin(), label.end(), '_', ' ');
        Line(label, std::to_string(count));
    }
}

void PrintElementTypes(const CVynData& model) {
    if (model.NumElem() == 0) {
        return;
    }
    std::cout << "elements by type\n";
    for (int code = 1; code <= Tevra::kHighestElementType; ++code) {
        const auto type = static_cast<Tevra::ElementType>(code);
        const int count = model.NumElemType(type);
        if (count > 0) {
            Line(ToUtf8(Tevra::ElementTypeString(type)), std::to_string(count));
        }
    }
}

void PrintExtent(const CVynData& model) {
    if (model.NumNode() == 0) {
        return;
    }
    Tevra::Vec3<double> low = model.Node(model.HighestNode()).Position();
    Tevra::Vec3<double> high = low;
    for (const int number : model.NodeTable().Numbers()) {
        for (int i = 0; i < 3; ++i) {
            low[i] = std::min(low[i], model.Node(number).Position()[i]);
            high[i] = std::max(high[i], model.Node(number).Position()[i]);
        }
    }
    std::cout << "extent, m\n";
    for (int i = 0; i < 3; ++i) {
        std::cout << "  "
                  << "xyz"[i] << "  " << low[i] << " to " << high[i] << '\n';
    }
}

void PrintCases(const CVynData& model) {
    if (model.NumAnalysisCase() > 0) {
        std::cout << "analysis cases\n";
    }
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        const Tevra::CAnalysisCase& record = model.AnalysisCase(number);
        Line(std::string("A").append(std::to_string(number)),
             ToUtf8(record.Name()) + "  " + ToUtf8(record.Desc().Description()) +
                 (model.AnalysisCaseHasResults(number) ? "  (results)" : ""));
    }
    if (model.NumCombinationCase() > 0) {
        std::cout << "combination cases\n";
    }
    for (const int number : model.CombinationCaseTable().Numbers()) {
        const Tevra::CCombinationCase& record = model.CombinationCase(number);
        const int permutations = record.Desc().NumPermutation(model);
        Line(std::string("C").append(std::to_string(number)),
             ToUtf8(record.Name()) + "  " + ToUtf8(record.Desc().Description()) + "  (" +
                 std::to_string(permutations) +
                 (permutations == 1 ? " permutation)" : " permutations)"));
    }
}

void PrintViews(const CVynData& model) {
    if (model.NumView() > 0) {
        std::cout << "output views\n";
    }
    for (const int number : model.ViewTable().Numbers()) {
        Line(std::to_string(number), ToUtf8(model.View(number).Name()));
    }
}

void PrintSkipped(const SkippedBlocks& skipped) {
    if (!skipped.empty()) {
        std::cout << "skipped\n";
    }
    for (const auto& [name, count] : skipped) {
        std::cout << std::right << std::setw(kCountColumn) << count << "  " << name << '\n';
    }
}

}  // namespace

void Info(const ModelSource& source) {
    CVynData model;
    const SkippedBlocks skipped = LoadModel(source, model);
    std::cout << source.file << '\n';
    PrintTitles(model);
    PrintCounts(model);
    PrintElementTypes(model);
    PrintExtent(model);
    PrintCases(model);
    PrintViews(model);
    PrintSkipped(skipped);
}

}  // namespace Vynx
