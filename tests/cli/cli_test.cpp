// orvelin-cli is run as a program here: its exit status, stdout and stderr are
// what scripts depend on.
#include "fakeui.h"
#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectfile.h"
#include "projectmodel.h"
#include "userinterface.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace orvelin;

namespace {

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

/**
 * Runs orvelin-cli (or a copy of it) with `args`. `environment` sets variables for the child; a
 * variable mapped to nullopt is removed.
 */
CliRun runCli(const std::vector<std::string>& args,
              const std::map<std::string, std::optional<std::string>>& environment = {},
              const std::string& program = ORVELIN_CLI) {
    const fs::path dir =
        fs::temp_directory_path() / ("orvelin-cli-run-" + std::to_string(getpid()));
    fs::create_directories(dir);
    const fs::path outPath = dir / "out";
    const fs::path errPath = dir / "err";

    const pid_t child = fork();
    if (child == 0) {
        const int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        const int err = open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        dup2(out, STDOUT_FILENO);
        dup2(err, STDERR_FILENO);
        for (const auto& [name, value] : environment) {
            if (value)
                setenv(name.c_str(), value->c_str(), 1);
            else
                unsetenv(name.c_str());
        }
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(program.c_str()));
        for (const std::string& a : args)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    CliRun run;
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.out = readFile(outPath);
    run.err = readFile(errPath);
    fs::remove_all(dir);
    return run;
}

const std::string kExample = std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv";
const std::string kBin = ORVELIN_BIN_DIR;

class OrvelinCli : public ::testing::Test {
protected:
    void SetUp() override {
        m_dir = fs::temp_directory_path() /
                ("orvelin-cli-" +
                 std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
        SetProgramFolderOverride(kBin);
    }
    void TearDown() override {
        SetProgramFolderOverride("");
        fs::remove_all(m_dir);
    }

    /// The applet code the generator makes for `project`, in this process.
    static std::string generated(const std::string& project, const std::string& typedName = {}) {
        SilentUserInterface ui;
        ProjectModel model;
        if (!LoadProject(model, project, ui))
            return "<not loaded>";
        if (!typedName.empty())
            SetAppletNameFromBox(model, typedName);
        return MakeHTML(model).text;
    }

    std::string path(const std::string& name) const { return (m_dir / name).string(); }

    fs::path m_dir;
};

} // namespace

TEST_F(OrvelinCli, HtmlWritesTheGeneratorsTextByteForByte) {
    const CliRun run = runCli({"html", kExample, "--program-dir", kBin});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, generated(kExample));
    EXPECT_EQ(run.err, "");
    // The example links to JavaScript, so the shipped caller block is there.
    EXPECT_NE(run.out.find("function InitJSCaller()"), std::string::npos);
    EXPECT_NE(run.out.find("<applet name = \"navbar\" "), std::string::npos);
}

TEST_F(OrvelinCli, ExampleProjectLoadsWithAllItsFiles) {
    orvelin::testing::FakeUserInterface ui;
    ProjectModel model;
    ASSERT_TRUE(LoadProject(model, kExample, ui));
    EXPECT_TRUE(ui.messages().empty());
    ASSERT_GE(model.ButtonCount, 6);
    const fs::path folder = fs::path(kExample).parent_path();
    std::vector<std::string> files = {model.BackImg};
    bool hidden = false, transparent = false, multiLine = false;
    for (int i = 1; i <= model.ButtonCount; ++i) {
        const ButtonRecord& b = model.Button(i);
        for (ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN}) {
            files.push_back(b.Image(s));
            files.push_back(b.Sound(s));
            multiLine = multiLine || b.Label(s).find("\\n") != std::string::npos;
        }
        hidden = hidden || b.Hidden != 0;
        transparent = transparent || b.noBackGround != 0;
    }
    EXPECT_TRUE(hidden);
    EXPECT_TRUE(transparent);
    EXPECT_TRUE(multiLine);
    EXPECT_TRUE(UsesJavaScript(model));
    for (const std::string& file : files) {
        if (file.empty())
            continue;
        EXPECT_TRUE(fs::path(file).is_relative()) << file;
        EXPECT_TRUE(fs::is_regular_file(folder / file)) << file;
    }
}

TEST_F(OrvelinCli, AppletNameOptionActsLikeTheNameBox) {
    const CliRun run = runCli({"html", "--applet-name", "My Menu", kExample});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, generated(kExample, "My Menu"));
    EXPECT_NE(run.out.find("<applet name = \"My_Menu\" "), std::string::npos);
    EXPECT_NE(run.out.find("document.applets['My_Menu']"), std::string::npos);

    const CliRun joined = runCli({"html", kExample, "--applet-name=2nd bar.v2"});
    ASSERT_EQ(joined.status, 0) << joined.err;
    EXPECT_NE(joined.out.find("value=\"_2nd_bar_v2|7|"), std::string::npos);
}

