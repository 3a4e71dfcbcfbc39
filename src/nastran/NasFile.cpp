#include "nastran/NasFile.h"

#include "io/ScopedPointer.h"
#include "io/Text.h"
#include "io/TextOut.h"
#include "model/VynData.h"

namespace Tevra {

CNasFile::CNasFile() = default;
CNasFile::~CNasFile() = default;

namespace {

constexpr const wchar_t* kNumbersTooHigh =
    L"The numbers of materials and properties do not fit into a field";

}  // namespace

bool CNasFile::Write() {
    if (m_model == nullptr || m_stream == nullptr) {
        return false;
    }
    if (!m_materials.CreateMap(*m_model)) {
        AddError(kNumbersTooHigh);
        return false;
    }
    if (m_analysisType == kBuckling && !m_bucklingCase.SetDescription(m_bucklingDescription)) {
        AddError(L"The loads of the buckling analysis can't be read: \"" + m_bucklingDescription +
                 L"\"");
        return false;
    }
    TextOut out(*m_stream);
    const ScopedPointer valid(m_out, out);
    m_elementNumber = m_model->HighestElem();
    FindWrittenNodes();
    FindWrittenProperties();
    FindWrittenElements();
    FindSectionUses();

    using Section = bool (CNasFile::*)();
    constexpr Section kSections[] = {
        &CNasFile::WriteHeader,         &CNasFile::WriteEigenCards,
        &CNasFile::WriteAxes,           &CNasFile::WriteGrids,
        &CNasFile::WriteRestraints,     &CNasFile::WriteNodeProperties,
        &CNasFile::WriteElements,       &CNasFile::WriteSpringSupports,
        &CNasFile::WriteMaterials,      &CNasFile::WriteBeamProperties,
        &CNasFile::Write3DProperties,   &CNasFile::Write2DProperties,
        &CNasFile::Write3DProperties,  // kept: the section of the second kind repeats the first
        &CNasFile::WriteCableMaterials, &CNasFile::WriteRigids,
        &CNasFile::WriteJoints,         &CNasFile::WriteConstraintEquations,
        &CNasFile::WriteLoads,          &CNasFile::EndOfData,
    };
    bool written = NumberGaps();
    if (!written) {
        AddError(kNumbersTooHigh);
    }
    for (const Section section : kSections) {
        written = written && (this->*section)() && out.Good() && !m_isNumberTooHigh;
    }
    if (m_isNumberTooHigh) {
        AddError(L"The numbers of generated elements do not fit into a field");
    }
    written = out.Flush() && written;
    if (written) {
        m_report = L"<h3>Nastran Export</h3>\n" + m_materials.Report();
    }
    return written;
}

void CNasFile::WriteOrigin() {
    const CProgTitles& program = m_model->ProgTitle();
    m_out->Append("$ This file was originally written by ").AppendCard(program.ProgramName());
    m_out->Append(" version ")
        .AppendCard(program.ProgramVersion())
        .Append(TimeText(" on %A, %d %b %Y at %H:%M:%S"))
        .EndLine();
    m_out->Append("$\n$ VYN and NASTRAN elements use the same local axes definitions\n$\n");
}

bool CNasFile::EndOfData() {
    NoteKindsNotCarried();
    m_out->Append("$\nENDDATA\n");
    return true;
}

/// Loads and ties between surfaces for which there is no card here.
void CNasFile::NoteKindsNotCarried() {
    struct Kind {
        int count;
        const wchar_t* text;
    };
    const Kind kinds[] = {
        {m_exportLoads ? m_model->NumBeamDist() : 0, L"distortions of beams"},
        {m_exportLoads ? m_model->NumEdgeLoad() : 0, L"edge loads"},
        {m_model->NumTiedInterface(), L"tied interfaces"},
    };
    for (const Kind& kind : kinds) {
        if (kind.count > 0) {
            AddNote(std::to_wstring(kind.count) + L" " + kind.text + L" are not exported");
        }
    }
}

}  // namespace Tevra
