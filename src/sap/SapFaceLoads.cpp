#include <cmath>

#include "model/LoadForces.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"
#include "sap/SapKeys.h"

// Uniform loads on shells and planes.

namespace Tevra {

namespace {

/// Share of a pressure above which a difference or a component counts.
constexpr double kLeastShare = 1e-10;

/// Whether the pressure is not the same all over an element.
bool Varies(const CVynData& model, const Data::CFaceLoad& load, int element) {
    const int corners = CornerCount(model.Elem(element).Type());
    if (load.TypeOf() == FaceLoadType::Point) {
        return true;
    }
    const double first = load.GetFaceLoadValue(model, element, 1);
    for (int k = 2; k <= corners; ++k) {
        const double other = load.GetFaceLoadValue(model, element, k);
        if (std::abs(other - first) > kLeastShare * std::max(std::abs(first), std::abs(other))) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool CSapFile::WriteFaceLoads(SapContext& c, int loadCase) {
    const auto loads = c.faceLoads.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "    TYPE=UNIFORM \n");
    int axis = -1;
    for (const auto& [of, number] : loads) {
        const Data::CFaceLoad& load = m_model->FaceLoad(number);
        if (IsCurved(load.Axis())) {
            AddNote(L"Face Loads in Cylindrical and Spherical coordinate systems not exported");
            continue;
        }
        if (!IsTrans(load.GetDirection())) {
            AddNote(L"Face load", number, L"is not exported, as a pressure can't turn");
            continue;
        }
        const std::vector<int> elements = LoadedFaces(c, load, L"Face load", number);
        const int own = m_model->AxisExist(load.Axis()) ? load.Axis() : kGlobalAxis;
        if (own != axis && !elements.empty()) {
            c.out.Append("    CSYS=").Int(own).EndLine();
            axis = own;
        }
        bool varies = false;
        for (const int element : elements) {
            if (load.TypeOf() == FaceLoadType::Point &&
                !load.ValidatePointLoadPosition(*m_model, element)) {
                AddNote(L"Face load", number, L"is not exported where its point is off the face");
                continue;
            }
            varies = varies || Varies(*m_model, load, element);
            WriteFaceLoad(c, number, element);
        }
        if (varies) {
            AddNote(L" Non-uniform face loads are averaged not exported.");
        }
    }
    return true;
}

/// Pressures in element axes become their global components.
void CSapFile::WriteFaceLoad(SapContext& c, int number, int element) {
    const Data::CFaceLoad& load = m_model->FaceLoad(number);
    const double mean = MeanPressure(*m_model, load, element);
    Vec3<double> share;
    share[static_cast<int>(load.GetDirection())] = 1.0;
    if (load.Axis() == kLocalAxis) {
        share = m_model->ElemDC(element).AxisVec(load.GetDirection());
    }
    for (const Direction d : {Direction::X, Direction::Y, Direction::Z}) {
        const double part = share[static_cast<int>(d)];
        if (std::abs(part) > kLeastShare) {
            c.line.Append("      ADD=").Int(element).Append(' ').Append(JoinedKey(d));
            c.line.Append('=').Padded(mean * part);
            End(c, L"Face load", number);
        }
    }
}

}  // namespace Tevra
