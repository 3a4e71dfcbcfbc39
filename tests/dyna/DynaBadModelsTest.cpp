#include <cmath>
#include <limits>

#include "dyna/DynaFixture.h"

namespace Tevra {
namespace {

using TestSupport::KeywordDeck;
using TestSupport::KeywordRow;

class DynaBadModels : public DynaFixture {};

/// Records that lack what they refer to, or have it in a bad state, and what comes of them.
TEST_F(DynaBadModels, BadModelsAreWrittenOrRefused) {
    constexpr int kHighest = std::numeric_limits<int>::max();
    const double nan = std::nan("");
    const struct {
        const char* name;
        void (*spoil)(CVynData& model, double nan);
        bool isWritten;
        const wchar_t* note;
    } cases[] = {
        {"no first node", [](CVynData& m, double) { m.DeleteNode(1); }, false,
         L"Element 1: its orientation node can't be placed"},
        {"no second node", [](CVynData& m, double) { m.DeleteNode(2); }, true,
         L"Element 1 is written with nodes that do not exist"},
        {"no section", [](CVynData& m, double) { m.DeleteSection(1); }, true, L""},
        {"no material", [](CVynData& m, double) { m.DeleteMatAnal(1); }, true, L""},
        {"no nodes at all",
         [](CVynData& m, double) { m.SetElem(1, Data::CElement(ElementType::Beam, {}, 1)); }, true,
         L"Element 1 is not written: it has too few nodes"},
        {"node 0",
         [](CVynData& m, double) {
             m.SetElem(1, Data::CElement(ElementType::Beam, {0, -3}, 1));
         },
         true, L"Element 1 is not written"},
        {"too few nodes of a solid",
         [](CVynData& m, double) {
             m.SetElem(1, Data::CElement(ElementType::Brick8, {1, 2, 3}, 1));
         },
         true, L"Element 1 is not written"},
        {"no length",
         [](CVynData& m, double) {
             m.SetNode(2, m.Node(1));
             Data::CBeamLoad load;
             load.SetLoadedEntities(CEntList(L"1", SelType::Element));
             load.SetPoint(1, {.value = 1.0});
             m.SetBeamLoad(7, load);
         },
         true, L"Beam load 7 is not written on elements that are no beams or have no length: 1"},
        {"a position that is no number",
         [](CVynData& m, double bad) {
             m.SetNode(3, Data::CNode({bad, 0, 0}));
         },
         true,
         L"values that are not numbers, which the solver does not read; the first is *NODE 3"},
        {"a wide number",
         [](CVynData& m, double) {
             m.SetNode(123'456'789, Data::CNode({1, 0, 0}));
         },
         true,
         L"wider than their fields, which the solver does not read; the first is *NODE 123456789"},
        {"no number left for a node",
         [](CVynData& m, double) {
             m.SetNode(kHighest, Data::CNode({1, 0, 0}));
         },
         false, L"no number is left for its orientation node"},
        {"highest numbers of all",
         [](CVynData& m, double) {
             m.SetAxis(kHighest, Data::CAxis());
             m.SetMatAnal(kHighest, Data::CMatAnal());
             m.SetSection(kHighest, Data::CSection());
             m.SetList(kHighest, Data::CList(L"", CEntList(L"all", SelType::Node)));
             Data::CNode node = m.Node(1);
             node.SetMassProperty(4);
             m.SetMassProp(4, Data::CMassProp());
             m.SetNode(1, node);
         },
         true, L""},
        {"attached to nothing",
         [](CVynData& m, double) {
             Data::CNode node = m.Node(1);
             node.SetMassProperty(4);
             node.SetSpringProperty(-5);
             node.SetDamperProperty(6);
             node.SetAxis(99);
             m.SetNode(1, node);
         },
         true, L"Mass at node 1 is not written: its property does not exist"},
        {"loads on nothing",
         [](CVynData& m, double) {
             m.SetNodeLoad(1, Data::CNodeLoad());
             m.SetBeamLoad(1, Data::CBeamLoad());
             m.SetFaceLoad(1, Data::CFaceLoad());
             m.SetTiedInterface(1, Data::CTiedInterface());
             m.SetRigid(1, Data::CRigid());
             m.SetJoint(1, Data::CJoint());
             m.SetConstraintEqn(1, Data::CConstraintEqn());
             m.SetAssembly(1, Data::CAssembly());
             m.SetProp2D(1, Data::CProp2D());
             m.SetSpringProp(1, Data::CSpringProp());
             m.SetDamperProp(1, Data::CDamperProp());
             m.SetCableProp(1, Data::CCableProp());
         },
         true, L"Rigid constraint 1 is not written"},
        {"lists of other kinds",
         [](CVynData& m, double) {
             CDynaTask dyna;
             const CEntList others(L"all", SelType::Case);
             dyna.SetNodeSelection(others);
             dyna.SetElementSelection(others);
             dyna.SetAssemblyList(others);
             dyna.SetBaseList(others);
             dyna.SetExcitation(ExcitationOption::CurvePerDirection);
             dyna.SetMass({true, 7, static_cast<Direction>(200), 1.0});
             SetTask(m, dyna);
         },
         true, L""},
        {"times that are no numbers",
         [](CVynData& m, double bad) {
             CDynaTask dyna;
             dyna.SetEndTime(bad);
             dyna.SetPlotInterval(-std::numeric_limits<double>::infinity());
             SetTask(m, dyna);
         },
         true, L"values that are not numbers"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        CVynData model = BeamModel();
        c.spoil(model, nan);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(written, c.isWritten);
        EXPECT_EQ(writer.IndexFile(), c.isWritten);
        EXPECT_EQ(deck.Count("END"), c.isWritten ? 1 : 0);
        EXPECT_TRUE(HasNote(c.note)) << "no such note";
    }
    EXPECT_NE(text.find("       nan"), std::string::npos);
}

/// Work grows with the model: many parts, bodies and generated nodes are found without a search.
TEST_F(DynaBadModels, ManyRecordsTakeNoSearch) {
    constexpr int kCount = 5'000;
    CVynData model;
    for (int i = 1; i <= kCount; ++i) {
        model.SetNode(i, Data::CNode({1.0 * i, 0, 0}));
        model.SetSection(i, Data::CSection());
        if (i > 1) {
            model.SetElem(i, Data::CElement(ElementType::Beam, {i - 1, i}, i));
            // Each body shares a node with the one after it, told from the far end.
            Data::CRigid rigid;
            rigid.SetPrimaryNode(kCount - i + 1);
            rigid.SetNodes(CEntList(std::to_wstring(kCount - i + 2), SelType::Node));
            model.SetRigid(i, rigid);
        }
    }
    SetTask(model, CDynaTask());
    const KeywordDeck deck = Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(deck.Rows("CONSTRAINED_RIGID_BODIES").size(), static_cast<std::size_t>(kCount - 2));
    for (const KeywordRow& row : deck.Rows("ELEMENT_BEAM")) {
        ASSERT_EQ(row.Int("PID"), row.Int("EID"));
    }
}

}  // namespace
}  // namespace Tevra
