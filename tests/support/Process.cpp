#include "support/Process.h"

#include "support/Effort.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
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
    int count = 0;
    for (int index = 0; index < program.total_test_suite_count(); ++index)
    {
        const testing::TestSuite& candidate = *program.GetTestSuite(index);
        for (int test = 0; candidate.name() == suite && test < candidate.total_test_count(); ++test)
        {
            const std::string name = suite + "." + candidate.GetTestInfo(test)->name();
            const std::string seconds = std::to_string(Effort(120, 1200));
            std::string command = "exec timeout -s KILL " + seconds;
            for (const std::string& argument : testArguments)
            {
                command += " '" + argument + "'";
            }
            command += " --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=" + name;
            EXPECT_EQ(std::system(command.c_str()), 0) << name; // NOLINT: nothing else runs here
            ++count;
        }
    }
    EXPECT_GT(count, 0) << "no suite " << suite;
}

TestServer::TestServer(bool withOpenGL) : DisplayBefore(std::getenv("DISPLAY"))
{
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe(ends), 0);
    const std::string answerTo = std::to_string(ends[1]);
    Server = fork();
    if (Server == 0)
    {
        // It complains of each display number that is taken, which is none of the tests' matter.
        freopen("/dev/null", "w", stderr);
        const char* const openGL = withOpenGL ? "+extension" : "-extension";
        execlp("Xvfb", "Xvfb", "-displayfd", answerTo.c_str(), "-screen", "0", "800x600x24",
               "-noreset", "-nolisten", "tcp", openGL, "GLX", nullptr);
        _exit(1);
    }
    close(ends[1]);
    // The server writes its number once it answers.
    std::FILE* answer = fdopen(ends[0], "r");
    int number = -1;
    EXPECT_EQ(std::fscanf(answer, "%d", &number), 1) << "the X server did not start"; // NOLINT
    std::fclose(answer);
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
        waitpid(Server, nullptr, 0);
        Server = -1;
    }
}
