#include "model/ElasticModuli.h"
#include "model/LoadValues.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"
#include "sap/SapKeys.h"

// Loads along frames: at points, distributed, prestress.

namespace Tevra {

namespace {

constexpr const wchar_t* kCurvedNote =
    L"Loads in Cylindrical and Spherical coordinate systems not exported";

void AddPosition(RecordText& line, double position, bool isFraction) {
    line.Append(isFraction ? "    RD=" : "    D=").Padded(position);
}

/// Whether the line of a distributed load is the same for all elements, but for their numbers.
bool IsAlikeOnAll(const Data::CBeamLoad& load) {
    return load.Axis() != kLocalAxis && !load.IsProjected() && load.PosIsFraction(1) &&
           load.PosIsFraction(2);
}

/// What of a distributed load lies on an element: fractions where one of its places is one.
LoadedStretch StretchOn(const CVynData& model, const Data::CBeamLoad& load, int element) {
    const bool areFractions = load.PosIsFraction(1) && load.PosIsFraction(2);
    return StretchOf(load, areFractions ? 1.0 : model.ElemLen(element),
                     load.PosIsFraction(1) || load.PosIsFraction(2));
}

/// Whether any of a load lies on an element.
bool IsOn(const CVynData& model, const Data::CBeamLoad& load, int element) {
    if (load.TypeOf() != BeamLoadType::Point) {
        return !StretchOn(model, load, element).IsEmpty();
    }
    return IsOnElement(load.Point(1), load.PosIsFraction(1) ? 1.0 : model.ElemLen(element));
}

/// What the values of a projected load are multiplied by, so that the load keeps its total.
double ProjectedShare(const CVynData& model, const Data::CBeamLoad& load, int element) {
    if (!load.IsProjected()) {
        return 1.0;
    }
    return Length(UnitBeamLoad(model, load, element));
}

}  // namespace

bool CSapFile::WriteSpanLoads(SapContext& c, int loadCase) {
    WritePointLoads(c, loadCase);
    if (!WriteDistributedLoads(c, loadCase)) {
        return false;
    }
    WritePrestress(c, loadCase);
    return true;
}

/// The frames on which any of a load lies.
std::vector<int> CSapFile::FramesUnder(SapContext& c, const Data::CBeamLoad& load, int number) {
    std::vector<int> frames = LoadedFrames(c, load, L"Beam load", number);
    const std::size_t beyond =
        std::erase_if(frames, [&](int element) { return !IsOn(*m_model, load, element); });
    if (beyond > 0) {
        AddNote(
            L"Beam load", number,
            L"is not exported for elements on which none of it lies: " + std::to_wstring(beyond));
    }
    return frames;
}

/// Loads in a user axis are turned into global components, so that one axis serves them all.
void CSapFile::WritePointLoads(SapContext& c, int loadCase) {
    bool hasType = false;
    bool hasAxis = false;
    for (const auto& [of, number] : c.beamLoads.Of(loadCase)) {
        const Data::CBeamLoad& load = m_model->BeamLoad(number);
        if (load.TypeOf() != BeamLoadType::Point) {
            continue;
        }
        c.out.Append(hasType ? "" : "  TYPE=CONCENTRATED SPAN\n");
        hasType = true;
        if (IsCurved(load.Axis())) {
            AddNote(kCurvedNote);
            continue;
        }
        const std::vector<int> elements = FramesUnder(c, load, number);
        if (load.Axis() != kLocalAxis && !hasAxis && !elements.empty()) {
            c.out.Append("    CSYS=0\n");
            hasAxis = true;
        }
        std::string kept;
        for (const int element : elements) {
            kept = load.Axis() == kLocalAxis ? std::string() : kept;
            c.line.Append("    ADD=").Int(element);
            c.line.Kept(kept, [&] { AddPointLoad(c.line, load, element); });
            End(c, L"Beam load", number);
        }
    }
}

void CSapFile::AddPointLoad(RecordText& line, const Data::CBeamLoad& load, int element) const {
    const Direction d = load.GetDirection();
    if (load.Axis() == kLocalAxis) {
        const LocalKey key = LocalKeyOf(d, m_model->ElemIsVertical(element));
        line.Append(' ').Append(key.word).Append('=').Padded(key.sign * load.Value(1));
    } else {
        const Util::CDirCos axes = m_model->AxisDC(load.Axis(), {});  // straight, so anywhere
        const Vec3<double> global = WithoutRoundOff(axes.AxisVec(d) * load.Value(1));
        for (const Direction axis : {Direction::X, Direction::Y, Direction::Z}) {
            const int k = static_cast<int>(axis);
            line.Append(' ').Append(GlobalKey(static_cast<Direction>(IsTrans(d) ? k : k + 3)));
            line.Append('=').Padded(global[k]);
        }
    }
    AddPosition(line, load.Pos(1), load.PosIsFraction(1));
}

bool CSapFile::WriteDistributedLoads(SapContext& c, int loadCase) {
    bool hasType = false;
    int axis = -1;
    for (const auto& [of, number] : c.beamLoads.Of(loadCase)) {
        const Data::CBeamLoad& load = m_model->BeamLoad(number);
        if (load.TypeOf() == BeamLoadType::Point) {
            continue;
        }
        c.out.Append(hasType ? "" : "  TYPE=DISTRIBUTED SPAN\n");
        hasType = true;
        if (IsCurved(load.Axis())) {
            AddNote(kCurvedNote);
            continue;
        }
        if (load.TypeOf() == BeamLoadType::Trilinear) {
            AddError(L"this feature does not suppor non-uniform member loads");
            return false;
        }
        const std::vector<int> elements = FramesUnder(c, load, number);
        const int own = m_model->AxisExist(load.Axis()) ? load.Axis() : kGlobalAxis;
        if (load.Axis() != kLocalAxis && own != axis && !elements.empty()) {
            c.out.Append("    CSYS=").Int(own).EndLine();
            axis = own;
        }
        std::string kept;
        for (const int element : elements) {
            kept = IsAlikeOnAll(load) ? kept : std::string();
            c.line.Append("    ADD=").Int(element).Append(' ');
            c.line.Kept(kept, [&] { AddDistributedLoad(c.line, load, element); });
            End(c, L"Beam load", number);
        }
    }
    return true;
}

/// The target has no word for projected loads: their share of the length stands in the values.
void CSapFile::AddDistributedLoad(RecordText& line, const Data::CBeamLoad& load,
                                  int element) const {
    const Direction d = load.GetDirection();
    const double share = ProjectedShare(*m_model, load, element);
    const LoadedStretch on = StretchOn(*m_model, load, element);
    if (load.Axis() == kLocalAxis) {
        const LocalKey key = LocalKeyOf(d, m_model->ElemIsVertical(element));
        line.Append(key.word).Append('=').Padded(key.sign * share * on.fromValue);
        line.Append(',').Padded(key.sign * share * on.toValue);
    } else {
        line.Append(JoinedKey(d)).Append('=').Padded(share * on.fromValue);
        line.Append(", ").Padded(share * on.toValue);
    }
    const bool areFractions = load.PosIsFraction(1) || load.PosIsFraction(2);
    AddPosition(line, on.from, areFractions);
    AddPosition(line, on.to, areFractions);
}

/// Strains and lacks of fit become the force that they are in a member held at both ends.
void CSapFile::WritePrestress(SapContext& c, int loadCase) {
    const auto loads = c.axialLoads.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "    TYPE=PRESTRESS\n");
    for (const auto& [of, number] : loads) {
        const Data::CAxialLoad& load = m_model->AxialLoad(number);
        if (load.YOffset() != 0.0 || load.ZOffset() != 0.0) {
            AddNote(L"Tendon prestress force in beam with offsets specified not exported. ");
            continue;
        }
        for (const int element : LoadedFrames(c, load, L"Axial load", number)) {
            const int section = SapProperty(*m_model, element);
            const Data::CMatAnal* material =
                m_model->FindMaterial(m_model->Section(section).Component(1).Material());
            const double e = material != nullptr ? ElasticModulus(*material) : 0.0;
            const double area = m_model->SectionProp(section, 0, 0.5, true).area;
            const double force = PrestressForce(load, e, area, m_model->ElemLen(element));
            c.line.Append("      ADD=").Int(element).Append("   P=").Padded(force).Append(' ');
            End(c, L"Axial load", number);
        }
    }
}

}  // namespace Tevra
