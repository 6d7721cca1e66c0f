// Loading and saving a full project beside plain stream reading and writing of the
// same bytes: the project file should cost no more than about three times as much.

#include "projectfile.h"
#include "userinterface.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

/// 101 buttons with long labels full of blanks and quotes, and programs on each.
ProjectModel fullProject() {
    ProjectModel m;
    m.AppletProgramStart = "ShowButton(1);HideButton(2);";
    for (int b = 1; b <= kMaxButtons; ++b) {
        ButtonRecord& r = m.Button(b);
        r.x = static_cast<std::int16_t>(b * 5);
        r.y = static_cast<std::int16_t>(b * 3);
        std::string label;
        while (label.size() < 200)
            label += "Item \"" + std::to_string(b) + "\" of the menu\\n";
        r.LabelUP = r.LabelOVER = r.LabelDOWN = label;
        r.URL = "http://example.org/page" + std::to_string(b) + ".htm";
        r.Status = "Go to page " + std::to_string(b);
        r.ImageUP = "images/up" + std::to_string(b) + ".gif";
        r.ProgramUP = "SetLabel(" + std::to_string(b) + ",\"Up\");PlaySound(\"up.au\");";
        r.ProgramOVER = "ShowButton(" + std::to_string(b) + ");SetStatus(\"Over\");";
        r.ProgramDOWN = "GoToURL(\"http://example.org/\",\"_top\");";
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
        SilentUserInterface ui;
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
    SilentUserInterface ui;
    ProjectModel model;
    for (auto _ : state) {
        const bool ok = LoadProject(model, path, ui);
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
    SilentUserInterface ui;
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
        benchmark::DoNotOptimize(ProjectText(model));
}
BENCHMARK(BM_ProjectTextInMemory);

} // namespace
