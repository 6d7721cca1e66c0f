#include "browserlist.h"
#include "fakeui.h"
#include "frmbrowsersetup.h"
#include "frmhtml.h"
#include "htmlgenerator.h"
#include "programfolder.h"
#include "publishing.h"
#include "qtshell.h"
#include "tempfolder.h"
#include "testapplication.h"
#include "testdoubles.h"
#include "textcatalogue.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;

TEST(FrmHTML, ShowsAndCopiesExactlyTheGeneratedCodeAndNamesTheAppletAsTyped) {
    orvelin::testing::TestApplication();
    orvelin::testing::FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings(backend);
    QtShell shell;
    ProjectModel model;
    model.addButton(kFactoryDefaultButton);
    model.button(1).URL = "JavaScript:go()";
    const std::string program = findProgramFolder();
    FrmHTML window(model, ui, settings, shell, program);
    window.MakeHTML();
    EXPECT_EQ(model.AppletName, "Orvelin");
    EXPECT_TRUE(window.usesJavaScript());

    auto* name = window.findChild<QLineEdit*>("txtAppletName");
    ASSERT_NE(name, nullptr);
    name->clear();
    QTest::keyClicks(name, "My Menu");
    EXPECT_EQ(model.AppletName, "My_Menu");

    window.findChild<QPushButton*>("btnReGenerate")->click();
    window.findChild<QPushButton*>("btnCopyToClb")->click();
    const std::string expected =
        MakeHTML(model, model.AppletName, GetJSCaller(model.AppletName, program)).text;
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), expected);
    EXPECT_NE(expected.find("<applet name = \"My_Menu\""), std::string::npos);
}

TEST(FrmHTML, PreviewStartsTheChosenBrowserWithThePagePath) {
    orvelin::testing::TestApplication();
    const orvelin::testing::TempFolder temp;
    temp.write("orvelin-player.js", "player"); // the page plays by default
    // A browser that writes down the arguments it was started with.
    const std::string browser = temp.write(
        "fakebrowser", "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + temp.path("args.tmp") + "'\nmv '" +
                           temp.path("args.tmp") + "' '" + temp.path("args") + "'\n");
    std::filesystem::permissions(browser, std::filesystem::perms::owner_all);

    orvelin::testing::FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings(backend);
    saveBrowsers(settings, {{kDefaultBrowserName, ""}, {"Fake", browser}});
    setSelectedBrowser(settings, 1);
    QtShell shell;
    ProjectModel model;
    model.addButton(kFactoryDefaultButton);
    FrmHTML window(model, ui, settings, shell, temp.path(""));
    window.showAndGenerate();
    auto* chooser = window.findChild<QComboBox*>("cmbBrowser");
    ASSERT_EQ(chooser->count(), 2);
    EXPECT_EQ(chooser->currentText(), "Fake");

    window.findChild<QPushButton*>("btnPreview")->click();
    const std::string page = previewPagePath(temp.path(""));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !temp.read("args").empty(); }, 10000));
    EXPECT_EQ(temp.read("args"), page + "\n");
    EXPECT_TRUE(ui.texts().empty());
    window.close();
    EXPECT_NE(settings.storedGeometry("frmHTML").width, 0);
}

TEST(FrmBrowserSetup, TheDefaultBrowserStaysFirstWhileOthersMoveAndGo) {
    orvelin::testing::TestApplication();
    FrmBrowserSetup dialog({{kDefaultBrowserName, ""}, {"A", "/a"}, {"B", "/b"}}, {});
    auto* list = dialog.findChild<QListWidget*>("lstBrowsers");
    auto* up = dialog.findChild<QPushButton*>("btnUp");
    auto* remove = dialog.findChild<QPushButton*>("btnRemove");
    list->setCurrentRow(1);
    EXPECT_FALSE(up->isEnabled()); // above it is only the default browser
    list->setCurrentRow(2);
    up->click();
    remove->click(); // B, moved up to second
    list->setCurrentRow(0);
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_EQ(dialog.browsers(),
              (std::vector<BrowserEntry>{{kDefaultBrowserName, ""}, {"A", "/a"}}));
}
