// Start-up of the designer until its windows are shown and idle, timed beside a
// bare Qt Widgets window program. Both run as child processes with
// ORVELIN_QUIT_AFTER_STARTUP=1; run this under a display (xvfb-run -a) for real
// numbers, else the children use the offscreen platform.
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

namespace fs = std::filesystem;

std::string BinDir() {
    if (const char* dir = std::getenv("ORVELIN_BIN_DIR"))
        return dir;
    return ORVELIN_BIN_DIR;
}

std::string BenchDir() {
    return fs::read_symlink("/proc/self/exe").parent_path().string();
}

// One environment for every child: quit once idle, settings in a scratch folder
// (a fresh store every run, so no stored window geometry or recent files differ).
std::vector<std::string> ChildEnvironment(const std::string& configHome) {
    std::vector<std::string> env;
    for (char** e = environ; *e != nullptr; ++e) {
        const std::string entry = *e;
        if (entry.rfind("ORVELIN_", 0) == 0 || entry.rfind("XDG_CONFIG_HOME=", 0) == 0)
            continue;
        env.push_back(entry);
    }
    env.push_back("ORVELIN_QUIT_AFTER_STARTUP=1");
    env.push_back("ORVELIN_PROGRAM_DIR=" + BinDir());
    env.push_back("XDG_CONFIG_HOME=" + configHome);
    if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr)
        env.push_back("QT_QPA_PLATFORM=offscreen");
    return env;
}

struct RunTimes {
    double wall = 0; ///< seconds from start to exit
    double cpu = 0;  ///< user and system seconds of the child
};

double Seconds(const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
}

// Runs a program to its end. The CPU time is reported beside the wall time because
// on a shared, busy machine the wall time mostly measures the scheduler.
RunTimes RunOnce(const std::vector<std::string>& argv, const std::vector<std::string>& env) {
    std::vector<char*> args;
    for (const std::string& a : argv)
        args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    std::vector<char*> envp;
    for (const std::string& e : env)
        envp.push_back(const_cast<char*>(e.c_str()));
    envp.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    if (posix_spawn(&pid, args[0], nullptr, nullptr, args.data(), envp.data()) != 0)
        throw std::runtime_error("cannot start " + argv[0]);
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    const auto end = std::chrono::steady_clock::now();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(argv[0] + " did not end cleanly");
    return {std::chrono::duration<double>(end - start).count(),
            Seconds(usage.ru_utime) + Seconds(usage.ru_stime)};
}

struct Programs {
    std::vector<std::string> bare;
    std::vector<std::string> designer;
    std::vector<std::string> env;
};

Programs Prepare() {
    const fs::path configHome = fs::temp_directory_path() / "orvelin-bench-startup";
    fs::create_directories(configHome);
    Programs p;
    p.bare = {BenchDir() + "/bare_window"};
    p.designer = {BinDir() + "/orvelin", std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv"};
    p.env = ChildEnvironment(configHome.string());
    return p;
}

// Alternates the two programs in every iteration so that both see the same machine
// load; the counters give each one's mean and the ratio the target is set on.
void BM_StartupSideBySide(benchmark::State& state) {
    Programs p;
    try {
        p = Prepare();
        RunOnce(p.bare, p.env); // warm the file cache for both
        RunOnce(p.designer, p.env);
    } catch (const std::exception& e) {
        state.SkipWithError(e.what());
        return;
    }
    RunTimes bare;
    RunTimes designer;
    for (auto _ : state) {
        try {
            const RunTimes b = RunOnce(p.bare, p.env);
            const RunTimes d = RunOnce(p.designer, p.env);
            bare.wall += b.wall;
            bare.cpu += b.cpu;
            designer.wall += d.wall;
            designer.cpu += d.cpu;
        } catch (const std::exception& e) {
            state.SkipWithError(e.what());
            return;
        }
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["bare_ms"] = bare.wall / n * 1000.0;
    state.counters["designer_ms"] = designer.wall / n * 1000.0;
    state.counters["ratio"] = designer.wall / bare.wall;
    state.counters["bare_cpu_ms"] = bare.cpu / n * 1000.0;
    state.counters["designer_cpu_ms"] = designer.cpu / n * 1000.0;
    state.counters["cpu_ratio"] = designer.cpu / bare.cpu;
}
BENCHMARK(BM_StartupSideBySide)->Iterations(20)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Starts one of the two programs again and again, alone.
void RunAlone(benchmark::State& state, std::vector<std::string> Programs::*program) {
    Programs p;
    try {
        p = Prepare();
        for (auto _ : state)
            RunOnce(p.*program, p.env);
    } catch (const std::exception& e) {
        state.SkipWithError(e.what());
    }
}

void BM_DesignerStartup(benchmark::State& state) {
    RunAlone(state, &Programs::designer);
}
BENCHMARK(BM_DesignerStartup)->Iterations(10)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_BareWindowStartup(benchmark::State& state) {
    RunAlone(state, &Programs::bare);
}
BENCHMARK(BM_BareWindowStartup)->Iterations(10)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
