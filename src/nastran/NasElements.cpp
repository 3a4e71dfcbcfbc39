#include <cmath>

#include "io/TextOut.h"
#include "model/Faces.h"
#include "model/VynData.h"
#include "nastran/ComponentDigits.h"
#include "nastran/NasFile.h"
#include "platform/ui/HostServices.h"

// Elements: which card each type becomes, and the cards of planes, solids, cables, links and
// springs.

namespace Tevra {

namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

/// How the fields of an element are laid out; None is not exported.
enum class Layout { None, Line, Spring, Plane, Link, Cable, Solid };

struct ElementCard {
    Layout layout = Layout::None;
    std::string_view name;
};

ElementCard CardOf(ElementType type, bool writeCbeam) {
    switch (type) {
        case ElementType::Bar:
            return {Layout::Line, "CBAR"};
        case ElementType::Beam:
            return {Layout::Line, writeCbeam ? "CBEAM" : "CBAR"};
        case ElementType::Spring:
            return {Layout::Spring, "CELAS2"};
        case ElementType::Quad4:
            return {Layout::Plane, "CQUAD4"};
        case ElementType::Quad8:
            return {Layout::Plane, "CQUAD8"};
        case ElementType::Tri3:
            return {Layout::Plane, "CTRIA3"};
        case ElementType::Tri6:
            return {Layout::Plane, "CTRIA6"};
        case ElementType::Link:
            return {Layout::Link, "RBAR"};
        case ElementType::Cable:
            return {Layout::Cable, "CONROD"};
        case ElementType::Brick8:
            return {Layout::Solid, "CHEXA8"};
        case ElementType::Wedge6:
            return {Layout::Solid, "CPENTA"};
        case ElementType::Tetra4:
            return {Layout::Solid, "CTETRA"};
        case ElementType::Tie:
        case ElementType::Strut:
            return {Layout::Line, "CGAP"};
        case ElementType::Rod:
            return {Layout::Line, "CROD"};
        case ElementType::Pyramid5:
            return {Layout::Solid, "CPYRA"};
        default:
            return {};
    }
}

/// The global direction nearest to a vector: x before y before z where they are alike.
int DominantDirection(const Vec3<double>& v) {
    int found = 0;
    for (int k = 1; k < 3; ++k) {
        found = std::abs(v[k]) > std::abs(v[found]) ? k : found;
    }
    return found;
}

/// The direction of a spring along a global axis: its own, or the dominant one of its local axis.
/// Kept: nobody is told of springs that are not along a global direction.
Direction GlobalDirection(const Util::CDirCos& axes, Direction d) {
    const int along = DominantDirection(axes.AxisVec(d));
    return static_cast<Direction>(IsTrans(d) ? along : along + 3);
}

/// Whether a spring acts in a direction.
bool IsStiff(const Data::CSpringProp& spring, Direction d) {
    const bool isOfType = spring.Type() == SpringType::Translational ? d == Direction::X
                          : spring.Type() == SpringType::Rotational
                              ? d == Direction::XX
                              : IsTrans(d) || spring.RotationActive();
    return isOfType && spring.Stiff(d) > Nas::kLeastStiffness;
}

}  // namespace

int CNasFile::NextElement() {
    m_isNumberTooHigh = m_isNumberTooHigh || m_elementNumber >= CMaterialMap::kHighestNumber;
    return m_isNumberTooHigh ? m_elementNumber : ++m_elementNumber;
}

const wchar_t* CNasFile::NodesFault(const Data::CElement& record) const {
    const ElementTypeInfo& info = InfoOf(record.Type());
    if (record.NumTopo() < info.minNodes) {
        return L"it has too few nodes";
    }
    for (int k = 1; k <= record.NumTopo(); ++k) {
        if (!IsNodeWritten(record.Topo(k))) {
            return L"one of its nodes is not in the file";
        }
    }
    return nullptr;
}

const wchar_t* CNasFile::PropertyFault(const Data::CElement& record) const {
    const int property = record.Property();
    bool has = true;
    switch (InfoOf(record.Type()).property) {
        case PropertyType::Section:
            has = m_writtenSections.Test(property);
            break;
        case PropertyType::Prop2D:
            if (m_model->Prop2D(property).IsLoadPanel()) {
                return L"it is a load panel";
            }
            has = m_writtenProps2D.Test(property);
            break;
        case PropertyType::Prop3D:
            has = m_writtenProps3D.Test(property);
            break;
        case PropertyType::Cable:
            has = m_model->CablePropExist(property);
            break;
        case PropertyType::Spring:
            has = m_model->SpringPropExist(property);
            break;
        default:
            break;
    }
    return has ? nullptr : L"its property is not in the file";
}

const wchar_t* CNasFile::ElementFault(int element) const {
    const Data::CElement& record = m_model->Elem(element);
    const Layout layout = CardOf(record.Type(), m_writeCbeam).layout;
    if (layout == Layout::None) {
        return L"its type is not exported";
    }
    if (const wchar_t* fault = NodesFault(record)) {
        return fault;
    }
    const bool needsLength = layout == Layout::Line || layout == Layout::Cable;
    if (needsLength && !(m_model->ElemLen(element) > 0.0)) {
        return L"it has no length";
    }
    return PropertyFault(record);
}

void CNasFile::FindWrittenElements() {
    m_writtenElements = CBitSet(m_model->HighestElem());
    for (const int number : m_model->ElemTable().Numbers()) {
        m_writtenElements.Set(
            number, m_model->ElemIsActive(number, m_selection) && ElementFault(number) == nullptr);
    }
}

