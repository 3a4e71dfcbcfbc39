#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "draw/ModelDrawing.h"
#include "draw/PaperFrame.h"
#include "draw/SvgOut.h"
#include "draw/ValueText.h"
#include "support/CommaLocale.h"
#include "support/FullModel.h"
#include "support/PlainModels.h"
#include "support/WriterFixture.h"

namespace Tevra {
namespace {

class Drawing : public TestSupport::WriterFixture<CModelDrawing> {
protected:
    int Count(const std::string& part) const {
        int count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos;
             at = text.find(part, at + part.size())) {
            ++count;
        }
        return count;
    }
};

TEST_F(Drawing, OfABeamIsWholeAndPlaced) {
    CVynData model = TestSupport::BeamModel();
    writer.SetView(DrawingView::XZ);
    WriteText(model);
    EXPECT_TRUE(written);
    // Margins of 28 in a place from 20 to 770.
    EXPECT_TRUE(Has("<g class=\"i24\">\n<path d=\"M48 169L742 169\"/>\n</g>")) << text;
    EXPECT_TRUE(Has("<circle cx=\"48\" cy=\"169\" r=\"1.6\"/>"));
    EXPECT_TRUE(Has(">R</text>"));
    // 1 m is 173.5 units.
    EXPECT_TRUE(Has(">1 m</text>"));
    EXPECT_TRUE(Has("M130 320L303.5 320"));
    EXPECT_TRUE(text.ends_with("</svg>\n"));
    EXPECT_EQ(writer.ErrorLog(), L"");
}

TEST_F(Drawing, NamesTheLoadsOfItsCase) {
    CVynData model = TestSupport::BeamModel();
    auto load = TestSupport::LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
    load.SetValue(-12500.0);
    load.SetLoadCase(3);
    model.SetNodeLoad(1, load);
    model.SetLoadCaseTitle(3, Data::NamedEntity(L"Snow & <ice>"));
    writer.SetView(DrawingView::XZ);
    writer.SetSourceName(L"a.json");
    WriteText(model);
    EXPECT_TRUE(Has("a.json  ·  elevation X-Z  ·  load case 3: Snow &amp; &lt;ice&gt;")) << text;
    EXPECT_TRUE(Has("largest 12.5 kN")) << text;
    // The head of the arrow is on the node, its tail above: 56 units, and a head of 6.5.
    EXPECT_TRUE(Has("M708 147L708 200")) << text;
    EXPECT_TRUE(Has("M708 203L705.7 196.5L710.3 196.5Z")) << text;
    const std::string first = text;
    writer.SetLoadCase(0);
    WriteText(model);
    EXPECT_FALSE(Has("largest"));
    EXPECT_FALSE(Has("load case"));
    writer.SetLoadCase(3);
    EXPECT_EQ(WriteText(model), first);
}

TEST_F(Drawing, ThinsOutWhatIsTooMuch) {
    CVynData model;
    int number = 0;
    for (int i = 0; i < 40; ++i) {
        // At one place on the paper, one above the other.
        const Vec3<double> corners[] = {{0, 0, i * 1.0}, {1, 0, i * 1.0}, {0, 1, i * 1.0}};
        for (const Vec3<double>& corner : corners) {
            model.SetNode(++number, Data::CNode(corner));
        }
        model.SetElem(i + 1, {ElementType::Tri3, {number - 2, number - 1, number}, 1});
    }
    writer.SetView(DrawingView::Plan);
    WriteText(model);
    EXPECT_EQ(Count("Z\"/>"), 40 + 3);  // the swatch of the legend, two heads of the axes
    EXPECT_EQ(writer.ErrorLog(), L"");
    writer.SetMostShapes(100);
    WriteText(model);
    EXPECT_EQ(Count("Z\"/>"), 1 + 3);
    EXPECT_TRUE(HasNote(L"4 of 160 shapes are drawn"));
}

TEST_F(Drawing, HidesSupportsBehindSolidsAlone) {
    CVynData model = TestSupport::ModelOf(
        {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}});
    model.SetElem(1, {ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, 1});
    Data::CNode held = model.Node(1);
    held.SetRestraint({true, true, true, false, false, false});
    model.SetNode(1, held);
    writer.SetView(DrawingView::Plan);
    WriteText(model);
    EXPECT_LT(text.find("<g class=\"support\">"), text.rfind("<g class=\"i9\">\n<path d=\"M48"));
    model.SetElem(1, {ElementType::Quad4, {5, 6, 7, 8}, 1});
    WriteText(model);
    EXPECT_LT(text.find("Z\"/>\n</g>\n"), text.find("<g class=\"support\">"));
}

