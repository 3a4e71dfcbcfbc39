#include "sap/SapFile.h"

#include "io/Text.h"
#include "sap/SapContext.h"

// The order of the file, its titles and the system block.

namespace Tevra {

bool CSapFile::Write() {
    if (!IsReady()) {
        return false;
    }
    TextOut out(*m_stream);
    SapContext context(*m_model, out);
    if (!context.materials.CreateMap(*m_model)) {
        AddError(L"The numbers of materials and properties are too high");
        return false;
    }
    using Block = bool (CSapFile::*)(SapContext&);
    constexpr Block kBlocks[] = {
        &CSapFile::WriteTitles,         &CSapFile::WriteSystem,
        &CSapFile::WriteCoordinates,    &CSapFile::WriteJoints,
        &CSapFile::NoteElementsLeftOut, &CSapFile::WriteFrames,
        &CSapFile::WriteLinkElements,   &CSapFile::WriteShells,
        &CSapFile::WritePlanes,         &CSapFile::WriteFrameSections,
        &CSapFile::WriteLinkProperties, &CSapFile::WriteShellSections,
        &CSapFile::WriteMaterials,      &CSapFile::WriteConstraints,
        &CSapFile::WriteLoads,          &CSapFile::NoteKindsNotCarried,
    };
    for (const Block block : kBlocks) {
        if (!(this->*block)(context) || !out.Good()) {
            out.Flush();
            return false;
        }
    }
    out.Append("END\n");
    return out.Flush();
}

void CSapFile::End(SapContext& c, const wchar_t* kind, int number) {
    if (!c.line.End()) {
        AddNote(kind, number, L"is not exported, as one of its values is not a number");
    }
}

bool CSapFile::WriteTitles(SapContext& c) {
    const CTitles& titles = m_model->Title();
    const CProgTitles& program = m_model->ProgTitle();
    TextOut& out = c.out;
    out.AppendCard(titles.JobTitle()).EndLine();
    out.Append("; subtitle: ").AppendCard(titles.SubTitle()).EndLine();
    out.Append("; calc: ").AppendCard(titles.CalcHeading()).EndLine();
    out.Append("; job no.: ").AppendCard(titles.JobNumber()).EndLine();
    out.Append("; initials: ").AppendCard(titles.Initials()).EndLine();
    out.Append("; This file was originally written by ").AppendCard(program.ProgramName());
    out.Append(" version ").AppendCard(program.ProgramVersion());
    out.Append(TimeText(" on %A,  %d %b %Y at %H:%M:%S")).Append("\n\n");
    return true;
}

namespace {

/// The free directions of the model. Kept: translations end in a blank and rotations don't, and the
/// last character is cut whatever it is, so that a line that ends with a translation keeps its
/// comma, and one without free directions loses its "=".
std::string FreeDirections(Vbool6 fixed) {
    constexpr std::array<std::string_view, 6> kItems{"UX, ", "UY, ", "UZ, ", "RX,", "RY,", "RZ,"};
    std::string text = "  DOF=";
    for (const Direction d : kDirections) {
        if (!fixed.IncludesDirection(d)) {
            text += kItems[static_cast<std::size_t>(d)];
        }
    }
    text.pop_back();
    return text;
}

}  // namespace

bool CSapFile::WriteSystem(SapContext& c) {
    c.out.Append("SYSTEM\n");
    const Vbool6 fixed = m_model->TotalGlobalRestraint();
    if (!fixed.IsNone()) {
        c.out.Append(FreeDirections(fixed)).EndLine();
    }
    c.out.Append("  LENGTH=M\n  FORCE=N\n");
    return true;
}

/// Loads that have no place in the file.
bool CSapFile::NoteKindsNotCarried(SapContext& /*c*/) {
    struct Kind {
        int count;
        const wchar_t* text;
    };
    const Kind kinds[] = {
        {m_model->NumBeamDist(), L" 1D distortions are not exported."},
        {m_model->NumAppliedDisplacement(), L" Applied displacements are not exported."},
        {m_model->NumEdgeLoad(), L" Edge loads are not exported."},
        {m_model->NumInPlaneLoad(), L" Prestress loads in 2D elements are not exported."},
    };
    for (const Kind& kind : kinds) {
        if (kind.count > 0) {
            AddNote(kind.text);
        }
    }
    return true;
}

}  // namespace Tevra
