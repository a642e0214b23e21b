#include "support/Process.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

std::vector<std::string> testArguments;

namespace
{
std::string DisplayName()
{
    const char* name = std::getenv("DISPLAY");
    return name ? name : "";
}
} // namespace

int CountDescriptors()
{
    const std::filesystem::directory_iterator entries("/proc/self/fd");
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}

long ResidentKilobytes()
{
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

pid_t StartProgram(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    for (const std::string& part : command)
    {
        arguments.push_back(const_cast<char*>(part.c_str()));
    }
    arguments.push_back(nullptr);
    pid_t process = -1;
    if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
    {
        ADD_FAILURE() << "cannot start " << command.front();
    }
    return process;
}

std::string WaitForEnd(pid_t process, int seconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    int status = 0;
    while (waitpid(process, &status, WNOHANG) == 0)
    {
        if (std::chrono::steady_clock::now() > end)
        {
            kill(process, SIGKILL);
            waitpid(process, &status, 0);
            return "no end";
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return WIFEXITED(status) ? "exit " + std::to_string(WEXITSTATUS(status))
                             : "signal " + std::to_string(WTERMSIG(status));
}

void RunInProcesses(const std::string& suite, int seconds)
{
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    int count = 0;
    for (int index = 0; index < program.total_test_suite_count(); ++index)
    {
        const testing::TestSuite& candidate = *program.GetTestSuite(index);
        for (int test = 0; candidate.name() == suite && test < candidate.total_test_count(); ++test)
        {
            const std::string name = suite + "." + candidate.GetTestInfo(test)->name();
            std::vector<std::string> command = {"/proc/self/exe", "--gtest_also_run_disabled_tests",
                                                "--gtest_brief=1", "--gtest_filter=" + name};
            command.insert(command.end(), testArguments.begin() + 1, testArguments.end());
            EXPECT_EQ(WaitForEnd(StartProgram(command), seconds), "exit 0") << name;
            ++count;
        }
    }
    EXPECT_GT(count, 0) << "no suite " << suite;
}

TestServer::TestServer(const std::vector<std::string>& options) : DisplayBefore(DisplayName())
{
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0)
    {
        ADD_FAILURE() << "no pipe";
        return;
    }
    std::vector<std::string> command = {"Xvfb",     "-displayfd", std::to_string(ends[1]),
                                        "-screen",  "0",          "800x600x24",
                                        "-noreset", "-nolisten",  "tcp"};
    command.insert(command.end(), options.begin(), options.end());
    Server = StartProgram(command);
    close(ends[1]);
    // The server writes its number once it answers.
    char text[16] = {};
    size_t length = 0;
    while (length < sizeof text - 1 && read(ends[0], text + length, 1) == 1 && text[length] != '\n')
    {
        ++length;
    }
    close(ends[0]);
    Display = ":" + std::string(text, length);
    EXPECT_NE(length, 0U) << "the X server did not start";
    setenv("DISPLAY", Display.c_str(), 1);
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
