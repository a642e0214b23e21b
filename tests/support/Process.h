// The test program as a process: what it holds, and parts of tests that need a process of their
// own.
#pragma once

#include <cstdio>
#include <string>
#include <sys/types.h>
#include <vector>

// What followed GoogleTest's flags on the command line, first the program.
extern std::vector<std::string> testArguments;

// What it holds at the moment.
struct Holdings
{
    Holdings();

    int Descriptors;
    int Threads;
    long Kilobytes = 0; // in memory
};

// Runs each test of a suite, named DISABLED_ so that nobody else does, in a fresh process of this
// program up to its normal end, static destructors and all. Fails unless all end with exit 0.
void RunInProcesses(const std::string& suite);

// An X server of the test's own, which becomes $DISPLAY until the end.
class TestServer
{
public:
    explicit TestServer(bool withOpenGL = true);
    ~TestServer();
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;

    void Kill();
    bool IsAlive() const { return Server > 0; }

private:
    const std::string DisplayBefore;
    std::FILE* Output = nullptr;
    pid_t Server = -1;
};
