// An operator new that fails on demand, for all of the program; only for allocations by the
// library's code, which is linked into it. VTK does not survive a failing operator new of its own.
#pragma once

// The next allocation but `place` - 1 fails.
void FailAllocation(int place);
// Returns whether one has failed.
bool StopFailing();
