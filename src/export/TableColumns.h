#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "export/VynExport.h"

/// A table as one list of columns. Each entry says how its column, or group of columns, is declared
/// and how its value is got from a row, so that the declaration and the records agree.
namespace Tevra::Export {

/// What holds for a column besides its type.
struct Rule {
    bool notNull = false;
    bool primaryKey = false;
    const char* table = nullptr;  ///< the table that it refers to
    const char* field = nullptr;
    bool (*refersIn)(const CVynData& model) = nullptr;  ///< null: in every model
};

inline constexpr Rule kNoRule{};
inline constexpr Rule kNotNull{.notNull = true};
inline constexpr Rule kKey{.notNull = true, .primaryKey = true};
inline constexpr Rule kRefersToNode{.table = "node", .field = "node"};

/// A colour as a value of a column.
struct Colour {
    unsigned long value;
};
/// The number of a permutation as a value of a column, not written when it is below 1.
struct PermutationNumber {
    int value;
};

template <class Row>
class Column;

/// How values of a C++ type are declared and written. Groups take the names of their columns from
/// the name of the group.
template <class Value>
struct ColumnType;

/// Types of one column, which rules may hold for.
template <class Value>
concept SingleColumn = requires {
    ColumnType<Value>::kField;
};

template <>
struct ColumnType<int> {
    static constexpr SqlField kField = kIntegerField;
    static void Write(CVynExport& out, int value) { out.WriteInt(value); }
};
template <>
struct ColumnType<double> {
    static constexpr SqlField kField = kRealField;
    static void Write(CVynExport& out, double value) { out.WriteDouble(value); }
};
template <>
struct ColumnType<bool> {
    static constexpr SqlField kField = kBooleanField;
    static void Write(CVynExport& out, bool value) { out.WriteBool(value); }
};
template <>
struct ColumnType<std::wstring_view> {
    static constexpr SqlField kField = TextField(0);
    static void Write(CVynExport& out, std::wstring_view text) { out.WriteWide(text); }
};
template <>
struct ColumnType<std::wstring> : ColumnType<std::wstring_view> {};
template <>
struct ColumnType<std::string> {
    static constexpr SqlField kField = TextField(0);
    static void Write(CVynExport& out, const std::string& text) { out.WriteString(text); }
};
template <>
struct ColumnType<Colour> {
    static constexpr SqlField kField = TextField(10);
    static void Write(CVynExport& out, Colour colour) { out.WriteColour(colour.value); }
};
template <>
struct ColumnType<PermutationNumber> {
    static constexpr SqlField kField = kIntegerField;
    static void Write(CVynExport& out, PermutationNumber number) {
        out.WritePermutation(number.value);
    }
};
/// A value that may be missing.
template <class Value>
struct ColumnType<std::optional<Value>> {
    static constexpr SqlField kField = ColumnType<Value>::kField;
    static void Write(CVynExport& out, const std::optional<Value>& value) {
        if (value) {
            ColumnType<Value>::Write(out, *value);
        } else {
            out.WriteNull(1);
        }
    }
};
/// Three real columns without permutations.
template <>
struct ColumnType<Vec3<double>> {
    static void Declare(CVynExport& out, const std::string& name) {
        for (const char* const direction : {"_x", "_y", "_z"}) {
            out.CreateField(name + direction, kRealField, false, false);
        }
    }
    static void Write(CVynExport& out, const Vec3<double>& value) { out.WriteVector3(value); }
};
template <>
struct ColumnType<SCaseRef> {
    static void Declare(CVynExport& out, const std::string& name) {
        out.CreateField(name + "_type", TextField(12), false, false);
        out.CreateField(name + "_number", kIntegerField, false, false);
    }
    static void Write(CVynExport& out, const SCaseRef& ref) { out.WriteCase(ref); }
};
template <>
struct ColumnType<Vector2> {
    static void Declare(CVynExport& out, const std::string& name) { out.CreateVector2Fields(name); }
    static void Write(CVynExport& out, const Vector2& value) { out.WriteVector2(value); }
};
template <>
struct ColumnType<Vector3> {
    static void Declare(CVynExport& out, const std::string& name) {
        out.CreateVector3Fields(name, false);
    }
    static void Write(CVynExport& out, const Vector3& value) { out.WriteVector3(value); }
};
template <>
struct ColumnType<Vector6> {
    static void Declare(CVynExport& out, const std::string& name) {
        out.CreateVector3Fields(name, true);
    }
    static void Write(CVynExport& out, const Vector6& value) {
        out.WriteVector3(value.translation);
        out.WriteVector3(value.rotation);
    }
};
template <>
struct ColumnType<Tensor2> {
    static void Declare(CVynExport& out, const std::string& name) { out.CreateTensor2Fields(name); }
    static void Write(CVynExport& out, const Tensor2& value) { out.WriteTensor2(value); }
};
template <>
struct ColumnType<Tensor3> {
    static void Declare(CVynExport& out, const std::string& name) { out.CreateTensor3Fields(name); }
    static void Write(CVynExport& out, const Tensor3& value) { out.WriteTensor3(value); }
};

/// A column, or a group of them, of tables with rows of a type. `get(row)`, without captures, gives
/// its value.
template <class Row>
class Column {
public:
    template <class Get>
    constexpr Column(const char* name, Get get, const Rule& rule = kNoRule)
        : Column(name, 0, get, rule) {}
    /// A text of at most `size` characters; 0 where the type of the value says the size.
    template <class Get>
    constexpr Column(const char* name, int size, Get /*get*/, const Rule& rule = kNoRule)
        : m_name(name),
          m_size(size),
          m_rule(rule),
          m_declare(&DeclareAs<ValueOf<Get>>),
          m_write(&WriteBy<Get>) {}

