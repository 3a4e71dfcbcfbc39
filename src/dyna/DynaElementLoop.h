#pragma once

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaElementKind.h"
#include "model/VynData.h"

namespace Tevra {

/// True when an element names the nodes that its type has at least.
bool HasNodes(const Data::CElement& element);
/// True when all nodes that an element names exist.
bool NodesExist(const CVynData& model, const Data::CElement& element);

/// Writes the elements of a kind in the order of their numbers; false as soon as one can't be
/// written. Elements that lack nodes are left out, those whose nodes do not exist are noted.
template <class WriteOne>
bool CDynaAnalysis::WriteElementsOf(DynaPart type, WriteOne writeOne) {
    if (!m_hasKind[static_cast<std::size_t>(type)]) {
        return true;
    }
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        if (KindOf(record) != type) {
            continue;
        }
        if (!HasNodes(record)) {
            Skip(L"Element", number, L"it has too few nodes");
            continue;
        }
        if (!NodesExist(*m_model, record)) {
            AddNote(L"Element", number, L"is written with nodes that do not exist");
        }
        if (!writeOne(number)) {
            return false;
        }
    }
    return true;
}

}  // namespace Tevra
