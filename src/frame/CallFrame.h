// The roads from an export to the work: each export clears its out-parameters and takes one.
//
//   OnManager   what concerns no single view
//   OnView      a method of the view that the id names
//   OnElement   a method of an element of that view, with type test and render rule
//   OnColoring  the same, and the scalar bar of the element takes its new colours
//   OnChange    a method of a chart element that changes its geometry
//   OnAdd       a new 3D element: the add sequence, with the defaults of its type
//   OnAddToChart  a new chart element: the add sequence, and what the axes do then
#pragma once

#include "frame/CWindowManager.h"

template <class... Targets>
void ClearTo(auto value, Targets*... targets)
{
    ((*targets = static_cast<Targets>(value)), ...);
}

// Ids, types, palettes, draw modes.
template <class... Targets>
void ClearToNone(Targets*... targets)
{
    ClearTo(-1, targets...);
}

// Counts, doubles, bytes.
template <class... Targets>
void ClearToZero(Targets*... targets)
{
    ClearTo(0, targets...);
}

template <class... Parameters, class... Arguments>
int32_t OnManager(int32_t (CWindowManager::*method)(Parameters...), Arguments... arguments)
{
    CWindowManager* manager = CWindowManager::Instance;
    return manager ? (manager->*method)(arguments...) : int32_t{STATUS_NULL_ARGUMENT};
}

template <class View, class Action>
int32_t OnViewDo(int32_t windowId, Action&& action)
{
    CWindowManager* manager = CWindowManager::Instance;
    return manager ? manager->Call<View>(windowId, std::forward<Action>(action))
                   : int32_t{STATUS_NULL_ARGUMENT};
}

template <class View, class Base, class... Parameters, class... Arguments>
int32_t OnView(int32_t windowId, int32_t (Base::*method)(Parameters...), Arguments... arguments)
{
    return OnViewDo<View>(windowId, [&](View& view) { return (view.*method)(arguments...); });
}

// The kind of view that hosts a class of elements.
template <class Class>
using ViewOf = std::conditional_t<std::is_base_of_v<CElement_2D, Class>, CWindow2D, CWindow>;

// `Given` names the class where the method is that of a base class.
template <class Given = void, class Base, class... Parameters, class... Arguments>
int32_t OnElement(int32_t windowId, int32_t elementId, Render render,
                  int32_t (Base::*method)(Parameters...), Arguments... arguments)
{
    using Class = std::conditional_t<std::is_void_v<Given>, Base, Given>;
    return OnViewDo<ViewOf<Class>>(
        windowId,
        [&](ViewOf<Class>& view)
        {
            return view.template OnElement<Class>(
                elementId, render, [&](Class& element) { return (element.*method)(arguments...); });
        });
}

// As OnElement, for calls that may replace the colour table of a surface.
template <class Class, class... Parameters, class... Arguments>
int32_t OnColoring(int32_t windowId, int32_t elementId, Render render,
                   int32_t (Class::*method)(Parameters...), Arguments... arguments)
{
    return OnViewDo<CWindow>(
        windowId,
        [&](CWindow& view)
        {
            return view.OnColoring<Class>(
                elementId, render, [&](Class& element) { return (element.*method)(arguments...); });
        });
}

template <class Class, class... Geometry>
int32_t OnAdd(int32_t windowId, int32_t* elementId, Geometry... geometry)
{
    return OnViewDo<CWindow>(windowId,
                             [&](CWindow& view)
                             {
                                 const ElementDefaults* defaults =
                                     CWindowManager::Instance->Defaults.Find(Class::Type);
                                 return view.AddElement<Class>(defaults, elementId, geometry...);
                             });
}

// Another geometry for a chart element.
template <class Class, class... Parameters, class... Arguments>
int32_t OnChange(int32_t windowId, int32_t elementId, int32_t (Class::*method)(Parameters...),
                 Arguments... arguments)
{
    return OnViewDo<CWindow2D>(windowId,
                               [&](CWindow2D& view)
                               {
                                   return view.ChangeElement<Class>(
                                       elementId, [&](Class& element)
                                       { return (element.*method)(arguments...); });
                               });
}

template <class Class, class... Geometry>
int32_t OnAddToChart(int32_t windowId, ChartFit fit, int32_t* elementId, Geometry... geometry)
{
    return OnViewDo<CWindow2D>(windowId, [&](CWindow2D& view)
                               { return view.AddElement<Class>(fit, elementId, geometry...); });
}
