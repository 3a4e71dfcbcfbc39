#include <charconv>
#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>

#include "io/DoubleSamples.h"
#include "io/NumberFormat.h"
#include "support/CommaLocale.h"
#include "support/Random.h"

using namespace Tevra;

namespace {

constexpr int kHuge = std::numeric_limits<int>::max();
constexpr int kTiny = std::numeric_limits<int>::min();
constexpr double kLargest = -std::numeric_limits<double>::max();

template <class... Arguments>
std::string Printed(const char* format, Arguments... arguments) {
    char text[1024];
    const int length = std::snprintf(text, sizeof text, format, arguments...);
    return {text, static_cast<std::size_t>(length)};
}

/// "%#g" by the words of the C standard, from "%e" and "%f", which C libraries agree on.
std::string PrintedPadded(double value, int width, int precision) {
    const int significant = precision == 0 ? 1 : precision;
    std::string text = Printed("%#.*e", significant - 1, value);
    if (const auto mark = text.find('e'); mark != std::string::npos) {
        const int exponent = std::stoi(text.substr(mark + 1));
        if (exponent >= -4 && exponent < significant) {
            text = Printed("%#.*f", significant - 1 - exponent, value);
        }
    }
    const auto wanted = static_cast<std::size_t>(width);
    return text.size() < wanted ? std::string(wanted - text.size(), ' ') + text : text;
}

template <class Append>
std::string Made(Append&& append) {
    std::string text = "|";
    append(text);
    return text.substr(1);
}

/// All forms of one value against the C library, at one width and precision.
void Compare(double v, int w, int p) {
    SCOPED_TRACE(Printed("%a width %d precision %d", v, w, p));
    ASSERT_EQ(Made([&](auto& t) { AppendExp(t, v, w, p); }), Printed("%*.*e", w, p, v));
    ASSERT_EQ(Made([&](auto& t) { AppendFixed(t, v, w, p); }), Printed("%*.*f", w, p, v));
    ASSERT_EQ(Made([&](auto& t) { AppendSignedFixed(t, v, w, p); }), Printed("%+*.*f", w, p, v));
    ASSERT_EQ(Made([&](auto& t) { AppendGeneral(t, v, w, p); }), Printed("%*.*g", w, p, v));
    ASSERT_EQ(Made([&](auto& t) { AppendPadded(t, v, w, p); }), PrintedPadded(v, w, p));
}

TEST(NumberFormat, IsWhatPrintfGives) {
    for (const double v : TestSupport::DoubleSamples(20000, 1)) {
        Compare(v, 0, 6);
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST(NumberFormat, IsWhatPrintfGivesAtAnyWidthAndPrecision) {
    std::mt19937_64 random = TestSupport::SeededRandom(2);
    for (const double v : TestSupport::DoubleSamples(5000, 3)) {
        Compare(v, static_cast<int>(random() % 30), static_cast<int>(random() % 20));
        if (HasFatalFailure()) {
            return;
        }
    }
    for (const double v : {1.0 / 3.0, 1e-300, 1.7e308, 5e-324}) {
        Compare(v, kMaxNumberWidth, kMaxNumberPrecision);
    }
}

TEST(NumberFormat, ShortestReadsBackAndNoShorterTextDoes) {
    for (const double v : TestSupport::DoubleSamples(10000, 4)) {
        const std::string text = Made([&](auto& t) { AppendShortest(t, v); });
        if (!std::isfinite(v)) {
            ASSERT_EQ(text, Printed("%g", v));
            continue;
        }
        double back = 0.0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), back);
        ASSERT_EQ(read.ptr, text.data() + text.size()) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(v)) << text;

        // Whole numbers show all their digits where that is shorter than an exponent.
        std::string digits = text.find_first_of(".e") == std::string::npos
                                 ? std::string()
                                 : text.substr(0, text.find('e'));
        std::erase_if(digits, [](char c) { return c == '-' || c == '.'; });
        digits.erase(0, digits.find_first_not_of('0'));
        if (digits.size() > 1 && std::fabs(v) > std::numeric_limits<double>::min()) {
            const std::string shorter = Printed("%.*e", static_cast<int>(digits.size()) - 2, v);
            ASSERT_NE(std::strtod(shorter.c_str(), nullptr), v) << text;
        }
    }
}

