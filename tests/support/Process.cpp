#include "support/Process.h"

#include "support/Effort.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

std::vector<std::string> testArguments;

namespace
{
int CountEntries(const char* folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}
} // namespace

Holdings::Holdings()
    : Descriptors(CountEntries("/proc/self/fd")), Threads(CountEntries("/proc/self/task"))
{
    std::ifstream("/proc/self/statm") >> Kilobytes >> Kilobytes; // the second number
    Kilobytes *= sysconf(_SC_PAGESIZE) / 1024;
}

void RunInProcesses(const std::string& suite)
{
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    std::string command = "exec timeout -s KILL " + std::to_string(Effort(120, 1200));
    for (const std::string& argument : testArguments)
    {
        command += " '" + argument + "'";
    }
    command += " --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=" + suite + ".";
    int count = 0;
    for (int index = 0; index < program.total_test_suite_count(); ++index)
    {
        const testing::TestSuite& candidate = *program.GetTestSuite(index);
        for (int test = 0; candidate.name() == suite && test < candidate.total_test_count(); ++test)
        {
            const std::string name = candidate.GetTestInfo(test)->name();
            EXPECT_EQ(std::system((command + name).c_str()), 0) << name; // NOLINT: one thread runs
            ++count;
        }
    }
    EXPECT_GT(count, 0) << "no suite " << suite;
}

TestServer::TestServer(bool withOpenGL) : DisplayBefore(std::getenv("DISPLAY"))
{
    // It complains of each display number that is taken, which is none of the tests' matter.
    const std::string openGL = withOpenGL ? "+extension" : "-extension";
    const std::string command =
        "echo $$; exec Xvfb -displayfd 1 -screen 0 800x600x24 -noreset -nolisten tcp " + openGL +
        " GLX 2>/dev/null";
    Output = popen(command.c_str(), "r"); // NOLINT: nothing of a user's is in it
    // The server writes its number once it answers.
    int number = -1;
    EXPECT_EQ(std::fscanf(Output, "%d %d", &Server, &number), 2) << "the X server did not start";
    setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1);
}

TestServer::~TestServer()
{
    Kill();
    setenv("DISPLAY", DisplayBefore.c_str(), 1);
}

void TestServer::Kill()
{
    if (Server > 0)
    {
        kill(Server, SIGKILL);
        pclose(Output);
        Server = -1;
    }
}
