#include "model/LoadValues.h"
#include "model/VynData.h"
#include "nastran/ComponentDigits.h"
#include "nastran/NasFile.h"

// Bars, beams, rods, ties and struts: end nodes, orientation, releases and offsets.

namespace Tevra {

namespace {

/// The orientation vector is the element's local z: plane 1 of the target is the host's x-z plane,
/// its y is the host's z and its z the host's -y.
Vec3<double> OrientationVector(const CVynData& model, int element) {
    return WithoutRoundOff(model.ElemDC(element).AxisVec(2));
}

/// Pin flags in the target's axes, in which the host's y and z have changed places: a release in
/// local y is digit 3.
std::string PinFlags(Vbool6 released) {
    constexpr Direction kOrder[] = {Direction::X,  Direction::Z,  Direction::Y,
                                    Direction::XX, Direction::ZZ, Direction::YY};
    std::string digits;
    char digit = '1';
    for (const Direction d : kOrder) {
        if (released.IncludesDirection(d)) {
            digits += digit;
        }
        ++digit;
    }
    return digits;
}

bool HasSprungEnd(const Data::CElement& record) {
    for (const int end : {1, 2}) {
        for (const Direction d : kDirections) {
            if (record.Connect(end).State(d) == Data::ReleaseState::Spring) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

void CNasFile::WriteLine(int element, std::string_view card) {
    const Data::CElement& record = m_model->Elem(element);
    const bool isGap = record.IsTie() || record.IsStrut();
    const bool isRod = record.Type() == ElementType::Rod;
    StartCard(card);
    AddInt(element);
    AddInt(isGap ? GapPid(record.Property(), record.IsTie())
                 : m_materials.Prop1D(record.Property()).front().pid);
    AddInt(record.Topo(1));
    AddInt(record.Topo(2));
    AddLineTail(element, !isGap && !isRod);
    EndCard();
    if (HasSprungEnd(record)) {
        AddNote(L"Element", element, L"is written without the springs at its ends");
    }
}

/// Offset of an end as OFFT "BGG" has it read: in the displacement axes of the end's node.
Vec3<double> CNasFile::EndOffset(int element, int end) const {
    const int node = m_model->Elem(element).Topo(end);
    return InTargetAxes(m_model->Node(node).Axis(),
                        m_model->NodeDC(node).GtoL(m_model->TotalGlobalOffset(element, end)));
}

/// Orientation, releases and offsets. Kept: rods and gaps have the tail of the bars, though their
/// own cards end before it.
void CNasFile::AddLineTail(int element, bool hasReleases) {
    const Data::CElement& record = m_model->Elem(element);
    AddReals(OrientationVector(*m_model, element));
    AddTextField("BGG");
    for (const int end : {1, 2}) {
        AddTextField(hasReleases ? PinFlags(record.Connect(end).Released()) : std::string());
    }
    AddReals(EndOffset(element, 1));
    AddReals(EndOffset(element, 2));
}

}  // namespace Tevra
