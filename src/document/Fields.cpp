#include "document/Fields.h"

#include <algorithm>

namespace Tevra::Document {

void WriteFields(Fields fields, const void* record, Json& object) {
    for (const Field& field : fields) {
        if (field.required || !field.isDefault(record)) {
            object[std::string(field.key)] = At(field.key, [&] { return field.write(record); });
        }
    }
}

void ReadFields(Fields fields, const Json& object, void* record, std::string_view known) {
    if (!object.is_object()) {
        Refuse("an object");
    }
    constexpr std::size_t kMostFields = 32;
    std::array<const Json*, kMostFields> given{};
    for (auto item = object.begin(); item != object.end(); ++item) {
        const auto field = std::find_if(fields.begin(), fields.end(),
                                        [&item](const Field& f) { return f.key == item.key(); });
        if (field != fields.end()) {
            given.at(static_cast<std::size_t>(field - fields.begin())) = &item.value();
        } else if (item.key() != known) {
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

Json ObjectSchema(Fields fields, const Json& extra) {
    Json properties = extra;
    Json required = Json::array();
    for (const auto& [key, value] : extra.items()) {
        required.push_back(key);
    }
    for (const Field& field : fields) {
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

}  // namespace Tevra::Document