TEST_F(OrvelinCli, ProgramDirChoosesTheCallerBlock) {
    writeFile(m_dir / "Orvel.ini", "[JSCALLER]\nstart('AppletName');\n[END OF JSCALLER]\n");
    const CliRun own = runCli({"--program-dir", m_dir.string(), "html", kExample});
    ASSERT_EQ(own.status, 0) << own.err;
    EXPECT_NE(own.out.find("</applet>\r\n\r\nstart('navbar');\r\n<!-- END GENERATED CODE -->"),
              std::string::npos);
    EXPECT_EQ(own.out.find("InitJSCaller"), std::string::npos);

    // It wins over the environment, and a folder without Orvel.ini gives an empty block.
    const fs::path empty = m_dir / "empty";
    fs::create_directories(empty);
    const CliRun none = runCli({"html", kExample, "--program-dir=" + empty.string()},
                               {{"ORVELIN_PROGRAM_DIR", m_dir.string()}});
    ASSERT_EQ(none.status, 0) << none.err;
    EXPECT_NE(none.out.find("</applet>\r\n\r\n<!-- END GENERATED CODE -->\r\n"), std::string::npos);
}

TEST_F(OrvelinCli, ProgramFolderFollowsTheEnvironmentThenTheExecutable) {
    writeFile(m_dir / "Orvel.ini", "[JSCALLER]\nfrom the environment\n[END OF JSCALLER]\n");
    const CliRun fromEnvironment =
        runCli({"html", kExample}, {{"ORVELIN_PROGRAM_DIR", m_dir.string()}});
    EXPECT_NE(fromEnvironment.out.find("\r\nfrom the environment\r\n"), std::string::npos);

    // bin/ holds Orvel.ini, which makes the executable's own folder the program folder.
    const CliRun fromExecutable =
        runCli({"html", kExample}, {{"ORVELIN_PROGRAM_DIR", std::nullopt}});
    ASSERT_EQ(fromExecutable.status, 0) << fromExecutable.err;
    EXPECT_NE(fromExecutable.out.find("function InitJSCaller()"), std::string::npos);
}

TEST_F(OrvelinCli, InstalledProgramFindsItsDataUnderShare) {
    fs::create_directories(m_dir / "bin");
    fs::create_directories(m_dir / "share" / "orvelin");
    fs::copy_file(ORVELIN_CLI, m_dir / "bin" / "orvelin-cli");
    writeFile(m_dir / "share" / "orvelin" / "Orvel.ini",
              "[JSCALLER]\ninstalled AppletName\n[END OF JSCALLER]\n");
    const std::string installed = (m_dir / "bin" / "orvelin-cli").string();
    const CliRun run =
        runCli({"html", kExample}, {{"ORVELIN_PROGRAM_DIR", std::nullopt}}, installed);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("\r\ninstalled navbar\r\n"), std::string::npos);
}

TEST_F(OrvelinCli, UnreadableProjectFailsWithNothingOnStdout) {
    const CliRun missing = runCli({"html", path("nowhere.orv")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.out, "");
    EXPECT_NE(missing.err.find("Error loading project."), std::string::npos) << missing.err;

    writeFile(m_dir / "cut.orv", "Orvelin Project 1.0  Beta 6\r\n510|170|2|0|0|0||0||||0|0|||\r\n"
                                 "0|0|107|40|A|A|A||\r\n");
    const CliRun cut = runCli({"html", path("cut.orv")});
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.out, "");
    EXPECT_NE(cut.err.find("Error loading project."), std::string::npos) << cut.err;
}

TEST_F(OrvelinCli, WrongCommandLinesExitWithUsage) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"publish", kExample},
        {"html"},
        {"html", kExample, kExample},
        {"html", kExample, "--applet-name"},
        {"html", kExample, "--bogus"},
        {"resave", kExample},
        {"resave", kExample, path("a.orv"), "--applet-name", "x"},
        {"html", kExample, "--program-dir"},
        {"--program-dir", "", "html", kExample},
    };
    for (const auto& args : wrong) {
        std::string line;
        for (const std::string& a : args)
            line += "[" + a + "] ";
        const CliRun run = runCli(args);
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_EQ(run.out, "") << line;
        EXPECT_NE(run.err.find("orvelin-cli "), std::string::npos) << line << run.err;
    }
    EXPECT_NE(runCli({"html"}).err.find("html PROJECT [--applet-name TEXT]"), std::string::npos);
    EXPECT_NE(runCli({"resave", "x"}).err.find("resave IN OUT [--legacy]"), std::string::npos);
    EXPECT_FALSE(fs::exists(m_dir / "a.orv"));
}

