// Scoped lock over a lock that its owner thread may enter again.
#pragma once

#include <mutex>

using CriticalSection = std::recursive_mutex;

class CCriticalSection
{
public:
    explicit CCriticalSection(CriticalSection* section) : Section(section)
    {
        if (Section)
        {
            Section->lock();
        }
    }
    ~CCriticalSection()
    {
        if (Section)
        {
            Section->unlock();
        }
    }
    CCriticalSection(const CCriticalSection&) = delete;
    CCriticalSection& operator=(const CCriticalSection&) = delete;

private:
    CriticalSection* Section;
};
