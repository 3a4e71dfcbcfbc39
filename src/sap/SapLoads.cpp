#include <algorithm>

#include "io/Text.h"
#include "model/LoadValues.h"
#include "platform/text/Ascii.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"
#include "sap/SapKeys.h"

// The order of the load block, names of the cases, gravity and loads at joints.

namespace Tevra {

std::vector<int> CSapFile::LoadedFrames(SapContext& c, const Data::CLoadBase& load,
                                        const wchar_t* kind, int number) {
    std::vector<int> frames = SapLoadedFrames(c, load);
    NoteOthers(kind, number, load.GetLoadedElements(*m_model, 1).size() - frames.size());
    return frames;
}

std::vector<int> CSapFile::LoadedFaces(SapContext& c, const Data::CLoadBase& load,
                                       const wchar_t* kind, int number) {
    std::vector<int> faces = SapLoadedFaces(c, load);
    NoteOthers(kind, number, load.GetLoadedElements(*m_model, 2).size() - faces.size());
    return faces;
}

void CSapFile::NoteOthers(const wchar_t* kind, int number, std::size_t others) {
    if (others > 0) {
        AddNote(kind, number,
                L"is not exported for " + std::to_wstring(others) +
                    L" elements that are not in the file");
    }
}

bool CSapFile::IsCurved(int axis) const {
    return m_model->AxisExist(axis) && m_model->Axis(axis).TypeOf() != AxisType::Cartesian;
}

void CSapFile::NoteLoadsWithoutCase(const SapContext& c) {
    const std::pair<const LoadsByCase&, const wchar_t*> kinds[] = {
        {c.gravity, L"Gravity load"},   {c.nodeLoads, L"Node load"},
        {c.settlements, L"Settlement"}, {c.beamLoads, L"Beam load"},
        {c.axialLoads, L"Axial load"},  {c.beamTemperatures, L"Beam thermal load"},
        {c.faceLoads, L"Face load"},    {c.faceTemperatures, L"Face thermal load"},
    };
    for (const auto& [loads, kind] : kinds) {
        for (const auto& [loadCase, number] : loads.WithoutCase()) {
            AddNote(kind, number, L"is not exported as it has no load case");
        }
    }
}

bool CSapFile::WriteLoads(SapContext& c) {
    const CVynData& model = *m_model;
    if (model.NumAppliedDisplacement() == 0 && c.gravity.IsEmpty() && c.nodeLoads.IsEmpty() &&
        c.settlements.IsEmpty() && c.beamLoads.IsEmpty() && c.axialLoads.IsEmpty() &&
        c.beamTemperatures.IsEmpty() && c.faceLoads.IsEmpty() && c.faceTemperatures.IsEmpty()) {
        return true;
    }
    using Group = bool (CSapFile::*)(SapContext&, int);
    constexpr Group kGroups[] = {
        &CSapFile::WriteCaseName,         &CSapFile::WriteGravity,
        &CSapFile::WriteNodeForces,       &CSapFile::WriteSpringDisplacements,
        &CSapFile::WriteSpanLoads,        &CSapFile::WriteFaceLoads,
        &CSapFile::WriteBeamTemperatures, &CSapFile::WriteFaceTemperatures,
    };
    NoteLoadsWithoutCase(c);
    c.out.Append("LOAD\n");
    for (const int loadCase : model.LoadCases().Numbers()) {
        for (const Group group : kGroups) {
            if (!(this->*group)(c, loadCase)) {
                return false;
            }
        }
    }
    return true;
}

namespace {

constexpr std::size_t kNameLength = 7;

/// A title without blanks and with the characters that names may have.
std::wstring PlainTitle(const std::wstring& title) {
    std::wstring name;
    for (const wchar_t c : title) {
        if (c == L'(' || c == L')') {
            name += L'+';
        } else if (!Text::IsSpace(c)) {
            name += c == L'_' ? L'-' : c;
        }
    }
    return name;
}

/// The number stands where the name still shows it whole. Kept: above 999 it is left out.
std::wstring NameOf(const std::wstring& title, int loadCase) {
    std::wstring name = PlainTitle(title);
    const std::wstring number = std::to_wstring(loadCase);
    if (number.size() <= 3) {
        name.insert(std::min(kNameLength - number.size(), name.size()), number);
    }
    return name.substr(0, kNameLength);
}

}  // namespace

bool CSapFile::WriteCaseName(SapContext& c, int loadCase) {
    const std::wstring name = m_model->LoadCaseTitleExist(loadCase)
                                  ? NameOf(m_model->LoadCaseTitle(loadCase).Name(), loadCase)
                                  : std::wstring();
    if (name.empty()) {
        c.out.Append("   NAME=LC").Int(loadCase, 0, 4).EndLine();
    } else {
        c.out.Append("  NAME=").AppendCard(name).EndLine();
    }
    return true;
}

namespace {

void AddGravity(RecordText& line, const Vec3<double>& g) {
    line.Append(" UX=").Padded(g.x);
    line.Append(" UY=").Padded(g.y).Append(" UZ=").Padded(g.z).Append(' ');
}

}  // namespace

bool CSapFile::WriteGravity(SapContext& c, int loadCase) {
    using Entities = std::vector<int> (*)(const SapContext&, const Data::CGravityLoad&);
    const std::pair<std::string_view, Entities> groups[] = {
        {"FRAME",
         [](const SapContext& in, const Data::CGravityLoad& l) { return SapLoadedFrames(in, l); }},
        {"SHELL",
         [](const SapContext& in, const Data::CGravityLoad& l) { return SapLoadedFaces(in, l); }},
        {"JOINT", [](const SapContext& in,
                     const Data::CGravityLoad& l) { return SapLoadedNodes(in.model, l); }},
    };
    for (const auto& [word, entities] : groups) {
        bool hasHeader = false;
        for (const auto& [of, number] : c.gravity.Of(loadCase)) {
            const Data::CGravityLoad& load = m_model->GravityLoad(number);
            std::string kept;
            for (const int entity : entities(c, load)) {
                if (!hasHeader) {
                    c.out.Append("  CSYS=0\n  TYPE=GRAVITY  ELEM=").Append(word).EndLine();
                    hasHeader = true;
                }
                c.line.Append("    ADD=").Int(entity);
                c.line.Kept(kept, [&] { AddGravity(c.line, load.Value()); });
                End(c, L"Gravity load", number);
            }
        }
    }
    return true;
}

bool CSapFile::WriteNodeForces(SapContext& c, int loadCase) {
    const auto loads = c.nodeLoads.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "  TYPE=FORCE\n");
    int axis = -1;
    for (const auto& [of, number] : loads) {
        WriteNodeForce(c, number, axis);
    }
    return true;
}