TEST(NumberFormat, GeneralIsTheDefaultFormOfAStream) {
    for (const double v : TestSupport::DoubleSamples(2000, 5)) {
        std::ostringstream stream;
        stream.imbue(std::locale::classic());
        stream << v;
        ASSERT_EQ(Made([&](auto& t) { AppendGeneral(t, v); }), stream.str());
    }
}

TEST(NumberFormat, PaddedKeepsItsSignificantDigits) {
    struct Case {
        double value;
        const char* text;
    };
    constexpr Case kCases[] = {
        {999999.5, "     1.00000e+06"},   {999999.4, "         999999."},
        {99999.96, "         100000."},   {9.9999995, "         10.0000"},
        {0.0, "         0.00000"},        {-0.0, "        -0.00000"},
        {0.0001, "     0.000100000"},     {0.00001, "     1.00000e-05"},
        {2.1e11, "     2.10000e+11"},     {-1e-300, "   -1.00000e-300"},
        {12.3456789, "         12.3457"}, {0.5, "        0.500000"},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(Made([&](auto& t) { AppendPadded(t, c.value, 16); }), c.text);
    }
}

TEST(NumberFormat, Integers) {
    std::mt19937_64 random = TestSupport::SeededRandom(6);
    for (int i = 0; i < 20000; ++i) {
        const auto v = static_cast<long long>(random()) >> (random() % 64);
        const int w = static_cast<int>(random() % 25);
        const int d = static_cast<int>(random() % 25) + 1;
        ASSERT_EQ(Made([&](auto& t) { AppendInt(t, v, w, d); }), Printed("%*.*lld", w, d, v));
    }
    for (const long long v : {std::numeric_limits<long long>::min(),
                              std::numeric_limits<long long>::max(), 0LL, -1LL}) {
        EXPECT_EQ(Made([&](auto& t) { AppendInt(t, v); }), Printed("%lld", v));
    }
    EXPECT_EQ(Made([](auto& t) { AppendInt(t, 7, 0, 3); }), "007");
    EXPECT_EQ(Made([](auto& t) { AppendInt(t, -7, 8, 3); }), "    -007");
}

TEST(NumberFormat, LimitsAreKept) {
    const std::string widest = Made([](auto& t) { AppendFixed(t, kLargest, kHuge, kHuge); });
    EXPECT_EQ(widest, Printed("%.*f", kMaxNumberPrecision, kLargest));
    EXPECT_LE(widest.size(), static_cast<std::size_t>(kMaxNumberText));
    EXPECT_EQ(Made([](auto& t) { AppendExp(t, 1.5, kTiny, kTiny); }), "2e+00");
    EXPECT_EQ(Made([](auto& t) { AppendPadded(t, 1.5, kTiny, kTiny); }), "2.");
    EXPECT_EQ(Made([](auto& t) { AppendInt(t, 5, kHuge, kTiny); }).size(),
              static_cast<std::size_t>(kMaxNumberWidth));
    EXPECT_EQ(Made([](auto& t) { AppendInt(t, 5, kTiny, kHuge); }).size(),
              static_cast<std::size_t>(kMaxNumberPrecision));
}

TEST(NumberFormat, LocaleHasNoPart) {
    const TestSupport::ScopedCommaLocale comma;
    std::ostringstream probe;
    probe << 1234.5;
    ASSERT_EQ(probe.str(), "1.234,5") << "the process writes a decimal comma";

    std::string text;
    AppendGeneral(text, 1234.5);
    AppendFixed(text, 0.5, 9);
    AppendPadded(text, 12345.5, 9);
    AppendExp(text, -0.5, 14);
    text += ' ';
    AppendShortest(text, 0.1);
    AppendInt(text, 1234567, 8);
    EXPECT_EQ(text, "1234.5 0.500000  12345.5 -5.000000e-01 0.1 1234567");
    if (!comma.InCLibrary()) {
        GTEST_SKIP() << "no locale with a decimal comma for the C library";
    }
    ASSERT_EQ(Printed("%g", 0.5), "0,5");
}

}  // namespace