TEST_F(OrvelinCli, HelpExplainsEveryCommandAndExitStatus) {
    for (const char* word : {"--help", "help", "-h"}) {
        const CliRun run = runCli({word});
        EXPECT_EQ(run.status, 0) << word;
        for (const char* part : {"html PROJECT", "--applet-name TEXT", "resave IN OUT", "--legacy",
                                 "--program-dir DIR", "Exit status", "  0  ", "  1  ", "  2  "})
            EXPECT_NE(run.out.find(part), std::string::npos) << word << ": " << part;
    }
}

TEST_F(OrvelinCli, ResaveWritesWhatTheDesignerWouldSave) {
    const CliRun run = runCli({"resave", kExample, path("copy.orv")});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");

    SilentUserInterface ui;
    ProjectModel model;
    ASSERT_TRUE(LoadProject(model, kExample, ui));
    EXPECT_EQ(readFile(m_dir / "copy.orv"), ProjectText(model));
    // Under the same name the copy makes the same applet code, and saving it again
    // changes nothing.
    EXPECT_EQ(generated(path("copy.orv"), "navbar"), generated(kExample));
    ASSERT_EQ(runCli({"resave", path("copy.orv"), path("again.orv")}).status, 0);
    EXPECT_EQ(readFile(m_dir / "again.orv"), readFile(m_dir / "copy.orv"));
}

TEST_F(OrvelinCli, ResaveConvertsAnEarlierVersionWithAWarning) {
    writeFile(m_dir / "old.orv", "Tessaly Project 1.0  Beta 2\r\n510|170|1|0|0|255||0||||0|0|||\r\n"
                                 "5|6|70|30|Old&nbspone|||x.html||_self|1|0|0||||65535|16776960|"
                                 "255|0|16711680|16777215|Arial|Arial|Arial|0|0|0|10|10|10||||0|0|"
                                 "0|0|0|0|53|25|53|31|53|37|0||||\r\n");
    const CliRun run = runCli({"resave", path("old.orv"), path("new.orv")});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("Project was created by earlier version of Orvelin"), std::string::npos)
        << run.err;
    EXPECT_EQ(run.err.find('\r'), std::string::npos);
    const std::string saved = readFile(m_dir / "new.orv");
    EXPECT_EQ(saved.rfind("Orvelin Project 1.0  Beta 6\r\n", 0), 0u) << saved;
    EXPECT_NE(saved.find("\r\n5|6|70|30|Old&nbspone|"), std::string::npos) << saved;
}

TEST_F(OrvelinCli, LegacyOptionReadsTheIniFormat) {
    writeFile(m_dir / "old.ini", "[Buttons]\r\n"
                                 "Version=1\r\n"
                                 "ButtonCount=2\r\n"
                                 "AppletWidth=300\r\n"
                                 "AppletHeight=50\r\n"
                                 "x_1=4\r\n"
                                 "LabelUP_1=First one\r\n"
                                 "URL_1=a.html\r\n"
                                 "x_2=150\r\n"
                                 "LabelUP_2=Second\r\n");
    const CliRun run = runCli({"resave", "--legacy", path("old.ini"), path("new.orv")});
    ASSERT_EQ(run.status, 0) << run.err;

    SilentUserInterface ui;
    ProjectModel model;
    ASSERT_TRUE(LoadProject(model, path("new.orv"), ui));
    EXPECT_EQ(model.AppletWidth, 300);
    EXPECT_EQ(model.AppletHeight, 50);
    ASSERT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.Button(1).LabelUP, "First one");
    EXPECT_EQ(model.Button(1).URL, "a.html");
    EXPECT_EQ(model.Button(2).x, 150);
}

TEST_F(OrvelinCli, FailedSaveExitsWithOneAndKeepsTheOldFile) {
    const CliRun noFolder = runCli({"resave", kExample, path("missing/folder/out.orv")});
    EXPECT_EQ(noFolder.status, 1);
    EXPECT_EQ(noFolder.out, "");
    EXPECT_NE(noFolder.err.find("Error Saving Buttons."), std::string::npos) << noFolder.err;

    writeFile(m_dir / "keep.orv", "previous content");
    const CliRun badInput = runCli({"resave", path("nowhere.orv"), path("keep.orv")});
    EXPECT_EQ(badInput.status, 1);
    EXPECT_EQ(readFile(m_dir / "keep.orv"), "previous content");
}
