#include <algorithm>

#include "model/Faces.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Springs between joints, shells and planes; notes on elements that are left out.

namespace Tevra {

namespace {

void AddNodes(RecordText& line, const Data::CElement& element, int first, int last) {
    for (int k = first; k <= last; ++k) {
        line.Append(k > first ? "," : "").Int(element.Topo(k));
    }
}

}  // namespace

bool CSapFile::ScanElements(SapContext& c) {
    bool hasCable = false;
    bool hasSpacer = false;
    int dummies = 0;
    int faults = 0;
    int firstFault = 0;
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        hasCable = hasCable || record.IsCable();
        hasSpacer = hasSpacer || record.IsSpacer();
        const SapBlock block = BlockOf(*m_model, record);
        if (record.IsDummy()) {
            dummies += block != SapBlock::None ? 1 : 0;
        } else if (block != SapBlock::None && !c.written.Test(number)) {
            ++faults;
            firstFault = firstFault == 0 ? number : firstFault;
        }
    }
    if (hasCable) {
        AddNote(L"Cable elements not exported");
    }
    if (hasSpacer) {
        AddNote(L"Spacer elements not exported");
    }
    if (dummies > 0) {
        AddNote(L"Dummy elements not exported");
    }
    if (faults > 0) {
        AddNote(L"Elements whose nodes or property do not exist not exported: " +
                std::to_wstring(faults) + L", the first is " + std::to_wstring(firstFault));
    }
    return true;
}

bool CSapFile::WriteLinkElements(SapContext& c) {
    c.out.Append("NLLINK\n");
    int last = -1;
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenIn(number) != SapBlock::Spring) {
            continue;
        }
        const Data::CElement& record = m_model->Elem(number);
        const int own = m_model->SpringProp(record.Property()).Axis();
        const int axis = m_model->AxisExist(own) ? own : kGlobalAxis;
        if (axis != last) {
            c.out.Append("  CSYS=").Int(axis).Append(" AXDIR=+X PLDIR=+X,+Y\n");
            last = axis;
        }
        c.line.Append("     ").Int(number).Append(" J=");
        AddNodes(c.line, record, 1, std::min(record.NumTopo(), 2));
        c.line.Append(" NLP=").Int(record.Property());
        End(c, L"Element", number);
    }
    return true;
}

bool CSapFile::WriteShells(SapContext& c) {
    c.out.Append("SHELL\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenIn(number) != SapBlock::Shell) {
            continue;
        }
        const Data::CElement& record = m_model->Elem(number);
        c.line.Append("   ").Int(number).Append(" J=");
        AddNodes(c.line, record, 1, CornerCount(record.Type()));
        c.line.Append(" SEC=").Int(record.Property(), kNameDigits);
        End(c, L"Element", number);
    }
    return true;
}

bool CSapFile::WritePlanes(SapContext& c) {
    c.out.Append("PLANE\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenIn(number) != SapBlock::Plane) {
            continue;
        }
        const Data::CElement& record = m_model->Elem(number);
        const Data::CProp2D& property = m_model->Prop2D(record.Property());
        c.line.Append("  ").Int(number);
        if (record.Type() == ElementType::Quad8) {
            c.line.Append(" J9=");
            AddNodes(c.line, record, 1, 4);
            c.line.Append(",0,");
            AddNodes(c.line, record, 5, 8);
        } else {
            c.line.Append(" J=");
            AddNodes(c.line, record, 1, CornerCount(record.Type()));
        }
        const bool isStress = property.Type() == Prop2DType::PlaneStress;
        c.line.Append(isStress ? " TYPE=STRESS " : " TYPE=STRAIN ");
        AddMaterial(c.line, property.Material(), c.materials.Prop2D(record.Property()));
        c.line.Append(" MATANG=0 TH=").Padded(property.Thickness());
        End(c, L"Element", number);
    }
    return true;
}

}  // namespace Tevra
