// orvelin-cli is run as a program here: its exit status, stdout and stderr are
// what scripts depend on.
#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectfile.h"
#include "projectmodel.h"
#include "publishing.h"
#include "tempfolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace orvelin;
using orvelin::testing::ReadBytes;
using Environment = std::map<std::string, std::optional<std::string>>;

namespace {

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs `program` with `args`; `environment` sets variables for it (nullopt removes one).
CliRun RunCli(const std::vector<std::string>& args, const Environment& environment = {},
              const std::string& program = ORVELIN_CLI) {
    const orvelin::testing::TempFolder streams;
    const pid_t child = fork();
    if (child == 0) {
        dup2(open(streams.path("out").c_str(), O_WRONLY | O_CREAT, 0644), STDOUT_FILENO);
        dup2(open(streams.path("err").c_str(), O_WRONLY | O_CREAT, 0644), STDERR_FILENO);
        for (const auto& [name, value] : environment)
            value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        std::vector<char*> argv{const_cast<char*>(program.c_str())};
        for (const std::string& a : args)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, streams.read("out"), streams.read("err")};
}

const std::string kExample = std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv";
const std::string kBin = ORVELIN_BIN_DIR;

class OrvelinCli : public ::testing::Test {
protected:
    /// The applet code the generator makes for `project`, in this process.
    static std::string Generated(const std::string& project, const std::string& typedName = {}) {
        ProjectModel model;
        if (!LoadProject(model, project).loaded())
            return "<not loaded>";
        if (!typedName.empty())
            setAppletNameFromBox(model, typedName);
        const std::string& name = nameTheApplet(model);
        return MakeHTML(model, name, GetJSCaller(name, kBin)).text;
    }
    std::string path(const std::string& name) const { return dir.path(name); }

    orvelin::testing::TempFolder dir;
};

} // namespace

TEST_F(OrvelinCli, HtmlWritesTheGeneratorsTextByteForByteAndTheNameOptionActsLikeTheBox) {
    const CliRun run = RunCli({"html", kExample, "--program-dir", kBin});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, Generated(kExample));
    EXPECT_EQ(run.err, "");
    // The example links to JavaScript, so the shipped caller block is there.
    EXPECT_NE(run.out.find("function InitJSCaller()"), std::string::npos);
    const CliRun named = RunCli({"html", "--applet-name", "My Menu", kExample});
    EXPECT_EQ(named.out, Generated(kExample, "My Menu"));
    EXPECT_NE(named.out.find("document.applets['My_Menu']"), std::string::npos);
    EXPECT_EQ(RunCli({"html", kExample, "--applet-name=2nd bar.v2"}).out,
              Generated(kExample, "2nd bar.v2"));
}

TEST_F(OrvelinCli, TheProgramFolderComesFromTheOptionTheEnvironmentOrTheExecutable) {
    dir.write("Orvel.ini", "[JSCALLER]\nstart('AppletName');\n[END OF JSCALLER]\n");
    fs::create_directories(dir.dir() / "empty");
    const std::string own = "</applet>\r\n\r\nstart('navbar');\r\n<!-- END GENERATED CODE -->";
    const std::string none = "</applet>\r\n\r\n<!-- END GENERATED CODE -->\r\n";
    const std::tuple<std::vector<std::string>, Environment, std::string> cases[] = {
        {{"--program-dir", dir.dir().string(), "html", kExample}, {}, own},
        // The option wins; a folder without Orvel.ini gives an empty block.
        {{"html", kExample, "--program-dir=" + path("empty")},
         {{"ORVELIN_PROGRAM_DIR", dir.dir().string()}},
         none},
        // bin/ holds Orvel.ini, which makes the executable's own folder the program folder.
        {{"html", kExample}, {{"ORVELIN_PROGRAM_DIR", std::nullopt}}, "function InitJSCaller()"}};
    for (const auto& [args, environment, expected] : cases) {
        const CliRun run = RunCli(args, environment);
        ASSERT_EQ(run.status, 0) << run.err;
        EXPECT_NE(run.out.find(expected), std::string::npos) << args[0] << " " << args[1];
    }
}

