#include "platform/ui/Sync.h"

#include <algorithm>
#include <chrono>

namespace Tevra {

void SyncObject::Lock() {
    std::unique_lock guard(m_mutex);
    m_freed.wait(guard, [this] { return !m_held; });
    m_held = true;
}

bool SyncObject::Lock(int milliseconds) {
    std::unique_lock guard(m_mutex);
    const std::chrono::milliseconds time(std::max(milliseconds, 0));
    if (!m_freed.wait_for(guard, time, [this] { return !m_held; })) {
        return false;
    }
    m_held = true;
    return true;
}

void SyncObject::Unlock() {
    const std::lock_guard guard(m_mutex);
    m_held = false;
    m_freed.notify_one();
}

CSingleLock::CSingleLock(SyncObject& object, bool lockNow) : m_object(object) {
    if (lockNow) {
        m_object.Lock();
        m_locked = true;
    }
}

bool CSingleLock::Lock(int milliseconds) {
    m_locked = m_locked || m_object.Lock(milliseconds);
    return m_locked;
}

void CSingleLock::Unlock() {
    if (m_locked) {
        m_locked = false;
        m_object.Unlock();
    }
}

bool ProbeLock(SyncObject& object, int milliseconds) {
    CSingleLock lock(object);
    return lock.Lock(milliseconds);
}

}  // namespace Tevra