void CSapFile::WriteNodeForce(SapContext& c, int number, int& axis) {
    const Data::CNodeLoad& load = m_model->NodeLoad(number);
    bool hasCurved = false;
    const std::vector<int> nodes = SapLoadedNodes(*m_model, load);
    if (nodes.empty()) {
        AddNote(L"Node load", number, L"is not exported as it loads no node of the file");
    }
    for (const int node : nodes) {
        const int named = AxisOfNodeLoad(*m_model, load, node);
        if (IsCurved(named)) {
            hasCurved = true;
            continue;
        }
        const int own = m_model->AxisExist(named) ? named : kGlobalAxis;
        if (own != axis) {
            c.out.Append("   CSYS=").Int(own).EndLine();
            axis = own;
        }
        c.line.Append("   ADD=").Int(node).Append("    ").Append(JoinedKey(load.GetDirection()));
        c.line.Append('=').Padded(load.Value());
        End(c, L"Node load", number);
    }
    if (hasCurved) {
        AddNote(L"Nodal Loads in Cylindrical and Spherical coordinate systems not exported");
    }
}

/// Settlements have no axis in the file: what is not in global axes becomes its global components.
bool CSapFile::WriteSpringDisplacements(SapContext& c, int loadCase) {
    const auto loads = c.settlements.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "  TYPE=SPRING DISPLACEMENT\n");
    for (const auto& [of, number] : loads) {
        const Data::CSettlement& load = m_model->Settlement(number);
        for (const int node : SapLoadedNodes(*m_model, load)) {
            const Vec3<double> global = GlobalNodeLoad(*m_model, load, node);
            // Of what turning gave, parts of nothing are left out; the load itself never is.
            const bool isTurned = AxisOfNodeLoad(*m_model, load, node) != 0 && load.Value() != 0.0;
            for (const Direction d : kDirections) {
                const double value = global[static_cast<int>(ToTrans(d))];
                if (IsTrans(d) != IsTrans(load.GetDirection()) ||
                    (value == 0.0 && (isTurned || d != load.GetDirection()))) {
                    continue;
                }
                c.line.Append("    ADD=").Int(node).Append(' ').Append(JoinedKey(d));
                c.line.Append('=').Padded(value);
                End(c, L"Settlement", number);
            }
        }
    }
    return true;
}

}  // namespace Tevra
