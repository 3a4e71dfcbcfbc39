#include "model/Load.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Link properties, shell sections and materials.

namespace Tevra {

bool CSapFile::WriteLinkProperties(SapContext& c) {
    const auto isWritten = [this](int number) {
        return m_model->SpringProp(number).Type() != SpringType::General;
    };
    bool hasBlock = false;
    for (const int number : m_model->SpringPropTable().Numbers()) {
        if (!isWritten(number)) {
            continue;
        }
        c.out.Append(hasBlock ? "" : "NLPROP\n");
        hasBlock = true;
        const Data::CSpringProp& spring = m_model->SpringProp(number);
        const bool turns = spring.RotationActive() && !spring.TranslationActive();
        c.line.Append("  NAME=").Int(number, kNameDigits).Append(" TYPE=DAMPER M=0 ");
        c.line.Append(spring.TranslationActive() ? "DOF=U1 " : "");
        c.line.Append(spring.RotationActive() ? "DOF=R1 " : "");
        c.line.Append("KE=").Padded(spring.Stiff(turns ? Direction::XX : Direction::X));
        End(c, L"Spring property", number);
    }
    return true;
}

namespace {

std::string_view ShellWord(Prop2DType type) {
    switch (type) {
        case Prop2DType::Membrane:
            return "TYPE=MEMBR ";
        case Prop2DType::Plate:
            return "TYPE=PLATE ";
        case Prop2DType::Shell:
        case Prop2DType::CurvedShell:
            return "TYPE=SHELL ";
        default:
            return {};
    }
}

}  // namespace

bool CSapFile::WriteShellSections(SapContext& c) {
    if (m_model->NumProp2D() == 0) {
        return true;
    }
    c.out.Append("SHELL SECTION\n");
    for (const int number : m_model->Prop2DTable().Numbers()) {
        const Data::CProp2D& property = m_model->Prop2D(number);
        const std::string_view word = ShellWord(property.Type());
        if (word.empty()) {
            continue;
        }
        c.line.Append("  NAME=").Int(number, kNameDigits).Append(' ').Append(word);
        AddMaterial(c.line, property.Material(), c.materials.Prop2D(number));
        c.line.Append(" TH=").Padded(property.Thickness());
        if (property.Type() == Prop2DType::Shell || property.Type() == Prop2DType::CurvedShell) {
            c.line.Append(" THB=").Padded(property.Thickness());
        }
        End(c, L"2D property", number);
    }
    return true;
}

namespace {

/// Three values of an orthotropic material. Kept: only the first has trailing zeros.
void AddThree(RecordText& line, std::string_view key, const std::array<double, 3>& values) {
    line.Append(key).Padded(values[0]);
    line.Append(',').General(values[1]).Append(',').General(values[2]);
}

void AddElastic(RecordText& line, const Data::CMatAnal& material) {
    line.Append("\n    T=0 ");
    if (material.Model() == MatModel::ElasticOrthotropic) {
        AddThree(line, "E=", material.Young());
        AddThree(line, " G=", material.Shear());
        AddThree(line, " U=", material.Poisson());
        AddThree(line, " A=", material.Expansion());
    } else {
        line.Append("E=").Padded(material.E()).Append(" U=").Padded(material.Nu());
        line.Append(" A=").Padded(material.Alpha());
    }
}

}  // namespace

/// Analysis materials under their numbers, then the design grades that stand for themselves.
bool CSapFile::WriteMaterials(SapContext& c) {
    c.out.Append("MATERIAL\n");
    for (const ExportedMaterial& entry : c.materials.Materials()) {
        const Data::CMatAnal& material = *m_model->FindMaterial(entry.source);
        const bool isIsotropic = material.Model() == MatModel::ElasticIsotropic;
        if (!isIsotropic && material.Model() != MatModel::ElasticOrthotropic) {
            continue;
        }
        c.line.Append("  NAME=").Int(entry.mid, kNameDigits);
        c.line.Append(isIsotropic ? " TYPE=ISO " : " TYPE=ORTHO ");
        c.line.Append("IDES=N M=").Padded(material.Density());
        c.line.Append(" W=").Padded(material.Density() * kGravity);
        AddElastic(c.line, material);
        End(c, L"Material", entry.mid);
    }
    return true;
}

}  // namespace Tevra
