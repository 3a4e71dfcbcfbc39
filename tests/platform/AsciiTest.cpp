#include <gtest/gtest.h>

#include "platform/text/Ascii.h"

using namespace Tevra;

namespace {

TEST(Ascii, TrimTakesWhiteSpaceOffBothEndsOnly) {
    EXPECT_EQ(Text::Trim(L" \t a b\r\n\v\f "), L"a b");
    EXPECT_EQ(Text::Trim("a"), "a");
    EXPECT_EQ(Text::Trim(" \t\n"), "");
    EXPECT_EQ(Text::Trim(""), "");
    EXPECT_EQ(Text::Trim(L"\u00A0a"), L"\u00A0a");
    EXPECT_EQ(Text::TrimLeft(std::string(" a ")), "a ");
    EXPECT_EQ(Text::TrimRight(L" a "), L" a");
}

TEST(Ascii, CaseFoldingLeavesAllButLettersAlone) {
    EXPECT_EQ(Text::ToLower(std::wstring(L"@AZ[`az{Ä9")), L"@az[`az{Ä9");
    EXPECT_EQ(Text::ToLower(std::string_view("*NODE_\xC3\x84")), "*node_\xC3\x84");
    EXPECT_EQ(Text::ToUpper('z'), 'Z');
    EXPECT_EQ(Text::ToUpper('{'), '{');
    EXPECT_TRUE(Text::EqualNoCase("All", "aLL"));
    EXPECT_FALSE(Text::EqualNoCase("All", "Al"));
    EXPECT_FALSE(Text::EqualNoCase("@", "`"));
    EXPECT_FALSE(Text::EqualNoCase(L"Ä", L"ä"));
}

}  // namespace
