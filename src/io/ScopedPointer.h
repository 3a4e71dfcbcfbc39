#pragma once

namespace Tevra {

/// Sets a pointer for the time of a scope; behind that it is null.
template <class T>
class ScopedPointer {
public:
    ScopedPointer(T*& place, T& object) : m_place(place) { place = &object; }
    ScopedPointer(const ScopedPointer&) = delete;
    ScopedPointer& operator=(const ScopedPointer&) = delete;
    ~ScopedPointer() { m_place = nullptr; }

private:
    T*& m_place;
};

}  // namespace Tevra
