// Loading and saving a full project beside plain stream reading and writing of the
// same bytes: the project file should cost no more than about three times as much.

#include "fakeui.h"
#include "projectfile.h"
#include "userinterface.h"

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
namespace fs = std::filesystem;

namespace {

/// 101 buttons with long labels full of blanks and quotes, and programs on each.
ProjectModel fullProject() {
    ProjectModel m;
    m.AppletProgramStart = "1 1;2 2;";
    for (int b = 1; b <= kMaxButtons; ++b) {
        ButtonRecord& r = m.button(b);
        r.x = static_cast<std::int16_t>(b * 5);
        r.y = static_cast<std::int16_t>(b * 3);
        std::string label;
        while (label.size() < 200)
            label += "Item \"" + std::to_string(b) + "\" of the menu\\n";
        r.LabelUP = r.LabelOVER = r.LabelDOWN = label;
        r.URL = "http://example.org/page" + std::to_string(b) + ".htm";
        r.Status = "Go to page " + std::to_string(b);
        r.ImageUP = "images/up" + std::to_string(b) + ".gif";
        r.ProgramUP = "4 " + std::to_string(b) + " 1 Up&nbsp&y02there&y02;6 500;";
        r.ProgramOVER = "1 " + std::to_string(b) + ";5 " + std::to_string(b) + " 2 FF8000;";
        r.ProgramDOWN = "7 0 go(&y02http://example.org/&y02)&y01;";
    }
    m.ButtonCount = kMaxButtons;
    return m;
}

/// A folder for the benchmark's files, removed at the end of the program.
struct BenchFolder {
    fs::path path = fs::temp_directory_path() / "orvelin-bench-project";
    BenchFolder() { fs::create_directories(path); }
    ~BenchFolder() {
        std::error_code ec;
        fs::remove_all(path, ec);
    }
};

const fs::path& folder() {
    static BenchFolder f;
    return f.path;
}

std::string savedProjectFile() {
    static const std::string path = [] {
        const std::string p = (folder() / "full.orv").string();
        ProjectModel m = fullProject();
        FakeUserInterface ui;
        SaveProject(m, p, ui);
        return p;
    }();
    return path;
}

std::string fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void BM_LoadProject(benchmark::State& state) {
    const std::string path = savedProjectFile();
    FakeUserInterface ui;
    ProjectModel model;
    for (auto _ : state) {
        const bool ok = LoadProject(model, path, &ui).loaded();
        benchmark::DoNotOptimize(ok);
        if (!ok || model.ButtonCount != kMaxButtons)
            state.SkipWithError("the project did not load");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(fs::file_size(path)));
}
BENCHMARK(BM_LoadProject);

void BM_ReadPlainStream(benchmark::State& state) {
    const std::string path = savedProjectFile();
    for (auto _ : state) {
        std::ifstream in(path, std::ios::binary);
        std::string line;
        std::size_t lines = 0;
        while (std::getline(in, line))
            ++lines;
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(fs::file_size(path)));
}
BENCHMARK(BM_ReadPlainStream);

void BM_SaveProject(benchmark::State& state) {
    ProjectModel model = fullProject();
    FakeUserInterface ui;
    const std::string path = (folder() / "save.orv").string();
    for (auto _ : state) {
        const bool ok = SaveProject(model, path, ui);
        benchmark::DoNotOptimize(ok);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(fs::file_size(path)));
}
BENCHMARK(BM_SaveProject)->UseRealTime();

void BM_WritePlainStream(benchmark::State& state) {
    const std::string bytes = fileBytes(savedProjectFile());
    const std::string path = (folder() / "plain.orv").string();
    for (auto _ : state) {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out << bytes;
        out.close();
        benchmark::DoNotOptimize(out.good());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(BM_WritePlainStream)->UseRealTime();

// The part of saving that is the program's own work: the text built in memory.
void BM_ProjectTextInMemory(benchmark::State& state) {
    const ProjectModel model = fullProject();
    for (auto _ : state)
        benchmark::DoNotOptimize(projectText(model));
}
BENCHMARK(BM_ProjectTextInMemory);

} // namespace

// Reading a hostile file: 10 MB of empty lines, through both readers. Time and the
// memory held at the peak, as a multiple of the file's size, must stay small.
namespace {

std::atomic<std::size_t> liveBytes{0};
std::atomic<std::size_t> peakBytes{0};

std::string emptyLinesFile() {
    static const std::string path = [] {
        const std::string p = (folder() / "empty-lines.ini").string();
        std::ofstream(p, std::ios::binary) << std::string(10 * 1024 * 1024, '\n');
        return p;
    }();
    return path;
}

template <LoadResult (*Load)(ProjectModel&, const std::string&, ProgressView*)>
void loadEmptyLines(benchmark::State& state) {
    const std::string path = emptyLinesFile();
    FakeUserInterface ui;
    ProjectModel model;
    std::size_t peak = 0;
    for (auto _ : state) {
        const std::size_t before = liveBytes.load();
        peakBytes = before;
        benchmark::DoNotOptimize(Load(model, path, &ui).loaded());
        peak = std::max(peak, peakBytes.load() - before);
    }
    const auto size = static_cast<double>(fs::file_size(path));
    state.counters["peak_per_file_byte"] = static_cast<double>(peak) / size;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}
BENCHMARK(loadEmptyLines<LoadProject_OLD>)
    ->Name("BM_LoadLegacyEmptyLines10MB")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(loadEmptyLines<LoadProject>)
    ->Name("BM_LoadProjectEmptyLines10MB")
    ->Unit(benchmark::kMillisecond);

} // namespace

// Counts what the program holds, for the peak above. GCC takes the free() of the block
// that this replacement new allocated for a mismatched pair; it is this pair's own block.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
    void* p = std::malloc(size + sizeof(std::max_align_t));
    if (!p)
        throw std::bad_alloc();
    *static_cast<std::size_t*>(p) = size;
    const std::size_t live = liveBytes += size;
    std::size_t peak = peakBytes.load();
    while (live > peak && !peakBytes.compare_exchange_weak(peak, live)) {
    }
    return static_cast<char*>(p) + sizeof(std::max_align_t);
}

void operator delete(void* p) noexcept {
    if (!p)
        return;
    char* block = static_cast<char*>(p) - sizeof(std::max_align_t);
    liveBytes -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

void operator delete(void* p, std::size_t) noexcept {
    operator delete(p);
}
