#include "document/Codec.h"

#include <charconv>
#include <cstdio>

#include "model/Element.h"

namespace Tevra::Document {

std::string Codec<Vbool6>::Expected() {
    return "a list of directions, each " + Codec<Direction>::Expected();
}

Json Codec<Vbool6>::Write(Vbool6 value) {
    Json list = Json::array();
    for (const Direction d : kDirections) {
        if (value.IncludesDirection(d)) {
            list.push_back(Codec<Direction>::Write(d));
        }
    }
    return list;
}

void Codec<Vbool6>::Read(const Json& json, Vbool6& value) {
    std::vector<Direction> directions;
    if (!json.is_array()) {
        Refuse(Expected());
    }
    Codec<std::vector<Direction>>::Read(json, directions);
    value = Vbool6();
    for (const Direction d : directions) {
        value.Set(d, true);
    }
}

Json Codec<Vbool6>::Schema() {
    return {{"type", "array"}, {"items", Codec<Direction>::Schema()}};
}

Json Codec<CEntList>::Write(const CEntList& value, SelType usual) {
    Json text = Text::ToUtf8(value.Text());
    if (value.TypeOf() == usual) {
        return text;
    }
    return {{"kind", Codec<SelType>::Write(value.TypeOf())}, {"list", std::move(text)}};
}

void Codec<CEntList>::Read(const Json& json, CEntList& value) {
    SelType kind = value.TypeOf();
    std::wstring text;
    if (json.is_object()) {
        if (json.size() != 2 || !json.contains("kind") || !json.contains("list")) {
            Refuse("a list, or an object of \"kind\" and \"list\"");
        }
        At("kind", [&] { Codec<SelType>::Read(json["kind"], kind); });
        At("list", [&] { Codec<std::wstring>::Read(json["list"], text); });
    } else if (json.is_string()) {
        Codec<std::wstring>::Read(json, text);
    } else {
        Refuse("a list such as \"1 to 5\"");
    }
    // A text that can't be read selects nothing, but the model keeps it.
    value = CEntList(text, kind);
}

Json Codec<CEntList>::Schema() {
    const Json object = {
        {"type", "object"},
        {"additionalProperties", false},
        {"properties", {{"kind", Codec<SelType>::Schema()}, {"list", {{"type", "string"}}}}},
        {"required", {"kind", "list"}}};
    return {{"anyOf", {{{"type", "string"}}, object}}};
}

void Codec<CCaseDesc>::Read(const Json& json, CCaseDesc& value) {
    std::wstring text;
    Codec<std::wstring>::Read(json, text);
    value.SetDescription(text);  // as for lists
}

void Codec<CCombCaseDesc>::Read(const Json& json, CCombCaseDesc& value) {
    std::wstring text;
    Codec<std::wstring>::Read(json, text);
    value.SetDescription(text);
}

Json Codec<Colour>::Write(Colour colour) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) {
        text += kDigits[(colour.value >> shift) & 15U];
    }
    return text;
}

void Codec<Colour>::Read(const Json& json, Colour& colour) {
    unsigned long rgb = 0;
    const bool isText = json.is_string() && json.get_ref<const std::string&>().size() == 7 &&
                        json.get_ref<const std::string&>().front() == '#';
    if (!isText) {
        Refuse(Expected());
    }
    const auto& text = json.get_ref<const std::string&>();
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + 1, end, rgb, 16);
    if (error != std::errc() || stop != end) {
        Refuse(Expected());
    }
    colour.value = (rgb >> 16U & 255U) | (rgb & 0xFF00U) | (rgb & 255U) << 16U;
}

namespace {

/// The numbers of a text that holds nothing else; false when it holds anything else.
bool NumbersOf(const std::string& text, Json& numbers) {
    const char* at = text.data();
    const char* const end = at + text.size();
    std::string again;
    while (at != end) {
        int number = 0;
        const auto [stop, error] = std::from_chars(at, end, number);
        if (error != std::errc() || number < 1 || (stop != end && *stop != ' ')) {
            return false;
        }
        numbers.push_back(number);
        again += again.empty() ? "" : " ";
        again += std::to_string(number);
        at = stop == end ? stop : stop + 1;
    }
    return again == text;
}

}  // namespace

Json Codec<Topology>::Write(const Topology& topology) {
    const std::string text = Text::ToUtf8(topology.text);
    Json numbers = Json::array();
    return NumbersOf(text, numbers) ? numbers : Json(text);
}

void Codec<Topology>::Read(const Json& json, Topology& topology) {
    if (json.is_string()) {
        Codec<std::wstring>::Read(json, topology.text);
        return;
    }
    if (!json.is_array()) {
        Refuse(Expected());
    }
    topology.text.clear();
    for (const Json& item : json) {
        if (!item.is_number_unsigned() || item.get<std::uint64_t>() < 1 ||
            item.get<std::uint64_t>() > 2147483647) {
            Refuse(Expected());
        }
        topology.text += (topology.text.empty() ? L"" : L" ") + std::to_wstring(item.get<int>());
    }
}

Json Codec<Topology>::Schema() {
    const Json numbers = {
        {"type", "array"},
        {"items", {{"type", "integer"}, {"minimum", 1}, {"maximum", 2147483647}}}};
    return {{"anyOf", {numbers, {{"type", "string"}}}}};
}

}  // namespace Tevra::Document
