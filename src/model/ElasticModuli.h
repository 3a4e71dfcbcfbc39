#pragma once

namespace Tevra {

namespace Data {
class CMatAnal;
}

/// Young's modulus of a material, Pa: as stated, else the initial stiffness that the parameters of
/// its uniaxial model give. 0 for a model without one (a damper, say).
double ElasticModulus(const Data::CMatAnal& material);

/// Shear modulus, Pa: as stated, else E / (2 (1 + nu)).
double ShearModulus(const Data::CMatAnal& material);

}  // namespace Tevra
