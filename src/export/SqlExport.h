#pragma once

#include <string>

#include "export/VynExport.h"

namespace Tevra::Export {

/// Tables as SQL: a CREATE TABLE statement each, and an INSERT INTO statement for each record.
///
///     Export::CSqlExport exporter;
///     exporter.SetData(&model);
///     exporter.SetPath("job.sql");
///     const bool written = exporter.WriteTables();  // the tables in job/
///
/// The name of a table is quoted where it is declared and bare where records are inserted, and
/// texts are not escaped, as in the files that hosts read today.
class CSqlExport : public CVynExport {
public:
    CSqlExport() { SetExtension(".sql"); }

    void CreateTableStart(const std::string& name) override;
    void CreateTableEnd() override;
    void CreateField(const std::string& name, const SqlField& field, const std::string& table,
                     const std::string& tableField) override;
    void CreateField(const std::string& name, const SqlField& field, const char* table,
                     const char* tableField) override;
    void CreateField(const std::string& name, const SqlField& field, bool notNull,
                     bool primaryKey) override;
    void WriteRecordStart() override;
    void WriteRecordEnd() override;
    void WriteField(const std::string& text) override;
    /// Missing values carry their separators: a record must not begin with one.
    void WriteNull(int count) override;

private:
    void StartField(const std::string& name, const SqlField& field);
};

}  // namespace Tevra::Export
