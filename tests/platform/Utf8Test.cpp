#include <filesystem>
#include <gtest/gtest.h>
#include <limits>

#include "platform/text/HostPath.h"
#include "platform/text/Utf8.h"
#include "support/Random.h"

using namespace Tevra;

namespace {

constexpr const char* kBad = "\xEF\xBF\xBD";

std::wstring Units(std::initializer_list<unsigned> units) {
    std::wstring text;
    for (const unsigned unit : units) {
        text += static_cast<wchar_t>(unit);
    }
    return text;
}

TEST(Utf8, EveryCodePointComesBack) {
    for (char32_t c = 1; c <= 0x10FFFF; ++c) {
        if (c == 0xD800) {
            c = 0xE000;
        }
        const std::wstring text = Units({static_cast<unsigned>(c)});
        const std::string bytes = Text::ToUtf8(text);
        const std::size_t length = c < 0x80 ? 1 : (c < 0x800 ? 2 : (c < 0x10000 ? 3 : 4));
        ASSERT_EQ(bytes.size(), length) << std::hex << static_cast<unsigned>(c);
        ASSERT_EQ(Text::FromUtf8(bytes), text) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(Utf8, KnownTexts) {
    EXPECT_EQ(Text::ToUtf8(L"Träger Ø 12 – 5 m² €"),
              "Tr\xC3\xA4ger \xC3\x98 12 \xE2\x80\x93 5 m\xC2\xB2 \xE2\x82\xAC");
    EXPECT_EQ(Text::ToUtf8(L"\U0001F309"), "\xF0\x9F\x8C\x89");
    EXPECT_EQ(Text::ToUtf8(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(Text::ToUtf8(L""), "");
}

TEST(Utf8, OddHostTextBecomesReplacementCharacters) {
    struct Case {
        std::wstring text;
        std::string bytes;
    };
    const std::string bad = kBad;
    const Case cases[] = {
        {Units({0xD83C, 0xDF09}), "\xF0\x9F\x8C\x89"},  // pair: one character
        {Units({'a', 0xD83C}), "a" + bad},              // high one at the end
        {Units({0xD83C, 'b'}), bad + "b"},              // high one alone
        {Units({0xDF09, 0xD83C}), bad + bad},           // wrong order
        {Units({0xD83C, 0xD83C, 0xDF09}), bad + "\xF0\x9F\x8C\x89"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Text::ToUtf8(c.text), c.bytes);
    }
    if (sizeof(wchar_t) == 4) {
        EXPECT_EQ(Text::ToUtf8(Units({0x110000, 0xFFFFFFFF, 0x80000000})), bad + bad + bad);
    }
}

TEST(Utf8, WrongBytesBecomeReplacementCharacters) {
    struct Case {
        std::string bytes;
        const wchar_t* text;
    };
    const Case cases[] = {
        {"a\x80z", L"a\uFFFDz"},                            // stray following byte
        {"\xC0\xAF", L"\uFFFD\uFFFD"},                      // overlong slash, two bytes
        {"\xC1\xBF", L"\uFFFD\uFFFD"},                      //
        {"\xE0\x80\xAF", L"\uFFFD\uFFFD\uFFFD"},            // overlong slash, three bytes
        {"\xF0\x80\x80\xAF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},  // overlong slash, four bytes
        {"\xED\xA0\xBC\xED\xBC\x89", L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},  // surrogates
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},                      // above U+10FFFF
        {"\xF5\xFF", L"\uFFFD\uFFFD"},                                          // never lead bytes
        {"\xE2\x82", L"\uFFFD"},                                                // cut at the end
        {"\xE2\x82z", L"\uFFFDz"},                                              // cut by a letter
        {"\xF0\x9F\x8C\xE2\x82\xAC", L"\uFFFD\u20AC"},  // cut by a character
        {"\xE2\xE2\x82\xAC", L"\uFFFD\u20AC"},          //
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Text::FromUtf8(c.bytes), c.text) << ::testing::PrintToString(c.bytes);
    }
}

TEST(Utf8, RandomBytesGiveTextThatConvertsBothWays) {
    std::mt19937_64 random = TestSupport::SeededRandom(1);
    for (int i = 0; i < 20000; ++i) {
        std::string bytes(random() % 12, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random());
        }
        const std::wstring text = Text::FromUtf8(bytes);
        ASSERT_LE(text.size(), bytes.size());
        ASSERT_EQ(Text::FromUtf8(Text::ToUtf8(text)), text);
    }
}

TEST(HostPath, KeepsNamesAndNeverThrows) {
    const std::wstring name = L"/tmp/Brücke – 橋/model.key";
    const std::filesystem::path path = Text::ToPath(name);
    EXPECT_EQ(Text::FromPath(path), name);
    EXPECT_EQ(path.extension(), ".key");
    EXPECT_EQ(Text::FromPath(Text::ToPath(Units({'a', 0xD83C}))), L"a\uFFFD");
}

}  // namespace
