#include "fakeui.h"
#include "frmhtml.h"
#include "htmlgenerator.h"
#include "testapplication.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(FrmHTML, ShowsAndCopiesExactlyTheGeneratedCodeAndNamesTheAppletAsTyped) {
    orvelin::testing::TestApplication();
    orvelin::testing::FakeUserInterface ui;
    ProjectModel model;
    model.AddButton(kFactoryDefaultButton);
    model.Button(1).URL = "JavaScript:go()";
    FrmHTML window(model, ui);
    window.MakeHTML();
    EXPECT_EQ(model.AppletName, "Orvelin");
    EXPECT_TRUE(window.usesJavaScript());
    EXPECT_EQ(ui.progressShows, 1);
    EXPECT_FALSE(ui.progressVisible);

    auto* name = window.findChild<QLineEdit*>("txtAppletName");
    ASSERT_NE(name, nullptr);
    name->clear();
    QTest::keyClicks(name, "My Menu");
    EXPECT_EQ(name->text(), "My Menu");
    EXPECT_EQ(model.AppletName, "My_Menu");

    window.findChild<QPushButton*>("btnReGenerate")->click();
    window.findChild<QPushButton*>("btnCopyToClb")->click();
    const std::string expected = MakeHTML(model).text;
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), expected);
    EXPECT_NE(expected.find("<applet name = \"My_Menu\""), std::string::npos);
}
