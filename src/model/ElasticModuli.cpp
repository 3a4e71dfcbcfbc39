#include "model/ElasticModuli.h"

#include <algorithm>
#include <iterator>

#include "model/Material.h"

namespace Tevra {

namespace {

/// Where a uniaxial model has its initial stiffness: a parameter times a factor, over another
/// parameter (-1: none).
struct InitialStiffness {
    MatModel model;
    int over;
    int under = -1;
    double factor = 1.0;
};
constexpr InitialStiffness kStiffnesses[] = {
    {MatModel::UniaxialElastic, 0},
    {MatModel::UniaxialElasticPP, 0},
    {MatModel::UniaxialHardening, 0},
    {MatModel::UniaxialHysteretic, 0, 1},
    {MatModel::UniaxialConcrete01, 0, 1, 2.0},  // a parabola up to the strain of the strength
    {MatModel::UniaxialConcrete02, 0, 1, 2.0},
    {MatModel::UniaxialConcrete03, 0, 1, 2.0},
    {MatModel::UniaxialConcrete04, 3},
    {MatModel::UniaxialSteel01, 1},
    {MatModel::UniaxialSteel02, 1},
    {MatModel::UniaxialReinforcingSteel, 2},
    {MatModel::UniaxialBarSlip, 2},
    {MatModel::UniaxialLimitState, 0, 1},
};

}  // namespace

double ElasticModulus(const Data::CMatAnal& material) {
    if (material.E() != 0.0) {
        return material.E();
    }
    const auto* const found =
        std::find_if(std::begin(kStiffnesses), std::end(kStiffnesses),
                     [&](const InitialStiffness& s) { return s.model == material.Model(); });
    if (found == std::end(kStiffnesses)) {
        return 0.0;
    }
    const double under = found->under < 0 ? 1.0 : material.OpsParam(found->under);
    return under != 0.0 ? found->factor * material.OpsParam(found->over) / under : 0.0;
}

double ShearModulus(const Data::CMatAnal& material) {
    return material.G() != 0.0 ? material.G()
                               : ElasticModulus(material) / (2.0 * (1.0 + material.Nu()));
}

}  // namespace Tevra
