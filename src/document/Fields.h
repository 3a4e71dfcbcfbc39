#pragma once

#include <array>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "document/Codec.h"

namespace Tevra::Document {

/// One key of a record: how it is written, read, and described. Keys at their default value are
/// not written; required ones always are, and must be given. The record is one of the type whose
/// table the field stands in; that the type is left out here spares the compiler a copy of all that
/// handles fields for each of them.
struct Field {
    std::string_view key;
    std::string_view meaning;
    Json (*write)(const void* record);
    void (*read)(const Json& value, void* record);
    bool (*isDefault)(const void* record);
    Json (*schema)();
    bool required = false;
};
using Fields = std::span<const Field>;

/// The keys of a record type, in document order; one table per type (Fields*.cpp).
template <class R>
Fields FieldsOf();

namespace Detail {

template <class R, auto Get>
using FieldType = std::remove_cvref_t<std::invoke_result_t<decltype(Get), const R&>>;

template <class R, auto Get>
const FieldType<R, Get>& DefaultOf() {
    static const FieldType<R, Get> kDefault = std::invoke(Get, R{});
    return kDefault;
}

template <class R, auto Get>
Json WriteField(const void* of) {
    const R& record = *static_cast<const R*>(of);
    if constexpr (std::is_same_v<FieldType<R, Get>, CEntList>) {
        return Codec<CEntList>::Write(std::invoke(Get, record), DefaultOf<R, Get>().TypeOf());
    } else {
        return Codec<FieldType<R, Get>>::Write(std::invoke(Get, record));
    }
}

template <class R, auto Get, auto Set>
void ReadField(const Json& json, void* of) {
    R& record = *static_cast<R*>(of);
    FieldType<R, Get> value = std::invoke(Get, std::as_const(record));
    Codec<FieldType<R, Get>>::Read(json, value);
    if constexpr (std::is_member_object_pointer_v<decltype(Set)>) {
        std::invoke(Set, record) = std::move(value);
    } else {
        std::invoke(Set, record, std::move(value));
    }
}

template <class R, auto Get>
bool IsDefault(const void* of) {
    return std::invoke(Get, *static_cast<const R*>(of)) == DefaultOf<R, Get>();
}

}  // namespace Detail

/// A key got and set by `Get` and `Set`: member functions, or functions of the record.
template <class R, auto Get, auto Set>
constexpr Field Key(std::string_view key, std::string_view meaning) {
    return {key,
            meaning,
            &Detail::WriteField<R, Get>,
            &Detail::ReadField<R, Get, Set>,
            &Detail::IsDefault<R, Get>,
            &Codec<Detail::FieldType<R, Get>>::Schema};
}

/// A key that is a plain data member.
template <class R, auto Member>
constexpr Field Key(std::string_view key, std::string_view meaning) {
    return Key<R, Member, Member>(key, meaning);
}

constexpr Field Required(Field field) {
    field.required = true;
    return field;
}

/// Fields of several tables, one after the other.
template <std::size_t A, std::size_t B>
constexpr std::array<Field, A + B> operator+(const std::array<Field, A>& a,
                                             const std::array<Field, B>& b) {
    std::array<Field, A + B> all{};
    for (std::size_t i = 0; i < A; ++i) {
        all[i] = a[i];
    }
    for (std::size_t i = 0; i < B; ++i) {
        all[A + i] = b[i];
    }
    return all;
}

/// Writes the fields of a record into an object.
void WriteFields(Fields fields, const void* record, Json& object);

/// Reads the fields of an object, in the order of the table (a field may depend on those before
/// it). The key `known`, if not empty, is read elsewhere.
void ReadFields(Fields fields, const Json& object, void* record, std::string_view known = {});

/// The schema of an object with these fields; `extra` are further properties, all required.
Json ObjectSchema(Fields fields, const Json& extra = Json::object());

/// Types with fields of their own are objects.
template <class T, class>
struct Codec {
    static std::string Expected() { return "an object"; }
    static Json Write(const T& value) {
        Json object = Json::object();
        WriteFields(FieldsOf<T>(), &value, object);
        return object;
    }
    static void Read(const Json& json, T& value) { ReadFields(FieldsOf<T>(), json, &value); }
    static Json Schema() { return ObjectSchema(FieldsOf<T>()); }
};

}  // namespace Tevra::Document
