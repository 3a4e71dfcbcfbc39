#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>

#include "model/ProfileCatalogue.h"
#include "model/SecGeom.h"
#include "platform/text/HostPath.h"
#include "support/TempFolder.h"

namespace Tevra::Data {
namespace {

std::string Narrow(std::wstring_view text) {
    return {text.begin(), text.end()};
}

// Published properties are rounded to three digits or more; the torsion constants of IPE and HE
// tables come from another series than the formula used here.
TEST(ProfileCatalogue, ShippedProfilesFitTheirPublishedProperties) {
    const CProfileCatalogue catalogue = CProfileCatalogue::Shipped();
    EXPECT_GT(catalogue.Profiles().size(), 200U);
    std::set<std::wstring> groups;
    for (const Profile& profile : catalogue.Profiles()) {
        SCOPED_TRACE(Narrow(profile.name));
        groups.insert(profile.group);
        const CSecGeom geometry(L"CAT%" + profile.group + L"%" + profile.name, catalogue);
        const SectionProperties& p = geometry.Properties();
        EXPECT_NEAR(p.area, profile.area, 0.01 * profile.area);
        EXPECT_NEAR(p.iyy, profile.iyy, 0.01 * profile.iyy);
        EXPECT_NEAR(p.izz, profile.izz, 0.01 * profile.izz);
        EXPECT_EQ(p.j, profile.j);
        const bool isOtherSeries = profile.group == L"IPE" || profile.group == L"HE";
        EXPECT_NEAR(p.j, profile.shape->torsion(profile.size),
                    (isOtherSeries ? 0.05 : 0.015) * p.j);
    }
    EXPECT_EQ(groups, (std::set<std::wstring>{L"CHS", L"HE", L"IPE", L"PFC", L"RHS", L"SHS", L"UB",
                                              L"UC", L"UPE", L"W"}));
}

// A few profiles by hand, so that units and axes can't be wrong throughout.
TEST(ProfileCatalogue, ProfilesByHand) {
    const SectionProperties ipe = CSecGeom(L"CAT%IPE%IPE300").Properties();
    EXPECT_NEAR(ipe.area, 53.81e-4, 0.005e-4);
    EXPECT_NEAR(ipe.iyy, 8356e-8, 0.5e-8);
    EXPECT_NEAR(ipe.izz, 603.8e-8, 0.05e-8);
    EXPECT_EQ(ipe.avz, 0.3 * 0.0071);
    const CSecGeom w(L"CAT%W%W12x50");
    EXPECT_NEAR(w.Dimension(CSecGeom::d0), 12.2 * 0.0254, 1e-15);
    EXPECT_NEAR(w.Properties().iyy, 391 * std::pow(0.0254, 4), 8e-7);
    EXPECT_NEAR(w.Properties().j, 1.71 * std::pow(0.0254, 4), 1e-15);
    const CSecGeom box(L"CAT%SHS%SHS100x100x5");
    EXPECT_NEAR(box.Properties().area, 18.73e-4, 0.005e-4);
    EXPECT_EQ(box.Polygons().at(0).size(), 36U);
    EXPECT_LT(box.PerimeterLength(), 0.4);
}

TEST(ProfileCatalogue, ShapeFlags) {
    EXPECT_EQ(CSecGeom(L"CAT%UB%UB457x191x67").ShapeFlags(), 2 | 3 << 4);
    EXPECT_EQ(CSecGeom(L"CAT%PFC%PFC200x75x23").ShapeFlags(), 3 | 4 << 4);
    EXPECT_EQ(CSecGeom(L"CAT%RHS%RHS200x100x8").ShapeFlags(), 9 | 1 << 4);
    EXPECT_EQ(CSecGeom(L"CAT%CHS%CHS219.1x6.3").ShapeFlags(), 7 | 2 << 4);
    EXPECT_EQ(CSecGeom(L"CAT%UB%UB457x191x67").Dimension(4), 0.1899) << "flanges are equal";
}

TEST(ProfileCatalogue, NamesInEveryForm) {
    struct Case {
        const wchar_t* description;
        const wchar_t* name;
    };
    constexpr Case cases[] = {
        {L"CAT%UB%UB457x191x67", L"UB457x191x67"},
        {L"cat % ub % ub 457 X 191 X 67 ", L"UB457x191x67"},
        {L"CAT%UB%457x191x67%19990407", L"UB457x191x67"},
        {L"CAT%UB%UB457\u00D7191\u00D767", L"UB457x191x67"},
        {L"CAT%UB457x191x67", L"UB457x191x67"},
        {L"CAT%HE%HE200A", L"HE200A"},
        {L"CAT%HE%HEA200", L"HE200A"},
        {L"CAT%HE%HE 200 A", L"HE200A"},
        {L"CAT%HEA%HEA200", L"HE200A"},
        {L"CAT%HEB%200", L"HE200B"},
        {L"CAT%SHS%100x100x5.0", L"SHS100x100x5"},
        {L"CAT%CHS%CHS508.0x12.50", L"CHS508x12.5"},
    };
    const CProfileCatalogue catalogue = CProfileCatalogue::Shipped();
    for (const Case& c : cases) {
        const SectionShape shape = ReadSectionShape(c.description, catalogue);
        const Profile* expected = catalogue.Find(L"", c.name);
        ASSERT_NE(expected, nullptr) << Narrow(c.name);
        EXPECT_EQ(shape.kind, SectionKind::Catalogue) << Narrow(c.description);
        EXPECT_EQ(shape.size.d, expected->size.d) << Narrow(c.description);
    }
    for (const wchar_t* name : {L"CAT%UB%UB457x191x6", L"CAT%SHS%100x100x50", L"CAT%HE%HEC200"}) {
        EXPECT_EQ(ReadSectionShape(name, catalogue).kind, SectionKind::None) << Narrow(name);
    }
}

TEST(ProfileCatalogue, ReadsAFile) {
    std::istringstream text(
        "\xEF\xBB\xBF# our own\r\n"
        "\r\n"
        "MY  MY1  i  300 150 7.1 10.7  r=15 A=53.8 Iyy=8356 Izz=604 J=20.1 # like an IPE\n"
        "MY  MY2  RHS 100 100 5 5 ro=7.5 r=5\n"
        "IPE IPE300 R 10 20\n"
        "units in\n"
        "MY  MY3  CHS 4 0.25\n"
        "units mm\n"
        "MY  Tr\xC3\xA4ger  C 50\n"
        "MY  MY2  R 40 30");
    std::wstring error;
    CProfileCatalogue catalogue = CProfileCatalogue::Shipped();
    const std::size_t shipped = catalogue.Profiles().size();
    ASSERT_TRUE(catalogue.Load(text, error)) << Narrow(error);
    EXPECT_EQ(catalogue.Profiles().size(), shipped + 4);
    const auto of = [&](const wchar_t* description) { return CSecGeom(description, catalogue); };
    EXPECT_EQ(of(L"CAT%MY%1").Properties().j, 20.1e-8);
    EXPECT_NEAR(of(L"CAT%MY%1").Properties().iyy, 8356e-8, 1e-8);
    EXPECT_NEAR(of(L"CAT%MY%2").Properties().area, 0.0012, 1e-15) << "the later line wins";
    EXPECT_NEAR(of(L"CAT%IPE%IPE300").Properties().area, 0.0002, 1e-15);
    EXPECT_NEAR(of(L"CAT%MY%3").Dimension(2), 0.00635, 1e-15);
    EXPECT_NEAR(of(L"CAT%MY%Träger").Dimension(0), 0.05, 1e-15);
}

TEST(ProfileCatalogue, ErrorsNameTheLine) {
    struct Case {
        const char* line;
        const wchar_t* error;
    };
    constexpr Case cases[] = {
        {"UB", L"needs a group"},
        {"UB X", L"needs a group"},
        {"UB X Q 1 2", L"unknown shape \"Q\""},
        {"UB X I 300 150 7.1", L"shape \"I\" has 4 dimensions, not 3"},
        {"UB X I 300 150 7.1 ten", L"not a number: \"ten\""},
        {"UB X I 300 150 -7.1 10.7", L"not a positive number"},
        {"UB X I 300 150 1e999 10.7", L"not a number"},
        {"UB X I 300 150 1e300 10.7", L"do not make a section"},
        {"UB X C 1e300", L"do not make a section"},
        {"UB X I 300 150 7.1 160", L"do not make a section"},
        {"UB X I 300 150 7.1 10.7 r=90", L"do not make a section"},
        {"UB X I 300 150 7.1 10.7 r=-1", L"can't read \"r=-1\""},
        {"UB X I 300 150 7.1 10.7 Wpl=3", L"can't read \"Wpl=3\""},
        {"UB X I 300 150 7.1 10.7 r=15 A=54.5", L"A does not fit"},
        {"UB X I 300 150 7.1 10.7 r=15 Iyy=604", L"Iyy does not fit"},
        {"UB X I 300 150 7.1 10.7 r=15 Izz=612", L"Izz does not fit"},
        {"units", L"units are"},
        {"units ft", L"units are"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        std::istringstream text("# first\nUB NEW R 10 10\n" + std::string(c.line) + "\n");
        std::wstring error;
        CProfileCatalogue catalogue;
        EXPECT_FALSE(catalogue.Load(text, error));
        EXPECT_TRUE(error.starts_with(L"line 3: ")) << Narrow(error);
        EXPECT_NE(error.find(c.error), std::wstring::npos) << Narrow(error);
        EXPECT_TRUE(catalogue.Profiles().empty()) << "all of a file or nothing";
    }
}

TEST(ProfileCatalogue, FilesThatCanNotBeRead) {
    const TestSupport::TempFolder folder;
    CProfileCatalogue catalogue;
    std::wstring error;
    EXPECT_FALSE(catalogue.Load(Text::FromPath(folder.Path() / "none.txt"), error));
    EXPECT_NE(error, L"");
    error.clear();
    EXPECT_FALSE(catalogue.Load(Text::FromPath(folder.Path()), error)) << "a folder";
    EXPECT_NE(error, L"");
    std::istringstream large(std::string(200'001, '\n'));
    EXPECT_FALSE(catalogue.Load(large, error));
    EXPECT_NE(error.find(L"too large"), std::wstring::npos);

    std::ofstream(folder.Path() / "own.txt") << "MY MY1 R 10 20\n";
    EXPECT_TRUE(catalogue.Load(Text::FromPath(folder.Path() / "own.txt"), error));
    EXPECT_EQ(error, L"");
    std::istringstream empty;
    EXPECT_TRUE(catalogue.Load(empty, error));
    EXPECT_EQ(catalogue.Profiles().size(), 1U);
}

TEST(ProfileCatalogue, TheProcessHasOne) {
    CSecComp before;
    before.SetDescription(L"CAT%MY%MY1");
    CProfileCatalogue catalogue = *CProfileCatalogue::Current();
    std::istringstream text("MY MY1 R 10 20");
    std::wstring error;
    ASSERT_TRUE(catalogue.Load(text, error));
    CProfileCatalogue::SetCurrent(catalogue);
    CSecComp after;
    after.SetDescription(L"CAT%MY%MY1");
    CProfileCatalogue::SetCurrent(CProfileCatalogue::Shipped());
    EXPECT_EQ(before.Geometry().Kind(), SectionKind::None);
    EXPECT_NEAR(after.Geometry().Properties().area, 0.0002, 1e-15);
    EXPECT_EQ(CProfileCatalogue::Current()->Find(L"MY", L"MY1"), nullptr);
}

}  // namespace
}  // namespace Tevra::Data
