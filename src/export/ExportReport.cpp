#include <iostream>
#include <string>

#include "export/VynExport.h"
#include "platform/text/Utf8.h"

// What an export tells on standard output.
namespace Tevra::Export {

namespace {

constexpr int kLongMilliseconds = 10000;
constexpr int kMillisecondsInSecond = 1000;

void AddLine(std::string& text, std::string_view name, std::string_view value) {
    ((text += "  ") += name) += ": ";
    (text += value) += '\n';
}

void AddList(std::string& text, std::string_view name, const CEntList& list) {
    AddLine(text, name, Text::ToUtf8(list.Text()));
}

/// What a timing line says of the case; empty for references that are no case.
std::string TimedCase(const SCaseRef& ref) {
    const std::string number = std::to_string(ref.Case());
    if (ref.Case() == 0) {
        return " results (total) ";
    }
    if (ref.IsAnalysis()) {
        return " results (case A" + number + ") ";
    }
    if (!ref.IsCombination()) {
        return {};
    }
    const char* const envelope = ref.Index() == kMinimumEnvelope   ? "min"
                                 : ref.Index() == kMaximumEnvelope ? "max"
                                                                   : "";
    return " results (case C" + number + envelope + ") ";
}

}  // namespace

void CVynExport::Summary() const {
    std::string text;
    AddLine(text, "File", Path());
    AddLine(text, "Type", m_extension);
    if (m_extension == "csv") {
        AddLine(text, "Delimiter", std::string_view(&m_param.delimiter, 1));
    }
    AddLine(text, "Output", m_oneFilePerModule ? "one file per module" : "single file");
    AddList(text, "Nodes", m_param.nodeList);
    AddList(text, "Elements", m_param.elementList);
    AddList(text, "Members", m_param.memberList);
    AddList(text, "Assemblies", m_param.assemblyList);
    AddList(text, "Cases", m_param.caseList);
    AddLine(text, "No. beam positions", std::to_string(m_param.numBeamPosition));
    AddLine(text, "Include interesting points", m_param.includeInteresting ? "true" : "false");
    AddLine(text, "No. result cases", std::to_string(m_resultCases.size()));
    std::cout << text << std::flush;
}

void CVynExport::ReportTime(const std::string& module, const SCaseRef& ref,
                            int milliseconds) const {
    if (ref == SCaseRef() && !m_param.reportAllTimings) {
        return;
    }
    const std::string timed = TimedCase(ref);
    if (timed.empty()) {
        return;
    }
    const bool isLong = milliseconds > kLongMilliseconds;
    const int time = isLong ? milliseconds / kMillisecondsInSecond : milliseconds;
    std::cout << "    " + module + timed + std::to_string(time) + (isLong ? "s\n" : "ms\n")
              << std::flush;
}

std::string CVynExport::CaseRefString(const SCaseRef& ref) {
    std::string text = ref.IsAnalysis() ? "A" : ref.IsCombination() ? "C" : "";
    if (text.empty()) {
        return text;
    }
    text += std::to_string(ref.Case());
    if (ref.IsAnalysis()) {
        return text;
    }
    switch (ref.Permutation()) {
        case kMinimumEnvelope:
            return text += "min";
        case kMaximumEnvelope:
            return text += "max";
        case kAbsoluteEnvelope:
            return text += "abs";
        case kSignedAbsoluteEnvelope:
            return text += "signabs";
        default:
            break;
    }
    if (ref.Permutation() > 0) {
        (text += 'p') += std::to_string(ref.Permutation());
    }
    return text;
}

}  // namespace Tevra::Export
