// The list of everything that is named by an id: views, and the elements of a view. Ids are given
// by the owner and never used again; positions shift when an earlier entry leaves.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

template <class T>
class CIdList
{
public:
    // Never null entries: an entry leaves the list before its object dies.
    void Append(std::unique_ptr<T> entry) { Entries.push_back(std::move(entry)); }
    // Makes room, so that the next Append cannot fail.
    void Reserve()
    {
        if (Entries.size() == Entries.capacity())
        {
            Entries.reserve(std::max<size_t>(8, 2 * Entries.size()));
        }
    }

    T* Find(int32_t id) const
    {
        const auto found = Locate(id);
        return found == Entries.end() ? nullptr : found->get();
    }

    // Takes the entry out and closes the gap; null for an unknown id.
    std::unique_ptr<T> Remove(int32_t id)
    {
        const auto found = Locate(id);
        if (found == Entries.end())
        {
            return nullptr;
        }
        std::unique_ptr<T> entry = std::move(Entries[static_cast<size_t>(found - Entries.begin())]);
        Entries.erase(found);
        return entry;
    }

    // Takes all entries out and destroys them in list order.
    void Clear()
    {
        std::vector<std::unique_ptr<T>> leaving;
        leaving.swap(Entries);
        for (std::unique_ptr<T>& entry : leaving)
        {
            entry.reset();
        }
    }

    int32_t GetCount() const { return static_cast<int32_t>(Entries.size()); }
    // Null outside the list.
    T* At(int32_t index) const
    {
        return index < 0 || index >= GetCount() ? nullptr
                                                : Entries[static_cast<size_t>(index)].get();
    }

    auto begin() const { return Entries.begin(); }
    auto end() const { return Entries.end(); }

private:
    typename std::vector<std::unique_ptr<T>>::const_iterator Locate(int32_t id) const
    {
        return std::find_if(Entries.begin(), Entries.end(),
                            [id](const std::unique_ptr<T>& entry) { return entry->Id == id; });
    }

    std::vector<std::unique_ptr<T>> Entries;
};
