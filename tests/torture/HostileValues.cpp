#include "torture/HostileValues.h"

#include <array>
#include <limits>

#include "output/engine/DataProvider.h"
#include "platform/text/Utf8.h"
#include "support/Random.h"

namespace Tevra::TestSupport {

namespace {

constexpr std::array kPlainReals{0.0,   1.0,     -1.0, 0.5,    2.0,          3.0,    0.1,
                                 -0.25, 100.0,   0.25, 0.3,    1000.0 / 3,   7850.0, 2.1e11,
                                 1e-5,  -1500.0, 90.0, 0.0125, 12345.678901, 45.0,   1e6};

constexpr std::array kOddReals{1e308,
                               -1e308,
                               1e-308,
                               5e-324,
                               -5e-324,
                               -0.0,
                               1e16,
                               -1e16,
                               1e100,
                               -1e-100,
                               999999.5,
                               0.99999999999,
                               9.9999999e99,
                               123456789.123456789,
                               1e9,
                               -99999.95,
                               1.7976931348623157e308,
                               4294967296.0,
                               1e22,
                               -9.99999999999e-100,
                               0.001,
                               -1e-9};

constexpr std::array kNotFinite{std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity()};

constexpr std::array kOddIntegers{0, -1, -2, 65'535, 65'536, 4095, 999'999, 9'999'000, -100'000};

constexpr std::array kHugeIntegers{99'999'998,
                                   99'999'999,
                                   100'000'000,
                                   1'000'000'000,
                                   std::numeric_limits<int>::max() - 1,
                                   std::numeric_limits<int>::max(),
                                   std::numeric_limits<int>::min()};

constexpr std::array<std::wstring_view, 12> kPlainNames{L"",  L"Beam",    L"C30/37", L"First floor",
                                                        L"A", L"b_1",     L"Dead",   L"ULS",
                                                        L"x", L"Wall 12", L"IPE",    L"Core"};

constexpr std::array<std::wstring_view, 34> kOddTexts{L"'",
                                                      L"''",
                                                      L"O'Brien",
                                                      L"\"quoted\"",
                                                      L"a,b;c",
                                                      L"tab\there",
                                                      L"line\nfeed",
                                                      L"return\r\nfeed",
                                                      L"\r",
                                                      L"\n",
                                                      L" leading",
                                                      L"trailing ",
                                                      L"   ",
                                                      L"bell\a\b\x1b[31m",
                                                      L"\x7f\x80\x85\x9f",
                                                      L"vertical\vform\f",
                                                      L"separator\x2028paragraph\x2029",
                                                      L"Ünïcødé ß",
                                                      L"日本語テキスト",
                                                      L"\U0001F3D7 crane",
                                                      L"\U0010FFFF",
                                                      L"\xFEFF",
                                                      L"\xFFFD\xFFFE\xFFFF",
                                                      L"%s%n%d%5$x",
                                                      L"$ comment",
                                                      L"* END",
                                                      L"*END",
                                                      L"ENDDATA",
                                                      L"[exit]",
                                                      L"'-- DROP TABLE node;",
                                                      L"{ } [ ] \\ $x ; # \"",
                                                      L"back\\",
                                                      L"=CSYS=7, ADD=3",
                                                      L"<red></red><b>&amp;"};

/// What UTF-8 can't carry.
constexpr std::array<std::wstring_view, 5> kStrayTexts{L"\xD800", L"low\xDC00", L"\xDFFF\xD800",
                                                       L"\x7FFFFFFF", L"over\x110000"};

constexpr std::array<std::string_view, 42> kShapes{
    "STD%I%500%200%12%20",
    "STD%R%300%200",
    "STD%R%0%0",
    "STD%R%-300%200",
    "STD%R%nan%inf",
    "STD%R%1e308%1e308",
    "STD%R%1e-308%1e-308",
    "STD%RHS%200%100%6%6",
    "STD%RHS%200%100%600%600",
    "STD%CHS%100%5",
    "STD%CHS%100%50",
    "STD%CHS%100%51",
    "STD%C%400",
    "STD%C%0",
    "STD%CH%200%80%8%10",
    "STD%T%200%100%8%10",
    "STD%A%100%100%10%10",
    "STD%GI%500%200%150%12%20%15",
    "STD%TR%300%200%100",
    "STD%E%300%200%2",
    "STD%OVAL%300%200%10",
    "STD%X%200%100%8%10",
    "STD%CB%500%200%12%20%300%400",
    "STD%REC%1",
    "STD%",
    "STD",
    "STD%I%500",
    "STD%I%500%200%12%20%1%2%3%4%5%6",
    "STD%I%10%200%120%20",
    "CAT%UB%UB457x191x67",
    "CAT%IPE%IPE300%2020",
    "CAT%%",
    "EXP%0.1%1e-3%2e-3%3e-3%0.5%0.5",
    "EXP%0%0%0%0%0%0",
    "EXP%-1%nan%2%3",
    "EXP",
    "GEO%P%M(0|0)L(1|0)L(1|1)L(0|1)",
    "GEO%P%M(0|0)",
    "GEO%P(mm)%M(-100|-100)L(100|-100)L(100|100)M(0|0)L(1|1)L(1|0)",
    "GEO%P%M(nan|inf)L(1e308|-1e308)L(0|1e308)",
    "%%%%%%%%",
    ""};

constexpr std::array<std::string_view, 22> kLists{"all",
                                                  "all",
                                                  "all",
                                                  "none",
                                                  "",
                                                  "1",
                                                  "2",
                                                  "1 to 5",
                                                  "1 3 5 to 9 step 2",
                                                  "not 2",
                                                  "1 to 2147483647",
                                                  "2147483647",
                                                  "(1 2) not (2 to 3)",
                                                  "list 1",
                                                  "list 1 list 2",
                                                  "G1",
                                                  "P1 2 not P2",
                                                  "section 1 member 2",
                                                  "type beam",
                                                  "A1 to A5 C1",
                                                  "1 to",
                                                  "0 -1 99999999999999999999"};

constexpr std::array<std::string_view, 16> kCaseTexts{
    "L1",    "1.35L1 + 1.5L2", "M1",         "M1",     "-L1 + 1e308L2", "1.35L1 : P(1.L1)",
    "",      "P(1.L1)",        "L999999999", "0L1",    "L2 L1",         "M2",
    "nanL1", "L1 +",           "A1",         "1e999L1"};

constexpr std::array<std::string_view, 18> kCombTexts{
    "A1",
    "1.35A1 + 1.5A2",
    "1.35A1 + 1.5(A1 or A2)",
    "(1 or 1.35)A1 + (0 or 1.5)A2",
    "C1",
    "C2 + A1",
    "C1max",
    "C1min + A2",
    "C3p2",
    "A1 to A5",
    "1e308A1 + 1e308A2",
    "-A1",
    "",
    "A99",
    "A1 +",
    "(A1 or A2)(A1 or A2)",
    "(A1 or A2) + (A1 or A2) + (A1 or A2)",
    "(1 or 2 or 3 or 4)(1 or 2)(A1 or (A2 or C2abs))"};

constexpr std::array<std::string_view, 9> kTopologies{
    "1 2", "1 2 3", "1 2 3 4", "", "1 A 2 3", "1 2 R 3", "x", "4 99 1", "1,2;3"};

constexpr std::array<std::string_view, 10> kUnits{"kN", "m",   "N",    "mm", "ft",
                                                  "kg", "MPa", "N/m²", "",   "lbf/in²"};

constexpr std::array<std::string_view, 5> kVersions{"8.7.6", "x", "", "99999999999.1", "-1.2"};

constexpr std::array<std::string_view, 6> kOpsWords{"-IsoHard", "Strong", "Weak",
                                                    "-GABuck",  "Damage", "-MPCurveParams"};

/// Which texts stand under a key of a section; an empty section is any.
struct Language {
    std::string_view section;
    std::string_view key;
    std::span<const std::string_view> texts;
};
constexpr std::array<Language, 9> kLanguages{{{"sections", "description", kShapes},
                                              {"analysis_cases", "description", kCaseTexts},
                                              {"combination_cases", "description", kCombTexts},
                                              {"settings", "case", kCaseTexts},
                                              {"analysis_tasks", "load_cases", kLists},
                                              {"members", "topology", kTopologies},
                                              {"units", "", kUnits},
                                              {"program", "version", kVersions},
                                              {"materials", "texts", kOpsWords}}};

}  // namespace

HostileValues::HostileValues(std::uint64_t seed, const Hostility& hostility)
    : m_random(SeededRandom(seed)), m_hostility(hostility) {}

int HostileValues::Below(int count) {
    // Not a standard distribution: those differ between libraries.
    return static_cast<int>(m_random() % static_cast<std::uint64_t>(count));
}

double HostileValues::Real() {
    if (!Chance(m_hostility.oddNumber)) {
        return OneOf<double>(kPlainReals);
    }
    return !m_hostility.isFinite && Chance(0.3) ? OneOf<double>(kNotFinite)
                                                : OneOf<double>(kOddReals);
}

double HostileValues::Coordinate() {
    return Chance(m_hostility.oddNumber) ? Real() : static_cast<double>(Below(4));
}

int HostileValues::OddInteger() {
    return m_hostility.isHuge && Chance(0.3) ? OneOf<int>(kHugeIntegers) : OneOf<int>(kOddIntegers);
}

int HostileValues::RecordNumber() {
    if (!Chance(m_hostility.oddRefer)) {
        return 1 + Below(9);
    }
    const int odd = OddInteger();
    return odd > 0 ? odd : 20 + Below(200);
}

int HostileValues::Reference() {
    return Chance(m_hostility.oddRefer) ? OddInteger() : 1 + Below(9);
}

int HostileValues::LoadCase() {
    return Chance(0.01 * m_hostility.oddRefer) ? RecordNumber() : Below(4);
}

int HostileValues::Integer() {
    return Chance(m_hostility.oddNumber) ? OddInteger() : Below(6);
}

std::wstring HostileValues::LongText() {
    std::wstring text;
    const int length = Chance(0.1) ? 5000 : 60 + Below(240);
    for (int i = 0; i < length; ++i) {
        text += static_cast<wchar_t>(L'!' + Below(90));
    }
    return text;
}

std::wstring HostileValues::OddText() {
    if (!m_hostility.isUnicode && Chance(0.15)) {
        return std::wstring(OneOf<std::wstring_view>(kStrayTexts));
    }
    switch (Below(10)) {
        case 0:
            return {L'a', L'\0', L'b'};
        case 1:
            return LongText();
        case 2:
            return std::wstring(OneOf<std::wstring_view>(kOddTexts)) +
                   std::wstring(OneOf<std::wstring_view>(kOddTexts));
        default:
            return std::wstring(OneOf<std::wstring_view>(kOddTexts));
    }
}

std::wstring HostileValues::Name() {
    return Chance(m_hostility.oddText) ? OddText()
                                       : std::wstring(OneOf<std::wstring_view>(kPlainNames));
}

std::string HostileValues::Utf8Name() {
    return Text::ToUtf8(Name());
}

std::string HostileValues::ListText() {
    return Chance(0.3 * m_hostility.oddText) ? Utf8Name()
                                             : std::string(OneOf<std::string_view>(kLists));
}

std::string HostileValues::TextOf(std::string_view section, std::string_view key) {
    if (Chance(0.3 * m_hostility.oddText)) {
        return Utf8Name();
    }
    if (section == "views" && key == "data") {
        const std::vector<std::wstring> names = Output::ProviderNames();
        return Text::ToUtf8(OneOf<std::wstring>(names));
    }
    for (const Language& language : kLanguages) {
        if (language.section == section && (language.key.empty() || language.key == key)) {
            return std::string(OneOf(language.texts));
        }
    }
    return Utf8Name();
}

}  // namespace Tevra::TestSupport
