#pragma once

#include <condition_variable>
#include <mutex>

namespace Tevra {

/// A lock with a time-out, which one owner holds at a time. It has no notion of threads: whoever
/// locks it again while it is held waits, the holder's own thread too, and may be released by
/// another thread.
class SyncObject {
public:
    SyncObject() = default;
    SyncObject(const SyncObject&) = delete;
    SyncObject& operator=(const SyncObject&) = delete;

    /// Waits until the object is free and takes it.
    void Lock();

    /// Takes the object if it becomes free within the time (at once when not above zero); false
    /// when it did not.
    bool Lock(int milliseconds);

    /// Frees the object; nothing happens when it is free.
    void Unlock();

private:
    std::mutex m_mutex;
    std::condition_variable m_freed;
    bool m_held = false;
};

/// Holds one synchronisation object at most once, and frees it at the end of its scope.
class CSingleLock {
public:
    /// Takes the object, waiting as long as needed, when `lockNow` is true.
    explicit CSingleLock(SyncObject& object, bool lockNow = false);
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;
    ~CSingleLock() { Unlock(); }

    /// Takes the object within the time; true at once when this lock holds it already.
    bool Lock(int milliseconds);
    void Unlock();
    bool IsLocked() const { return m_locked; }

private:
    SyncObject& m_object;
    bool m_locked = false;
};

/// Whether the object could be taken within the time; it is freed again at once.
bool ProbeLock(SyncObject& object, int milliseconds);

}  // namespace Tevra
