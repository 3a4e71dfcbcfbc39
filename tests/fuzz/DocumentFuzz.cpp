#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "document/ModelDocument.h"

// A document that reads is written and read again as the same model.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));  // NOLINT
    Tevra::CVynData model;
    std::string error;
    if (!Tevra::Document::ReadDocument(input, model, error)) {
        if (error.empty()) {
            std::abort();
        }
        return 0;
    }
    std::stringstream text;
    Tevra::CVynData again;
    if (!Tevra::Document::WriteDocument(model, text, error) ||
        !Tevra::Document::ReadDocument(text, again, error) || !(again == model)) {
        std::abort();
    }
    return 0;
}
