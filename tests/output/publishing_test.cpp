#include "fakeui.h"
#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectmodel.h"
#include "publishing.h"
#include "tempfolder.h"
#include "testdoubles.h"
#include "textcatalogue.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace orvelin;
using orvelin::testing::FakeUserInterface;
using orvelin::testing::TempFolder;

namespace {

const std::string kCantCopyButton2 = "Can't copy Pictures Or Sounds for Button # 2\r\n\r\n"
                                     "Press Cancel to stop showing error messages.";

/// A project file in `projects/` whose images and sounds are relative to it, and a
/// program folder of its own that holds the applet files.
class Publishing : public ::testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(temp.dir() / "program");
        fs::create_directories(temp.dir() / "projects/art");
        fs::create_directories(temp.dir() / "site");
        temp.write("program/Orvel1b6.class", "class");
        temp.write("program/Orvel1b6.jar", "jar");
        temp.write("projects/art/home up.gif", "GIF89a home");
        temp.write("projects/art/click.au", "au");
        model.ProjectFileName = temp.path("projects/nav.orv");
        model.AppletName = "Nav";
        for (int i = 0; i < 3; ++i)
            model.addButton(kFactoryDefaultButton);
    }

    bool Build(const std::string& target, bool withPlayer = false) {
        html = MakeHTML(model, model.AppletName, GetJSCaller(model.AppletName, program));
        return buildPage(model, {html.text, html.usesJavaScript, withPlayer}, target, ui, program);
    }

    TempFolder temp;
    const std::string program = temp.path("program");
    ProjectModel model;
    GeneratedHtml html;
    FakeUserInterface ui;
};

} // namespace

TEST(PageText, WrapsTheCodeWithTheBodyTagOfItsJavaScriptFlagAndMarksUtf8) {
    EXPECT_EQ(pageText("CODE\r\n", false),
              "<Html>\r\n<Head><Title>Orvelin</Title></Head>\r\n<Body>\r\n<Center>\r\n\r\n"
              "CODE\r\n\r\n</Center>\r\n</Body>\r\n</Html>\r\n");
    EXPECT_EQ(pageText("CODE\r\n", true).substr(45, 33), "<body onload=\"InitJSCaller();\">\r\n");
    EXPECT_EQ(pageText("Caf\xC3\xA9\r\n", false).substr(0, 11), "\xEF\xBB\xBF<Html>\r\n");
    EXPECT_EQ(pageText("CODE\r\n", false, true).substr(65),
              "CODE\r\n\r\n</Center>\r\n<script src=\"orvelin-player.js\"></script>\r\n"
              "</Body>\r\n</Html>\r\n");
}

TEST_F(Publishing, BuildCopiesEveryFileUnderTheNameItsParameterCarries) {
    // Two buttons name one image; one path uses Windows separators.
    model.button(1).image(ButtonState::UP) = "art/home up.gif";
    model.button(3).image(ButtonState::DOWN) = "art\\home up.gif";
    model.button(2).sound(ButtonState::OVER) = "art/click.au";
    ASSERT_TRUE(Build(temp.path("site/nav.html")));

    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(temp.read("site/nav.html"), pageText(html.text, false));
    EXPECT_NE(html.text.find("|home&nbspup.gif|"), std::string::npos);
    EXPECT_EQ(temp.read("site/home&nbspup.gif"), "GIF89a home");
    EXPECT_EQ(temp.read("site/click.au"), "au");
    EXPECT_EQ(temp.read("site/click.au.js"),
              "(window.OrvelinSounds = window.OrvelinSounds || {})[\"click.au\"] =\n\"YXU=\";\n");
    EXPECT_EQ(temp.read("site/Orvel1b6.jar"), "jar");
    EXPECT_EQ(pageFiles(model, temp.path("program")).size(), 5u);

    // A target that is a folder: nothing is written and the message names it.
    EXPECT_FALSE(Build(temp.path("site")));
    EXPECT_EQ(ui.texts(), std::vector<std::string>{"Can't write the page " + temp.path("site") +
                                                   ": it is a folder"});
}

