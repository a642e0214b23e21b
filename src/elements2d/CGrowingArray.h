// Numbers that may become many: growing moves memory pages instead of copying them, and touches
// none that are not written.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

template <class Number>
class CGrowingArray
{
public:
    Number* Get() const { return Numbers.get(); }
    // False, and everything as it was, when there is not so much memory.
    bool Resize(size_t capacity)
    {
        void* moved = std::realloc(Numbers.get(), capacity * sizeof(Number));
        if (!moved)
        {
            return false;
        }
        static_cast<void>(Numbers.release());
        Numbers.reset(static_cast<Number*>(moved));
        return true;
    }

private:
    struct Free
    {
        void operator()(Number* numbers) const { std::free(numbers); }
    };
    std::unique_ptr<Number[], Free> Numbers;
};
