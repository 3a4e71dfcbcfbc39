#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace Tevra::Export {

/// A database in memory.
class Database {
public:
    Database();

    /// Runs one statement; what the database has against it, empty when nothing.
    std::string Execute(const std::string& statement);

    using Value = std::optional<double>;  ///< nothing for NULL
    /// The rows of a query of numbers.
    std::vector<std::vector<Value>> Numbers(const std::string& query);
    /// The rows of a query of texts, NULL as "NULL", columns separated by "|".
    std::vector<std::string> Texts(const std::string& query);
    /// The one number of a query.
    double Number(const std::string& query);

private:
    using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;
    Statement Prepare(const std::string& query);
    void ForEachRow(const std::string& query, const std::function<void(sqlite3_stmt*)>& visit);

    std::unique_ptr<sqlite3, int (*)(sqlite3*)> m_database;
};

/// The statements of a file, each with its ";".
std::vector<std::string> StatementsOf(const std::string& file);

}  // namespace Tevra::Export
