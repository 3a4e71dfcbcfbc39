#pragma once

#include <memory>
#include <utility>

namespace Tevra {

/// Data that most records of a kind do not have: costs one pointer while it is at its default and
/// is copied and compared by value like a plain member.
template <class T>
class ValuePtr {
public:
    ValuePtr() = default;
    ValuePtr(const ValuePtr& o) : m_value(o.m_value ? std::make_unique<T>(*o.m_value) : nullptr) {}
    ValuePtr(ValuePtr&&) noexcept = default;
    ~ValuePtr() = default;
    ValuePtr& operator=(const ValuePtr& o) {
        if (this != &o) {
            m_value = o.m_value ? std::make_unique<T>(*o.m_value) : nullptr;
        }
        return *this;
    }
    ValuePtr& operator=(ValuePtr&&) noexcept = default;

    /// The value, or a default one that all records share.
    const T& Get() const {
        static const T kDefault{};
        return m_value ? *m_value : kDefault;
    }

    /// The value for writing; made when it does not exist yet.
    T& Edit() {
        if (!m_value) {
            m_value = std::make_unique<T>();
        }
        return *m_value;
    }

    bool Exists() const { return m_value != nullptr; }
    void Reset() { m_value.reset(); }

    bool operator==(const ValuePtr& o) const { return Get() == o.Get(); }

private:
    std::unique_ptr<T> m_value;
};

}  // namespace Tevra
