#include <cmath>
#include <ostream>

#include "document/ModelDocument.h"
#include "document/RecordFields.h"
#include "document/Sections.h"

namespace Tevra::Document {

namespace {

/// Gathers the text of a document and hands it to the stream in large pieces.
class Writer {
public:
    explicit Writer(std::ostream& output) : m_output(output) {
        m_text.reserve(kChunk + kChunk / 4);
    }

    /// Begins the value of a key of the document.
    void Key(std::string_view key) {
        m_text += m_first ? "{\n\"" : ",\n\"";
        m_first = false;
        m_text += key;
        m_text += "\": ";
    }
    void Append(std::string_view text) {
        m_text += text;
        if (m_text.size() >= kChunk) {
            Hand();
        }
    }
    void Value(const Json& value) { Append(value.dump()); }
    bool Finish() {
        Append("\n}\n");
        Hand();
        m_output.flush();
        return m_output.good();
    }

private:
    static constexpr std::size_t kChunk = std::size_t{1} << 18;
    void Hand() {
        if (m_output.good()) {
            m_output.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
        }
        m_text.clear();
    }

    std::ostream& m_output;
    std::string m_text;
    bool m_first = true;
};

/// Items of a list, each on a line of its own.
class Lines {
public:
    explicit Lines(Writer& writer) : m_writer(writer) { m_writer.Append("["); }
    void Item(const Json& value) {
        Next();
        m_writer.Value(value);
    }
    void Next() {
        m_writer.Append(m_first ? "\n" : ",\n");
        m_first = false;
    }
    void End() { m_writer.Append("\n]"); }

private:
    Writer& m_writer;
    bool m_first = true;
};

void WriteTable(Writer& writer, const ResultTable& table) {
    Lines lines(writer);
    for (const int entity : table.Entities()) {
        Json row = Json::array({entity});
        for (int position = 0; position < table.NumRow(entity); ++position) {
            const double* values = table.Row(entity, position);
            for (int i = 0; i < table.Components(); ++i) {
                if (std::isinf(values[i])) {
                    throw FieldError("the result of " + std::to_string(entity) + " is infinite");
                }
                row.push_back(std::isnan(values[i]) ? Json() : Json(values[i]));
            }
        }
        lines.Item(row);
    }
    lines.End();
}

void WriteCase(Writer& writer, int number, const CaseResults& results) {
    writer.Append("{\"case\": " + std::to_string(number));
    const Json global = Codec<GlobalResults>::Write(results.Global());
    if (!global.empty()) {
        writer.Append(",\n\"global\": ");
        writer.Value(global);
    }
    for (int kind = 0; kind < kNumResultKind; ++kind) {
        const ResultTable* table = results.Find(static_cast<ResultKind>(kind));
        if (table != nullptr && table->NumEntity() > 0) {
            const std::string name = InfoOf(static_cast<ResultKind>(kind)).name;
            writer.Append(",\n\"" + name + "\": ");
            At(name, [&] { WriteTable(writer, *table); });
        }
    }
    writer.Append("}");
}

void WriteAll(Writer& writer, const CVynData& model) {
    writer.Key("version");
    writer.Append(std::to_string(kDocumentVersion));
    for (const Block& block : Blocks()) {
        const Json value = At(block.key, [&] { return block.write(model); });
        if (!value.is_null()) {
            writer.Key(block.key);
            writer.Value(value);
        }
    }
    for (const Section& section : Sections()) {
        if (section.count(model) > 0) {
            writer.Key(section.key);
            Lines lines(writer);
            section.write(model, [&lines](const Json& record) { lines.Item(record); });
            lines.End();
        }
    }
    if (!model.Results().Cases().empty()) {
        writer.Key("results");
        Lines lines(writer);
        for (const auto& [number, results] : model.Results().Cases()) {
            lines.Next();
            At("results of case " + std::to_string(number),
               [&, n = number, &r = results] { WriteCase(writer, n, r); });
        }
        lines.End();
    }
}

}  // namespace

bool WriteDocument(const CVynData& model, std::ostream& output, std::string& error) {
    try {
        Writer writer(output);
        WriteAll(writer, model);
        if (writer.Finish()) {
            return true;
        }
        error = "the document can't be written to the end";
    } catch (const FieldError& failure) {
        error = failure.Text();
    }
    return false;
}

}  // namespace Tevra::Document