TEST_F(OrvelinCli, InstalledProgramFindsItsDataUnderShare) {
    fs::create_directories(dir.dir() / "bin");
    fs::create_directories(dir.dir() / "share" / "orvelin");
    fs::copy_file(ORVELIN_CLI, path("bin/orvelin-cli"));
    dir.write("share/orvelin/Orvel.ini", "[JSCALLER]\ninstalled AppletName\n[END OF JSCALLER]\n");
    const CliRun run = RunCli({"html", kExample}, {{"ORVELIN_PROGRAM_DIR", std::nullopt}},
                              path("bin/orvelin-cli"));
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("\r\ninstalled navbar\r\n"), std::string::npos);
}

TEST_F(OrvelinCli, UnreadableProjectFailsWithNothingOnStdout) {
    dir.write("cut.orv", "Orvelin Project 1.0  Beta 6\r\n510|170|2|0|0|0||0||||0|0|||\r\n"
                         "0|0|107|40|A|A|A||\r\n");
    for (const char* name : {"nowhere.orv", "cut.orv"}) {
        const CliRun run = RunCli({"html", path(name)});
        EXPECT_EQ(run.status, 1) << name;
        EXPECT_EQ(run.out, "") << name;
        EXPECT_NE(run.err.find("Error loading project."), std::string::npos) << run.err;
    }
}

TEST_F(OrvelinCli, WrongCommandLinesExitWithUsage) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"publish", kExample},
        {"html"},
        {"html", kExample, "--applet-name"},
        {"html", kExample, "--bogus"},
        {"build", kExample},
        {"resave", kExample, path("a.orv"), "--applet-name", "x"},
        {"--program-dir", "", "html", kExample},
    };
    for (const auto& args : wrong) {
        std::string line;
        for (const std::string& a : args)
            line += "[" + a + "] ";
        const CliRun run = RunCli(args);
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_EQ(run.out, "") << line;
        EXPECT_NE(run.err.find("orvelin-cli "), std::string::npos) << line << run.err;
    }
    EXPECT_NE(RunCli({"resave", "x"}).err.find("resave IN OUT [--legacy]"), std::string::npos);
    EXPECT_FALSE(fs::exists(path("a.orv")));
}

TEST_F(OrvelinCli, PageAndBuildWriteWhatTheDesignerWritesAndReportItsMessages) {
    const CliRun page = RunCli({"page", kExample, "--applet-name", "Top"});
    ASSERT_EQ(page.status, 0) << page.err;
    EXPECT_EQ(page.out, pageText(Generated(kExample, "Top"), true, true));
    const CliRun plain = RunCli({"page", kExample, "--no-player", "--applet-name", "Top"});
    ASSERT_EQ(plain.status, 0) << plain.err;
    EXPECT_EQ(plain.out, pageText(Generated(kExample, "Top"), true));
    EXPECT_EQ(RunCli({"html", kExample, "--no-player"}).status, 2);

    // A program folder with the player but no applet files: the page plays, and only the
    // plain page stops at the missing applet files.
    fs::create_directories(dir.dir() / "program");
    fs::copy_file(kBin + "/Orvel.ini", path("program/Orvel.ini"));
    dir.write("program/orvelin-player.js", "player");
    const std::string program = "--program-dir=" + path("program");
    const CliRun played = RunCli({"build", kExample, path("a.html"), "--applet-name=Top", program});
    EXPECT_EQ(played.status, 0) << played.err;
    EXPECT_EQ(dir.read("a.html"), page.out);
    EXPECT_EQ(dir.read("orvelin-player.js"), "player");
    const CliRun noApplet =
        RunCli({"build", kExample, path("b.html"), "--applet-name=Top", program, "--no-player"});
    EXPECT_EQ(noApplet.status, 1);
    EXPECT_EQ(noApplet.err, "Can't copy Applet Class files\n");
    EXPECT_EQ(dir.read("b.html"), plain.out);
}

