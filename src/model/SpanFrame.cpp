#include "model/SpanFrame.h"

#include "model/ElasticModuli.h"
#include "model/LoadValues.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// The material of the first component, as the stage has it.
const Data::CMatAnal* MaterialOf(const CVynData& model, int element, const Data::CSection& section,
                                 int stage) {
    Data::MaterialChoice choice = section.Component(1).Material();
    const int staged = model.ElemStageMatAnal(element, stage);
    choice.analysis = staged != 0 ? staged : choice.analysis;
    return model.FindMaterial(choice);
}

void AddSection(const CVynData& model, int stage, SpanFrame& frame) {
    const int property = model.ElemStageProperty(frame.element, stage);
    const Data::CSection& section = model.Section(property);
    const Data::CMatAnal* material = MaterialOf(model, frame.element, section, stage);
    if (material == nullptr) {
        return;
    }
    const SectionProperties whole = model.SectionProp(property, 0, 0.5, true);
    frame.eiyy = ElasticModulus(*material) * whole.iyy;
    frame.eizz = ElasticModulus(*material) * whole.izz;
    for (int k = 1; k <= section.NumComponent(); ++k) {
        const Data::CMatAnal* own =
            k == 1 ? material : model.FindMaterial(section.Component(k).Material());
        frame.massPerLength += own != nullptr ? own->Density() * section.Properties(k).area : 0.0;
    }
}

}  // namespace

SpanFrame SpanFrame::Of(const CVynData& model, int element, int stage) {
    const Data::CElement& record = model.Elem(element);
    SpanFrame frame;
    frame.element = element;
    frame.length = model.ElemLen(element);
    frame.axes = model.ElemDC(element);
    frame.middle = MiddleOf(model, record);
    frame.bends = record.IsSection();
    frame.isPinned = frame.bends && !record.IsBeam();
    if (frame.bends) {
        AddSection(model, stage, frame);
    } else if (record.IsCable()) {
        // A cable without an area is given by its mass per length.
        const Data::CCableProp& cable = model.CableProp(model.ElemStageProperty(element, stage));
        frame.massPerLength = cable.Density() * (cable.Area() > 0.0 ? cable.Area() : 1.0);
    }
    return frame;
}

}  // namespace Tevra
