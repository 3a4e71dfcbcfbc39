#pragma once

#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "export/SqlExport.h"

namespace Tevra::Export {

/// Lets tests at the private operations of an exporter.
struct VynExportAccess {
    static void SetFolder(CVynExport& exporter) { exporter.SetFolder(); }
    /// What a function makes of a pointer to SetFolder.
    template <auto Function>
    static auto AskOfSetFolder() {
        return Function(&CVynExport::SetFolder);
    }
    static std::vector<SCaseRef> ResultCases(CVynExport& exporter) {
        return exporter.ResultCases();
    }
    static int MapResults(CVynExport& exporter) { return exporter.MapResults(); }
    static void Summary(const CVynExport& exporter) { exporter.Summary(); }
    static std::string CaseRefString(const SCaseRef& ref) { return CVynExport::CaseRefString(ref); }
    static const std::wstring& Stem(const CVynExport& exporter) { return exporter.m_stem; }
    static std::vector<SCaseRef> ExpandCases(const CVynExport& exporter, const SCaseRef& ref) {
        return exporter.ExpandCases(ref);
    }
    static bool DisplacementExist(const CVynExport& e, const SCaseRef& ref, char option) {
        return e.DisplacementExist(ref, option);
    }
    static bool ForceExist(const CVynExport& e, const SCaseRef& ref, char option) {
        return e.ForceExist(ref, option);
    }
    static bool StressExist(const CVynExport& e, const SCaseRef& ref, char option) {
        return e.StressExist(ref, option);
    }
    template <class... Arguments>
    static void ResultAnalysis(CVynExport& exporter, Arguments&&... arguments) {
        exporter.ResultAnalysis(std::forward<Arguments>(arguments)...);
    }
};

/// SQL whose statements stay in memory.
class SqlInMemory : public CSqlExport {
public:
    std::string Take() { return std::exchange(m_statement, {}); }
    void WriteRecordEnd() override { m_statement += ");\n"; }
    void CreateTableEnd() override { m_statement += "\n);\n"; }
};

/// What is printed on standard output within its scope.
class CapturedOutput {
public:
    CapturedOutput() : m_former(std::cout.rdbuf(m_text.rdbuf())) {}
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    ~CapturedOutput() { std::cout.rdbuf(m_former); }
    std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_former;
};

}  // namespace Tevra::Export
