#pragma once

#include <string>
#include <string_view>

namespace Tevra {

/// Takes the comma-separated fields of a record line, left to right. The first field that is
/// missing or can't be read makes the record bad; what is taken from a bad record is empty or 0.
class QuorlFields {
public:
    explicit QuorlFields(std::string_view line) : m_rest(line) {}

    /// Text in which a backslash stands before a comma or a backslash, and "\n" and "\r" are line
    /// ends.
    std::wstring Text();
    /// Any whole number. Numbers of records that are referred to are not held against anything
    /// here: those that name none are for the reader to warn of.
    int Int();
    /// A count of what follows: 0 or more.
    int Count();
    /// The number of a record: 1 or more.
    int Number();
    /// A finite number.
    double Real();
    bool Flag();

    bool Good() const { return m_good; }
    /// Whether nothing is left.
    bool AtEnd() const { return m_atEnd; }
    void Spoil() { m_good = false; }

private:
    std::string_view Next();
    int IntFrom(int least);

    std::string_view m_rest;
    bool m_atEnd = false;
    bool m_good = true;
};

/// Builds record lines.
class QuorlText {
public:
    void Text(std::wstring_view text);
    void Int(int value);
    void Real(double value);
    void Flag(bool value) { Int(value ? 1 : 0); }
    /// A word of the format itself, as it is.
    void Word(std::string_view word);
    void EndLine();

    const std::string& Lines() const { return m_lines; }
    void Clear() { m_lines.clear(); }
    /// Whether every number was finite; others can't be read back.
    bool Good() const { return m_good; }

private:
    void StartField();

    std::string m_lines;
    bool m_isFirst = true;
    bool m_good = true;
};

}  // namespace Tevra
