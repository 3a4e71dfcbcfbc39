#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "document/Codec.h"
#include "document/Sections.h"

namespace Tevra::Document {

/// Takes the events of a JSON parser and fills a model as they come: values of blocks and single
/// records are gathered, handed over and forgotten; rows of results go straight to their table.
/// The first thing that is wrong stops the parser, with its path in `Error()`.
class SaxReader {
public:
    using number_integer_t = Json::number_integer_t;
    using number_unsigned_t = Json::number_unsigned_t;
    using number_float_t = Json::number_float_t;
    using string_t = Json::string_t;
    using binary_t = Json::binary_t;

    explicit SaxReader(CVynData& model) : m_model(model) {}

    const std::string& Error() const { return m_error; }

    // The parser's interface (its names, its signatures).
    bool null() { return Value(Json()); }
    bool boolean(bool value) { return Value(value); }
    bool number_integer(number_integer_t value) { return Number(value); }
    bool number_unsigned(number_unsigned_t value) { return Number(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) { return Number(value); }
    bool string(string_t& value) { return Value(std::move(value)); }
    bool binary(binary_t& /*value*/) { return false; }
    bool start_object(std::size_t /*size*/);
    bool key(string_t& value);
    bool end_object();
    bool start_array(std::size_t /*size*/);
    bool end_array();
    bool parse_error(std::size_t position, const std::string& token,
                     const nlohmann::detail::exception& failure);

private:
    /// Where the parser stands outside gathered values.
    enum class Place { Start, Root, Section, Results, Case, Table, Row, End };

    template <class N>
    bool Number(N value) {
        if (m_place == Place::Row && m_open.empty()) {
            return RowNumber(static_cast<double>(value), std::is_integral_v<N>);
        }
        return Value(value);
    }
    bool Value(Json value);
    bool RowNumber(double value, bool isWhole);
    bool Gathered(Json value);
    bool Open(Json value);
    bool Close();
    void Put(Json value);
    void TakeRootValue(const Json& value);
    void TakeCaseValue(const Json& value);
    bool OpenCase();
    bool OpenTable();
    bool CloseRow();
    bool FinishRoot();
    std::string Path() const;
    bool Fail(const std::string& text);
    template <class Action>
    bool Guard(Action action);

    CVynData& m_model;
    std::string m_error;
    Place m_place = Place::Start;
    std::unordered_set<std::string> m_seen;      ///< keys of the document so far
    std::unordered_set<std::string> m_caseSeen;  ///< keys of the current case of results
    std::string m_rootKey;
    std::string m_caseKey;
    const Section* m_section = nullptr;
    std::size_t m_index = 0;     ///< of the record in its section, or of the case in the results
    std::size_t m_rowIndex = 0;  ///< of the row in its table
    Json m_gathered;             ///< the value being gathered
    std::vector<Json*> m_open;   ///< its open objects and arrays
    std::string m_key;           ///< key of the next value in the innermost open object
    CaseResults* m_case = nullptr;
    ResultTable* m_table = nullptr;
    std::vector<double> m_row;
};

}  // namespace Tevra::Document
