#include <algorithm>
#include <array>
#include <charconv>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/VynData.h"

// Analysis materials by their models, and design grades.

namespace Tevra {

/// The card of a material model. Each line lists its cells, ten columns wide:
/// - `id` the number of the material,
/// - `pK` value K of CMatAnal::Param, `eK` and `gK` moduli by direction,
/// - `mK` parameter K of the model, degrees as radians with `rK`; where the material has none, what
///   stands behind a `|`, else 0,
/// - `cK` curve K of the model, 0 where there is none,
/// - `nuba`, `nuca`, `nucb` Poisson's ratios as the target orders them, `shear` E / (2 (1 + nu)),
/// - `_` a blank field; any number stands for itself, whole ones are integers.
struct DynaMaterialCard {
    MatModel model;
    std::string_view keyword;
    std::array<std::string_view, 8> lines;
};

namespace {

constexpr double kRadians = 3.14159265358979323846 / 180.0;
constexpr int kWidth = 10;

using M = MatModel;

constexpr std::string_view kSixZeros = "0.0 0.0 0.0 0.0 0.0 0.0";
constexpr std::string_view kSevenZeros = "0.0 0.0 0.0 0.0 0.0 0.0 0.0";
constexpr std::string_view kEightZeros = "0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0";

constexpr DynaMaterialCard kCards[] = {
    {M::ElasticIsotropic, "*MAT_ELASTIC", {"id p2 p0 p1"}},
    {M::ElasticPlastic, "*MAT_PLASTIC_KINEMATIC", {"id p2 p0 p1 p7 p5 p6", "0.0 0.0 0.0 0"}},
    {M::ElasticOrthotropic,
     "*MAT_ORTHOTROPIC_ELASTIC",
     {"id p2 e0 e1 e2 nuba nuca nucb", "g0 g1 g2 0", kSixZeros, kSevenZeros}},
    // The fourth value of the second line takes compression away.
    {M::Fabric,
     "*MAT_FABRIC",
     {"id p2 e0 e1 e2 nuba nuca nucb", "g0 g1 g2 1.0 0.0 0.0 0.0 0.0", "0 0.0 0.0 0.0 0.0 0 0 0.0",
      "_ 0.0 0 0.0 0.0 0.0 0.0 0.0", "0.0 0.0 0.0 _ _ _ 0.0 0"}},
    {M::DruckerPrager, "*MAT_DRUCKER_PRAGER", {"id p2 shear p1 1.0 r1 m0 r2", "0.0", kEightZeros}},
    {M::MohrCoulomb,
     "*MAT_MOHR_COULOMB",
     {"id p2 shear p1 _ r1 m0 r2", "0 0 0 0 0 0 0 0", "0.0 0.0 0 0 0 0 0.0 0.0",
      "0.0 0.0 0.0 0.0 0.0"}},
    // UNITC and UNITL make MPa and mm of the file's units.
    {M::ConcreteEC2,
     "*MAT_CONCRETE_EC2",
     {"id p2 m0 m1 m2|1.0 m3|1e-6 m4 m5", "m6 m7 m8 m9 m10 m11 m12 m13|1e3",
      "m14 m15 m16 m17 m18 m19 c0 c1", "0.0 m20 m21 m22 c2 0.0 0 0.0", kSixZeros, kSevenZeros}},
    {M::HystereticBeam,
     "*MAT_HYSTERETIC_BEAM",
     {"id p2 p0 p1 0 0 0 0", "c0 1.0 c1 1.0 c2 1.0 c3 1.0", "m0 m1 m2 m3 m4 m5 m6 m7",
      "m8 m9 m10 m11 c4 1.0 c5 1.0", "m12 m13 m14 m15 m16 m17 m18 m19",
      "m20 m21 m22 m23 m24 m25 m26 m27", "m28 m29 m30 m31 m32 m33 m34 m35"}},
    {M::HystereticReinforcement,
     "*MAT_HYSTERETIC_REINF",
     {"id p2 p0 p1 p7 m0 m1 m2", "m3 m4 c0 c1 0.0 m5 m6", "m7 m8 c2 m9|1e-6 m10|1e3", "m11 m12 m13",
      "_ _ _ 0.0 0.0 0.0", kSevenZeros}},
    {M::PlasticKinematic, "*MAT_PLASTIC_KINEMATIC", {"id p2 p0 p1 p7 p5 p6", "0.0 0.0 0.0 0"}},
    {M::ParkAngBeam, "*MAT_PARK_ANG_BEAM", {"id p2 p0 p1 p7 p5", "m0 m1 m2 m3 m4 m5 m6 m7"}},
    {M::GeneralNonlinear6Dof,
     "*MAT_GENERAL_NONLINEAR_6DOF_DISCRETE_BEAM",
     {"id p2 m0 m1 0 m2 m3 0", "c0 c1 c2 c3 c4 c5", "c6 c7 c8 c9 c10 c11",
      "c12 c13 c14 c15 c16 c17", "c18 c19 c20 c21 c22 c23", "m4 m5 m6 m7 m8 m9",
      "m10 m11 m12 m13 m14 m15", "m16 m17 m18 m19 m20 m21"}},
    {M::SeismicIsolator,
     "*MAT_SEISMIC_ISOLATOR",
     {"id p2 m0 m1 m2 m3 m4 0", "m5 m6 m7 m8 m9 m10 m11 0", "m12 m13 m14 m15 m16 m17 m18 m19",
      "m20 m21 m22 m23 m24 m25 m26 m27"}},
    {M::SteelEC3, "*MAT_STEEL_EC3", {"id p2 p0 p1 p7", "c0 c1 c2 c3 c4", "_"}},
};

const DynaMaterialCard* CardOf(MatModel model) {
    for (const DynaMaterialCard& card : kCards) {
        if (card.model == model) {
            return &card;
        }
    }
    return nullptr;
}

/// Calls use(cell) for the cells of a line.
template <class Use>
void ForEachCell(std::string_view line, Use use) {
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        use(line.substr(0, end));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
}

template <class Number>
Number NumberOf(std::string_view text) {
    Number value{};
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// How many values of a kind (`m` or `r` parameters, `c` curves) a card takes.
std::size_t NumTaken(const DynaMaterialCard& card, std::string_view kinds) {
    std::size_t count = 0;
    for (const std::string_view line : card.lines) {
        ForEachCell(line, [&](std::string_view cell) {
            if (kinds.find(cell.front()) != std::string_view::npos) {
                count = std::max(count, NumberOf<std::size_t>(cell.substr(1)) + 1);
            }
        });
    }
    return count;
}

/// nu_ba of nu_ab: stiffness times strain is alike both ways.
double Reversed(double ratio, double eFirst, double eSecond) {
    return eFirst != 0.0 ? ratio * eSecond / eFirst : 0.0;
}

struct DerivedCell {
    std::string_view name;
    double (*value)(const Data::CMatAnal& material);
};

// The model's ratios are xy, yz and zx.
constexpr DerivedCell kDerived[] = {
    {"nuba", [](const Data::CMatAnal& m) { return Reversed(m.Nu(0), m.E(0), m.E(1)); }},
    {"nuca", [](const Data::CMatAnal& m) { return m.Nu(2); }},
    {"nucb", [](const Data::CMatAnal& m) { return Reversed(m.Nu(1), m.E(1), m.E(2)); }},
    {"shear", [](const Data::CMatAnal& m) { return m.E() / (2.0 * (1.0 + m.Nu())); }},
};

double ModelParam(const Data::CMatAnal& material, std::string_view cell) {
    const auto index = NumberOf<std::size_t>(cell.substr(1));
    const std::size_t bar = cell.find('|');
    if (index < material.ModelParams().size()) {
        return material.ModelParams()[index];
    }
    return bar != std::string_view::npos ? NumberOf<double>(cell.substr(bar + 1)) : 0.0;
}

double RealCell(const Data::CMatAnal& material, std::string_view cell) {
    for (const DerivedCell& derived : kDerived) {
        if (derived.name == cell) {
            return derived.value(material);
        }
    }
    const int index = NumberOf<int>(cell.substr(1));
    switch (cell.front()) {
        case 'p':
            return material.Param(index);
        case 'e':
            return material.E(index);
        case 'g':
            return material.G(index);
        case 'm':
            return ModelParam(material, cell);
        case 'r':
            return ModelParam(material, cell) * kRadians;
        default:
            return NumberOf<double>(cell);
    }
}

bool IsWhole(std::string_view cell) {
    return cell.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

void CDynaAnalysis::WriteMaterialCell(std::string_view cell, const Data::CMatAnal& material,
                                      int number) {
    if (cell == "_") {
        m_out->Blank(kWidth);
    } else if (cell == "id") {
        m_out->Int(number, kWidth);
    } else if (cell.front() == 'c') {
        const auto index = NumberOf<std::size_t>(cell.substr(1));
        const std::vector<int>& curves = material.Curves();
        m_out->Int(index < curves.size() ? CurveNumber(curves[index]) : 0, kWidth);
    } else if (IsWhole(cell)) {
        m_out->Int(NumberOf<int>(cell), kWidth);
    } else {
        m_out->Real(RealCell(material, cell), kWidth);
    }
}

void CDynaAnalysis::WriteMaterial(const DynaMaterialCard& card, const std::wstring& name,
                                  const Data::CMatAnal& material, int number) {
    m_out->Text().Append(card.keyword).EndLine();
    m_out->NameComment(name);
    for (const std::string_view line : card.lines) {
        if (!line.empty()) {
            ForEachCell(line,
                        [&](std::string_view cell) { WriteMaterialCell(cell, material, number); });
            m_out->EndLine(card.keyword, number);
        }
    }
}

/// Materials of other models have no card.
bool CDynaAnalysis::WriteMaterials() {
    for (const int number : m_model->MatAnalTable().Numbers()) {
        const Data::CMatAnal& material = m_model->MatAnal(number);
        if (const DynaMaterialCard* const card = CardOf(material.Model()); card != nullptr) {
            WriteMaterial(*card, material.Name(), material, number);
            if (material.ModelParams().size() > NumTaken(*card, "mr") ||
                material.Curves().size() > NumTaken(*card, "c")) {
                AddNote(L"Material", number, L"has more parameters or curves than its card takes");
            }
        }
    }
    return true;
}

bool CDynaAnalysis::WriteDesignMaterials() {
    constexpr MatType kFamilies[] = {MatType::Concrete,  MatType::Steel, MatType::Frp,
                                     MatType::Aluminium, MatType::Glass, MatType::Timber,
                                     MatType::Fabric,    MatType::Rebar};
    for (const MatType family : kFamilies) {
        const auto& table = *m_model->DesignTable(family);
        for (const int grade : table.Numbers()) {
            const auto found = m_designMaterials.find({family, grade});
            if (found != m_designMaterials.end()) {
                const Data::CMatDesign& record = table.Get(grade);
                WriteMaterial(*CardOf(M::ElasticIsotropic), record.Name(), record.MatAnal(),
                              found->second);
            }
        }
    }
    return true;
}

}  // namespace Tevra
