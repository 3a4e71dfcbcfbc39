#include <cmath>

#include "io/TextOut.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"
#include "platform/ui/HostServices.h"

// Header and case control: what is solved for, and one subcase for each load case and combination.

namespace Tevra {

namespace {

/// Far above what any model has, and what a file can sensibly hold.
constexpr int kMostSubcases = 1'000'000;

constexpr std::wstring_view kConflicts =
    L"WARNING\n\nLoading and gravity options conflict in the following case(s).\nGravity loads "
    L"will be assigned to a new case number:\n";

const char* SolutionLine(int analysisType) {
    switch (analysisType) {
        case CNasFile::kStatic:
            return "SOL 101\n";
        case CNasFile::kModes:
            return "SOL 103\n";
        case CNasFile::kBuckling:
            return "SOL 105\n";
        default:
            return "";
    }
}

}  // namespace

bool CNasFile::WriteHeader() {
    WriteTitles();
    WriteOutputRequests();
    int next = m_model->HighestLoadCase();
    if (m_exportLoads && !WriteSubcases(next)) {
        return false;
    }
    if (m_analysisType == kBuckling) {
        m_bucklingSet = next + 1;
        m_out->Append("LOAD = ").Int(m_bucklingSet).EndLine();
    }
    WriteParameters();
    WriteOrigin();
    return true;
}

void CNasFile::WriteTitles() {
    const CTitles& titles = m_model->Title();
    TextOut& out = *m_out;
    out.Append("$\n$ Data created by: VYN\n$\n$ Header information\n$\n");
    out.Append("ID ").AppendCard(titles.JobTitle()).Append(',');
    out.AppendCard(titles.JobTitle()).EndLine();
    out.Append("$ subtitle: ").AppendCard(titles.SubTitle()).EndLine();
    out.Append("$ calc: ").AppendCard(titles.CalcHeading()).EndLine();
    out.Append("$ job no.: ").AppendCard(titles.JobNumber()).EndLine();
    out.Append("$ initials: ").AppendCard(titles.Initials()).EndLine();
    out.Append(SolutionLine(m_analysisType)).Append("CEND\n");
    out.Append("TITLE = ").AppendCard(titles.JobTitle()).EndLine();
}

void CNasFile::WriteOutputRequests() {
    if (m_analysisType == kModes || m_analysisType == kBuckling) {
        m_out->Append("METHOD = 1\n");
    }
    m_out->Append("DISPLACEMENT(PLOT,PHASE) = ALL\n");
    if (m_analysisType == kStatic || m_analysisType == kBuckling) {
        m_out->Append(
            "FORCE(PLOT) = ALL\nSTRESS(PLOT) = ALL\nSUPER(PLOT) = ALL\nOLOAD(PLOT) = ALL\n");
    }
    m_out->Append("SPCFORCES(PLOT) = ALL\nSPC = 1\nMPC = 1\n");
}

void CNasFile::WriteParameters() {
    m_out->Append(
        "BEGIN BULK\n$\nPARAM,AUTOSPC,YES\nPARAM,EPZERO,1.0E-8\nPARAM,GRDPNT,0\nPARAM,POST,-2\n"
        "PARAM,OMAXR,24578\nPARAM,OUGCORD,BASIC\n$\n");
}

/// `next` goes on from the highest load case to the last number that a subcase has.
bool CNasFile::WriteSubcases(int& next) {
    if (next > kMostSubcases) {
        AddError(L"There is a subcase for every number up to the highest load case, " +
                 std::to_wstring(next) + L": that is too many");
        return false;
    }
    FindLoadKinds();
    std::wstring warning(kConflicts);
    int conflicts = 0;
    for (int i = 1; i <= m_model->HighestLoadCase(); ++i) {
        const bool moved = HasLoad(i, kMechanical) && HasLoad(i, kSelfWeight);
        if (moved) {
            ++conflicts;
            warning += std::to_wstring(i) + (conflicts % 10 == 0 ? L"  \n" : L"  ");
        }
        m_gravityCases.push_back(moved ? ++next : i);
        WriteSubcase(
            i, m_model->LoadCaseTitleExist(i) ? m_model->LoadCaseTitle(i).Name() : CaseName(i));
        if (HasLoad(i, kMechanical | kSelfWeight)) {
            m_out->Append("LOAD = ").Int(i).EndLine();
        }
        if (HasLoad(i, kThermal)) {
            m_out->Append("TEMPERATURE(LOAD) = ").Int(i).EndLine();
        }
    }
    WriteGravitySubcases();
    WriteCombinationSubcases(next);
    if (conflicts > 0) {
        Host().ShowMessage(warning);
    }
    return true;
}

void CNasFile::WriteGravitySubcases() {
    for (int i = 1; i <= static_cast<int>(m_gravityCases.size()); ++i) {
        if (GravityCase(i) != i) {
            WriteSubcase(GravityCase(i), CaseName(i) + L" (gravity)");
            m_out->Append("LOAD = ").Int(GravityCase(i)).EndLine();
        }
    }
}

bool CNasFile::IsExported(int combination) const {
    return m_model->CombinationCase(combination).Desc().NumPermutation(*m_model) <= 1;
}

void CNasFile::WriteCombinationSubcases(int& next) {
    for (const int combination : m_model->CombinationCaseTable().Numbers()) {
        if (!IsExported(combination)) {
            SetSubject(L"Combination case", combination);
            Skip(L"it has several permutations");
            continue;
        }
        m_combinationCases.push_back(++next);
        WriteSubcase(next, m_model->CombinationCase(combination).Name() + L" (combination)");
        m_out->Append("LOAD = ").Int(next).EndLine();
    }
}

void CNasFile::WriteSubcase(int number, const std::wstring& subtitle) {
    m_out->Append("SUBCASE ").Int(number).Append("\nSUBTITLE = ").AppendCard(subtitle).EndLine();
}

/// The title of a load case, its number where it has none.
std::wstring CNasFile::CaseName(int loadCase) const {
    return m_model->LoadCaseTitleExist(loadCase) ? m_model->LoadCaseTitle(loadCase).Name()
                                                 : L"Load case " + std::to_wstring(loadCase);
}

void CNasFile::FindLoadKinds() {
    m_loadKinds.assign(static_cast<std::size_t>(m_model->HighestLoadCase()) + 1, 0);
    const auto add = [this](const auto& table, unsigned kind) {
        for (const int number : table.Numbers()) {
            const int loadCase = table.Get(number).LoadCase();
            if (loadCase >= 1 && loadCase <= m_model->HighestLoadCase()) {
                auto& kinds = m_loadKinds[static_cast<std::size_t>(loadCase)];
                kinds = static_cast<std::uint8_t>(kinds | kind);
            }
        }
    };
    add(m_model->NodeLoadTable(), kMechanical);
    add(m_model->SettlementTable(), kMechanical);
    add(m_model->AppliedDisplacementTable(), kMechanical);
    add(m_model->BeamLoadTable(), kMechanical);
    add(m_model->FaceLoadTable(), kMechanical);
    add(m_model->AxialLoadTable(), kThermal);
    add(m_model->BeamThermalLoadTable(), kThermal);
    add(m_model->InPlaneLoadTable(), kThermal);
    add(m_model->FaceThermalLoadTable(), kThermal);
    add(m_model->GravityLoadTable(), kSelfWeight);
}

bool CNasFile::HasLoad(int loadCase, unsigned kinds) const {
    const auto i = static_cast<std::size_t>(loadCase);
    return i < m_loadKinds.size() && (m_loadKinds[i] & kinds) != 0;
}

bool CNasFile::IsLoadCase(int number) const {
    return number >= 1 && number <= m_model->HighestLoadCase();
}

int CNasFile::GravityCase(int loadCase) const {
    const auto i = static_cast<std::size_t>(loadCase) - 1;
    return i < m_gravityCases.size() ? m_gravityCases[i] : loadCase;
}

bool CNasFile::WriteEigenCards() {
    SetSubject(L"Analysis type", m_analysisType);
    if (m_analysisType == kModes || m_analysisType == kBuckling) {
        StartCard("EIGRL");
        AddInt(1);
        AddBlankFields(2);
        AddInt(m_numModes);
        AddBlankFields(3);
        AddTextField("MAX");
        EndCard();
    }
    if (m_analysisType == kBuckling) {
        WriteBucklingLoads();
    }
    return true;
}

void CNasFile::WriteBucklingLoads() {
    std::map<int, double> factors;
    for (const CaseDescPart::Load& load : m_bucklingCase.Desc().Factors(0)) {
        factors[load.loadCase] = load.factor;
        if (!IsLoadCase(load.loadCase)) {
            AddNote(L"The loads of the buckling analysis name load case " +
                    std::to_wstring(load.loadCase) + L", which does not exist");
        }
    }
    StartCard("LOAD");
    AddInt(m_bucklingSet);
    AddReal(1.0);
    AddLoadPairs(factors);
    EndCard();
}

/// The pairs of a LOAD card: each load case, then the sets of gravity that were moved.
void CNasFile::AddLoadPairs(const std::map<int, double>& factors) {
    const auto addPairs = [this, &factors](bool ofMoved) {
        for (const auto& [loadCase, factor] : factors) {
            if (IsLoadCase(loadCase) && factor != 0.0 &&
                (!ofMoved || GravityCase(loadCase) != loadCase)) {
                AddReal(factor);
                AddInt(ofMoved ? GravityCase(loadCase) : loadCase);
            }
        }
    };
    addPairs(false);
    addPairs(true);
}

bool CNasFile::WriteCombinations() {
    StartSection("Load cases");
    std::size_t next = 0;
    for (const int combination : m_model->CombinationCaseTable().Numbers()) {
        if (IsExported(combination) && next < m_combinationCases.size()) {
            WriteCombination(combination, m_combinationCases[next++]);
        }
    }
    return true;
}

/// The factor of a load case is the sum over the analysis cases of the combination's factor times
/// the case's own.
void CNasFile::WriteCombination(int combination, int set) {
    SetSubject(L"Combination case", combination);
    const CCombCaseDesc& desc = m_model->CombinationCase(combination).Desc();
    if (!desc.IsValid(*m_model)) {
        AddNote(L"Combination case " + std::to_wstring(combination) +
                L" has no loads: its description can't be read");
    }
    std::map<int, double> factors;
    for (const int number : desc.AnalysisCases(*m_model, 1)) {
        const double outer = desc.CaseFactor(*m_model, 1, AnalysisRef(number));
        const auto loads = m_model->AnalysisCase(number).Desc().Factors(0);
        if (loads.empty()) {
            AddNote(L"Combination case", combination,
                    L"is written without analysis case " + std::to_wstring(number) +
                        L", which has no loads");
        }
        for (const auto& load : loads) {
            factors[load.loadCase] += outer * load.factor;
        }
    }
    const std::size_t left =
        std::erase_if(factors, [](const auto& factor) { return !std::isfinite(factor.second); });
    SkipMany(static_cast<int>(left), L"load cases", L"they take part through an envelope");
    if (std::none_of(factors.begin(), factors.end(), [this](const auto& factor) {
            return IsLoadCase(factor.first) && factor.second != 0.0;
        })) {
        AddNote(L"Combination case", combination,
                L"is written without sets, as no load case takes part in it");
    }
    StartCard("LOAD");
    AddInt(set);
    AddReal(1.0);
    AddLoadPairs(factors);
    EndCard();
}

}  // namespace Tevra
