#include "dyna/DynaAnalysis.h"

#include "dyna/DynaOut.h"
#include "io/ScopedPointer.h"
#include "io/Text.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

CDynaAnalysis::CDynaAnalysis() = default;
CDynaAnalysis::~CDynaAnalysis() = default;

int CDynaAnalysis::FirstTask(const CVynData& model) {
    for (const int number : model.AnalysisTaskTable().Numbers()) {
        if (model.AnalysisTask(number).IsExplicitDynamics()) {
            return number;
        }
    }
    return 0;
}

/// Looks the task up and makes the writer as it was before any write; false without a task.
bool CDynaAnalysis::Prepare() {
    m_report.clear();
    m_indexFile = false;
    m_task = m_model->AnalysisTask(m_taskNumber).Dyna();
    if (m_task == nullptr) {
        return false;
    }
    const std::wstring& cases = m_task->LoadCurveDescription();
    m_caseList = CEntList(cases.empty() ? L"none" : cases, SelType::LoadCase);
    if (!m_caseList.IsValid()) {
        AddNote(L"No loads are written: the list of load cases can't be read: \"" + cases + L"\"");
    }
    m_parts.clear();
    m_sectionTable = {};
    m_partsOf = {};
    m_designMaterials.clear();
    m_bodyOf = {};
    m_bodyLeads.clear();
    m_setCounter = 0;
    m_coordinateCount = 0;
    m_highestNode = 0;
    m_crossSections = 0;
    m_nextMaterial = m_model->HighestMatAnal();
    m_elementNumber = m_model->HighestElem();
    FindKinds();
    return true;
}

bool CDynaAnalysis::Write() {
    if (!IsReady() || !Prepare()) {
        return false;
    }
    DynaOut out(*m_stream);
    const ScopedPointer valid(m_out, out);
    const bool isComplete = WriteSections();
    const bool isWritten = out.Flush();
    NoteFaults();
    if (isComplete && isWritten) {
        BuildReport();
    }
    return isComplete && isWritten;
}

bool CDynaAnalysis::WriteSections() {
    using Section = bool (CDynaAnalysis::*)();
    constexpr Section kSections[] = {
        &CDynaAnalysis::WriteHeader,
        &CDynaAnalysis::WriteCoordinateSystems,
        &CDynaAnalysis::WriteParts,
        &CDynaAnalysis::WriteControl,
        &CDynaAnalysis::WriteHistories,
        &CDynaAnalysis::WriteDamping,
        &CDynaAnalysis::WriteMaterialCurves,
        &CDynaAnalysis::WriteExcitation,
        &CDynaAnalysis::WriteNodes,
        &CDynaAnalysis::WriteSupports,
        &CDynaAnalysis::WriteMaterials,
        &CDynaAnalysis::WriteDesignMaterials,
        &CDynaAnalysis::WriteBeams,
        &CDynaAnalysis::WriteSprings,
        &CDynaAnalysis::WriteDampers,
        &CDynaAnalysis::WriteCables,
        &CDynaAnalysis::WriteLinks,
        &CDynaAnalysis::WriteShells,
        &CDynaAnalysis::WriteSolids,
        &CDynaAnalysis::WriteNodeSprings,
        &CDynaAnalysis::WriteNodeMasses,
        &CDynaAnalysis::WriteNodeDampers,
        &CDynaAnalysis::WriteAdditionalMasses,
        &CDynaAnalysis::WriteBeamSections,
        &CDynaAnalysis::WriteCableSections,
        &CDynaAnalysis::WriteSpringSections,
        &CDynaAnalysis::WriteDamperSections,
        &CDynaAnalysis::WriteShellSections,
        &CDynaAnalysis::WriteSolidSections,
        &CDynaAnalysis::WriteTiedInterfaces,
        &CDynaAnalysis::WriteSets,
        &CDynaAnalysis::WriteConstraints,
        &CDynaAnalysis::WriteRigids,
        &CDynaAnalysis::WriteLoads,
        &CDynaAnalysis::WriteCrossSections,
        &CDynaAnalysis::WriteEnd,
    };
    for (const Section section : kSections) {
        if (!(this->*section)() || !m_out->Good()) {
            return false;
        }
        Step();
    }
    return true;
}

bool CDynaAnalysis::WriteHeader() {
    const CTitles& titles = m_model->Title();
    TextOut& text = m_out->Text();
    text.Append("*KEYWORD\n*TITLE\n");
    m_out->Title(titles.JobTitle());
    text.Append("$\n");
    m_out->NameComment(m_model->ProgTitle().ProgramVersion(), "$ File created in:  Tevra VYN ");
    m_out->NameComment(titles.FileName(), "$ VYN model file:   ");
    text.Append(TimeText("$ File created:     %x at %X")).EndLine();
    text.Append("$\n$ Notes:\n$ 1 All data written in SI units\n$\n");
    m_out->NameComment(titles.SubTitle(), "$ Subtitle:     ");
    m_out->NameComment(titles.CalcHeading(), "$ Calc heading: ");
    m_out->NameComment(titles.JobNumber(), "$ Job number:   ");
    m_out->NameComment(titles.Initials(), "$ Initials:     ");
    text.Append("$\n");
    return true;
}

bool CDynaAnalysis::WriteEnd() {
    NoteElements();
    NoteLoadsNotWritten();
    m_out->Text().Append("*END\n");
    return true;
}

void CDynaAnalysis::NoteFaults() {
    const auto note = [this](const DynaFaults& faults, const wchar_t* what) {
        if (faults.lines > 0) {
            const std::wstring first(faults.first.begin(), faults.first.end());
            AddNote(std::to_wstring(faults.lines) + L" lines hold " + what +
                    L", which the solver does not read; the first is " + first);
        }
    };
    note(m_out->TooWide(), L"numbers that are wider than their fields");
    note(m_out->NoNumbers(), L"values that are not numbers");
}

void CDynaAnalysis::Skip(const wchar_t* kind, int number, const std::wstring& reason) {
    AddNote(kind, number, L"is not written: " + reason);
}

int CDynaAnalysis::AxisNumber(int axis) const {
    return m_model->AxisExist(axis) ? axis : 0;
}

int CDynaAnalysis::CurveNumber(int curve) const {
    return m_model->MatCurveExist(curve) ? curve : 0;
}

/// What a list of a kind includes of the model, ascending; nothing for a list of another kind.
std::vector<int> CDynaAnalysis::Listed(const CEntList& list, SelType kind) const {
    std::vector<int> numbers;
    if (list.TypeOf() == kind) {
        Util::Items(list, numbers, *m_model);
    }
    return numbers;
}

bool CDynaAnalysis::IsCaseWritten(const Data::CLoadBase& load) const {
    return Util::IsItemIncluded(m_caseList, {SelType::LoadCase, load.LoadCase()}, *m_model, -1,
                                false);
}

}  // namespace Tevra
