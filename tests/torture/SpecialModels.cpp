#include "torture/SpecialModels.h"

#include <limits>

#include "support/FullModel.h"

namespace Tevra::TestSupport {

namespace {

/// Changes every record of a model that has a setter.
template <class Record, class Change>
void ChangeAll(const NumberedTable<Record>& table, bool (CModelData::*set)(int, Record),
               CVynData& model, Change change) {
    for (const int number : table.Numbers()) {
        Record record = table.Get(number);
        change(record);
        (model.*set)(number, record);
    }
}

/// A record of each kind as it is made.
CVynData DefaultRecords(int number) {
    CVynData model;
#define VYN_SET(Kind, Record) model.Set##Kind(number, Record());
    VYN_RECORD_KINDS(VYN_SET)
#undef VYN_SET
    model.EditResults().Edit(number);
    return model;
}

CVynData Empty() {
    return {};
}

CVynData Defaults() {
    return DefaultRecords(1);
}

CVynData HighestNumbers() {
    return DefaultRecords(std::numeric_limits<int>::max());
}

/// The whole model with one more record of each kind at the highest number.
CVynData FullWithGaps() {
    CVynData model = MakeFullModel();
#define VYN_SET(Kind, Record) \
    model.Set##Kind(std::numeric_limits<int>::max(), model.Kind(model.Highest##Kind()));
    VYN_RECORD_KINDS(VYN_SET)
#undef VYN_SET
    return model;
}

template <class Record>
void DeleteAll(const NumberedTable<Record>& table, bool (CModelData::*remove)(int),
               CVynData& model) {
    while (table.Count() > 0) {
        (model.*remove)(table.Highest());
    }
}

/// Each eighth kind of record is missing; what refers to them finds nothing.
template <int kPart>
CVynData Without() {
    CVynData model = MakeFullModel();
    int kind = 0;
    const auto isPart = [&kind] { return ++kind % 8 == kPart; };
#define VYN_DELETE(Kind, Record) \
    isPart() ? DeleteAll(model.Kind##Table(), &CModelData::Delete##Kind, model) : void();
    VYN_RECORD_KINDS(VYN_DELETE)
#undef VYN_DELETE
    return model;
}

CVynData AllInOnePoint() {
    CVynData model = MakeFullModel();
    ChangeAll(model.NodeTable(), &CModelData::SetNode, model, [](Data::CNode& node) {
        node.SetPosition({1.0, 2.0, 3.0});
    });
    return model;
}

CVynData FarAway() {
    CVynData model = MakeFullModel();
    ChangeAll(model.NodeTable(), &CModelData::SetNode, model, [](Data::CNode& node) {
        node.SetPosition(node.Position() * std::numeric_limits<double>::max());
    });
    return model;
}

CVynData Nowhere() {
    CVynData model = MakeFullModel();
    ChangeAll(model.NodeTable(), &CModelData::SetNode, model, [](Data::CNode& node) {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        node.SetPosition({nan, nan, nan});
    });
    return model;
}

CVynData SameNodeTwice() {
    CVynData model = MakeFullModel();
    ChangeAll(model.ElemTable(), &CModelData::SetElem, model, [](Data::CElement& element) {
        element.SetTopo(std::vector<int>(static_cast<std::size_t>(element.NumTopo()), 1));
    });
    return model;
}

CVynData LongTopology() {
    CVynData model = MakeFullModel();
    ChangeAll(model.ElemTable(), &CModelData::SetElem, model,
              [](Data::CElement& element) { element.SetTopo(std::vector<int>(100, 2)); });
    return model;
}

/// A code that no enumeration has.
template <class E>
E Unknown() {
    return static_cast<E>(99);
}

/// Codes of a host of a later version.
CVynData UnknownCodes() {
    CVynData model = MakeFullModel();
    ChangeAll(model.ElemTable(), &CModelData::SetElem, model,
              [](Data::CElement& e) { e.SetType(Unknown<ElementType>()); });
    ChangeAll(model.MemberTable(), &CModelData::SetMember, model, [](Data::CMember& m) {
        m.SetType(Unknown<MemberType>());
        m.SetOrder(Unknown<AnalysisOrder>());
    });
    ChangeAll(model.AxisTable(), &CModelData::SetAxis, model,
              [](Data::CAxis& a) { a.SetType(Unknown<AxisType>()); });
    ChangeAll(model.AssemblyTable(), &CModelData::SetAssembly, model,
              [](Data::CAssembly& a) { a.SetFit(Unknown<CurveFit>()); });
    ChangeAll(model.MatAnalTable(), &CModelData::SetMatAnal, model,
              [](Data::CMatAnal& m) { m.SetModel(Unknown<MatModel>()); });
    ChangeAll(model.Prop2DTable(), &CModelData::SetProp2D, model, [](Data::CProp2D& p) {
        p.SetType(Unknown<Prop2DType>());
        p.SetMaterial({Unknown<MatType>(), 1, 0});
    });
    ChangeAll(model.SpringPropTable(), &CModelData::SetSpringProp, model,
              [](Data::CSpringProp& p) { p.SetType(Unknown<SpringType>()); });
    ChangeAll(model.LoadCurveTable(), &CModelData::SetLoadCurve, model,
              [](Data::CLoadCurve& c) { c.SetType(Unknown<LoadCurveType>()); });
    return model;
}

CVynData UnknownLoadCodes() {
    CVynData model = MakeFullModel();
    ChangeAll(model.BeamLoadTable(), &CModelData::SetBeamLoad, model,
              [](Data::CBeamLoad& l) { l.SetType(Unknown<BeamLoadType>()); });
    ChangeAll(model.AxialLoadTable(), &CModelData::SetAxialLoad, model,
              [](Data::CAxialLoad& l) { l.SetType(Unknown<AxialLoadType>()); });
    ChangeAll(model.BeamThermalLoadTable(), &CModelData::SetBeamThermalLoad, model,
              [](Data::CBeamThermalLoad& l) { l.SetType(Unknown<BeamThermalType>()); });
    ChangeAll(model.FaceLoadTable(), &CModelData::SetFaceLoad, model, [](Data::CFaceLoad& l) {
        l.SetType(Unknown<FaceLoadType>());
        l.SetFace(std::numeric_limits<int>::max());
    });
    ChangeAll(model.EdgeLoadTable(), &CModelData::SetEdgeLoad, model,
              [](Data::CEdgeLoad& l) { l.SetEdge(std::numeric_limits<int>::min()); });
    ChangeAll(model.InPlaneLoadTable(), &CModelData::SetInPlaneLoad, model,
              [](Data::CInPlaneLoad& l) { l.SetType(Unknown<AxialLoadType>()); });
    ChangeAll(model.FaceThermalLoadTable(), &CModelData::SetFaceThermalLoad, model,
              [](Data::CFaceThermalLoad& l) { l.SetType(Unknown<FaceThermalType>()); });
    return model;
}

/// A part of a section whose material has a value that is no number.
CVynData BadSecondMaterial() {
    CVynData model = MakeFullModel();
    Data::CMatDesign grade;
    grade.SetMatAnal({L"", std::numeric_limits<double>::quiet_NaN(), 0.2, 2400.0, 1e-5});
    model.SetMatConcrete(1, grade);
    return model;
}

/// Lists and combinations that name themselves, directly and through each other.
CVynData Circles() {
    CVynData model = MakeFullModel();
    model.SetList(1, Data::CList(L"", CEntList(L"list 2", SelType::Element)));
    model.SetList(2, Data::CList(L"", CEntList(L"list 1 not list 2", SelType::Element)));
    model.SetCombinationCase(1, CCombinationCase(L"", L"A1 + C2"));
    model.SetCombinationCase(2, CCombinationCase(L"", L"C1 or C2"));
    return model;
}

/// More permutations than any file could hold.
CVynData ManyPermutations() {
    CVynData model = MakeFullModel();
    std::wstring text = L"(A1 or A2)";
    for (int i = 0; i < 40; ++i) {
        text += L" + (A1 or A2)";
    }
    model.SetCombinationCase(1, CCombinationCase(L"", text));
    return model;
}

}  // namespace

const std::vector<SpecialModel>& SpecialModels() {
    static const std::vector<SpecialModel> kModels{{"Empty", &Empty},
                                                   {"Defaults", &Defaults},
                                                   {"HighestNumbers", &HighestNumbers},
                                                   {"Full", &MakeFullModel},
                                                   {"FullWithGaps", &FullWithGaps},
                                                   {"Without0", &Without<0>},
                                                   {"Without1", &Without<1>},
                                                   {"Without2", &Without<2>},
                                                   {"Without3", &Without<3>},
                                                   {"Without4", &Without<4>},
                                                   {"Without5", &Without<5>},
                                                   {"Without6", &Without<6>},
                                                   {"Without7", &Without<7>},
                                                   {"AllInOnePoint", &AllInOnePoint},
                                                   {"FarAway", &FarAway},
                                                   {"Nowhere", &Nowhere},
                                                   {"SameNodeTwice", &SameNodeTwice},
                                                   {"LongTopology", &LongTopology},
                                                   {"UnknownCodes", &UnknownCodes},
                                                   {"UnknownLoadCodes", &UnknownLoadCodes},
                                                   {"BadSecondMaterial", &BadSecondMaterial},
                                                   {"Circles", &Circles},
                                                   {"ManyPermutations", &ManyPermutations}};
    return kModels;
}

}  // namespace Tevra::TestSupport
