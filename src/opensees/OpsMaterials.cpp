#include "opensees/OpsMaterials.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/ElasticModuli.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"
#include "platform/text/Ascii.h"
#include "platform/text/Utf8.h"

namespace Tevra {

namespace {

using Data::CMatAnal;
using Data::ParamGroup;

void WriteReal(RecordText& out, double value) {
    out.Append(' ').General(value);
}

void WriteElastic(RecordText& out, const CMatAnal& material) {
    const bool isUniaxial = material.Model() == MatModel::UniaxialElastic;
    WriteReal(out, isUniaxial && material.NumOpsParam() > 0 ? material.OpsParam(0)
                                                            : ElasticModulus(material));
}

void WriteElasticPlastic(RecordText& out, const CMatAnal& material) {
    WriteReal(out, material.E());
    WriteReal(out, material.E() != 0.0 ? material.YieldStress() / material.E() : 0.0);
}

/// The plastic modulus E Et / (E - Et) in an isotropic and a kinematic part.
void WriteHardening(RecordText& out, const CMatAnal& material) {
    const double e = material.E();
    const double tangent = material.TangentModulus();
    const double plastic = e != tangent ? e * tangent / (e - tangent) : 0.0;
    const double isotropic = material.HardeningParameter();
    WriteReal(out, e);
    WriteReal(out, material.YieldStress());
    WriteReal(out, isotropic * plastic);
    WriteReal(out, (1.0 - isotropic) * plastic);
}

void WriteParameters(RecordText& out, const CMatAnal& material) {
    for (const double value : material.ModelParams()) {
        WriteReal(out, value);
    }
}

/// Groups in the order of the target's command. Kept: two values each, though the target asks for
/// four after -GABuck and three after -CMFatigue.
void WriteReinforcing(RecordText& out, const CMatAnal& material) {
    struct Group {
        std::string_view name;
        std::size_t mostValues;
    };
    static constexpr std::array kGroups = {Group{"-GABuck", 2}, Group{"-DMBuck", 2},
                                           Group{"-CMFatigue", 2}, Group{"-IsoHard", 2},
                                           Group{"-MPCurveParams", 64}};
    WriteParameters(out, material);
    for (const Group& group : kGroups) {
        for (const ParamGroup& given : material.OpsGroups()) {
            const std::string name = Text::ToUtf8(given.name);
            if (!Text::EqualNoCase(std::string_view(name), group.name) &&
                !Text::EqualNoCase(std::string_view(name), group.name.substr(1))) {
                continue;
            }
            out.Append(' ').Append(group.name);
            const std::size_t count = std::min(group.mostValues, given.values.size());
            for (std::size_t i = 0; i < count; ++i) {
                WriteReal(out, given.values[i]);
            }
        }
    }
}

/// A word of the material, one that the command can't do without. What is no plain word would not
/// be an argument but a piece of script.
void WriteWord(RecordText& out, const CMatAnal& material, std::size_t index,
               std::string_view fallback) {
    const auto& words = material.OpsTexts();
    const std::string word = index < words.size() ? Text::ToUtf8(words[index]) : std::string();
    const bool isPlain = !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
        const char lower = Text::ToLower(c);
        return (lower >= 'a' && lower <= 'z') || Text::IsDigit(c) || c == '_' || c == '-';
    });
    out.Append(' ').Append(isPlain ? std::string_view(word) : fallback);
}

void WriteBarSlip(RecordText& out, const CMatAnal& material) {
    constexpr std::size_t kNumberOfBars = 7;  // the one integer
    const auto& values = material.ModelParams();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i == kNumberOfBars && std::fabs(values[i]) < 1e9) {
            out.Append(' ').Int(std::llround(values[i]));
        } else {
            WriteReal(out, values[i]);
        }
    }
    WriteWord(out, material, 0, "strong");
    WriteWord(out, material, 1, "beamtop");
    WriteWord(out, material, 2, "damage");
    out.Append(" Pa");
}

void WriteLimitState(RecordText& out, const CMatAnal& material) {
    WriteParameters(out, material);
    const auto& words = material.OpsTexts();
    const bool shear = !words.empty() && Text::EqualNoCase(std::wstring_view(words[0]), L"Shear");
    out.Append(" limitCurve").Append(shear ? " Shear" : " Axial");
    out.Append(' ').Int(material.Curves().empty() ? 0 : material.Curves().front());
}

