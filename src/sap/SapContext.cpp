#include "sap/SapContext.h"

namespace Tevra {

SapContext::SapContext(const CVynData& from, TextOut& target)
    : model(from),
      out(target),
      line(target),
      written(from.HighestElem()),
      gravity(model.GravityLoadTable()),
      nodeLoads(model.NodeLoadTable()),
      settlements(model.SettlementTable()),
      beamLoads(model.BeamLoadTable()),
      axialLoads(model.AxialLoadTable()),
      beamTemperatures(model.BeamThermalLoadTable()),
      faceLoads(model.FaceLoadTable()),
      faceTemperatures(model.FaceThermalLoadTable()) {
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& record = model.Elem(number);
        if (!record.IsDummy() && BlockOf(model, record) != SapBlock::None &&
            IsSound(model, number)) {
            written.Set(number);
        }
    }
}

namespace {

SapBlock BlockOf2D(Prop2DType type) {
    switch (type) {
        case Prop2DType::PlaneStress:
        case Prop2DType::PlaneStrain:
            return SapBlock::Plane;
        case Prop2DType::Membrane:
        case Prop2DType::Plate:
        case Prop2DType::Shell:
        case Prop2DType::CurvedShell:
            return SapBlock::Shell;
        default:
            return SapBlock::None;
    }
}

bool HasProperty(const CVynData& model, int element) {
    const Data::CElement& record = model.Elem(element);
    switch (InfoOf(record.Type()).property) {
        case PropertyType::Section:
            return model.SectionExist(SapProperty(model, element));
        case PropertyType::Spring:
            return model.SpringPropExist(record.Property());
        case PropertyType::Prop2D:
            return model.Prop2DExist(record.Property());
        default:
            return true;  // links do without
    }
}

template <class Keep>
std::vector<int> LoadedElements(const SapContext& c, const Data::CLoadBase& load, int dimension,
                                Keep&& keep) {
    std::vector<int> elements = load.GetLoadedElements(c.model, dimension);
    std::erase_if(elements, [&](int element) { return !keep(c.WrittenIn(element)); });
    return elements;
}

}  // namespace

SapBlock BlockOf(const CVynData& model, const Data::CElement& element) {
    if (element.IsSection()) {
        return SapBlock::Frame;
    }
    if (element.IsSpring()) {
        return SapBlock::Spring;
    }
    if (element.IsLink()) {
        return SapBlock::Link;
    }
    return element.Is2D() ? BlockOf2D(model.Prop2D(element.Property()).Type()) : SapBlock::None;
}

bool IsSound(const CVynData& model, int element) {
    const Data::CElement& record = model.Elem(element);
    return HasPlacedNodes(model, record) && HasProperty(model, element) &&
           (BlockOf(model, record) != SapBlock::Frame || HasLength(model, record));
}

int SapProperty(const CVynData& model, int element) {
    return model.ElemStageProperty(element, kSapStage);
}

void AddDofs(RecordText& line, Vbool6 directions, const std::array<Direction, 6>& order) {
    for (std::size_t k = 0; k < order.size(); ++k) {
        if (directions.IncludesDirection(order[k])) {
            line.Append(kSapDofs[k]).Append(',');
        }
    }
    line.Cut(',');
}

std::vector<int> SapLoadedFrames(const SapContext& c, const Data::CLoadBase& load) {
    return LoadedElements(c, load, 1, [](SapBlock block) { return block == SapBlock::Frame; });
}

std::vector<int> SapLoadedFaces(const SapContext& c, const Data::CLoadBase& load) {
    return LoadedElements(c, load, 2, [](SapBlock block) {
        return block == SapBlock::Shell || block == SapBlock::Plane;
    });
}

/// An analysis material has its own number, a design grade that of the material made for it.
void AddMaterial(RecordText& line, const Data::MaterialChoice& choice,
                 const std::vector<ExportedProperty>& exported) {
    const int number =
        choice.analysis != 0 || exported.empty() ? choice.analysis : exported.front().mid;
    line.Append("MAT=").Int(number, kNameDigits);
}

}  // namespace Tevra
