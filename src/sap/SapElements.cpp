#include <algorithm>

#include "model/ElementsLeftOut.h"
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

bool CSapFile::NoteElementsLeftOut(SapContext& c) {
    const auto hasBlock = [this](const Data::CElement& element) {
        return BlockOf(*m_model, element) != SapBlock::None;
    };
    ElementsLeftOut found = FindElementsLeftOut(
        *m_model, hasBlock, [&c](int number) { return c.written.Test(number); });
    found.hasLink = false;  // links become constraints
    for (const std::wstring& note : found.Notes(
             L"Elements without length, or whose nodes or property do not exist, not exported: ")) {
        AddNote(note);
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
