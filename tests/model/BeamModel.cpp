#include "BeamModel.h"

namespace Tevra::TestBeam {

CVynData Model(const Vec3<double>& end) {
    CVynData model;
    model.SetNode(1, Data::CNode({0, 0, 0}));
    model.SetNode(2, Data::CNode(end));
    model.SetMatAnal(1, Data::CMatAnal(L"Steel", kE, 0.3, 7850.0, 1.2e-5));
    model.SetSection(1, Data::CSection(L"", L"STD%R%300%200", {MatType::Generic, 0, 1}));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    model.SetAnalysisTask(1, CAnalysisTask());
    model.SetAnalysisCase(1, CAnalysisCase(L"", 1, L"L1"));
    return model;
}

Data::CBeamLoad Load(BeamLoadType type, Direction direction, std::vector<Data::LoadPoint> points,
                     int axis, int loadCase) {
    Data::CBeamLoad load;
    load.SetType(type);
    load.SetDirection(direction);
    load.SetAxis(axis);
    load.SetLoadCase(loadCase);
    load.SetLoadedEntities(CEntList(L"1", SelType::Element));
    for (std::size_t k = 0; k < points.size(); ++k) {
        load.SetPoint(static_cast<int>(k) + 1, points[k]);
    }
    return load;
}

void Add(CVynData& model, const Data::CBeamLoad& load) {
    model.SetBeamLoad(model.HighestBeamLoad() + 1, load);
}

void SetEnds(CVynData& model, int analysisCase, const std::vector<double>& disp1,
             const std::vector<double>& disp2, const std::vector<double>& force1,
             const std::vector<double>& force2) {
    CaseResults& results = model.EditResults().Edit(analysisCase);
    results.Edit(ResultKind::NodeDisp).Set(1, disp1);
    results.Edit(ResultKind::NodeDisp).Set(2, disp2);
    std::vector<double> forces = force1;
    forces.insert(forces.end(), force2.begin(), force2.end());
    results.Edit(ResultKind::Elem1DForce).Set(1, forces);
}

}  // namespace Tevra::TestBeam
