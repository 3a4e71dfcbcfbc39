#include <algorithm>
#include <array>
#include <cmath>

#include "io/NumberFormat.h"
#include "legacy/VybConverter.h"
#include "legacy/VybStream.h"
#include "model/VynData.h"
#include "platform/text/Utf8.h"

namespace Tevra {

namespace {

constexpr std::size_t kTitle = 10;
constexpr std::size_t kCombinationTitle = 20;
/// Number and title of a combination; a factor for each load case follows.
constexpr std::size_t kCombinationStart = 24;
constexpr std::size_t kFactor = 4;
constexpr double kZeroFactor = 1e-10;
constexpr std::size_t kResultRecord = 28;

/// What a case with results was solved for.
struct Solution {
    const wchar_t* title;
    SolutionType type;
    bool isModal;
    bool isPDelta;
};
constexpr std::array kSolutions = {
    Solution{L"Static", SolutionType::Static, false, false},
    Solution{L"Static P-delta", SolutionType::StaticPDelta, false, true},
    Solution{L"Modal", SolutionType::Modal, true, false},
    Solution{L"Modal P-delta", SolutionType::ModalPDelta, true, true},
    Solution{L"Buckling", SolutionType::Buckling, true, false},
};

std::wstring LoadText(int loadCase) {
    return L"1.L" + std::to_wstring(loadCase);
}

/// A static case has the number of its load case.
std::wstring Description(const Solution& solution, int number, int loadCase, int mode) {
    std::wstring text = solution.isModal ? L"M" + std::to_wstring(mode) : LoadText(number);
    if (solution.isPDelta) {
        text += L" : P(" + LoadText(solution.isModal ? loadCase : number) + L')';
    }
    return text;
}

std::wstring FactorText(float factor, int number) {
    std::string text;
    AppendSignedFixed(text, ThroughShortestText(factor));
    text += 'A';
    AppendInt(text, number);
    return Text::FromUtf8(text);
}

}  // namespace

bool CVybConverter::LoadCaseTitles() {
    if (!m_directory.Has(CVybDirectory::kLoadCaseTitles)) {
        return true;
    }
    const auto count = static_cast<std::uint64_t>(m_header.numLoadCase);
    if (!m_stream.Seek(m_directory.Place(CVybDirectory::kLoadCaseTitles)) ||
        count > m_stream.Left() / kTitle) {
        return false;
    }
    for (int number = 1; number <= m_header.numLoadCase; ++number) {
        CVybRecord title(m_stream.Take(kTitle), m_stream.Swap());
        m_model.SetLoadCaseTitle(number, Data::NamedEntity(title.Text(kTitle)));
        if (!title.Good()) {
            return false;
        }
    }
    return true;
}

bool CVybConverter::Combinations() {
    const auto cases = static_cast<std::size_t>(m_header.numLoadCase);
    return Convert({CVybDirectory::kCombinations, kCombinationStart + kFactor * cases,
                    &CVybConverter::TakeCombination});
}

void CVybConverter::TakeCombination(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kCombinations);
    const std::wstring title = record.Text(kCombinationTitle);
    std::wstring description;
    for (int loadCase = 1; record.Good() && loadCase <= m_header.numLoadCase; ++loadCase) {
        const float factor = record.Single();
        if (std::abs(static_cast<double>(factor)) > kZeroFactor) {
            description += FactorText(factor, loadCase);
        }
    }
    if (record.Good()) {
        m_model.SetCombinationCase(number, CCombinationCase(title, description));
    }
}

bool CVybConverter::Results(const CUnit& units) {
    const int highest =
        std::min(m_header.numLoadCase, m_directory.NumEntry() - CVybDirectory::kResults);
    // Records of results share no blocks, so there can't be more of them than blocks.
    std::uint64_t blocksLeft = m_stream.Size() / CVybDirectory::kBlockBytes + 1;
    for (int number = 1; number <= highest; ++number) {
        const int entry = CVybDirectory::kResults + number;
        if (!m_directory.Has(entry)) {
            continue;
        }
        if (blocksLeft == 0 || m_directory.Solution(entry) > static_cast<int>(kSolutions.size())) {
            return false;
        }
        if (!m_stream.Seek(m_directory.Place(entry))) {
            break;  // as at a record that is short: the cases before it stay
        }
        --blocksLeft;
        CVybRecord record(m_stream.Take(kResultRecord), m_stream.Swap());
        if (!AddCase(number, record, units)) {
            break;
        }
    }
    return true;
}

bool CVybConverter::AddCase(int number, CVybRecord& record, const CUnit& units) {
    const int kind = m_directory.Solution(CVybDirectory::kResults + number);
    const Solution& solution = kSolutions[static_cast<std::size_t>(kind - 1)];
    const int loadCase = record.Reference();
    const int mode = record.Reference();
    const bool hasMass = record.Flag();
    const double mass = record.Real();
    const Vec3<double> centre = record.Vector();
    if (!record.Good()) {
        return false;
    }
    const std::wstring name = solution.title + (L' ' + std::to_wstring(number));
    AddTask(number, solution.type, name);
    m_model.SetAnalysisCase(
        number, CAnalysisCase(name, number, Description(solution, number, loadCase, mode)));
    if (hasMass) {
        const SCaseRef ref = AnalysisRef(number);
        m_model.SetMass(ref, mass / units.Conversion(static_cast<int>(UnitKind::Mass)));
        m_model.SetCentreOfMass(
            ref, centre * (1.0 / units.Conversion(static_cast<int>(UnitKind::Length))));
    }
    return true;
}

void CVybConverter::AddTask(int number, SolutionType solution, const std::wstring& name) {
    CAnalysisTask task;
    task.SetName(name);
    task.SetSolution(solution);
    task.SetAnalysed(true);
    m_model.SetAnalysisTask(number, std::move(task));
}

}  // namespace Tevra
