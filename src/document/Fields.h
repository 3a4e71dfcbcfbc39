#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "document/Codec.h"

namespace Tevra::Document {

/// One key of a record: how it is written, read, and described. Keys at their default value are
/// not written; required ones always are, and must be given.
template <class R>
struct Field {
    std::string_view key;
    std::string_view meaning;
    Json (*write)(const R&);
    void (*read)(const Json&, R&);
    bool (*isDefault)(const R&);
    Json (*schema)();
    bool required = false;
};

/// The keys of a record type, in document order; one table per type (Fields*.cpp).
template <class R>
std::span<const Field<R>> FieldsOf();

namespace Detail {

template <class R, auto Get>
using FieldType = std::remove_cvref_t<std::invoke_result_t<decltype(Get), const R&>>;

template <class R, auto Get>
const FieldType<R, Get>& DefaultOf() {
    static const FieldType<R, Get> kDefault = std::invoke(Get, R{});
    return kDefault;
}

template <class R, auto Get>
Json WriteField(const R& record) {
    if constexpr (std::is_same_v<FieldType<R, Get>, CEntList>) {
        return Codec<CEntList>::Write(std::invoke(Get, record), DefaultOf<R, Get>().TypeOf());
    } else {
        return Codec<FieldType<R, Get>>::Write(std::invoke(Get, record));
    }
}

template <class R, auto Get, auto Set>
void ReadField(const Json& json, R& record) {
    FieldType<R, Get> value = std::invoke(Get, std::as_const(record));
    Codec<FieldType<R, Get>>::Read(json, value);
    if constexpr (std::is_member_object_pointer_v<decltype(Set)>) {
        std::invoke(Set, record) = std::move(value);
    } else {
        std::invoke(Set, record, std::move(value));
    }
}

template <class R, auto Get>
bool IsDefault(const R& record) {
    return std::invoke(Get, record) == DefaultOf<R, Get>();
}

}  // namespace Detail

/// A key got and set by `Get` and `Set`: member functions, or functions of the record.
template <class R, auto Get, auto Set>
constexpr Field<R> Key(std::string_view key, std::string_view meaning) {
    return {key,
            meaning,
            &Detail::WriteField<R, Get>,
            &Detail::ReadField<R, Get, Set>,
            &Detail::IsDefault<R, Get>,
            &Codec<Detail::FieldType<R, Get>>::Schema};
}

/// A key that is a plain data member.
template <class R, auto Member>
constexpr Field<R> Key(std::string_view key, std::string_view meaning) {
    return Key<R, Member, Member>(key, meaning);
}

template <class R>
constexpr Field<R> Required(Field<R> field) {
    field.required = true;
    return field;
}

/// Fields of several tables, one after the other.
template <class R, std::size_t A, std::size_t B>
constexpr std::array<Field<R>, A + B> operator+(const std::array<Field<R>, A>& a,
                                                const std::array<Field<R>, B>& b) {
    std::array<Field<R>, A + B> all{};
    for (std::size_t i = 0; i < A; ++i) {
        all[i] = a[i];
    }
    for (std::size_t i = 0; i < B; ++i) {
        all[A + i] = b[i];
    }
    return all;
}

/// Writes the fields of a record into an object.
template <class R>
void WriteFields(const R& record, Json& object) {
    for (const Field<R>& field : FieldsOf<R>()) {
        if (field.required || !field.isDefault(record)) {
            object[std::string(field.key)] = At(field.key, [&] { return field.write(record); });
        }
    }
}

/// Reads the fields of an object, in the order of the table (a field may depend on those before
/// it); `known` tells of keys that are read elsewhere.
template <class R, class Known>
void ReadFields(const Json& object, R& record, Known known) {
    if (!object.is_object()) {
        Refuse("an object");
    }
    constexpr std::size_t kMostFields = 32;
    std::array<const Json*, kMostFields> given{};
    const std::span<const Field<R>> fields = FieldsOf<R>();
    for (auto item = object.begin(); item != object.end(); ++item) {
        const auto field = std::find_if(fields.begin(), fields.end(),
                                        [&item](const Field<R>& f) { return f.key == item.key(); });
        if (field != fields.end()) {
            given.at(static_cast<std::size_t>(field - fields.begin())) = &item.value();
        } else if (!known(item.key())) {
            At(item.key(), []() -> void { throw FieldError("unknown key"); });
        }
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (given[i] != nullptr) {
            At(fields[i].key, [&] { fields[i].read(*given[i], record); });
        } else if (fields[i].required) {
            At(fields[i].key, []() -> void { throw FieldError("missing"); });
        }
    }
}

/// The schema of an object with the fields of `R`; `extra` are further properties, all required.
template <class R>
Json ObjectSchema(const Json& extra = Json::object()) {
    Json properties = extra;
    Json required = Json::array();
    for (const auto& [key, value] : extra.items()) {
        required.push_back(key);
    }
    for (const Field<R>& field : FieldsOf<R>()) {
        const std::string key(field.key);
        properties[key] = field.schema();
        properties[key]["description"] = field.meaning;
        if (field.required) {
            required.push_back(key);
        }
    }
    Json schema = {{"type", "object"}, {"additionalProperties", false}, {"properties", properties}};
    if (!required.empty()) {
        schema["required"] = required;
    }
    return schema;
}

/// Types with fields of their own are objects.
template <class T, class>
struct Codec {
    static std::string Expected() { return "an object"; }
    static Json Write(const T& value) {
        Json object = Json::object();
        WriteFields(value, object);
        return object;
    }
    static void Read(const Json& json, T& value) {
        ReadFields(json, value, [](const std::string&) { return false; });
    }
    static Json Schema() { return ObjectSchema<T>(); }
};

}  // namespace Tevra::Document