TEST_F(Publishing, BuildingIntoTheProgramFolderLeavesItsOwnAppletFilesAlone) {
    // Read-only, as in an installed program: copying one onto itself would fail.
    fs::permissions(temp.dir() / "program/Orvel1b6.class", fs::perms::owner_read);
    fs::permissions(temp.dir() / "program/Orvel1b6.jar", fs::perms::owner_read);
    EXPECT_TRUE(Build(temp.path("program/") + "../program/nav.html"));
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(temp.read("program/Orvel1b6.class"), "class");
}

TEST_F(Publishing, MissingFilesAreReportedPerButtonUntilCancelledWhileCopyingGoesOn) {
    model.button(2).image(ButtonState::UP) = "art/missing.gif";
    model.button(2).image(ButtonState::OVER) = "art/missing-too.gif";
    model.button(3).image(ButtonState::UP) = "art/gone.gif";
    model.button(3).sound(ButtonState::UP) = "art/click.au";
    ui.answers = {UserInterface::Answer::Ok, UserInterface::Answer::Cancel};
    EXPECT_FALSE(Build(temp.path("site/nav.html")));
    ASSERT_EQ(ui.shown.size(), 2u);
    EXPECT_EQ(ui.shown[0].kind, "okcancel");
    EXPECT_EQ(ui.shown[1].text, kCantCopyButton2);
    EXPECT_EQ(temp.read("site/click.au"), "au");
}

TEST_F(Publishing, PreviewOpensThePageWithTheChosenBrowserOrSaysWhyNot) {
    model.button(1).URL = "javascript:go()";
    model.button(1).image(ButtonState::UP) = "art/home up.gif";
    html = MakeHTML(model, model.AppletName, GetJSCaller(model.AppletName, program));
    orvelin::testing::FakeShell shell;
    const std::string page = temp.path("program/AppletTemp/Temp.htm");
    ASSERT_TRUE(previewPage(model, {html.text, true}, "", ui, shell, program));
    ASSERT_TRUE(previewPage(model, {html.text, true}, "/opt/fox", ui, shell, program));
    EXPECT_EQ(shell.opened, std::vector<std::string>{page});
    EXPECT_EQ(shell.started, (decltype(shell.started){{"/opt/fox", {page}}}));
    EXPECT_EQ(temp.read("program/AppletTemp/Temp.htm"), pageText(html.text, true));
    EXPECT_EQ(temp.read("program/AppletTemp/home&nbspup.gif"), "GIF89a home");
    EXPECT_EQ(temp.read("program/AppletTemp/Orvel1b6.class"), "class");

    shell.succeed = false;
    EXPECT_FALSE(previewPage(model, {html.text, true}, "", ui, shell, program));
    ASSERT_EQ(ui.texts().size(), 1u);
    EXPECT_EQ(ui.texts()[0].rfind(page + " could not be opened", 0), 0u);
}

TEST_F(Publishing, APageThatPlaysTakesThePlayerAlongAndNeedsNoAppletFiles) {
    fs::remove(temp.dir() / "program/Orvel1b6.class");
    fs::remove(temp.dir() / "program/Orvel1b6.jar");
    temp.write("program/orvelin-player.js", "player");
    ASSERT_TRUE(Build(temp.path("site/nav.html"), true));
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(temp.read("site/nav.html"), pageText(html.text, false, true));
    EXPECT_EQ(temp.read("site/orvelin-player.js"), "player");

    // The plain page still needs its applet.
    EXPECT_FALSE(Build(temp.path("site/plain.html")));
    EXPECT_EQ(ui.texts(), std::vector<std::string>{"Can't copy Applet Class files"});

    // Without the player nothing is written, and the message says which file is missing.
    fs::remove(temp.dir() / "program/orvelin-player.js");
    EXPECT_FALSE(Build(temp.path("site/lost.html"), true));
    EXPECT_FALSE(fs::exists(temp.dir() / "site/lost.html"));
    ASSERT_EQ(ui.texts().size(), 2u);
    EXPECT_NE(ui.texts()[1].find(temp.path("program/orvelin-player.js") + " is missing"),
              std::string::npos);
}
