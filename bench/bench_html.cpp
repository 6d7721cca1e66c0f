// The applet code of a full project (101 buttons with long labels and programs),
// against streaming the same bytes through a plain std::ostringstream. The
// generator encodes every field as it goes; it should stay within three times the
// plain copy.
#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectmodel.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

using namespace orvelin;

namespace {

ProjectModel fullProject() {
    ProjectModel model;
    model.AppletName = "BigBar";
    model.AppletProgramStart = "6 1500;1 101;6 3000;2 101;";
    model.AppletProgramOUT = "5 1 1 FFFFFF;4 1 1 Back&nbspagain;";
    model.BackImg = "C:\\web\\images\\page background.jpg";
    for (int i = 1; i <= kMaxButtons; ++i) {
        model.addButton(kFactoryDefaultButton);
        ButtonRecord& b = model.button(i);
        const std::string n = std::to_string(i);
        b.x = static_cast<std::int16_t>((i % 10) * 50);
        b.y = static_cast<std::int16_t>((i / 10) * 30);
        b.LabelUP = "Button number " + n + " with a \"long\" label | and more\\nsecond line";
        b.LabelOVER = "Over " + n + ": the label shown while the mouse rests on it";
        b.LabelDOWN = "Down " + n + ": pressed; going to the page";
        b.URL = i == 50 ? "javascript:openHelp(" + n + ")" : "https://example.org/page" + n;
        b.Status = "Status line text for button " + n;
        b.ImageUP = "C:\\web\\img\\button " + n + " up.gif";
        b.ImageOVER = "images/button" + n + "over.jpg";
        b.SndDOWN = "sounds/click " + n + ".au";
        b.FontUP = "Times New Roman";
        b.ProgramUP = "5 " + n + " 1 FFFF00;2 101;";
        b.ProgramOVER = "3 " + n + " 10 -999 -999 -999;4 " + n + " 2 Hello&nbspthere;1 101;";
        b.ProgramDOWN = "6 250;7 0 alert('Button&nbsp" + n + "')&y01;";
    }
    return model;
}

/// Uses the build's program folder (bin/ beside bench/) so the JSCaller block is read.
// The build's program folder, bin/ beside the benchmarks' own folder.
std::string buildProgramFolder() {
    std::error_code ec;
    const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    const std::filesystem::path bin = exe.parent_path().parent_path() / "bin";
    return !ec && std::filesystem::exists(bin / "Orvel.ini", ec) ? bin.string()
                                                                 : findProgramFolder();
}

void BM_MakeHtml(benchmark::State& state) {
    ProjectModel model = fullProject();
    const std::string& name = nameTheApplet(model);
    const std::string jsCaller = GetJSCaller(name, buildProgramFolder());
    std::size_t bytes = 0;
    for (auto _ : state) {
        GeneratedHtml html = MakeHTML(model, name, jsCaller);
        bytes = html.text.size();
        benchmark::DoNotOptimize(html);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_MakeHtml);

void BM_PlainStreamOfTheSameBytes(benchmark::State& state) {
    ProjectModel model = fullProject();
    const std::string& name = nameTheApplet(model);
    const std::string text = MakeHTML(model, name, GetJSCaller(name, buildProgramFolder())).text;
    std::vector<std::string> lines;
    for (std::size_t start = 0, end; start < text.size(); start = end + 2) {
        end = text.find("\r\n", start);
        lines.push_back(text.substr(start, end - start));
    }
    for (auto _ : state) {
        std::ostringstream out;
        for (const std::string& line : lines)
            out << line << "\r\n";
        std::string result = out.str();
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_PlainStreamOfTheSameBytes);

} // namespace