TEST_F(OrvelinCli, ResaveWritesWhatTheDesignerWouldSaveAlsoFromTheLegacyFormat) {
    const CliRun run = RunCli({"resave", kExample, path("copy.orv")});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
    ProjectModel model;
    ASSERT_TRUE(LoadProject(model, kExample).loaded());
    EXPECT_EQ(dir.read("copy.orv"), projectText(model));

    dir.write("old.ini", "[Buttons]\r\nButtonCount=2\r\nAppletWidth=300\r\nx_2=150\r\n");
    ASSERT_EQ(RunCli({"resave", "--legacy", path("old.ini"), path("new.orv")}).status, 0);
    ProjectModel legacy;
    ASSERT_TRUE(LoadProject_OLD(legacy, path("old.ini")).loaded());
    EXPECT_EQ(dir.read("new.orv"), projectText(legacy));
}

TEST_F(OrvelinCli, FailedSaveExitsWithOneAndKeepsTheOldFile) {
    const CliRun noFolder = RunCli({"resave", kExample, path("missing/folder/out.orv")});
    EXPECT_EQ(noFolder.status, 1);
    EXPECT_EQ(noFolder.out, "");
    EXPECT_NE(noFolder.err.find("Error Saving Buttons."), std::string::npos) << noFolder.err;
    dir.write("keep.orv", "previous content");
    EXPECT_EQ(RunCli({"resave", path("nowhere.orv"), path("keep.orv")}).status, 1);
    EXPECT_EQ(dir.read("keep.orv"), "previous content");
}

TEST_F(OrvelinCli, RenderPaintsTheAppletAreaWithoutADisplay) {
    if (RunCli({"--help"}).out.find("orvelin-cli render") == std::string::npos)
        GTEST_SKIP() << "built without the painting library";
    const std::string png = path("over.png");
    const CliRun run = RunCli({"render", kExample, "--state", "OVER", "-o", png},
                              {{"DISPLAY", std::nullopt}, {"QT_QPA_PLATFORM", std::nullopt}});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
    // A PNG of the applet's own size: the IHDR chunk holds width and height big-endian.
    const std::string bytes = ReadBytes(png);
    ASSERT_GT(bytes.size(), 24u);
    EXPECT_EQ(bytes.substr(1, 3), "PNG");
    EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\x02\x76\0\0\0\x50", 8));

    EXPECT_EQ(RunCli({"render", kExample, "--state", "SIDEWAYS", "-o", png}).status, 2);
    EXPECT_EQ(RunCli({"render", kExample}).status, 2);
    EXPECT_EQ(RunCli({"render", path("none.orv"), "-o", path("never.png")}).status, 1);
    EXPECT_FALSE(fs::exists(path("never.png")));
}

TEST(OrvelinCliLanguage, TheTemplateIsCompleteAndTheCheckNamesWhatIsWrongInAFile) {
    const CliRun english = RunCli({"language-template"});
    ASSERT_EQ(english.status, 0) << english.err;
    const orvelin::testing::TempFolder folder;
    const std::string path = folder.path("xx_lng");
    orvelin::testing::WriteBytes(path, english.out);
    const CliRun complete = RunCli({"language-check", path});
    EXPECT_EQ(complete.status, 0) << complete.out;

    std::string misspelt = english.out;
    misspelt.replace(misspelt.find("[frmHTML]"), 9, "[FrmHTML]");
    orvelin::testing::WriteBytes(path, misspelt);
    const CliRun wrong = RunCli({"language-check", path});
    EXPECT_EQ(wrong.status, 1) << wrong.out;
    EXPECT_EQ(RunCli({"language-check", folder.path("none")}).status, 1);
    EXPECT_EQ(RunCli({"language-check"}).status, 2);

    // The languages the program ships give every text, each in its place.
    for (const char* shipped : {"rus_lng", "heb_lng"}) {
        const CliRun check = RunCli({"language-check", kBin + "/" + shipped});
        EXPECT_EQ(check.status, 0) << shipped << '\n' << check.out.substr(check.out.rfind("\n\n"));
    }
}
