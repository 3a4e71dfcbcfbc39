#include "export/SqlField.h"

#include <stdexcept>

namespace Tevra::Export {

std::string SqlField::String() const {
    switch (type) {
        case SqlType::Integer:
            return "INTEGER";
        case SqlType::Real:
            return "REAL";
        case SqlType::Text:
            return "VARCHAR(" + std::to_string(size) + ")";
        case SqlType::Boolean:
            return "BOOLEAN";
    }
    throw std::runtime_error("invalid field type");
}

}  // namespace Tevra::Export
