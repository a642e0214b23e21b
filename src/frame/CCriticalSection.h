// A lock that its owner thread may enter again, and the scoped object that holds it.
#pragma once

#include <atomic>
#include <cstdint>
#include <thread>

// First come, first served: with an unfair lock, a thread that draws without pause keeps the one
// that pumps the events waiting for minutes. Trivially destructible, since it is static.
class CriticalSection
{
public:
    void lock()
    {
        const std::thread::id self = std::this_thread::get_id();
        if (Owner.load(std::memory_order_relaxed) == self)
        {
            ++Depth;
            return;
        }
        const uint32_t ticket = NextTicket.fetch_add(1, std::memory_order_relaxed);
        for (uint32_t now = Serving.load(std::memory_order_acquire); now != ticket;
             now = Serving.load(std::memory_order_acquire))
        {
            Serving.wait(now, std::memory_order_acquire);
        }
        Take(self);
    }

    bool try_lock()
    {
        const std::thread::id self = std::this_thread::get_id();
        if (Owner.load(std::memory_order_relaxed) == self)
        {
            ++Depth;
            return true;
        }
        // Free when the next ticket is the one that is served.
        uint32_t ticket = Serving.load(std::memory_order_acquire);
        if (!NextTicket.compare_exchange_strong(ticket, ticket + 1, std::memory_order_acquire))
        {
            return false;
        }
        Take(self);
        return true;
    }

    void unlock()
    {
        if (--Depth == 0)
        {
            Owner.store(std::thread::id(), std::memory_order_relaxed);
            Serving.fetch_add(1, std::memory_order_release);
            Serving.notify_all();
        }
    }

private:
    void Take(std::thread::id self)
    {
        Owner.store(self, std::memory_order_relaxed);
        Depth = 1;
    }

    std::atomic<std::thread::id> Owner;
    std::atomic<uint32_t> NextTicket = 0;
    std::atomic<uint32_t> Serving = 0;
    int Depth = 0; // touched by the owner only
};

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
