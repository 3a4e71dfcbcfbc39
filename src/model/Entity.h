#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "model/ValuePtr.h"

namespace Tevra::Data {

/// What every record may carry besides its values: the tagged identifier text that links it to
/// records of other programs, as "tag=value" items separated by ";".
class BaseEntity {
public:
    const std::wstring& Sid() const { return m_labels.Get().sid; }
    void SetSid(std::wstring sid) {
        if (!sid.empty() || m_labels.Exists()) {
            m_labels.Edit().sid = std::move(sid);
        }
    }
    bool operator==(const BaseEntity&) const = default;

protected:
    struct Labels {
        std::wstring name;
        std::wstring sid;
        bool operator==(const Labels&) const = default;
    };
    ValuePtr<Labels> m_labels;  ///< few of a million records are named
};

/// A record with a name and a colour.
class NamedEntity : public BaseEntity {
public:
    NamedEntity() = default;
    explicit NamedEntity(std::wstring name) { SetName(std::move(name)); }

    const std::wstring& Name() const { return m_labels.Get().name; }
    void SetName(std::wstring name) {
        if (!name.empty() || m_labels.Exists()) {
            m_labels.Edit().name = std::move(name);
        }
    }
    /// RGB colour: red in bits 0 to 7, green 8 to 15, blue 16 to 23.
    unsigned long Colour() const { return m_colour; }
    void SetColour(unsigned long colour) {
        m_colour = static_cast<std::uint32_t>(colour & 0xFFFFFF);
    }
    bool operator==(const NamedEntity&) const = default;

private:
    std::uint32_t m_colour = 0;
};

}  // namespace Tevra::Data
