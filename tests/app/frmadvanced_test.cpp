#include "buttonrecord.h"
#include "fakeui.h"
#include "frmadvanced.h"
#include "settings.h"
#include "testapplication.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;
using Answer = UserInterface::Answer;

namespace {

QApplication& App() {
    return orvelin::testing::TestApplication();
}

struct Dialog {
    MemorySettingsBackend backend;
    Settings settings{backend};
    orvelin::testing::FakeUserInterface ui;
    std::unique_ptr<FrmAdvanced> form;

    Dialog() {
        App();
        form = std::make_unique<FrmAdvanced>(settings, ui);
        form->show();
    }
    QPushButton* button(const char* name) const {
        return form->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void clickAutoTile() { QTest::mouseClick(form->chkAutoTile(), Qt::LeftButton); }
    std::string autoTile() const { return settings.value(SettingKey::AutoTile); }
};

} // namespace

TEST(FrmAdvanced, EachClickOnAutoTileIsStoredAtOnce) {
    Dialog d;
    d.settings.setFlag(SettingKey::AutoTile, false);
    d.form->hide();
    d.form->show(); // shows the stored value
    ASSERT_FALSE(d.form->chkAutoTile()->isChecked());
    QSignalSpy changed(d.form.get(), &FrmAdvanced::autoTileChanged);

    d.clickAutoTile();
    EXPECT_EQ(d.autoTile(), "1");
    d.clickAutoTile();
    EXPECT_EQ(d.autoTile(), "0"); // twice: back to the first value
    EXPECT_EQ(changed.count(), 2);
    EXPECT_TRUE(d.ui.shown.empty()); // no confirmation
}

TEST(FrmAdvanced, RestoreDefaultsAsksAndCancelKeepsEverything) {
    Dialog d;
    d.settings.SetDefaultButton("1|2|3|4|");
    d.settings.setFlag(SettingKey::AutoTile, false);
    d.ui.answers.push_back(Answer::Cancel);
    QTest::mouseClick(d.button("btnRestoreDefaults"), Qt::LeftButton);
    ASSERT_EQ(d.ui.shown.size(), 1u);
    EXPECT_EQ(d.ui.shown[0].kind, "okcancel");
    EXPECT_EQ(d.settings.DefaultButton(), "1|2|3|4|");
    EXPECT_EQ(d.autoTile(), "0");
}

TEST(FrmAdvanced, RestoreDefaultsPutsBackTheFactoryButtonAndOptions) {
    Dialog d;
    d.settings.SetDefaultButton("1|2|3|4|");
    d.settings.setFlag(SettingKey::AutoTile, false);
    d.form->chkAutoTile()->setChecked(false);
    QSignalSpy restored(d.form.get(), &FrmAdvanced::defaultsRestored);
    d.ui.answers.push_back(Answer::Ok);
    QTest::mouseClick(d.button("btnRestoreDefaults"), Qt::LeftButton);
    EXPECT_EQ(d.settings.DefaultButton(), kFactoryDefaultButton);
    EXPECT_EQ(d.backend.get(SectionPath(SettingsSection::Params), "strDefaultBtn", "missing"),
              kFactoryDefaultButton);
    EXPECT_EQ(d.autoTile(), SettingDefinition(SettingKey::AutoTile).defaultValue);
    EXPECT_EQ(d.form->chkAutoTile()->isChecked(), d.settings.flag(SettingKey::AutoTile));
    EXPECT_EQ(restored.count(), 1);
}

TEST(FrmAdvanced, OkClosesTheDialog) {
    Dialog d;
    QTest::mouseClick(d.button("btnOk"), Qt::LeftButton);
    EXPECT_FALSE(d.form->isVisible());
    EXPECT_EQ(d.form->result(), QDialog::Accepted);
}
