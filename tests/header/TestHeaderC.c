/* The public headers in plain C: they compile on their own, each function of the interface is
 * declared and linked under its name, and a call works across the language border. */
#include "Tarvex.h"
#include "TarvexExt.h"

#include <stddef.h>
#include <stdio.h>

typedef void (*Function)(void);

#define EXPORT(function) (Function) function,

/* Made from exports.txt: a line for each name of the interface. */
static const Function Exports[] = {
#include "ExportTable.inc"
};

int main(void)
{
    int32_t count = 7;
    int32_t id = 7;
    size_t i;
    for (i = 0; i < sizeof(Exports) / sizeof(Exports[0]); ++i)
    {
        if (Exports[i] == NULL)
        {
            fprintf(stderr, "TestHeaderC: function %u has no address\n", (unsigned)i);
            return 1;
        }
    }
    if (Tarvex_Window_GetCount(&count) != STATUS_OK || count != 0 ||
        Tarvex_Window_GetIDFromIndex(0, &id) != STATUS_BAD_INDEX || id != TARVEX_NONE)
    {
        fprintf(stderr, "TestHeaderC: the registry of views does not start empty\n");
        return 1;
    }
    return 0;
}
