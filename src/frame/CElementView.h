// A view as the owner of its elements: the list, lookup by id, the one sequence of adding, and the
// one road of a call to an element. `Element` is the base class of all that the view can hold.
#pragma once

#include "frame/CIdList.h"
#include "frame/CViewBase.h"

#include <memory>
#include <type_traits>

// When a call on an element draws the view again.
enum class Render
{
    Always,       // whatever the element answered
    AfterSuccess, // when it answered STATUS_OK
    Never         // not at all, or the element has drawn by itself
};

template <class Element>
class CElementView : public CViewBase
{
public:
    template <class Class, class Action>
    int32_t OnElement(int32_t elementId, Render render, Action&& action);
    int32_t GetElementCount(int32_t* count);
    int32_t GetElementIDFromIndex(int32_t index, int32_t* elementId);
    int32_t GetElementType(int32_t elementId, int32_t* type);
    int32_t HasValidValues(int32_t elementId, uint8_t* valid);
    int32_t GetActiveElement(int32_t* elementId);
    Element* FindElement(int32_t elementId) const { return Elements.Find(elementId); }

protected:
    explicit CElementView(int32_t id) : CViewBase(id) {}

    // The add sequence. `finish` shows the new element, which is in the list by then; when it
    // raises, the element leaves again. A failed add leaves nothing and uses no id.
    template <class Class, class Site, class Finish, class... Geometry>
    int32_t Append(const Site& site, int32_t* elementId, Finish&& finish, Geometry... geometry);

    int32_t NextElementId = 0; // only goes up
    CIdList<Element> Elements;
};

template <class Element>
template <class Class, class Site, class Finish, class... Geometry>
int32_t CElementView<Element>::Append(const Site& site, int32_t* elementId, Finish&& finish,
                                      Geometry... geometry)
{
    Elements.Reserve();
    auto element = std::make_unique<Class>();
    // Out of the view again, unless all is well at the end: also when a step throws.
    struct Undo
    {
        ~Undo()
        {
            if (Added)
            {
                Added->LeaveView();
                Listed->Remove(Added->Id);
            }
        }
        Class* Added;
        CIdList<Element>* Listed;
    } undo{element.get(), &Elements};

    int32_t status = element->Initialize(site, geometry...);
    if (status == STATUS_OK)
    {
        status = element->BuildPipeline();
    }
    if (status == STATUS_OK)
    {
        status = element->Show(true);
    }
    if (status == STATUS_OK)
    {
        Elements.Append(std::move(element));
        finish();
        undo.Added = nullptr;
        *elementId = NextElementId++;
    }
    return status;
}

template <class Element>
template <class Class, class Action>
int32_t CElementView<Element>::OnElement(int32_t elementId, Render render, Action&& action)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Element* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            if constexpr (!std::is_base_of_v<Class, Element>)
            {
                if (element->ElementType != Class::Type)
                {
                    return STATUS_WRONG_TYPE;
                }
            }
            const int32_t status = action(static_cast<Class&>(*element));
            if (render == Render::Always || (render == Render::AfterSuccess && status == STATUS_OK))
            {
                Refresh();
            }
            return status;
        });
}

template <class Element>
int32_t CElementView<Element>::GetElementCount(int32_t* count)
{
    *count = Elements.GetCount();
    return STATUS_OK;
}

template <class Element>
int32_t CElementView<Element>::GetElementIDFromIndex(int32_t index, int32_t* elementId)
{
    const Element* element = Elements.At(index);
    if (!element)
    {
        return STATUS_BAD_INDEX;
    }
    *elementId = element->Id;
    return STATUS_OK;
}

template <class Element>
int32_t CElementView<Element>::GetElementType(int32_t elementId, int32_t* type)
{
    const Element* element = Elements.Find(elementId);
    if (!element)
    {
        return STATUS_BAD_INDEX;
    }
    *type = element->ElementType;
    return STATUS_OK;
}

template <class Element>
int32_t CElementView<Element>::HasValidValues(int32_t elementId, uint8_t* valid)
{
    return OnElement<Element>(elementId, Render::Never,
                              [&](Element& element) -> int32_t
                              {
                                  *valid = element.HasValidValues() ? 1 : 0;
                                  return STATUS_OK;
                              });
}

template <class Element>
int32_t CElementView<Element>::GetActiveElement(int32_t* elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (ActiveElementId >= 0 && !Elements.Find(ActiveElementId))
            {
                return STATUS_BAD_INDEX;
            }
            *elementId = ActiveElementId;
            return STATUS_OK;
        });
}
