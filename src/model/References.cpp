#include "model/References.h"

#include <cwchar>

namespace Tevra::Util {

namespace {

using namespace Data;

/// Gathers findings about one record after the other.
class Finder {
public:
    Finder(const CVynData& model, std::size_t most) : m_model(model), m_most(most) {}

    /// Names the record that the following questions are about.
    void About(const wchar_t* kind, int number) {
        m_kind = kind;
        m_number = number;
    }
    void Say(const std::wstring& what) {
        ++m_report.total;
        if (m_report.findings.size() < m_most) {
            m_report.findings.push_back(std::wstring(m_kind) + L" " + std::to_wstring(m_number) +
                                        L": " + what);
        }
    }
    /// Reports a number that is not 0 and has no record in the table.
    template <class Record>
    void Need(const NumberedTable<Record>& table, const wchar_t* kind, int number) {
        if (number != 0 && !table.Exist(number)) {
            Say(std::wstring(kind) + L" " + std::to_wstring(number) + L" does not exist");
        }
    }
    void Node(int number) { Need(m_model.NodeTable(), L"node", number); }
    void Axis(int number) {
        if (number != kLocalAxis) {
            Need(m_model.AxisTable(), L"axis", number);
        }
    }
    void Material(int number) { Need(m_model.MatAnalTable(), L"analysis material", number); }
    void Material(const MaterialChoice& choice) {
        Material(choice.analysis);
        if (const auto* grades = m_model.DesignTable(choice.type)) {
            Need(*grades, L"design grade", choice.grade);
        }
    }
    void Property(PropertyType kind, int number);

    const CVynData& Model() const { return m_model; }
    ReferenceReport Take() { return std::move(m_report); }

private:
    const CVynData& m_model;
    std::size_t m_most;
    const wchar_t* m_kind = L"";
    int m_number = 0;
    ReferenceReport m_report;
};

void Finder::Property(PropertyType kind, int number) {
    switch (kind) {
        case PropertyType::Section:
            return Need(m_model.SectionTable(), L"section", number);
        case PropertyType::Prop2D:
            return Need(m_model.Prop2DTable(), L"2D property", number);
        case PropertyType::Prop3D:
            return Need(m_model.Prop3DTable(), L"3D property", number);
        case PropertyType::Spring:
            return Need(m_model.SpringPropTable(), L"spring property", number);
        case PropertyType::Damper:
            return Need(m_model.DamperPropTable(), L"damper property", number);
        case PropertyType::Mass:
            return Need(m_model.MassPropTable(), L"mass property", number);
        case PropertyType::Cable:
            return Need(m_model.CablePropTable(), L"cable property", number);
        case PropertyType::Link:
            return Need(m_model.LinkPropTable(), L"link property", number);
        case PropertyType::None:
            return;
    }
}

/// Calls `look(finder, record)` for every record of a table.
template <class Record, class Look>
void ForEach(Finder& finder, const NumberedTable<Record>& table, const wchar_t* kind, Look look) {
    for (const int number : table.Numbers()) {
        finder.About(kind, number);
        look(*table.Find(number));
    }
}

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
        if (element.NumTopo() < info.minNodes || element.NumTopo() > info.maxNodes) {
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
        f.Property(member.Is1D()   ? PropertyType::Section
                   : member.Is2D() ? PropertyType::Prop2D
                   : member.Is3D() ? PropertyType::Prop3D
                                   : PropertyType::None,
                   member.Property());
        f.Node(member.OrientationNode());
    });
    ForEach(f, f.Model().AssemblyTable(), L"assembly", [&f](const CAssembly& assembly) {
        for (int k = 1; k <= 3; ++k) {
            f.Node(assembly.Topo(k));
        }
    });
    ForEach(f, f.Model().GridPlaneTable(), L"grid plane",
            [&f](const CGridPlane& plane) { f.Axis(plane.Axis()); });
}

void LookAtProperties(Finder& f) {
    const CVynData& model = f.Model();
    ForEach(f, model.SectionTable(), L"section", [&f](const CSection& section) {
        for (const CSecComp& component : section.Components()) {
            f.Material(component.Material());
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

void LookAtCases(Finder& f) {
    const CVynData& model = f.Model();
    ForEach(f, model.AnalysisTaskTable(), L"analysis task", [&](const CAnalysisTask& task) {
        f.Need(model.StageTable(), L"stage", task.Stage() < 0 ? 0 : task.Stage());
        if (const CDynaTask* dyna = task.Dyna()) {
            f.Need(model.LoadCurveTable(), L"load curve", dyna->LoadCurve());
            for (const int curve : dyna->ExcitationNumbers()) {
                f.Need(model.LoadCurveTable(), L"load curve", curve);
            }
        }
    });
    ForEach(f, model.AnalysisCaseTable(), L"analysis case", [&](const CAnalysisCase& record) {
        f.Need(model.AnalysisTaskTable(), L"analysis task", record.Task());
        for (const CaseDescPart& part : record.Desc().Parts()) {
            for (const CaseDescPart::Load& load : part.loads) {
                if (!model.LoadCaseExist(load.loadCase)) {
                    f.Say(L"load case " + std::to_wstring(load.loadCase) + L" does not exist");
                }
            }
        }
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
    ForEach(f, model.RigidTable(), L"rigid constraint",
            [&f](const CRigid& rigid) { f.Node(rigid.PrimaryNode()); });
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
void LookAtAxes(Finder& f, const NumberedTable<Load>& loads, const wchar_t* kind) {
    ForEach(f, loads, kind, [&f](const Load& load) { f.Axis(load.Axis()); });
}

void LookAtLoads(Finder& f) {
    const CVynData& model = f.Model();
    LookAtAxes(f, model.NodeLoadTable(), L"node load");
    LookAtAxes(f, model.SettlementTable(), L"settlement");
    LookAtAxes(f, model.AppliedDisplacementTable(), L"applied displacement");
    LookAtAxes(f, model.BeamLoadTable(), L"beam load");
    LookAtAxes(f, model.BeamDistTable(), L"beam distortion");
    LookAtAxes(f, model.FaceLoadTable(), L"face load");
    LookAtAxes(f, model.EdgeLoadTable(), L"edge load");
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

ReferenceReport FindDanglingReferences(const CVynData& model, std::size_t most) {
    Finder finder(model, most);
    LookAtNodes(finder);
    LookAtElements(finder);
    LookAtMembers(finder);
    LookAtProperties(finder);
    LookAtCases(finder);
    LookAtConstraints(finder);
    LookAtLoads(finder);
    LookAtSoil(finder);
    LookAtResults(finder);
    return finder.Take();
}

}  // namespace Tevra::Util
