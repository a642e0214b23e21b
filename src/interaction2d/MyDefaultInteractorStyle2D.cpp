#include "interaction2d/MyDefaultInteractorStyle2D.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(MyDefaultInteractorStyle2D);
