#include "model/References.h"

#include <type_traits>

#include "model/ReferenceFinder.h"
#include "model/SecGeom.h"

namespace Tevra::Util {

namespace {

using namespace Data;

void LookAtNodes(Finder& f) {
    ForEach(f, f.Model().NodeTable(), L"node", [&f](const CNode& node) {
        f.Axis(node.Axis());
        f.Property(PropertyType::Spring, node.SpringProperty());
        f.Property(PropertyType::Damper, node.DamperProperty());
        f.Property(PropertyType::Mass, node.MassProperty());
    });
}

void LookAtElements(Finder& f) {
    ForEach(f, f.Model().ElemTable(), L"element", [&f](const CElement& element) {
        const ElementTypeInfo& info = InfoOf(element.Type());
        const bool isReserved = info.maxNodes == 0;
        if (!isReserved &&
            (element.NumTopo() < info.minNodes || element.NumTopo() > info.maxNodes)) {
            f.Say(std::to_wstring(element.NumTopo()) + L" nodes do not make a " +
                  std::wstring(info.text));
        }
        for (int k = 1; k <= element.NumTopo(); ++k) {
            if (!f.Model().NodeExist(element.Topo(k))) {
                f.Say(L"node " + std::to_wstring(element.Topo(k)) + L" does not exist");
            }
        }
        f.Property(info.property, element.Property());
        f.Node(element.OrientationNode());
        f.Need(f.Model().MemberTable(), L"member", element.ParentMember());
    });
}

void LookAtMembers(Finder& f) {
    ForEach(f, f.Model().MemberTable(), L"member", [&f](const CMember& member) {
        f.Property(member.PropertyKind(), member.Property());
        f.Node(member.OrientationNode());
        f.NodesOf(member.Topology());
    });
    ForEach(f, f.Model().AssemblyTable(), L"assembly", [&f](const CAssembly& assembly) {
        for (int k = 1; k <= 3; ++k) {
            f.Node(assembly.Topo(k));
        }
        f.List(assembly.Internal());
        f.List(assembly.Storeys());
    });
    ForEach(f, f.Model().GridPlaneTable(), L"grid plane",
            [&f](const CGridPlane& plane) { f.Axis(plane.Axis()); });
}

void LookAtProperties(Finder& f) {
    const CVynData& model = f.Model();
    ForEach(f, model.SectionTable(), L"section", [&f](const CSection& section) {
        for (const CSecComp& component : section.Components()) {
            f.Material(component.Material());
            const CSecGeom& geometry = component.Geometry();
            if (!geometry.Problem().empty()) {
                f.Say(L"\"" + component.Description() + L"\": " + std::wstring(geometry.Problem()));
            }
        }
    });
    ForEach(f, model.Prop2DTable(), L"2D property", [&f](const CProp2D& property) {
        f.Axis(property.Axis());
        f.Material(property.Material());
        for (const PropLayer& layer : property.Layers()) {
            f.Material(layer.material);
        }
    });
    ForEach(f, model.Prop3DTable(), L"3D property", [&f](const CProp3D& property) {
        f.Axis(property.Axis());
        f.Material(property.Material());
    });
    ForEach(f, model.SpringPropTable(), L"spring property", [&](const CSpringProp& property) {
        f.Axis(property.Axis());
        for (const int curve : property.Tables()) {
            f.Need(model.MatCurveTable(), L"material curve", curve);
        }
    });
    ForEach(f, model.DamperPropTable(), L"damper property",
            [&f](const CDamperProp& property) { f.Axis(property.Axis()); });
    ForEach(f, model.MassPropTable(), L"mass property",
            [&f](const CMassProp& property) { f.Axis(property.Axis()); });
    ForEach(f, model.MatAnalTable(), L"analysis material", [&](const CMatAnal& material) {
        for (const int curve : material.Curves()) {
            f.Need(model.MatCurveTable(), L"material curve", curve);
        }
    });
}

void LookAtDynamics(Finder& f, const CDynaTask& dyna) {
    const auto& curves = f.Model().LoadCurveTable();
    // With one curve for all, the numbers by direction only tell which are shaken.
    if (dyna.Excitation() == ExcitationOption::OneCurve) {
        f.Need(curves, L"load curve", dyna.LoadCurve());
    } else if (dyna.Excitation() == ExcitationOption::CurvePerDirection) {
        for (const int curve : dyna.ExcitationNumbers()) {
            f.Need(curves, L"load curve", curve);
        }
    }
    f.LoadCase(dyna.Mass().loadCase);
    if (!dyna.LoadCurveDescription().empty()) {
        f.List(CEntList(dyna.LoadCurveDescription(), SelType::LoadCase));
    }
    f.List(dyna.NodeSelection());
    f.List(dyna.ElementSelection());
    f.List(dyna.AssemblyList());
    f.List(dyna.BaseList());
}

void LookAtStages(Finder& f) {
    ForEach(f, f.Model().StageTable(), L"stage", [&f](const CStage& stage) {
        f.List(stage.Elements());
        for (const StageReplacement& replacement : stage.Replacements()) {
            f.Property(replacement.kind, replacement.from);
            f.Property(replacement.kind, replacement.property);
            f.Material(replacement.material);
        }
        for (const StageRestraint& restraint : stage.Restraints()) {
            f.List(restraint.nodes);
        }
    });
}

void LookAtSelections(Finder& f) {
    ForEach(f, f.Model().ListTable(), L"list",
            [&f](const CList& list) { f.List(list.Definition()); });
    ForEach(f, f.Model().ViewTable(), L"view", [&f](const COpView& view) {
        f.List(view.Nodes());
        f.List(view.Elements());
        f.List(view.Members());
        f.List(view.Cases());
    });
}

void LookAtCases(Finder& f) {
    const CVynData& model = f.Model();
    f.About(L"mass case", 1);
    f.Description(model.MassCase());
    ForEach(f, model.AnalysisTaskTable(), L"analysis task", [&](const CAnalysisTask& task) {
        f.Need(model.StageTable(), L"stage", task.Stage() < 0 ? 0 : task.Stage());
        if (const CDynaTask* dyna = task.Dyna()) {
            LookAtDynamics(f, *dyna);
        }
    });
    ForEach(f, model.AnalysisCaseTable(), L"analysis case", [&](const CAnalysisCase& record) {
        f.Need(model.AnalysisTaskTable(), L"analysis task", record.Task());
        f.Description(record.Desc());
    });
    ForEach(f, model.CombinationCaseTable(), L"combination case",
            [&](const CCombinationCase& record) {
                if (!record.Desc().IsValid(model)) {
                    f.Say(L"\"" + record.Desc().Description() + L"\" can't be resolved");
                }
            });
}

void LookAtConstraints(Finder& f) {
    const CVynData& model = f.Model();
    ForEach(f, model.RigidTable(), L"rigid constraint", [&f](const CRigid& rigid) {
        f.Node(rigid.PrimaryNode());
        f.List(rigid.Nodes());
    });
    ForEach(f, model.TiedInterfaceTable(), L"tied interface", [&f](const CTiedInterface& tied) {
        f.List(tied.Slave());
        f.List(tied.Master());
    });
    ForEach(f, model.JointTable(), L"joint", [&f](const CJoint& joint) {
        f.Node(joint.Node(1));
        f.Node(joint.Node(2));
    });
    ForEach(f, model.ConstraintEqnTable(), L"constraint equation",
            [&f](const CConstraintEqn& equation) {
                f.Node(equation.ConstrainedNode());
                for (const ConstraintTerm& term : equation.Terms()) {
                    f.Node(term.node);
                }
            });
}

template <class Load>
void LookAtLoads(Finder& f, const NumberedTable<Load>& loads, const wchar_t* kind) {
    ForEach(f, loads, kind, [&f](const Load& load) {
        f.List(load.LoadedEntities());
        if constexpr (std::is_base_of_v<CDirectedLoad, Load>) {
            f.Axis(load.Axis());
        }
    });
}

void LookAtLoads(Finder& f) {
    const CVynData& model = f.Model();
    LookAtLoads(f, model.NodeLoadTable(), L"node load");
    LookAtLoads(f, model.SettlementTable(), L"settlement");
    LookAtLoads(f, model.AppliedDisplacementTable(), L"applied displacement");
    LookAtLoads(f, model.BeamLoadTable(), L"beam load");
    LookAtLoads(f, model.BeamDistTable(), L"beam distortion");
    LookAtLoads(f, model.FaceLoadTable(), L"face load");
    LookAtLoads(f, model.EdgeLoadTable(), L"edge load");
    LookAtLoads(f, model.AxialLoadTable(), L"axial load");
    LookAtLoads(f, model.BeamThermalLoadTable(), L"beam thermal load");
    LookAtLoads(f, model.InPlaneLoadTable(), L"in-plane load");
    LookAtLoads(f, model.FaceThermalLoadTable(), L"face thermal load");
    LookAtLoads(f, model.GravityLoadTable(), L"gravity load");
    ForEach(f, model.GravityLoadTable(), L"gravity load",
            [&f](const CGravityLoad& load) { f.List(load.NodeList()); });
}

void LookAtSoil(Finder& f) {
    const CVynData& model = f.Model();
    ForEach(f, model.SoilProfileTable(), L"soil profile", [&](const CSoilProfile& profile) {
        for (const SoilLayer& layer : profile.Layers()) {
            f.Need(model.SoilCurveTable(), L"soil curve", layer.curve);
        }
    });
    ForEach(f, model.SoilZoneTable(), L"soil zone", [&](const CSoilZone& zone) {
        f.Need(model.SoilProfileTable(), L"soil profile", zone.Profile());
    });
    ForEach(f, model.PileSoilPropertyTable(), L"pile-soil property",
            [&](const CPileSoilProperty& property) {
                f.Need(model.PileSoilCurveTable(), L"pile-soil curve", property.Get().baseCurve);
                f.Need(model.PileSoilCurveTable(), L"pile-soil curve", property.Get().shaftCurve);
            });
    ForEach(f, model.SoilRectLoadTable(), L"soil load", [&](const CSoilRectLoad& load) {
        f.Need(model.AnalysisCaseTable(), L"analysis case", load.Get().loadCase);
    });
}

void LookAtResults(Finder& f) {
    const CVynData& model = f.Model();
    for (const auto& [number, results] : model.Results().Cases()) {
        f.About(L"results of analysis case", number);
        f.Need(model.AnalysisCaseTable(), L"analysis case", number);
        for (int kind = 0; kind < kNumResultKind; ++kind) {
            const ResultTable* table = results.Find(static_cast<ResultKind>(kind));
            if (table == nullptr) {
                continue;
            }
            const bool atNodes =
                kResultKinds[static_cast<std::size_t>(kind)].entity == SelType::Node;
            for (const int entity : table->Entities()) {
                if (atNodes) {
                    f.Node(entity);
                } else {
                    f.Need(model.ElemTable(), L"element", entity);
                }
            }
        }
    }
}

}  // namespace

ReferenceReport FindDanglingReferences(const CVynData& model, ReferenceScope scope,
                                       std::size_t most) {
    Finder finder(model, scope, most);
    LookAtNodes(finder);
    LookAtElements(finder);
    LookAtMembers(finder);
    LookAtProperties(finder);
    LookAtStages(finder);
    LookAtSelections(finder);
    LookAtCases(finder);
    LookAtConstraints(finder);
    LookAtLoads(finder);
    LookAtSoil(finder);
    LookAtResults(finder);
    return finder.Take();
}

}  // namespace Tevra::Util
