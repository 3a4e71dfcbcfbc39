#pragma once

#include <string>

namespace Tevra::Export {

/// Types of columns.
enum class SqlType : int { Integer = 0, Real = 1, Text = 2, Boolean = 3 };

/// Type of a column, of texts with their greatest length.
struct SqlField {
    constexpr SqlField(SqlType fieldType, int textSize) : type(fieldType), size(textSize) {}

    /// The type as SQL has it, for example "VARCHAR(32)". A type that is none of the enumeration
    /// raises a runtime error.
    std::string String() const;

    SqlType type;
    int size;  ///< of a text, characters; without meaning for the other types
};

inline constexpr SqlField kIntegerField{SqlType::Integer, 0};
inline constexpr SqlField kRealField{SqlType::Real, 0};
inline constexpr SqlField kBooleanField{SqlType::Boolean, 0};
constexpr SqlField TextField(int size) {
    return {SqlType::Text, size};
}

}  // namespace Tevra::Export
