#include "export/SqlExport.h"

namespace Tevra::Export {

void CSqlExport::CreateTableStart(const std::string& name) {
    m_statement += "CREATE TABLE '";
    m_statement += name;
    m_statement += "'\n(";
    m_numField = 0;
    m_tableName = name;
}

void CSqlExport::StartField(const std::string& name, const SqlField& field) {
    if (m_numField > 0) {
        m_statement += ',';
    }
    m_statement += "\n  ";
    m_statement += name;
    m_statement += ' ';
    m_statement += field.String();
    ++m_numField;
}

void CSqlExport::CreateField(const std::string& name, const SqlField& field, bool notNull,
                             bool primaryKey) {
    StartField(name, field);
    if (notNull) {
        m_statement += " NOT NULL";
    }
    if (primaryKey) {
        m_statement += " PRIMARY KEY";
    }
}

void CSqlExport::CreateField(const std::string& name, const SqlField& field,
                             const std::string& table, const std::string& tableField) {
    StartField(name, field);
    m_statement += " REFERENCES ";
    m_statement += table;
    m_statement += '(';
    m_statement += tableField;
    m_statement += ')';
}

void CSqlExport::CreateField(const std::string& name, const SqlField& field, const char* table,
                             const char* tableField) {
    CreateField(name, field, std::string(table), std::string(tableField));
}

void CSqlExport::CreateTableEnd() {
    m_statement += "\n);\n";
    FlushStatement();
}

void CSqlExport::WriteRecordStart() {
    m_statement += "INSERT INTO ";
    m_statement += m_tableName;
    m_statement += " VALUES(";
    m_numValue = 0;
}

void CSqlExport::WriteRecordEnd() {
    m_statement += ");\n";
    FlushStatement();
}

void CSqlExport::WriteField(const std::string& text) {
    if (m_numValue > 0) {
        m_statement += ", ";
    }
    m_statement += text;
    ++m_numValue;
}

void CSqlExport::WriteNull(int count) {
    for (int i = 0; i < count; ++i) {
        m_statement += ", NULL";
    }
}

}  // namespace Tevra::Export