bool CNasFile::WriteElements() {
    StartSection("Elements");
    int spacers = 0;
    for (const int number : m_model->ElemTable().Numbers()) {
        SetSubject(L"Element", number);
        if (IsElementWritten(number)) {
            WriteElement(number);
        } else if (m_model->ElemIsActive(number, m_selection)) {
            const Data::CElement& record = m_model->Elem(number);
            if (CardOf(record.Type(), m_writeCbeam).layout != Layout::None) {
                Skip(ElementFault(number));
            }
            spacers += record.IsSpacer() ? 1 : 0;
        }
    }
    if (spacers > 0) {
        Host().ShowMessage(L"WARNING\n\nSpacer elements are not exported");
    }
    return m_out->Good();
}

void CNasFile::WriteElement(int element) {
    const ElementCard card = CardOf(m_model->Elem(element).Type(), m_writeCbeam);
    switch (card.layout) {
        case Layout::Line:
            WriteLine(element, card.name);
            break;
        case Layout::Spring:
            WriteSpring(element);
            break;
        case Layout::Plane:
            WritePlane(element, card.name);
            break;
        case Layout::Link:
            WriteLink(element);
            break;
        case Layout::Cable:
            WriteCable(element);
            break;
        case Layout::Solid:
            WriteSolid(element, card.name);
            break;
        case Layout::None:
            break;
    }
}

/// One card for each stiff direction, the first under the number of the element. Kept: a spring in
/// an axis of its own acts in the nearest global direction.
void CNasFile::WriteSpring(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const Data::CSpringProp& spring = m_model->SpringProp(record.Property());
    const Util::CDirCos axes = m_model->ElemDC(element);
    int number = element;
    for (const Direction d : kDirections) {
        if (!IsStiff(spring, d)) {
            continue;
        }
        const int digit = Nas::DigitOf(GlobalDirection(axes, d));
        StartCard("CELAS2");
        AddInt(number != 0 ? number : NextElement());
        AddReal(spring.Stiff(d));
        AddInt(record.Topo(1));
        AddInt(digit);
        if (record.Topo(2) != 0) {
            AddInt(record.Topo(2));
            AddInt(digit);
        }
        EndCard();
        number = 0;
    }
    if (number != 0) {
        Skip(L"it has no linear stiffness");
    }
}

/// Angle from the side between the first two nodes, from which the target measures, to the
/// element's x, about its z; degrees.
double CNasFile::MaterialAngle(int element) const {
    const Data::CElement& record = m_model->Elem(element);
    const Util::CDirCos axes = m_model->ElemDC(element);
    const Vec3<double> side = m_model->TopoPosition(record, 2) - m_model->TopoPosition(record, 1);
    const Vec3<double>& x = axes.AxisVec(0);
    return std::atan2(Dot(Cross(side, x), axes.AxisVec(2)), Dot(side, x)) * kDegrees;
}

/// The nodes of the type: more of them would shift the fields behind.
void CNasFile::AddNodes(const Data::CElement& record) {
    for (int k = 1; k <= InfoOf(record.Type()).maxNodes; ++k) {
        AddInt(record.Topo(k));
    }
}

void CNasFile::AddCornerThicknesses(const Data::CElement& record) {
    for (int k = 0; k < CornerCount(record.Type()); ++k) {
        AddReal(m_model->Prop2D(record.Property()).Thickness());
    }
}

void CNasFile::WritePlane(int element, std::string_view card) {
    const Data::CElement& record = m_model->Elem(element);
    StartCard(card);
    AddInt(element);
    AddInt(m_materials.Prop2D(record.Property()).front().pid);
    AddNodes(record);
    if (record.Type() == ElementType::Quad8) {
        AddCornerThicknesses(record);
    }
    AddReal(MaterialAngle(element));
    AddReal(record.Offset().Z());
    if (record.Type() == ElementType::Tri6) {
        AddCornerThicknesses(record);
    }
    EndCard();
}

void CNasFile::WriteSolid(int element, std::string_view card) {
    const Data::CElement& record = m_model->Elem(element);
    StartCard(card);
    AddInt(element);
    AddInt(m_materials.Prop3D(record.Property()).front().pid);
    AddNodes(record);
    EndCard();
}

/// A cable has a material of its own. A property without an area gives the axial stiffness in the
/// place of the modulus, which is that of an area of one.
void CNasFile::WriteCable(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const int property = m_model->ElemStageProperty(element, -1);
    const double area = m_model->CableProp(property).Area();
    StartCard("CONROD");
    AddInt(element);
    AddInt(record.Topo(1));
    AddInt(record.Topo(2));
    AddInt(static_cast<long long>(m_model->HighestMatAnal()) + property);
    AddReal(area > 0.0 ? area : 1.0);
    AddReals({0.0, 0.0, 0.0});
    EndCard();
}

/// All freedoms of the first node are independent; those that the link ties follow at the second.
void CNasFile::WriteLink(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const bool hasProperty = m_model->LinkPropExist(record.Property());
    const int linked =
        hasProperty ? Nas::DigitsOf(LinkedFreedoms(m_model->LinkProp(record.Property()).TypeOf()))
                    : 123456;
    if (linked == 0) {
        Skip(L"it links no freedom");
        return;
    }
    StartCard("RBAR");
    AddInt(element);
    AddInt(record.Topo(1));
    AddInt(record.Topo(2));
    AddInt(123456);
    AddBlankFields(2);
    AddInt(linked);
    EndCard();
}

}  // namespace Tevra