struct Uniaxial {
    MatModel model;
    std::string_view type;
    bool hasFibres;
    /// How many values the command takes, of those in the material's own order; empty: it makes
    /// them.
    std::array<int, 4> counts;
    void (*write)(RecordText& out, const CMatAnal& material);
};

constexpr Uniaxial kElastic{MatModel::ElasticIsotropic, "Elastic", false, {}, WriteElastic};
constexpr Uniaxial kPerfectlyPlastic{
    MatModel::ElasticPlastic, "ElasticPP", true, {}, WriteElasticPlastic};
constexpr Uniaxial kHardening{MatModel::ElasticPlastic, "Hardening", true, {}, WriteHardening};

/// Models that are what the target has; all others are elastic, or plastic by their modulus.
constexpr std::array kUniaxials = {
    Uniaxial{MatModel::UniaxialElasticPP, "ElasticPP", true, {2}, WriteParameters},
    Uniaxial{MatModel::UniaxialHardening, "Hardening", true, {4}, WriteParameters},
    Uniaxial{MatModel::UniaxialHysteretic, "Hysteretic", true, {12, 13, 16, 17}, WriteParameters},
    Uniaxial{MatModel::UniaxialViscous, "Viscous", false, {2}, WriteParameters},
    Uniaxial{MatModel::UniaxialConcrete01, "Concrete01", true, {4}, WriteParameters},
    Uniaxial{MatModel::UniaxialConcrete02, "Concrete02", true, {7}, WriteParameters},
    Uniaxial{MatModel::UniaxialConcrete03, "Concrete03", true, {10}, WriteParameters},
    Uniaxial{MatModel::UniaxialConcrete04, "Concrete04", true, {4, 6, 7}, WriteParameters},
    Uniaxial{MatModel::UniaxialSteel01, "Steel01", true, {3, 7}, WriteParameters},
    Uniaxial{MatModel::UniaxialSteel02, "Steel02", true, {3, 6, 10}, WriteParameters},
    Uniaxial{MatModel::UniaxialReinforcingSteel, "ReinforcingSteel", true, {6}, WriteReinforcing},
    Uniaxial{MatModel::UniaxialBarSlip, "BarSlip", false, {10}, WriteBarSlip},
    Uniaxial{MatModel::UniaxialLimitState, "LimitState", false, {16, 17}, WriteLimitState},
};

bool Takes(const Uniaxial& uniaxial, int count) {
    const auto& counts = uniaxial.counts;
    return counts[0] == 0 || std::find(counts.begin(), counts.end(), count) != counts.end();
}

/// "12, 13, 16, 17"
std::wstring CountsOf(const Uniaxial& uniaxial) {
    std::wstring text;
    for (const int count : uniaxial.counts) {
        if (count != 0) {
            text += (text.empty() ? L"" : L", ") + std::to_wstring(count);
        }
    }
    return text;
}

const Uniaxial& UniaxialOf(const CMatAnal& material) {
    const MatModel model = material.Model();
    if (model == MatModel::ElasticPlastic || model == MatModel::PlasticKinematic) {
        return material.TangentModulus() == 0.0 ? kPerfectlyPlastic : kHardening;
    }
    for (const Uniaxial& uniaxial : kUniaxials) {
        if (uniaxial.model == model) {
            return uniaxial;
        }
    }
    return kElastic;
}

}  // namespace

bool HasFibreModel(const CMatAnal& material) {
    return UniaxialOf(material).hasFibres;
}

/// Analysis materials under their numbers, then the design grades that stand for themselves.
void COpenseesFile::WriteMaterials(OpsContext& c) {
    c.out.Append("\n# material\n");
    for (const ExportedMaterial& entry : c.materials.Materials()) {
        const CMatAnal& material = *m_model->FindMaterial(entry.source);
        const Uniaxial& uniaxial = UniaxialOf(material);
        if (!Takes(uniaxial, material.NumOpsParam())) {
            AddNote(L"Material", entry.mid,
                    L"has " + std::to_wstring(material.NumOpsParam()) +
                        L" values, where the command takes " + CountsOf(uniaxial));
        }
        c.line.Append("uniaxialMaterial ").Append(uniaxial.type).Append(' ').Int(entry.mid);
        uniaxial.write(c.line, material);
        End(c, L"Material", entry.mid);
    }
}

}  // namespace Tevra
