#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaElementLoop.h"
#include "dyna/DynaOut.h"
#include "model/Util.h"
#include "model/VynData.h"

// Sets of nodes and elements from lists, and ties between surfaces.

namespace Tevra {

using namespace DynaCards;

namespace {

constexpr int kShellSide = 1;
constexpr int kNodeSide = 4;

}  // namespace

/// Lists keep their numbers, so sets of other origin go round them.
int CDynaAnalysis::NextSet() {
    do {
        ++m_setCounter;
    } while (m_model->ListExist(m_setCounter));
    return m_setCounter;
}

void CDynaAnalysis::WriteSet(const DynaLayout& card, int number, const std::vector<int>& members) {
    m_out->Keyword(card);
    m_out->Int(number, 10);
    m_out->EndLine(card.keyword, number);
    m_out->List(members);
}

std::vector<int> CDynaAnalysis::ElementsOf(const CEntList& list, DynaPart type) const {
    std::vector<int> elements = Listed(list, SelType::Element);
    std::erase_if(elements, [this, type](int number) {
        const Data::CElement& record = m_model->Elem(number);
        return KindOf(record) != type || !HasNodes(record);
    });
    return elements;
}

bool CDynaAnalysis::WriteSets() {
    for (const int number : m_model->ListTable().Numbers()) {
        const CEntList& list = m_model->List(number).Definition();
        const struct {
            const DynaLayout& card;
            std::vector<int> members;
        } sets[] = {{kNodeList, Listed(list, SelType::Node)},
                    {kBeamSet, ElementsOf(list, DynaPart::Beam)},
                    {kShellList, ElementsOf(list, DynaPart::Shell)}};
        for (const auto& set : sets) {
            if (!set.members.empty()) {
                WriteSet(set.card, number, set.members);
            }
        }
    }
    return true;
}

bool CDynaAnalysis::WriteTiedInterfaces() {
    for (const int number : m_model->TiedInterfaceTable().Numbers()) {
        WriteTiedInterface(number);
    }
    return true;
}

void CDynaAnalysis::WriteTiedInterface(int number) {
    const Data::CTiedInterface& tie = m_model->TiedInterface(number);
    const bool isNodes = tie.Slave().TypeOf() == SelType::Node;
    const std::vector<int> slaves =
        isNodes ? Listed(tie.Slave(), SelType::Node) : ElementsOf(tie.Slave(), DynaPart::Shell);
    const std::vector<int> masters = ElementsOf(tie.Master(), DynaPart::Shell);
    if (slaves.empty() || masters.empty()) {
        Skip(L"Tied interface", number, L"one of its sides is empty");
        return;
    }
    const int slaveSet = NextSet();
    WriteSet(isNodes ? kNodeSet : kShellSet, slaveSet, slaves);
    const int masterSet = NextSet();
    WriteSet(kShellSet, masterSet, masters);
    m_out->Keyword(kTiedContact);
    m_out->Int(number, 10);
    m_out->Text().Append("Tied interface ").Int(number).EndLine();
    m_out->Line<kTiedContact>(slaveSet, masterSet, isNodes ? kNodeSide : kShellSide, 1, 1, 1);
    m_out->Text().Append("\n\n");  // friction and scale factors by default
}

}  // namespace Tevra