    void Declare(CVynExport& out) const { m_declare(out, *this); }
    void Write(CVynExport& out, const Row& row) const { m_write(out, row); }

private:
    template <class Get>
    using ValueOf = std::remove_cvref_t<std::invoke_result_t<Get, const Row&>>;

    template <class Value>
    static void DeclareAs(CVynExport& out, const Column& column) {
        if constexpr (SingleColumn<Value>) {
            column.DeclareField(out, ColumnType<Value>::kField);
        } else {
            ColumnType<Value>::Declare(out, column.m_name);
        }
    }
    void DeclareField(CVynExport& out, SqlField field) const {
        field.size = m_size != 0 ? m_size : field.size;
        const bool refers =
            m_rule.table != nullptr && (m_rule.refersIn == nullptr || m_rule.refersIn(*out.Data()));
        if (refers) {
            out.CreateField(m_name, field, m_rule.table, m_rule.field);
        } else {
            out.CreateField(m_name, field, m_rule.notNull, m_rule.primaryKey);
        }
    }
    template <class Get>
    static void WriteBy(CVynExport& out, const Row& row) {
        ColumnType<ValueOf<Get>>::Write(out, Get{}(row));
    }

    const char* m_name;
    int m_size;
    Rule m_rule;
    void (*m_declare)(CVynExport& out, const Column& column);
    void (*m_write)(CVynExport& out, const Row& row);
};

template <class Row>
void DeclareTable(CVynExport& out, const std::string& name, std::span<const Column<Row>> columns) {
    out.CreateTableStart(name);
    for (const Column<Row>& column : columns) {
        column.Declare(out);
    }
    out.CreateTableEnd();
}

template <class Row>
void WriteRecord(CVynExport& out, std::span<const Column<Row>> columns, const Row& row) {
    out.WriteRecordStart();
    for (const Column<Row>& column : columns) {
        column.Write(out, row);
    }
    out.WriteRecordEnd();
}

/// A table in its file: false when the model is missing or busy. `forEach(visit)` calls visit(row)
/// for each row.
template <class Row, std::size_t N, class ForEach>
bool WriteTable(CVynExport& out, const char* name, const Column<Row> (&columns)[N],
                ForEach forEach) {
    if (out.Data() == nullptr || !out.OpenFile(name)) {
        return false;
    }
    DeclareTable(out, name, std::span<const Column<Row>>(columns));
    forEach([&](const Row& row) { WriteRecord(out, std::span<const Column<Row>>(columns), row); });
    return out.CloseFile();
}

/// A numbered record of the model as a row.
template <class Record>
struct RecordRow {
    int number;
    const Record& record;
    const CVynData& model;
    const CVynExport& from;
};

/// A table with a row for each numbered record, ascending.
template <class Record, std::size_t N>
bool WriteRecords(CVynExport& out, const char* name, const Column<RecordRow<Record>> (&columns)[N],
                  const NumberedTable<Record>& (CModelData::*table)() const) {
    return WriteTable(out, name, columns, [&](auto visit) {
        const CVynData& model = *out.Data();
        const NumberedTable<Record>& records = (model.*table)();
        for (const int number : records.Numbers()) {
            visit(RecordRow<Record>{number, records.Get(number), model, out});
        }
    });
}

}  // namespace Tevra::Export
