#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <iterator>

#include "document/ModelDocument.h"
#include "document/SaxReader.h"

namespace Tevra::Document {

namespace {

/// Reads a stream in large pieces, a character at a time as the parser wants it.
class Source {
public:
    explicit Source(std::istream& input) : m_input(input) { Fill(); }
    bool AtEnd() const { return m_at == m_size; }
    char Character() const { return m_buffer[m_at]; }
    void Step() {
        if (++m_at == m_size) {
            Fill();
        }
    }

private:
    void Fill() {
        m_input.read(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
        m_size = static_cast<std::size_t>(m_input.gcount());
        m_at = 0;
    }
    std::istream& m_input;
    std::vector<char> m_buffer = std::vector<char>(std::size_t{1} << 18);
    std::size_t m_at = 0;
    std::size_t m_size = 0;
};

/// The iterator of a `Source`; one without a source is the end.
class SourceIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    SourceIterator() = default;
    explicit SourceIterator(Source& source) : m_source(&source) {}
    char operator*() const { return m_source->Character(); }
    SourceIterator& operator++() {
        m_source->Step();
        return *this;
    }
    SourceIterator operator++(int) {
        const SourceIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const SourceIterator& o) const { return AtEnd() == o.AtEnd(); }

private:
    bool AtEnd() const { return m_source == nullptr || m_source->AtEnd(); }
    Source* m_source = nullptr;
};

}  // namespace

bool ReadDocument(std::istream& input, CVynData& model, std::string& error) {
    CVynData fresh;
    SaxReader reader(fresh);
    Source source(input);
    if (source.AtEnd()) {
        error = input.bad() ? "can't be read" : "is empty";
        return false;
    }
    const bool read =
        Json::sax_parse(SourceIterator(source), SourceIterator(), &reader) && !input.bad();
    if (!read) {
        error = reader.Error().empty() ? "can't be read to its end" : reader.Error();
        return false;
    }
    model = std::move(fresh);
    return true;
}

bool ReadDocument(const std::filesystem::path& file, CVynData& model, std::string& error) {
    std::error_code status;
    if (std::filesystem::is_directory(file, status)) {
        error = "is a folder";
        return false;
    }
    std::ifstream input(file, std::ios::binary);
    if (!input) {
        error = std::strerror(errno);  // NOLINT(concurrency-mt-unsafe)
        return false;
    }
    return ReadDocument(input, model, error);
}

}  // namespace Tevra::Document
