// Where exceptions from below stop: every call of the interface runs inside one of these.
#pragma once

#include "Tarvex.h"
#include "frame/LastErrorText.h"

#include <exception>
#include <new>
#include <string>
#include <utility>

// Runs `action` and turns a std::exception into a status. `lastError` belongs to whoever catches.
template <class Action>
int32_t Guarded(std::string& lastError, Action&& action)
{
    try
    {
        return std::forward<Action>(action)();
    }
    catch (const std::bad_alloc&)
    {
        // No text is kept: storing one could need the memory that has just run out.
        return STATUS_OUT_OF_MEMORY;
    }
    catch (const std::exception& error)
    {
        LastErrorText::Set(error.what());
        try
        {
            lastError = error.what();
        }
        catch (const std::bad_alloc&)
        {
            lastError.clear();
        }
        return STATUS_EXCEPTION;
    }
}
