// Allocations that fail on demand, one at a time: every one of the library's own code, and of VTK's
// those of data arrays and of at least 100 KB. VTK does not survive a failing operator new of its
// own, nor the arrays of a few entries that its objects are born with. Nothing fails in Mesa or in
// Xlib, nor on other threads.
#pragma once

#include <string>

// The next such allocation but `place` - 1 fails.
void FailAllocation(int place);
// Returns whether one has failed.
bool StopFailing();
// Who asked for what failed last: functions, or places in libraries for addr2line.
std::string DescribeFailure();
