#include <algorithm>
#include <cmath>

#include "model/Faces.h"
#include "model/LoadValues.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"
#include "sap/SapKeys.h"

// Temperatures of frames and shells.

namespace Tevra {

namespace {

/// Share of the temperatures of a load below which their mean is round-off.
constexpr double kRoundOff = 1e-12;

bool HasMean(const SectionTemperature& t, double first, double second) {
    return std::abs(t.mean) > kRoundOff * std::max(std::abs(first), std::abs(second));
}

/// T2 or T3 of a gradient along a local axis, with the signs of the target's axes.
void AddGradient(RecordText& line, BeamThermalType type, double gradient, bool isVertical) {
    const Direction d = type == BeamThermalType::GradientY ? Direction::Y : Direction::Z;
    const LocalKey key = LocalKeyOf(d, isVertical);
    line.Append("   T").Append(key.word.substr(1)).Append('=').Padded(key.sign * gradient);
}

}  // namespace

bool CSapFile::WriteBeamTemperatures(SapContext& c, int loadCase) {
    const auto loads = c.beamTemperatures.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "    TYPE=TEMPERATURE ELEM=FRAME\n");
    for (const auto& [of, number] : loads) {
        const Data::CBeamThermalLoad& load = m_model->BeamThermalLoad(number);
        const SectionTemperature t = TemperatureOf(load);
        for (const int element : LoadedFrames(c, load, L"Beam thermal load", number)) {
            c.line.Append("      ADD=").Int(element);
            if (load.TypeOf() == BeamThermalType::Uniform) {
                c.line.Append("   T=").Padded(t.mean);
            } else {
                AddGradient(c.line, load.TypeOf(), t.gradient, m_model->ElemIsVertical(element));
                if (HasMean(t, load.Value(1), load.Value(2))) {
                    c.line.Append("  T=").Padded(t.mean);
                }
            }
            End(c, L"Beam thermal load", number);
        }
    }
    return true;
}

/// A gradient whose middle is warmed too has a line for each.
bool CSapFile::WriteFaceTemperatures(SapContext& c, int loadCase) {
    const auto loads = c.faceTemperatures.Of(loadCase);
    c.out.Append(loads.empty() ? "" : "    TYPE=TEMPERATURE ELEM=SHELL\n");
    for (const auto& [of, number] : loads) {
        const Data::CFaceThermalLoad& load = m_model->FaceThermalLoad(number);
        if (load.TypeOf() == FaceThermalType::General) {
            AddNote(L" Generalized thermal loads on 2D element not exported.");
            continue;
        }
        const bool isUniform = load.TypeOf() == FaceThermalType::Uniform;
        for (const int element : LoadedFaces(c, load, L"Face thermal load", number)) {
            const SectionTemperature t =
                TemperatureOf(load, CornerCount(m_model->Elem(element).Type()),
                              m_model->ElementThickness(element));
            if (!isUniform) {
                c.line.Append("      ADD=").Int(element).Append(" T3=").Padded(t.gradient);
                End(c, L"Face thermal load", number);
            }
            if (isUniform || HasMean(t, load.Value(1), load.Value(2))) {
                c.line.Append("      ADD=").Int(element).Append(" T=").Padded(t.mean);
                End(c, L"Face thermal load", number);
            }
        }
    }
    return true;
}

}  // namespace Tevra
