#include "export/Database.h"

#include <stdexcept>

namespace Tevra::Export {

Database::Database() : m_database(nullptr, &sqlite3_close) {
    sqlite3* opened = nullptr;
    const int status = sqlite3_open(":memory:", &opened);
    m_database.reset(opened);
    if (status != SQLITE_OK) {
        throw std::runtime_error("no database");
    }
    Execute("PRAGMA foreign_keys = ON;");
}

std::string Database::Execute(const std::string& statement) {
    char* message = nullptr;
    sqlite3_exec(m_database.get(), statement.c_str(), nullptr, nullptr, &message);
    std::string text = message != nullptr ? message : "";
    sqlite3_free(message);
    return text;
}

Database::Statement Database::Prepare(const std::string& query) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), query.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        throw std::runtime_error(query + ": " + sqlite3_errmsg(m_database.get()));
    }
    return {prepared, &sqlite3_finalize};
}

void Database::ForEachRow(const std::string& query,
                          const std::function<void(sqlite3_stmt*)>& visit) {
    const Statement statement = Prepare(query);
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        visit(statement.get());
    }
}

std::vector<std::vector<Database::Value>> Database::Numbers(const std::string& query) {
    std::vector<std::vector<Value>> rows;
    ForEachRow(query, [&rows](sqlite3_stmt* row) {
        std::vector<Value>& values = rows.emplace_back();
        for (int i = 0; i < sqlite3_column_count(row); ++i) {
            const bool isNull = sqlite3_column_type(row, i) == SQLITE_NULL;
            values.push_back(isNull ? Value() : Value(sqlite3_column_double(row, i)));
        }
    });
    return rows;
}

std::vector<std::string> Database::Texts(const std::string& query) {
    std::vector<std::string> rows;
    ForEachRow(query, [&rows](sqlite3_stmt* row) {
        std::string& text = rows.emplace_back();
        for (int i = 0; i < sqlite3_column_count(row); ++i) {
            const unsigned char* const value = sqlite3_column_text(row, i);
            text += i > 0 ? "|" : "";
            text += value != nullptr ? reinterpret_cast<const char*>(value) : "NULL";
        }
    });
    return rows;
}

double Database::Number(const std::string& query) {
    const auto rows = Numbers(query);
    if (rows.size() != 1 || rows[0].size() != 1 || !rows[0][0]) {
        throw std::runtime_error(query + ": not one number");
    }
    return *rows[0][0];
}

std::vector<std::string> StatementsOf(const std::string& file) {
    std::vector<std::string> statements;
    std::size_t begin = 0;
    for (std::size_t end = file.find(";\n"); end != std::string::npos;
         end = file.find(";\n", begin)) {
        statements.push_back(file.substr(begin, end + 1 - begin));
        begin = end + 2;
    }
    return statements;
}

}  // namespace Tevra::Export
