#include <algorithm>
#include <array>
#include <limits>

#include "legacy/VybConverter.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr int kMostTopo = 8;

constexpr std::array kElementTypes = {ElementType::Beam, ElementType::Bar,    ElementType::Strut,
                                      ElementType::Tie,  ElementType::Spring, ElementType::Quad4,
                                      ElementType::Tri3, ElementType::Quad8,  ElementType::Tri6,
                                      ElementType::Link, ElementType::Cable,  ElementType::Spacer};

void Release(Data::CElement& element, int end, Vbool6 released) {
    Data::CElemConnect connect;
    connect.SetReleased(released);
    element.SetConnect(end, connect);
}

/// Numbers that stand in the file twice are those of one record.
void SortOut(std::vector<int>& numbers) {
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

Data::COffset TakeOffset(CVybRecord& record) {
    const std::array<double, 4> values = record.Reals<4>();
    return {values[0], values[1], values[2], values[3]};
}

}  // namespace

void CVybConverter::TakeNode(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kNodes);
    Data::CNode node(record.Vector());
    node.SetAxis(record.Reference());
    node.SetRestraint(record.Directions());
    node.SetSpringProperty(record.Reference());
    node.SetMassProperty(record.Reference());
    if (!record.Good()) {
        return;
    }
    if (m_rotationProps.contains(node.SpringProperty())) {
        m_splitNodes.push_back(number);
    }
    m_model.SetNode(number, std::move(node));
}

void CVybConverter::TakeElement(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kElements);
    Data::CElement element;
    element.SetType(record.Code(kElementTypes));
    element.SetProperty(record.Reference());
    element.SetGroup(record.Reference());
    element.SetOrientationNode(record.Reference());
    element.SetOrientationAngle(record.Real());
    Release(element, 1, record.Directions());
    Release(element, 2, record.Directions());
    element.SetOffset(TakeOffset(record));
    element.SetDummy(record.Flag());
    TakeTopo(record, element);
    const int orientation = element.OrientationNode();
    if (!record.Good() || (orientation != 0 && !m_spread.Add(CVybDirectory::kNodes, orientation))) {
        record.Refuse();
        return;
    }
    if (element.IsSpring() && m_rotationProps.contains(element.Property())) {
        m_splitElements.push_back(number);
    }
    m_model.SetElem(number, std::move(element));
}

/// As many nodes as the element's type may have; nodes behind them are not looked at.
void CVybConverter::TakeTopo(CVybRecord& record, Data::CElement& element) {
    const ElementTypeInfo& info = InfoOf(element.Type());
    m_topo.clear();
    for (int count = record.Int(info.minNodes, std::min(info.maxNodes, kMostTopo)); count > 0;
         --count) {
        m_topo.push_back(record.Number());
    }
    element.SetTopo(m_topo);
}

/// What uses a spring that was split needs a second element for its rotations.
bool CVybConverter::FinishElements() {
    SortOut(m_splitElements);
    SortOut(m_splitNodes);
    int next = m_model.HighestElem();
    const std::size_t wanted = m_splitElements.size() + m_splitNodes.size();
    if (wanted > static_cast<std::size_t>(std::numeric_limits<int>::max() - next)) {
        return false;
    }
    for (const int number : m_splitElements) {
        Data::CElement element = m_model.Elem(number);
        const auto rotations = m_rotationProps.find(element.Property());
        if (element.IsSpring() && rotations != m_rotationProps.end()) {
            element.SetProperty(rotations->second);
            m_model.SetElem(++next, std::move(element));
        }
    }
    for (const int number : m_splitNodes) {
        const auto rotations = m_rotationProps.find(m_model.Node(number).SpringProperty());
        if (rotations != m_rotationProps.end()) {
            m_model.SetElem(++next,
                            Data::CElement(ElementType::Spring, {number}, rotations->second));
        }
    }
    return true;
}

}  // namespace Tevra
