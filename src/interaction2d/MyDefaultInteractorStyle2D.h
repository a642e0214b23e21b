// The mouse style of a chart view while nothing is drawn: handles, and the chart's own pan and
// zoom.
#pragma once

#include "interaction2d/MyDragInteractorStyle2D.h"

class MyDefaultInteractorStyle2D : public MyDragInteractorStyle2D
{
public:
    static MyDefaultInteractorStyle2D* New();
    vtkTypeMacro(MyDefaultInteractorStyle2D, MyDragInteractorStyle2D);

protected:
    MyDefaultInteractorStyle2D() = default;
    ~MyDefaultInteractorStyle2D() override = default;
};
