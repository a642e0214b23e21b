// Sequences of calls from files and folders, then random ones. What fails is cut down to the calls
// that are needed, and written into a file.
#include "fuzz/Engine.h"
#include "support/Effort.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using Bytes = std::vector<uint8_t>;
namespace fs = std::filesystem;

// Where a child is, also when it dies.
struct Progress
{
    size_t Sequence;
    long Calls;
};

// The bytes of each call. What a call takes depends on it alone, so a model is not needed.
std::vector<Bytes> Split(const Bytes& bytes)
{
    Model none;
    ByteStream stream(bytes);
    std::vector<Bytes> calls;
    while (!stream.IsAtEnd())
    {
        const auto start = bytes.begin() + static_cast<ptrdiff_t>(stream.GetPosition());
        Call call;
        MouseMove move;
        DecodeStep(stream, none, call, move);
        calls.emplace_back(start, bytes.begin() + static_cast<ptrdiff_t>(stream.GetPosition()));
    }
    return calls;
}

Bytes Join(const std::vector<Bytes>& calls)
{
    Bytes all;
    for (const Bytes& call : calls)
    {
        all.insert(all.end(), call.begin(), call.end());
    }
    return all;
}

class Runner
{
public:
    bool RunAll()
    {
        for (const fs::path& path : Paths)
        {
            const bool isFolder = fs::is_directory(path);
            std::copy(isFolder ? fs::directory_iterator(path) : fs::directory_iterator(), {},
                      std::back_inserter(Files));
            Files.insert(Files.end(), isFolder ? 0 : 1, path);
        }
        std::ranges::sort(Files);
        const auto run = [this](Engine& engine)
        {
            long kept = 0;
            while (IsFile() || engine.CountCalls() < kept + Calls)
            {
                const bool good = Run(engine, Load(), IsFile());
                At->Calls = engine.CountCalls();
                kept = IsFile() ? At->Calls : kept;
                if (!good)
                {
                    return false;
                }
                ++At->Sequence;
            }
            return true;
        };
        if (InChild(run, false))
        {
            ReportFigure("fuzz", std::to_string(At->Calls) + " calls" +
                                     (Renders ? " with pictures" : "") + ", " +
                                     std::to_string(Files.size()) + " kept sequences: 0 findings");
            return At->Calls > 0;
        }
        const std::string seed = std::to_string(GetSeed());
        std::cout << (IsFile() ? Files[At->Sequence].string() : "seed " + seed) << " fails"
                  << std::endl;
        if (!IsFile())
        {
            const Bytes cut = Shrink(Load());
            const std::string path = "failed-" + seed + ".case";
            std::ofstream(path, std::ios::binary)
                .write(reinterpret_cast<const char*>(cut.data()), std::ssize(cut));
            std::cout << path << ": " << Split(cut).size() << " calls, see them by --tell\n";
        }
        return false;
    }

    bool Renders = false;
    bool Tells = false;
    unsigned Seed = 1;
    long Calls = -1;
    std::vector<fs::path> Paths;

private:
    bool IsFile() const { return At->Sequence < Files.size(); }
    unsigned GetSeed() const { return Seed + static_cast<unsigned>(At->Sequence - Files.size()); }
    Bytes Load() const
    {
        if (IsFile())
        {
            std::ifstream file(Files[At->Sequence], std::ios::binary);
            return {std::istreambuf_iterator<char>(file), {}};
        }
        constexpr size_t bytesOfCall = 8; // about
        std::mt19937 random(GetSeed());
        Bytes bytes(2000 * bytesOfCall);
        std::ranges::generate(bytes, [&] { return static_cast<uint8_t>(random()); });
        return bytes;
    }

    static bool Run(Engine& engine, const Bytes& bytes, bool reusesViews)
    {
        constexpr unsigned hangs = 120; // seconds
        alarm(hangs);
        const bool good = engine.Run(bytes, reusesViews);
        std::cerr << (good ? "" : engine.GetComplaint() + '\n');
        return good;
    }

    // In a process of its own, up to its normal end.
    bool InChild(const std::function<bool(Engine&)>& run, bool quiet) const
    {
        const pid_t child = fork();
        if (child == 0)
        {
            if (quiet)
            {
                std::freopen("/dev/null", "w", stderr);
            }
            auto engine = std::make_unique<Engine>(Renders, Tells);
            const bool good = run(*engine);
            engine.reset();
            std::exit(good ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return status == 0;
    }

    // Leaves out whatever can be left out, in ever smaller pieces, for some minutes.
    Bytes Shrink(const Bytes& bytes) const
    {
        std::vector<Bytes> calls = Split(bytes);
        const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(3);
        for (size_t piece = calls.size() / 2; piece > 0; piece /= 2)
        {
            for (size_t at = 0; at < calls.size() && std::chrono::steady_clock::now() < end;)
            {
                std::vector<Bytes> fewer = calls;
                const auto from = fewer.begin() + static_cast<ptrdiff_t>(at);
                fewer.erase(from, from + std::min<ptrdiff_t>(piece, fewer.end() - from));
                const auto run = [&](Engine& engine) { return Run(engine, Join(fewer), false); };
                const bool stillFails = !InChild(run, true);
                calls = stillFails ? fewer : calls;
                at += stillFails ? 0 : piece;
            }
        }
        return Join(calls);
    }

    Progress* const At = static_cast<Progress*>(
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::vector<fs::path> Files;
};
} // namespace

int main(int argc, char** argv)
{
    Runner runner;
    CLI::App app("Calls the library at random, and holds it against a model");
    app.add_flag("--renders", runner.Renders, "With pictures: ten times as slow");
    app.add_flag("--tell", runner.Tells, "Print each call");
    app.add_option("--seed", runner.Seed, "Of the first random sequence");
    app.add_option("--calls", runner.Calls, "How many to make in random sequences");
    app.add_option("paths", runner.Paths, "Sequences to make first: files, or folders of them");
    CLI11_PARSE(app, argc, argv);
    if (runner.Calls < 0)
    {
        runner.Calls = runner.Renders ? Effort(1'000L, 200'000L) : Effort(10'000L, 1'000'000L);
    }
    return runner.RunAll() ? 0 : 1;
}
