#include <cmath>

#include "io/TextOut.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Properties of plane and solid elements.

namespace Tevra {

namespace {

/// The MID2 that makes a membrane one of plane strain.
constexpr int kPlaneStrain = -1;

}  // namespace

bool CNasFile::Write3DProperties() {
    StartSection("3D properties");
    for (const int number : m_model->Prop3DTable().Numbers()) {
        SetSubject(L"3D property", number);
        if (!m_writtenProps3D.Test(number)) {
            Skip(L"it has no material, or a value is not a number");
            continue;
        }
        for (const ExportedProperty& property : WithMaterial(m_materials.Prop3D(number))) {
            StartCard("PSOLID");
            AddInt(property.pid);
            AddInt(property.mid);
            EndCard();
        }
    }
    return true;
}

bool CNasFile::Write2DProperties() {
    StartSection("2D properties");
    for (const int number : m_model->Prop2DTable().Numbers()) {
        const Data::CProp2D& property = m_model->Prop2D(number);
        SetSubject(L"2D property", number);
        if (property.IsLoadPanel()) {
            Skip(L"it is a load panel");
        } else if (!m_writtenProps2D.Test(number)) {
            Skip(L"it has no material or thickness, or a value is not a number");
        } else {
            for (const ExportedProperty& entry : WithMaterial(m_materials.Prop2D(number))) {
                Write2DProperty(number, entry);
            }
        }
    }
    return true;
}

/// The thickness of the card is that of the membrane; bending and shear refer to it. A plane stress
/// property bends only when it has a bending thickness of its own.
void CNasFile::Write2DProperty(int property, const ExportedProperty& entry) {
    const Data::CProp2D& p = m_model->Prop2D(property);
    const double t = p.InplaneThickness();
    const double bending = std::pow(p.BendingThickness() / t, 3.0);
    m_out->Append(p.HasBending() ? "$ In-plane + Bending\n" : "$ Plane stress\n");
    StartCard("PSHELL");
    AddInt(entry.pid);
    if (p.Type() == Prop2DType::Plate) {
        AddBlankFields(1);
    } else {
        AddInt(entry.mid);
    }
    AddReal(t);
    if (p.HasBending()) {
        AddInt(entry.mid);
        AddReal(bending);
        AddInt(entry.mid);
        AddReal(p.ShearThickness() / t);
    } else if (p.Type() == Prop2DType::PlaneStrain) {
        AddInt(kPlaneStrain);
        AddBlankFields(3);
    } else if (p.OwnBending() > 0.0) {
        AddInt(entry.mid);
        AddReal(bending);
        AddBlankFields(2);
    } else {
        AddBlankFields(4);
    }
    AddReal(p.AdditionalMass());
    EndCard();
}

}  // namespace Tevra
