#include <gtest/gtest.h>

#include "io/Text.h"

using namespace Tevra;

namespace {

TEST(CardText, StaysOnOneLine) {
    std::string card = "$ a\nb ";
    AppendCardText(card, L"Träger\r\n3\ttab\x7F\n");
    EXPECT_EQ(card, "$ a\nb Tr\xC3\xA4ger  3 tab  ");
    EXPECT_EQ(CardText(std::wstring(L"a\0b", 3)), "a b");
    EXPECT_EQ(CardText(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

}  // namespace
