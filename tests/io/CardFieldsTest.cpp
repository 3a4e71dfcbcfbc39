#include <climits>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>

#include "io/CardFields.h"
#include "io/DoubleSamples.h"

using namespace Tevra;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

/// The rule of the real field word for word, on the C library's own text.
std::string WordedRealField(double value, int width, bool signSpace) {
    std::string result;
    bool checkWidth = true;
    if (signSpace && width >= 8) {
        if (value > 0.0) {
            --width;
            result = " ";
        } else {
            checkWidth = false;
        }
    }
    if (checkWidth && width < 6) {
        return width < 1 ? result : result + std::string(static_cast<std::size_t>(width), '*');
    }
    char printed[400];
    const int count = std::snprintf(printed, sizeof printed, "%e", value);
    std::string text(printed, static_cast<std::size_t>(count));
    if (text.size() >= 4 && text[text.size() - 4] == '+') {
        text.erase(text.size() - 4, 1);
    }
    const std::size_t before = text.size();
    if (text.size() >= 3 && text[text.size() - 3] == '0') {
        text.erase(text.size() - 3, 1);
    }
    if (before >= 2 && before - 2 < text.size() && text[before - 2] == '0') {
        text.erase(before - 2, 1);
    }
    text.erase(0, text.find_first_not_of(' '));
    const auto room = static_cast<std::size_t>(width);
    const std::size_t length = text.size();
    const std::size_t mark = text.find('e');
    const std::size_t exponent = mark == std::string::npos ? 0 : length - mark;
    if (length > room) {
        return result + text.substr(0, room - exponent) + text.substr(length - exponent);
    }
    return length < room ? result + std::string(room - length, ' ') + text : text;
}

TEST(CardFields, RealKnownValues) {
    struct Case {
        double value;
        int width;
        bool signSpace;
        const char* text;
    };
    constexpr Case kCases[] = {
        {0.0, 8, false, "0.000e+0"},
        {-0.0, 8, false, "-0.00e+0"},
        {-0.0, 10, false, "-0.0000e+0"},
        {210000000000.0, 8, false, "2.10e+11"},
        {-123.456, 8, false, "-1.23e+2"},
        {0.00001, 8, false, "1.000e-5"},
        {1.23999, 8, false, "1.239e+0"},  // cut, not rounded
        {9.9999996, 8, false, "1.000e+1"},
        {210000000000.0, 8, true, " 2.1e+11"},
        {0.00001, 8, true, " 1.00e-5"},
        {-0.0015, 8, true, "-1.50e-3"},
        {0.0, 8, true, "0.000e+0"},
        {123.456, 16, false, "     1.234560e+2"},
        {123.456, 16, true, "     1.234560e+2"},
        {123.456, 10, false, "1.23456e+2"},
        {123.456, 20, false, "         1.234560e+2"},
        {1e100, 16, false, "     1.000000e10"},  // the zero within a long exponent goes
        {1e110, 16, false, "    1.000000e110"},
        {1e-100, 16, false, "    1.000000e-10"},
        {1e-308, 8, false, "1.00e-38"},
        {1e200, 6, false, "1.0e20"},
        {-1e-200, 6, false, "-1e-20"},
        {-1e-111, 6, false, "-e-111"},
        {1.5, 11, false, "1.500000e+0"},
        {1.5, 12, true, "1.500000e+0"},  // fits the room exactly: the blank goes
        {1.5, 7, true, "1.50e+0"},       // too narrow to spare a place
        {1.5, 5, false, "*****"},
        {1.5, 1, true, "*"},
        {1.5, 0, false, ""},
        {1.5, -3, false, ""},
        {kNaN, 8, false, "     nan"},
        {-kNaN, 8, true, "    -nan"},
        {kInf, 10, false, "       inf"},
        {kInf, 8, true, "     inf"},
        {-kInf, 6, false, "  -inf"},
        {kNaN, 5, false, "*****"},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(FormatRealField(c.value, c.width, c.signSpace), c.text)
            << c.value << " in " << c.width << (c.signSpace ? " with sign space" : "");
    }
}

TEST(CardFields, RealFollowsTheRuleForAnyValueAndWidth) {
    std::size_t i = 0;
    for (const double value : TestSupport::DoubleSamples(24000, 7)) {
        const int width = static_cast<int>(++i % 24) + 1;
        const bool signSpace = (i / 24) % 2 == 0;
        ASSERT_EQ(FormatRealField(value, width, signSpace),
                  WordedRealField(value, width, signSpace))
            << value << " in " << width << ' ' << signSpace;
    }
}

TEST(CardFields, IntegerKnownValues) {
    struct Case {
        long long value;
        int width;
        const char* text;
    };
    constexpr Case kCases[] = {
        {7, 8, "       7"},
        {-7, 8, "      -7"},
        {12345678, 8, "12345678"},
        {123456789, 8, "123456789********"},
        {-12345678, 8, "-12345678********"},
        {10, 1, "10*"},
        {7, 1, "7"},
        {7, 0, "7"},
        {7, -4, "7   "},
        {-12345, -4, "-12345"},
        {INT_MIN, 20, "         -2147483648"},
        {LLONG_MIN, 19, "-9223372036854775808*******************"},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(FormatIntField(c.value, c.width), c.text) << c.value << " in " << c.width;
    }
}

TEST(CardFields, AbsurdWidthsAreBroughtDown) {
    constexpr auto kWidest = static_cast<std::size_t>(kMaxFieldWidth);
    for (const int width : {kMaxFieldWidth, INT_MAX}) {
        EXPECT_EQ(FormatIntField(-5, width).size(), kWidest);
        EXPECT_EQ(FormatRealField(-5.0, width, true).size(), kWidest);
        EXPECT_EQ(FormatRealField(kNaN, width, false).size(), kWidest);
    }
    EXPECT_EQ(FormatIntField(-5, INT_MIN).size(), kWidest);
    EXPECT_EQ(FormatRealField(-5.0, INT_MIN, true), "");
}

TEST(CardFields, AppendAddsToTheCard) {
    std::string card = "GRID    ";
    AppendIntField(card, 12, 8);
    AppendRealField(card, 2.5, 8);
    EXPECT_EQ(card, "GRID          122.500e+0");
}

}  // namespace
