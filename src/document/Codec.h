#pragma once

#include <array>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/ModelData.h"
#include "platform/text/Utf8.h"

/// How values of the model stand in a model document: one codec per type, with
/// `Write(value)`, `Read(json, value)` (which keeps what the document does not give),
/// `Schema()`, the JSON Schema of the value, and `Expected()`, what a reader hears otherwise.
namespace Tevra::Document {

using Json = nlohmann::ordered_json;

/// What is wrong with a value, and where: "members[3].topology" and "expected ...".
class FieldError {
public:
    explicit FieldError(std::string message) : m_message(std::move(message)) {}
    void Prepend(std::string_view step) {
        std::string path(step);
        if (!m_path.empty() && m_path.front() != '[') {
            path += '.';
        }
        path += m_path;
        m_path = std::move(path);
    }
    void Prepend(std::size_t index) {
        std::string step(1, '[');
        step += std::to_string(index);
        step += ']';
        Prepend(step);
    }
    std::string Text() const { return m_path.empty() ? m_message : m_path + ": " + m_message; }

private:
    std::string m_path;
    std::string m_message;
};

[[noreturn]] inline void Refuse(const std::string& expected) {
    throw FieldError("expected " + expected);
}

/// Runs `action`, naming the step of the path (a key or an index) where it fails.
template <class Step, class Action>
auto At(const Step& step, Action action) {
    try {
        return action();
    } catch (FieldError& error) {
        error.Prepend(step);
        throw;
    }
}

/// Names of the values of an enumeration, in code order.
struct EnumName {
    int code;
    std::string name;
};
template <class E>
const std::vector<EnumName>& NamesOf();

/// Enumerations some of whose codes the host has set aside without a name: those stand as numbers.
template <class E>
inline constexpr bool kHasReservedCodes =
    std::is_same_v<E, ElementType> || std::is_same_v<E, MatModel>;

// Enumerations with names; the tables stand in EnumNames.cpp.
#define VYN_DECLARE_NAMES(E) \
    template <>              \
    const std::vector<EnumName>& NamesOf<E>();
VYN_DECLARE_NAMES(ElementType)
VYN_DECLARE_NAMES(MemberType)
VYN_DECLARE_NAMES(AnalysisOrder)
VYN_DECLARE_NAMES(MatType)
VYN_DECLARE_NAMES(MatModel)
VYN_DECLARE_NAMES(SelType)
VYN_DECLARE_NAMES(CurveFit)
VYN_DECLARE_NAMES(AxisType)
VYN_DECLARE_NAMES(Prop2DType)
VYN_DECLARE_NAMES(PropertyType)
VYN_DECLARE_NAMES(SolutionType)
VYN_DECLARE_NAMES(SpringType)
VYN_DECLARE_NAMES(Direction)
VYN_DECLARE_NAMES(Data::ReleaseState)
VYN_DECLARE_NAMES(LoadCurveType)
VYN_DECLARE_NAMES(BeamLoadType)
VYN_DECLARE_NAMES(AxialLoadType)
VYN_DECLARE_NAMES(BeamThermalType)
VYN_DECLARE_NAMES(FaceLoadType)
VYN_DECLARE_NAMES(FaceThermalType)
VYN_DECLARE_NAMES(ExcitationOption)
#undef VYN_DECLARE_NAMES

/// The codec of a type with fields of its own: an object; see Fields.h.
template <class T, class = void>
struct Codec;

template <>
struct Codec<double> {
    static std::string Expected() { return "a number"; }
    static Json Write(double value) {
        if (!std::isfinite(value)) {
            throw FieldError("a value that is not a finite number can't be written");
        }
        return value;
    }
    static void Read(const Json& json, double& value) {
        if (!json.is_number()) {
            Refuse(Expected());
        }
        value = json.get<double>();
    }
    static Json Schema() { return {{"type", "number"}}; }
};

template <>
struct Codec<int> {
    static std::string Expected() { return "a whole number"; }
    static Json Write(int value) { return value; }
    static void Read(const Json& json, int& value) {
        constexpr int kLeast = std::numeric_limits<int>::min();
        constexpr int kMost = std::numeric_limits<int>::max();
        const bool fits = json.is_number_unsigned()
                              ? json.get<std::uint64_t>() <= static_cast<std::uint64_t>(kMost)
                              : json.is_number_integer() && json.get<std::int64_t>() >= kLeast;
        if (!fits) {
            Refuse(Expected());
        }
        value = json.get<int>();
    }
    static Json Schema() {
        return {{"type", "integer"},
                {"minimum", std::numeric_limits<int>::min()},
                {"maximum", std::numeric_limits<int>::max()}};
    }
};

template <>
struct Codec<bool> {
    static std::string Expected() { return "true or false"; }
    static Json Write(bool value) { return value; }
    static void Read(const Json& json, bool& value) {
        if (!json.is_boolean()) {
            Refuse(Expected());
        }
        value = json.get<bool>();
    }
    static Json Schema() { return {{"type", "boolean"}}; }
};

template <>
struct Codec<std::wstring> {
    static std::string Expected() { return "a text"; }
    static Json Write(const std::wstring& value) { return Text::ToUtf8(value); }
    static void Read(const Json& json, std::wstring& value) {
        if (!json.is_string()) {
            Refuse(Expected());
        }
        value = Text::FromUtf8(json.get_ref<const std::string&>());
    }
    static Json Schema() { return {{"type", "string"}}; }
};

template <class E>
struct Codec<E, std::enable_if_t<std::is_enum_v<E>>> {
    static std::string Expected() {
        std::string text = "one of";
        const char* separator = " ";
        for (const EnumName& entry : NamesOf<E>()) {
            text += separator + ("\"" + entry.name + "\"");
            separator = ", ";
        }
        return text;
    }
    static Json Write(E value) {
        for (const EnumName& entry : NamesOf<E>()) {
            if (entry.code == static_cast<int>(value)) {
                return entry.name;
            }
        }
        if constexpr (kHasReservedCodes<E>) {
            return static_cast<int>(value);
        }
        throw FieldError("the code " + std::to_string(static_cast<int>(value)) + " has no name");
    }
    static void Read(const Json& json, E& value) {
        if (json.is_string()) {
            for (const EnumName& entry : NamesOf<E>()) {
                if (entry.name == json.get_ref<const std::string&>()) {
                    value = static_cast<E>(entry.code);
                    return;
                }
            }
        }
        if constexpr (kHasReservedCodes<E>) {
            if (json.is_number_integer()) {
                int code = 0;
                Codec<int>::Read(json, code);
                value = static_cast<E>(code);
                return;
            }
        }
        Refuse(Expected());
    }
    static Json Schema() {
        Json names = Json::array();
        for (const EnumName& entry : NamesOf<E>()) {
            names.push_back(entry.name);
        }
        if constexpr (kHasReservedCodes<E>) {
            return {{"anyOf", {{{"enum", names}}, {{"type", "integer"}}}}};
        }
        return {{"enum", names}};
    }
};

/// A fixed number of values of one type.
template <class T, std::size_t N>
struct Codec<std::array<T, N>> {
    static std::string Expected() {
        return "a list of " + std::to_string(N) + " values, each " + Codec<T>::Expected();
    }
    static Json Write(const std::array<T, N>& values) {
        Json list = Json::array();
        for (std::size_t i = 0; i < values.size(); ++i) {
            list.push_back(At(i, [&] { return Codec<T>::Write(values[i]); }));
        }
        return list;
    }
    static void Read(const Json& json, std::array<T, N>& values) {
        if (!json.is_array() || json.size() != N) {
            Refuse(Expected());
        }
        for (std::size_t i = 0; i < N; ++i) {
            At(i, [&] { Codec<T>::Read(json[i], values[i]); });
        }
    }
    static Json Schema() {
        return {{"type", "array"}, {"items", Codec<T>::Schema()}, {"minItems", N}, {"maxItems", N}};
    }
};

template <class T>
struct Codec<std::vector<T>> {
    static std::string Expected() { return "a list, each item " + Codec<T>::Expected(); }
    static Json Write(const std::vector<T>& values) {
        Json list = Json::array();
        for (std::size_t i = 0; i < values.size(); ++i) {
            list.push_back(At(i, [&] { return Codec<T>::Write(values[i]); }));
        }
        return list;
    }
    static void Read(const Json& json, std::vector<T>& values) {
        if (!json.is_array()) {
            Refuse(Expected());
        }
        values.assign(json.size(), T{});
        for (std::size_t i = 0; i < values.size(); ++i) {
            At(i, [&] { Codec<T>::Read(json[i], values[i]); });
        }
    }
    static Json Schema() { return {{"type", "array"}, {"items", Codec<T>::Schema()}}; }
};

/// Types that stand for a list of numbers: `List` gives them as an array, `Value` makes them.
template <class T, std::size_t N>
struct NumbersCodec {
    using Numbers = std::array<double, N>;
    static std::string Expected() { return "a list of " + std::to_string(N) + " numbers"; }
    static Json Write(const T& value) { return Codec<Numbers>::Write(Codec<T>::List(value)); }
    static void Read(const Json& json, T& value) {
        if (!json.is_array() || json.size() != N) {
            Refuse(Expected());
        }
        Numbers numbers{};
        for (std::size_t i = 0; i < N; ++i) {
            At(i, [&] { Codec<double>::Read(json[i], numbers[i]); });
        }
        value = Codec<T>::Value(numbers);
    }
    static Json Schema() { return Codec<Numbers>::Schema(); }
};

template <>
struct Codec<Vec2<double>> : NumbersCodec<Vec2<double>, 2> {
    static Numbers List(const Vec2<double>& v) { return {v.x, v.y}; }
    static Vec2<double> Value(const Numbers& n) { return {n[0], n[1]}; }
};

template <>
struct Codec<Vec3<double>> : NumbersCodec<Vec3<double>, 3> {
    static Numbers List(const Vec3<double>& v) { return {v.x, v.y, v.z}; }
    static Vec3<double> Value(const Numbers& n) { return {n[0], n[1], n[2]}; }
};

template <>
struct Codec<TensSym3<double>> : NumbersCodec<TensSym3<double>, 6> {
    static Numbers List(const TensSym3<double>& t) { return {t.xx, t.yy, t.zz, t.xy, t.yz, t.zx}; }
    static TensSym3<double> Value(const Numbers& n) { return {n[0], n[1], n[2], n[3], n[4], n[5]}; }
};

/// Directions as a list of their names.
template <>
struct Codec<Vbool6> {
    static std::string Expected();
    static Json Write(Vbool6 value);
    static void Read(const Json& json, Vbool6& value);
    static Json Schema();
};

/// A list as its text when it is of the kind that its place expects, else an object of kind and
/// list.
template <>
struct Codec<CEntList> {
    static std::string Expected() { return "a list"; }
    static Json Write(const CEntList& value, SelType usual);
    static void Read(const Json& json, CEntList& value);
    static Json Schema();
};

template <>
struct Codec<CCaseDesc> {
    static std::string Expected() { return "a case description such as \"1.35L1 + 1.5L2\""; }
    static Json Write(const CCaseDesc& value) {
        return Codec<std::wstring>::Write(value.Description());
    }
    static void Read(const Json& json, CCaseDesc& value);
    static Json Schema() { return Codec<std::wstring>::Schema(); }
};

template <>
struct Codec<CCombCaseDesc> {
    static std::string Expected() { return "a combination such as \"1.35A1 + 1.5(A2 or A3)\""; }
    static Json Write(const CCombCaseDesc& value) {
        return Codec<std::wstring>::Write(value.Description());
    }
    static void Read(const Json& json, CCombCaseDesc& value);
    static Json Schema() { return Codec<std::wstring>::Schema(); }
};

/// RGB colour as "#rrggbb".
struct Colour {
    unsigned long value = 0;
    bool operator==(const Colour&) const = default;
};
template <>
struct Codec<Colour> {
    static std::string Expected() { return "a colour such as \"#ff8000\""; }
    static Json Write(Colour colour);
    static void Read(const Json& json, Colour& colour);
    static Json Schema() { return {{"type", "string"}, {"pattern", "^#[0-9a-fA-F]{6}$"}}; }
};

/// Nodes along a member: a list of numbers, or the text as it was typed.
struct Topology {
    std::wstring text;
    bool operator==(const Topology&) const = default;
};
template <>
struct Codec<Topology> {
    static std::string Expected() { return "a list of node numbers"; }
    static Json Write(const Topology& topology);
    static void Read(const Json& json, Topology& topology);
    static Json Schema();
};

}  // namespace Tevra::Document
