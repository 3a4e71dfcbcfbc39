#include "document/SaxReader.h"

#include <limits>

#include "document/RecordFields.h"

namespace Tevra::Document {

namespace {

/// Records are flat; deeper nesting is not a document of ours.
constexpr std::size_t kDeepest = 32;
/// A row of results is an entity number and the figures of its positions.
constexpr std::size_t kLongestRow = 8192;

const ResultKindInfo* FindKind(const std::string& name, ResultKind& kind) {
    for (std::size_t i = 0; i < kResultKinds.size(); ++i) {
        if (name == kResultKinds[i].name) {
            kind = static_cast<ResultKind>(i);
            return &kResultKinds[i];
        }
    }
    return nullptr;
}

}  // namespace

bool SaxReader::Fail(const std::string& text) {
    m_error = text;
    return false;
}

template <class Action>
bool SaxReader::Guard(Action action) {
    try {
        action();
        return true;
    } catch (FieldError& error) {
        error.Prepend(Path());
        return Fail(error.Text());
    }
}

std::string SaxReader::Path() const {
    switch (m_place) {
        case Place::Section:
            return m_rootKey + "[" + std::to_string(m_index) + "]";
        case Place::Results:
            return "results[" + std::to_string(m_index) + "]";
        case Place::Case:
            return "results[" + std::to_string(m_index) + "]." + m_caseKey;
        case Place::Table:
        case Place::Row:
            return "results[" + std::to_string(m_index) + "]." + m_caseKey + "[" +
                   std::to_string(m_rowIndex) + "]";
        default:
            return m_rootKey.empty() ? "the document" : m_rootKey;
    }
}

bool SaxReader::start_object(std::size_t /*size*/) {
    if (!m_open.empty()) {
        return Open(Json::object());
    }
    switch (m_place) {
        case Place::Start:
            m_place = Place::Root;
            return true;
        case Place::Results:
            return OpenCase();
        case Place::Root:
        case Place::Section:
        case Place::Case:
            return Open(Json::object());
        default:
            return Guard([] { Refuse("a row: a list of an entity number and its figures"); });
    }
}

bool SaxReader::start_array(std::size_t /*size*/) {
    if (!m_open.empty()) {
        return Open(Json::array());
    }
    switch (m_place) {
        case Place::Start:
            return Guard([] { Refuse("an object"); });
        case Place::Root:
            if (m_rootKey == "results") {
                m_place = Place::Results;
                m_index = 0;
                return true;
            }
            m_section = FindSection(m_rootKey);
            if (m_section != nullptr) {
                m_place = Place::Section;
                m_index = 0;
                return true;
            }
            return Open(Json::array());
        case Place::Case:
            return OpenTable();
        case Place::Table:
            m_place = Place::Row;
            m_row.clear();
            return true;
        case Place::Section:
        case Place::Results:
            return Guard([] { Refuse("an object"); });
        default:
            return Guard([] { Refuse("a number"); });
    }
}

bool SaxReader::key(string_t& value) {
    if (!m_open.empty()) {
        m_key = std::move(value);
        if (m_open.back()->contains(m_key)) {
            return Guard([this] { throw FieldError("\"" + m_key + "\" is given twice"); });
        }
        return true;
    }
    if (m_place == Place::Case) {
        m_caseKey = std::move(value);
        return m_caseSeen.insert(m_caseKey).second ||
               Guard([] { throw FieldError("given twice"); });
    }
    m_rootKey = std::move(value);
    if (!m_seen.insert(m_rootKey).second) {
        return Guard([] { throw FieldError("given twice"); });
    }
    const bool known = m_rootKey == "version" || m_rootKey == "results" ||
                       FindBlock(m_rootKey) != nullptr || FindSection(m_rootKey) != nullptr;
    return known || Guard([] { throw FieldError("unknown key"); });
}

bool SaxReader::end_object() {
    if (!m_open.empty()) {
        return Close();
    }
    if (m_place == Place::Case) {
        m_place = Place::Results;
        if (m_case == nullptr) {
            return Guard([] { throw FieldError("the key \"case\" is missing"); });
        }
        ++m_index;
        return true;
    }
    return FinishRoot();
}

bool SaxReader::end_array() {
    if (!m_open.empty()) {
        return Close();
    }
    if (m_place == Place::Row) {
        return CloseRow();
    }
    m_place = m_place == Place::Table ? Place::Case : Place::Root;
    return true;
}

bool SaxReader::parse_error(std::size_t /*position*/, const std::string& /*token*/,
                            const nlohmann::detail::exception& failure) {
    // The library's text begins with a tag of its own, as "[json.exception.parse_error.101] ".
    const std::string text = failure.what();
    const std::size_t tag = text.find("] ");
    const std::string reason = tag == std::string::npos ? text : text.substr(tag + 2);
    // Broken text has its line; a number out of range has no place but that of the record.
    const bool hasPlace = reason.starts_with("parse error") || m_rootKey.empty();
    return Fail(hasPlace ? reason : Path() + ": " + reason);
}

bool SaxReader::Value(Json value) {
    if (!m_open.empty()) {
        Put(std::move(value));
        return true;
    }
    switch (m_place) {
        case Place::Start:
            return Guard([] { Refuse("an object"); });
        case Place::Row:
            if (value.is_null()) {
                return RowNumber(std::numeric_limits<double>::quiet_NaN(), false);
            }
            return Guard([] { Refuse("a number"); });
        case Place::Table:
            return Guard([] { Refuse("a row: a list of an entity number and its figures"); });
        default:
            return Gathered(std::move(value));
    }
}

bool SaxReader::Open(Json value) {
    if (m_open.size() == kDeepest) {
        return Guard([] { throw FieldError("nested too deep"); });
    }
    if (m_open.empty()) {
        m_gathered = std::move(value);
        m_open.push_back(&m_gathered);
        return true;
    }
    Put(std::move(value));
    Json& parent = *m_open.back();
    m_open.push_back(parent.is_object() ? &parent[m_key] : &parent.back());
    return true;
}

void SaxReader::Put(Json value) {
    Json& parent = *m_open.back();
    if (parent.is_object()) {
        parent[m_key] = std::move(value);
    } else {
        parent.push_back(std::move(value));
    }
}

bool SaxReader::Close() {
    m_open.pop_back();
    if (!m_open.empty()) {
        return true;
    }
    Json value;
    std::swap(value, m_gathered);
    return Gathered(std::move(value));
}

bool SaxReader::Gathered(Json value) {
    switch (m_place) {
        case Place::Section:
            if (!Guard([&] { m_section->read(value, m_model); })) {
                return false;
            }
            ++m_index;
            return true;
        case Place::Results:
            return Guard([] { Refuse("an object"); });
        case Place::Case:
            return Guard([&] { TakeCaseValue(value); });
        default:
            return Guard([&] { TakeRootValue(value); });
    }
}

void SaxReader::TakeRootValue(const Json& value) {
    if (m_rootKey == "version") {
        int version = 0;
        Codec<int>::Read(value, version);
        if (version != kDocumentVersion) {
            throw FieldError("version " + std::to_string(version) +
                             " can't be read; this program reads version " +
                             std::to_string(kDocumentVersion));
        }
    } else if (const Block* block = FindBlock(m_rootKey)) {
        block->read(value, m_model);
    } else {
        Refuse("a list");
    }
}

void SaxReader::TakeCaseValue(const Json& value) {
    if (m_caseKey == "case") {
        int number = 0;
        Codec<int>::Read(value, number);
        if (number < 1) {
            Refuse("a whole number from 1");
        }
        if (m_model.Results().Find(number) != nullptr) {
            throw FieldError("the results of case " + std::to_string(number) + " are given twice");
        }
        m_case = &m_model.EditResults().Edit(number);
    } else if (m_case == nullptr) {
        throw FieldError("the key \"case\" must come first");
    } else if (m_caseKey == "global") {
        Codec<GlobalResults>::Read(value, m_case->EditGlobal());
    } else {
        ResultKind kind{};
        if (FindKind(m_caseKey, kind) == nullptr) {
            throw FieldError("unknown key");
        }
        Refuse("a list of rows");
    }
}

bool SaxReader::OpenCase() {
    m_place = Place::Case;
    m_case = nullptr;
    m_caseKey.clear();
    m_caseSeen.clear();
    return true;
}

bool SaxReader::OpenTable() {
    ResultKind kind{};
    if (FindKind(m_caseKey, kind) == nullptr) {
        return Open(Json::array());
    }
    if (m_case == nullptr) {
        return Guard([] { throw FieldError("the key \"case\" must come first"); });
    }
    m_table = &m_case->Edit(kind);
    m_rowIndex = 0;
    m_place = Place::Table;
    return true;
}

bool SaxReader::RowNumber(double value, bool isWhole) {
    if (m_row.empty() && !(isWhole && value >= 1.0 && value <= 2147483647.0)) {
        return Guard([] { Refuse("an entity number first"); });
    }
    if (m_row.size() > kLongestRow) {
        return Guard([] { throw FieldError("too many figures"); });
    }
    m_row.push_back(value);
    return true;
}

bool SaxReader::CloseRow() {
    const auto components = static_cast<std::size_t>(m_table->Components());
    if (m_row.size() < 2 || (m_row.size() - 1) % components != 0) {
        return Guard([components] {
            Refuse("an entity number and a multiple of " + std::to_string(components) + " figures");
        });
    }
    const int entity = static_cast<int>(m_row.front());
    if (m_table->NumRow(entity) > 0) {
        return Guard([entity] { throw FieldError(std::to_string(entity) + " is given twice"); });
    }
    if (!m_table->HasRoomFor(entity)) {
        return Guard([entity] {
            throw FieldError(std::to_string(entity) + ": the numbers are too scattered");
        });
    }
    if (!m_table->Set(entity, std::span(m_row).subspan(1))) {
        return Guard([] { throw FieldError("too many figures"); });
    }
    ++m_rowIndex;
    m_place = Place::Table;
    return true;
}

bool SaxReader::FinishRoot() {
    m_place = Place::End;
    m_rootKey.clear();
    if (m_seen.count("version") == 0) {
        return Fail("the key \"version\" is missing: this is not a model document");
    }
    return true;
}

}  // namespace Tevra::Document
