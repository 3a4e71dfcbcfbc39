#include "opensees/OpenseesFile.h"

#include "io/Text.h"
#include "model/Placed.h"
#include "opensees/OpsContext.h"

// The order of the script, its header, nodes and what holds them.

namespace Tevra {

namespace {

constexpr const char* kClosing =
    "#end\n\n\n# rest of commands\nalgorithm Linear\nnumberer RCM\nsystem ProfileSPD\n"
    "constraints Transformation\nintegrator LoadControl 1\nanalysis Static\nanalyze 2\n";

/// A text as the end of a comment line. A backslash at its end would make a comment of the line
/// below, and the interpreter stops at some control characters.
std::wstring CommentText(std::wstring text) {
    for (wchar_t& c : text) {
        c = c < L' ' ? L' ' : c;
    }
    return text.empty() || text.back() != L'\\' ? text : text + L' ';
}

}  // namespace

bool COpenseesFile::Write() {
    if (!IsReady()) {
        return false;
    }
    TextOut out(*m_stream);
    OpsContext context(*m_model, out);
    if (!context.Make()) {
        AddError(L"The numbers of materials, sections and properties are too high");
        return false;
    }
    WriteHeader(out);
    WriteNodes(context);
    WriteRestraints(context);
    WriteMaterials(context);
    WriteSections(context);
    WriteShellSections(context);
    WriteTransformations(context);
    WriteElements(context);
    WriteRigidLinks(context);
    WriteJoints(context);
    TellUnsupportedBeforeLoads();
    WriteNodeLoads(context);
    if (!WriteBeamLoads(context)) {
        out.Flush();
        return false;
    }
    TellUnsupportedAfterLoads();
    out.Append(kClosing);
    return out.Flush();
}

void COpenseesFile::End(OpsContext& c, const wchar_t* kind, int number) {
    if (!c.line.End()) {
        AddNote(kind, number, L"is not exported, as one of its values is not a number");
    }
}

void COpenseesFile::WriteHeader(TextOut& out) const {
    const auto title = [&out](std::string_view what, const std::wstring& text) {
        out.Append(what).AppendCard(CommentText(text)).EndLine();
    };
    const CTitles& titles = m_model->Title();
    title("# title: ", titles.JobTitle());
    title("# subtitle: ", titles.SubTitle());
    title("# calc: ", titles.CalcHeading());
    title("# job no.: ", titles.JobNumber());
    title("# initials: ", titles.Initials());
    const CProgTitles& program = m_model->ProgTitle();
    out.Append("# This file was originally written by ");
    out.AppendCard(CommentText(program.ProgramName()));
    out.Append(" version ").AppendCard(program.ProgramVersion());
    out.Append(' ').Append(TimeText("on %A, %d %b %Y at %H:%M:%S")).Append("\n\n\n");
    out.Append("wipe\nmodel BasicBuilder -ndm 3 -ndf 6\n\n# length=m\n# force=N\n\n");
}

void COpenseesFile::WriteNodes(OpsContext& c) {
    constexpr int kDigits = 6;
    c.out.Append("\n# node coordinates\n");
    if (const std::wstring note = NoteOfCoarseCoordinates(*m_model, kDigits); !note.empty()) {
        AddNote(note);
    }
    for (const int number : m_model->NodeTable().Numbers()) {
        const Vec3<double>& at = m_model->Node(number).Position();
        c.line.Append("node ").Int(number).Append(' ').General(at.x);
        c.line.Append(' ').General(at.y).Append(' ').General(at.z);
        End(c, L"Node", number);
    }
}

namespace {

/// Kept for files in the field: the flags follow the number and one another without blanks, so that
/// the target takes "5111000" for a node number and fixes nothing.
void AddFixity(RecordText& line, int node, Vbool6 fixed) {
    line.Append("fix ").Int(node);
    for (const Direction d : kDirections) {
        line.Append(fixed.IncludesDirection(d) ? '1' : '0');
    }
}

}  // namespace

void COpenseesFile::WriteRestraints(OpsContext& c) {
    c.out.Append("\n# node restraints\n");
    for (const int number : m_model->NodeTable().Numbers()) {
        const Vbool6 fixed = m_model->Node(number).TotalNodalRestraint();
        if (!fixed.IsNone() && IsPlaced(*m_model, number)) {
            AddFixity(c.line, number, fixed);
            End(c, L"Node", number);
        }
    }
}

}  // namespace Tevra
