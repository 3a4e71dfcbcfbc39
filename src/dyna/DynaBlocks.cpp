#include <limits>
#include <utility>
#include <vector>

#include "dyna/DynaCard.h"
#include "dyna/DynaCodes.h"
#include "dyna/DynaImport.h"
#include "dyna/DynaShapes.h"
#include "model/VynData.h"
#include "platform/text/LineReader.h"

namespace Tevra {

namespace {

constexpr int kCoordinateWidth = 16;
constexpr int kMassWidth = 16;
constexpr int kInertiaWidth = 10;
/// Where the number and the part of a solid end; its nodes stand behind them or in the next line.
constexpr std::size_t kEndOfSolidHead = 16;

/// What is wrong with numbers that a model can't hold.
constexpr const char* kScattered = "the numbers are too scattered";

/// Flags of the six directions from a code for translations and one for rotations.
Vbool6 DirectionsOf(int translational, int rotational) {
    const auto flags = [](int code) {
        const auto index = static_cast<std::size_t>(code);
        return index < kDynaDirections.size() ? kDynaDirections[index] : 0U;
    };
    return Vbool6::FromBits(flags(translational) | (flags(rotational) << 3U));
}

DynaNodes TakeNodes(CDynaCard& card) {
    DynaNodes nodes{};
    for (int& node : nodes) {
        node = card.Reference();
    }
    return nodes;
}

/// One end, or two; without the second one an element holds its node to the ground.
void TakeEnds(CDynaCard& card, std::vector<int>& ends) {
    ends.assign(1, card.Number());
    const int second = card.Reference();
    if (second != 0) {
        ends.push_back(second);
    }
}

}  // namespace

void CDynaImport::SetConnect(Data::CElemConnect& connect, int translational, int rotational) {
    connect.SetReleased(DirectionsOf(translational, rotational));
}

Data::CElemConnect CDynaImport::TakeConnect(CDynaCard& card) {
    const int translational = card.Code();
    const int rotational = card.Code();
    Data::CElemConnect connect;
    SetConnect(connect, translational, rotational);
    return connect;
}

bool CDynaImport::Node(CLineReader& lines, std::string_view& line) {
    while (NextEntry(lines, line)) {
        CDynaCard card(line);
        const int number = card.Number();
        Vec3<double> position;
        for (int i = 0; i < 3; ++i) {
            position[i] = card.Real(kCoordinateWidth);
        }
        const int translational = card.Code();
        const int rotational = card.Code();
        if (!IsGood(card)) {
            return false;
        }
        if (!m_model->NodeTable().HasRoomFor(number)) {
            return Fail("node " + std::to_string(number) + ": " + kScattered);
        }
        Data::CNode node(position);
        node.SetRestraint(DirectionsOf(translational, rotational));
        if (const Data::CNode* former = m_model->NodeTable().Find(number)) {
            node.SetMassProperty(former->MassProperty());  // a mass read before stays
        }
        m_model->SetNode(number, std::move(node));
        ++m_report.nodes;
    }
    return m_error.empty();
}

/// A line without a second node is that of a discrete beam, which holds its node to the ground as a
/// spring does.
bool CDynaImport::Beam(CLineReader& lines, std::string_view& line) {
    std::vector<int> ends;
    while (NextEntry(lines, line)) {
        CDynaCard card(line);
        const int number = card.Number();
        const int part = card.Reference();
        TakeEnds(card, ends);
        const int orientation = card.Reference();
        Data::CElement beam(ends.size() == 2 ? ElementType::Beam : ElementType::Spring, ends, part);
        beam.SetOrientationNode(orientation);
        for (const int end : {1, 2}) {
            beam.SetConnect(end, TakeConnect(card));
        }
        card.Int();  // the system of nodal constraints: of no use here, but it must be a number
        if (!IsGood(card)) {
            return false;
        }
        if (!AddElement(number, std::move(beam)) || !SkipFurther(lines, line)) {
            return false;
        }
    }
    return m_error.empty();
}

bool CDynaImport::Shell(CLineReader& lines, std::string_view& line) {
    DynaShape shape;
    while (NextEntry(lines, line)) {
        CDynaCard card(line);
        const int number = card.Number();
        const int part = card.Reference();
        const DynaNodes nodes = TakeNodes(card);
        if (!IsGood(card)) {
            return false;
        }
        if (!ShellShape(nodes, shape)) {
            return Fail("shell " + std::to_string(number) + " lacks nodes");
        }
        if (!AddElement(number, Data::CElement(shape.type, shape.topology, part)) ||
            !SkipFurther(lines, line, shape.hasMidSideNodes)) {
            return false;
        }
    }
    return m_error.empty();
}

bool CDynaImport::Solid(CLineReader& lines, std::string_view& line) {
    DynaShape shape;
    DynaNodes nodes{};
    while (NextEntry(lines, line)) {
        CDynaCard head(line);
        const int number = head.Number();
        const int part = head.Reference();
        if (!IsGood(head) || !SolidNodes(lines, line, head, nodes)) {
            return false;
        }
        if (!SolidShape(nodes, shape)) {
            return Fail("solid " + std::to_string(number) + " lacks nodes");
        }
        if (!AddElement(number, Data::CElement(shape.type, shape.topology, part))) {
            return false;
        }
    }
    return m_error.empty();
}

/// The nodes of a solid from the rest of its line, or from the next line when there is no rest.
bool CDynaImport::SolidNodes(CLineReader& lines, std::string_view& line, CDynaCard card,
                             DynaNodes& nodes) {
    const bool isOneLine = line.size() > kEndOfSolidHead;
    if (!isOneLine) {
        if (!NextOfEntry(lines, line)) {
            return false;
        }
        card = CDynaCard(line);
    }
    nodes = TakeNodes(card);
    const bool hasMore = !isOneLine && (card.Reference() != 0 || card.Reference() != 0);
    return IsGood(card) && (!hasMore || Fail("the solid has more than eight nodes"));
}

bool CDynaImport::Spring(CLineReader& lines, std::string_view& line) {
    std::vector<int> ends;
    while (NextEntry(lines, line)) {
        CDynaCard card(line);
        const int number = card.Number();
        const int part = card.Reference();
        TakeEnds(card, ends);
        if (!IsGood(card)) {
            return false;
        }
        if (!AddElement(number, Data::CElement(ElementType::Spring, ends, part))) {
            return false;
        }
    }
    return m_error.empty();
}

bool CDynaImport::Mass(CLineReader& lines, std::string_view& line) {
    while (NextEntry(lines, line)) {
        CDynaCard card(line);
        card.Number();
        const int node = card.Number();
        Data::CMassProp mass;
        mass.SetMass(card.Real(kMassWidth));
        if (!IsGood(card) || !AddMass(node, mass)) {
            return false;
        }
    }
    return m_error.empty();
}

bool CDynaImport::Inertia(CLineReader& lines, std::string_view& line) {
    while (NextEntry(lines, line)) {
        CDynaCard head(line);
        head.Number();
        const int node = head.Number();
        Data::CMassProp mass;
        mass.SetAxis(head.Reference());
        if (!IsGood(head) || !NextOfEntry(lines, line)) {
            return false;
        }
        CDynaCard card(line);
        TensSym3<double> inertia;
        for (double* term :
             {&inertia.xx, &inertia.xy, &inertia.zx, &inertia.yy, &inertia.yz, &inertia.zz}) {
            *term = card.Real(kInertiaWidth);
        }
        mass.SetInertia(inertia);
        mass.SetMass(card.Real(kInertiaWidth));
        if (!IsGood(card) || !AddMass(node, mass) || !SkipFurther(lines, line)) {
            return false;
        }
    }
    return m_error.empty();
}

bool CDynaImport::AddElement(int number, Data::CElement element) {
    if (!m_model->ElemTable().HasRoomFor(number)) {
        return Fail("element " + std::to_string(number) + ": " + kScattered);
    }
    m_model->SetElem(number, std::move(element));
    ++m_report.elements;
    return true;
}

/// Gives a node a mass property of its own. The property is kept when there is no such node.
bool CDynaImport::AddMass(int node, const Data::CMassProp& mass) {
    const int highest = m_model->HighestMassProp();
    if (highest == std::numeric_limits<int>::max()) {
        return Fail("the model has no number left for a mass property");
    }
    m_model->SetMassProp(highest + 1, mass);
    if (!m_model->NodeExist(node)) {
        ++m_report.massesWithoutNode;
        return true;
    }
    Data::CNode record = m_model->Node(node);
    m_report.massesReplaced += record.MassProperty() != 0 ? 1 : 0;
    record.SetMassProperty(highest + 1);
    m_model->SetNode(node, std::move(record));
    return true;
}

}  // namespace Tevra
