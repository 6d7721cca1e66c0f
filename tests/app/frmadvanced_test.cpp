#include "buttonrecord.h"
#include "fakeui.h"
#include "frmadvanced.h"
#include "settings.h"
#include "testapplication.h"
#include "testdoubles.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;
using Answer = UserInterface::Answer;

namespace {

/// The dialog over settings in memory with AutoTile off and a changed default button.
struct Dialog {
    QApplication& app = orvelin::testing::TestApplication();
    MemorySettingsBackend backend;
    Settings settings{backend};
    orvelin::testing::FakeUserInterface ui;
    FrmAdvanced form{settings, ui};

    Dialog() {
        settings.setDefaultButton("1|2|3|4|");
        settings.setFlag(SettingKey::AutoTile, false);
        form.show(); // shows the stored values
    }
    void click(const char* name) {
        QTest::mouseClick(form.findChild<QAbstractButton*>(name), Qt::LeftButton);
    }
    std::string autoTile() const { return settings.value(SettingKey::AutoTile); }
};

} // namespace

TEST(FrmAdvanced, EachClickOnAutoTileIsStoredAtOnce) {
    Dialog d;
    ASSERT_FALSE(d.form.chkAutoTile()->isChecked());
    QSignalSpy changed(&d.form, &FrmAdvanced::autoTileChanged);
    d.click("chkAutoTile");
    EXPECT_EQ(d.autoTile(), "1");
    d.click("chkAutoTile");
    EXPECT_EQ(d.autoTile(), "0");
    EXPECT_EQ(changed.count(), 2);
    ASSERT_TRUE(d.form.chkHtml5Player()->isChecked()); // plays by default
    d.click("chkHtml5Player");
    EXPECT_EQ(d.settings.value(SettingKey::Html5Player) + d.autoTile(), "00");
    EXPECT_TRUE(d.ui.shown.empty()); // no confirmation
}

TEST(FrmAdvanced, RestoreDefaultsAsksAndPutsBackTheFactoryButtonAndOptions) {
    Dialog d;
    d.click("chkHtml5Player");
    QSignalSpy restored(&d.form, &FrmAdvanced::defaultsRestored);
    d.ui.answers = {Answer::Cancel, Answer::Ok};
    d.click("btnRestoreDefaults");
    ASSERT_EQ(d.ui.shown.size(), 1u);
    EXPECT_EQ(d.ui.shown[0].kind, "okcancel");
    EXPECT_EQ(d.settings.defaultButton(), "1|2|3|4|");
    EXPECT_EQ(d.autoTile(), "0");

    d.click("btnRestoreDefaults");
    EXPECT_EQ(d.backend.get(sectionPath(SettingsSection::Params), "strDefaultBtn", "missing"),
              kFactoryDefaultButton);
    EXPECT_EQ(d.autoTile(), settingDefinition(SettingKey::AutoTile).defaultValue);
    EXPECT_EQ(d.form.chkAutoTile()->isChecked(), d.settings.flag(SettingKey::AutoTile));
    EXPECT_EQ(d.settings.value(SettingKey::Html5Player), "1");
    EXPECT_TRUE(d.form.chkHtml5Player()->isChecked());
    EXPECT_EQ(restored.count(), 1);
}
