#include <cmath>

#include "model/ElasticModuli.h"
#include "model/Faces.h"
#include "model/LoadValues.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Temperatures of beams and planes, and the temperatures that stand for prestress.
//
// A member held at both ends and warmed by T carries the force -E A alpha T, one with a gradient T'
// along z the moment E Iyy alpha T' (thermal strain alpha T against the strain of the force; see
// Timoshenko and Goodier, Theory of Elasticity, thermal stress). A prestress P is therefore the
// temperature -P / (E A alpha), and its eccentricity e the gradient -P e / (E I alpha).

namespace Tevra {

namespace {

bool IsUsable(double value) {
    return std::isfinite(value) && value != 0.0;
}

}  // namespace

bool CNasFile::WriteReferenceTemperature() {
    const bool anyThermal =
        m_model->NumAxialLoad() + m_model->NumBeamThermalLoad() + m_model->NumInPlaneLoad() > 0 ||
        m_model->NumFaceThermalLoad() > 0;
    if (!anyThermal) {
        return true;
    }
    StartSection("Refernce temperature");
    for (int i = 1; i <= m_model->HighestLoadCase(); ++i) {
        if (HasLoad(i, kThermal)) {
            SetSubject(L"Load case", i);
            StartCard("TEMPD");
            AddInt(i);
            AddReal(0.0);  // loads are changes of temperature
            EndCard();
        }
    }
    return true;
}

bool CNasFile::WriteAxialLoads() {
    StartSection("Axial loads - transferred as thermal loads");
    for (const int number : m_model->AxialLoadTable().Numbers()) {
        const Data::CAxialLoad& load = m_model->AxialLoad(number);
        SetSubject(L"Axial load", number);
        if (!IsLoadWritten(load, {1})) {
            continue;
        }
        for (const int element : LoadedBeams(load, true)) {
            WriteAxialLoad(load, element);
        }
    }
    return true;
}

/// With the tendon at (yoff, zoff): T = -P / (E A alpha), along the host's z -P zoff / (E Iyy
/// alpha), along its y +P yoff / (E Izz alpha), as the target's z is the host's -y.
void CNasFile::WriteAxialLoad(const Data::CAxialLoad& load, int element) {
    const int section = m_model->Elem(element).Property();
    const Data::CMatAnal* material = MaterialOf(m_materials.Prop1D(section));
    const double e = material != nullptr ? ElasticModulus(*material) : 0.0;
    const double alpha = material != nullptr ? material->Alpha() : 0.0;
    const SectionProperties p = m_model->SectionProp(section, 0, 0.0, true);
    const bool hasBending = (load.ZOffset() == 0.0 || IsUsable(p.iyy * alpha)) &&
                            (load.YOffset() == 0.0 || IsUsable(p.izz * alpha));
    if (!IsUsable(e) || !IsUsable(alpha) || !IsUsable(p.area * alpha) || !hasBending) {
        Skip(L"element " + std::to_wstring(element) +
             L" has no modulus, expansion coefficient, area or second moment");
        return;
    }
    const double strainForce =
        PrestressForce(load, e, p.area, m_model->ElemLen(element)) / (e * alpha);
    const double z = load.ZOffset() != 0.0 ? -strainForce * load.ZOffset() / p.iyy : 0.0;
    const double y = load.YOffset() != 0.0 ? strainForce * load.YOffset() / p.izz : 0.0;
    WriteTemprb(load.LoadCase(), element, -strainForce / p.area, z, y);
}

bool CNasFile::WriteBeamTemperatures() {
    StartSection("Beam temperature loads");
    for (const int number : m_model->BeamThermalLoadTable().Numbers()) {
        const Data::CBeamThermalLoad& load = m_model->BeamThermalLoad(number);
        SetSubject(L"Beam thermal load", number);
        if (!IsLoadWritten(load, {1})) {
            continue;
        }
        for (const int element : LoadedBeams(load, true)) {
            WriteBeamTemperature(load, element);
        }
    }
    return true;
}

/// A gradient g between two places is the temperature T1 - g pos1 at the centroid, beside the
/// uniform part; along the host's y it has the other sign in the target's axes.
void CNasFile::WriteBeamTemperature(const Data::CBeamThermalLoad& load, int element) {
    const SectionTemperature t = TemperatureOf(load);
    if (!std::isfinite(t.gradient)) {
        Skip(L"the two places of its temperatures are the same");
        return;
    }
    const bool alongZ = load.TypeOf() == BeamThermalType::GradientZ;
    WriteTemprb(load.LoadCase(), element, t.mean, alongZ ? t.gradient : 0.0,
                alongZ || t.gradient == 0.0 ? 0.0 : -t.gradient);
}

/// Temperature and gradients along the target's y and z, alike at both ends.
void CNasFile::WriteTemprb(int loadCase, int element, double t, double gradient1,
                           double gradient2) {
    StartCard("TEMPRB");
    AddInt(loadCase);
    AddInt(element);
    for (const double value : {t, t, gradient1, gradient1, gradient2, gradient2}) {
        AddReal(value);
    }
    EndCard();
}

bool CNasFile::WriteInPlaneLoads() {
    StartSection("In-plane loads - transferred as thermal loads");
    for (const int number : m_model->InPlaneLoadTable().Numbers()) {
        const Data::CInPlaneLoad& load = m_model->InPlaneLoad(number);
        SetSubject(L"In-plane load", number);
        if (!IsLoadWritten(load, {2})) {
            continue;
        }
        if (load.TypeOf() == AxialLoadType::LackOfFit) {
            Skip(L"a plane has no lack of fit");
            continue;
        }
        for (const int element : LoadedElements(load, 2)) {
            WriteInPlaneLoad(load, element);
        }
    }
    return true;
}

/// A force N per length at the offset e of a strip of thickness t: T = -N / (E t alpha), and with
/// the second moment b^3 / 12 of its bending thickness b, T' = -12 N e / (E b^3 alpha). A strain is
/// N / (E t).
void CNasFile::WriteInPlaneLoad(const Data::CInPlaneLoad& load, int element) {
    const int number = m_model->Elem(element).Property();
    const Data::CProp2D& property = m_model->Prop2D(number);
    const Data::CMatAnal* material = MaterialOf(m_materials.Prop2D(number));
    const double e = material != nullptr ? ElasticModulus(*material) : 0.0;
    const double alpha = material != nullptr ? material->Alpha() : 0.0;
    const double t = property.InplaneThickness();
    const double bending = property.BendingThickness();
    const bool hasBending = load.Offset() == 0.0 || IsUsable(std::pow(bending, 3.0) * alpha);
    if (!IsUsable(e) || !IsUsable(alpha) || !IsUsable(t * alpha) || !hasBending) {
        Skip(L"element " + std::to_wstring(element) +
             L" has no modulus, expansion coefficient or thickness");
        return;
    }
    const double strain =
        load.TypeOf() == AxialLoadType::Strain ? load.Value() : load.Value() / (e * t);
    const double gradient =
        load.Offset() != 0.0 ? -12.0 * strain * t * load.Offset() / (std::pow(bending, 3.0) * alpha)
                             : 0.0;
    WriteTempp1(load.LoadCase(), element, -strain / alpha, gradient);
}

bool CNasFile::WriteFaceTemperatures() {
    StartSection("Face temperature");
    for (const int number : m_model->FaceThermalLoadTable().Numbers()) {
        const Data::CFaceThermalLoad& load = m_model->FaceThermalLoad(number);
        SetSubject(L"Face thermal load", number);
        if (!IsLoadWritten(load, {2})) {
            continue;
        }
        for (const int element : LoadedElements(load, 2)) {
            const Data::CElement& record = m_model->Elem(element);
            const SectionTemperature t = TemperatureOf(
                load, CornerCount(record.Type()), m_model->Prop2D(record.Property()).Thickness());
            WriteTempp1(load.LoadCase(), element, t.mean, t.gradient);
        }
    }
    return true;
}

void CNasFile::WriteTempp1(int loadCase, int element, double mean, double gradient) {
    StartCard("TEMPP1");
    AddInt(loadCase);
    AddInt(element);
    AddReal(mean);
    AddReal(gradient);
    EndCard();
}

}  // namespace Tevra
