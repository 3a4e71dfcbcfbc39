#include "document/ModelDocument.h"
#include "document/RecordFields.h"
#include "document/Sections.h"

namespace Tevra::Document {

namespace {

Json ResultsSchema() {
    Json properties = {{"case", {{"type", "integer"}, {"minimum", 1}, {"maximum", 2147483647}}},
                       {"global", Codec<GlobalResults>::Schema()}};
    for (const ResultKindInfo& kind : kResultKinds) {
        properties[kind.name] = {
            {"description", "Rows of an entity number and " + std::to_string(kind.components) +
                                " figures per position, null where there is none"},
            {"type", "array"},
            {"items",
             {{"type", "array"}, {"items", {{"type", {"number", "null"}}}}, {"minItems", 2}}}};
    }
    const Json oneCase = {{"type", "object"},
                          {"additionalProperties", false},
                          {"properties", properties},
                          {"required", Json::array({"case"})}};
    return {{"description", "Results by analysis case"}, {"type", "array"}, {"items", oneCase}};
}

}  // namespace

std::string DocumentSchema() {
    Json properties = {{"version", {{"const", kDocumentVersion}}}};
    for (const Block& block : Blocks()) {
        const std::string key(block.key);
        properties[key] = block.schema();
        properties[key]["description"] = block.meaning;
    }
    for (const Section& section : Sections()) {
        properties[std::string(section.key)] = {{"type", "array"}, {"items", section.schema()}};
    }
    properties["results"] = ResultsSchema();
    const Json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"},
                         {"title", "Vyn model document"},
                         {"type", "object"},
                         {"additionalProperties", false},
                         {"properties", properties},
                         {"required", Json::array({"version"})}};
    return schema.dump(1) + "\n";
}

}  // namespace Tevra::Document
