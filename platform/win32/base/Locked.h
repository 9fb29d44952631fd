#pragma once

#include <windows.h>

namespace kel::win32 {

/// Holds a lock as long as it lives; no other thread gets it meanwhile.
class Locked {
public:
    explicit Locked(SRWLOCK& lock) : Lock_(lock) { AcquireSRWLockExclusive(&Lock_); }
    ~Locked() { ReleaseSRWLockExclusive(&Lock_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    SRWLOCK& Lock_;
};

}  // namespace kel::win32