TEST_F(Drawing, OfHostileModelsHasNumbersOnly) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Vec3<double> places[][2] = {
        {{0, 0, 0}, {0, 0, 0}},       {{1e99, 0, 0}, {-1e99, 1, 0}},
        {{1e-320, 0, 0}, {0, 0, 0}},  {{1e300, 0, 0}, {0, 0, 0}},
        {{nan, nan, nan}, {1, 1, 1}}, {{5e5, 4e6, 0}, {5e5, 4e6, 1e-9}},
    };
    for (const auto& pair : places) {
        for (const DrawingView view : {DrawingView::Isometric, DrawingView::YZ}) {
            CVynData model = TestSupport::BeamModel(pair[0], pair[1]);
            model.SetGravityLoad(1, Data::CGravityLoad());
            auto load = TestSupport::LoadOn<Data::CNodeLoad>(L"all", SelType::Node);
            load.SetValue(1e-310);
            model.SetNodeLoad(1, load);
            writer.SetView(view);
            WriteText(model);
            EXPECT_TRUE(written);
            for (const char* odd : {"nan", "inf", "922337203685477580"}) {
                EXPECT_FALSE(Has(odd)) << odd << " at " << pair[0].x << "\n" << text;
            }
        }
    }
}

TEST_F(Drawing, LeavesTheModelAsItWas) {
    CVynData model = TestSupport::MakeFullModel();
    const CVynData before = model;
    for (const DrawingView view : {DrawingView::Isometric, DrawingView::Plan}) {
        writer.SetView(view);
        WriteText(model);
        EXPECT_TRUE(written);
    }
    EXPECT_TRUE(model == before);
}

TEST_F(Drawing, OfNothingIsNotWritten) {
    CVynData model;
    EXPECT_FALSE(CModelDrawing::CanDraw(model));
    WriteText(model);
    EXPECT_FALSE(written);
    model.SetNode(1, Data::CNode({0, std::numeric_limits<double>::infinity(), 0}));
    EXPECT_FALSE(CModelDrawing::CanDraw(model));
    model.SetNode(2, Data::CNode({0, 0, 0}));
    EXPECT_TRUE(CModelDrawing::CanDraw(model));
    WriteText(model);
    EXPECT_TRUE(written);
}

TEST_F(Drawing, IsTheSameInEveryLocale) {
    CVynData model = TestSupport::BeamModel({0, 0, 0}, {1.2345, 2.5, 0.7});
    const std::string plain = WriteText(model);
    const TestSupport::ScopedCommaLocale comma;
    writer.SetLocaleMode(0);
    EXPECT_EQ(WriteText(model), plain);
}

TEST(DrawingText, IsEscapedAndCut) {
    struct Case {
        std::wstring text;
        std::size_t most;
        const char* xml;
    };
    const Case cases[] = {
        {L"a<b>&\"c\"'", 50, "a&lt;b&gt;&amp;&quot;c&quot;'"},
        {L"Straße 橋", 50, "Straße 橋"},
        {{L'a', L'\0', L'\n', L'\x1b', wchar_t(0xFFFF), wchar_t(0x85), L'b'}, 50, "a     b"},
        {{L'a', wchar_t(0xD800)}, 50, "a\xEF\xBF\xBD"},
        {L"abcdefgh", 8, "abcdefgh"},
        {L"abcdefghi", 8, "abcdefg…"},
        {L"&&&&&", 3, "&amp;&amp;…"},
    };
    for (const Case& c : cases) {
        std::string xml;
        AppendXmlText(xml, c.text, c.most);
        EXPECT_EQ(xml, c.xml);
    }
}

TEST(DrawingText, ValuesHaveTheirUnits) {
    CUnit si;
    CUnit mm;
    mm.SetUnitString(static_cast<int>(UnitKind::Length), L"mm");
    mm.SetUnitString(static_cast<int>(UnitKind::Force), L"kN");
    CUnit us;
    us.SetUnitString(static_cast<int>(UnitKind::Length), L"ft");
    us.SetUnitString(static_cast<int>(UnitKind::Force), L"kip");
    struct Case {
        const CUnit& units;
        ArrowKind kind;
        double value;
        const wchar_t* text;
    };
    const Case cases[] = {
        {si, ArrowKind::Force, 999.7, L"999.7 N"},
        {si, ArrowKind::Force, 12345.0, L"12.3 kN"},
        {si, ArrowKind::Force, 2.5e6, L"2.5 MN"},
        {si, ArrowKind::Moment, 1500.0, L"1.5 kN m"},
        {si, ArrowKind::Pressure, 12800.0, L"12.8 kN/m²"},
        {mm, ArrowKind::LineForce, 6.0, L"6 N/m"},
        {mm, ArrowKind::Moment, 2000.0, L"2 kN m"},
        {us, ArrowKind::Force, 4448.2216152605, L"1 kip"},
        {us, ArrowKind::LineForce, 14593.9, L"1 kip/ft"},
        {us, ArrowKind::Moment, 1355.8179, L"1 kip ft"},
        {us, ArrowKind::Pressure, 47880.259, L"1 kip/ft²"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ValueText(c.kind, c.value, c.units), c.text);
    }
}

TEST(ScaleBar, HasARoundLength) {
    const std::pair<double, double> cases[] = {{180.0, 100.0}, {1.0, 1.0}, {9.99, 5.0},
                                               {4.9, 2.0},     {5.0, 5.0}, {0.0199, 0.01},
                                               {0.02, 0.02},   {2e7, 2e7}, {1e-9, 1e-9}};
    for (const auto& [most, round] : cases) {
        EXPECT_NEAR(RoundBelow(most) / round, 1.0, 1e-12) << most;
    }
}

}  // namespace
}  // namespace Tevra
