#include "desktopdialogs.h"
#include "desktopsetup.h"
#include "fakeui.h"
#include "programfolder.h"
#include "qtdesktoptools.h"
#include "settings.h"
#include "tempfolder.h"
#include "testapplication.h"
#include "testdoubles.h"
#include "textcatalogue.h"

#include <QCheckBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QWidget>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;
using namespace orvelin::testing;

namespace {

std::string Trimmed(std::string text) {
    text.erase(text.find_last_not_of(" \r\n") + 1);
    return text;
}

// The prompt start-up opened, answered with `button` ("btnYes"/"btnNo").
void Answer(QWidget& owner, const char* button, bool dontAsk) {
    auto* prompt = owner.findChild<FrmAskToAssociate*>();
    ASSERT_NE(prompt, nullptr);
    ASSERT_TRUE(prompt->isModal() && prompt->isVisible());
    prompt->findChild<QCheckBox*>(QStringLiteral("chkDontAsk"))->setChecked(dontAsk);
    prompt->findChild<QPushButton*>(QLatin1String(button))->click();
    delete prompt; // closed and deleted later; the next prompt must be a new one
}

} // namespace

// The real freedesktop tools in a scratch home: after Yes, the desktop knows .orv
// files as Orvelin projects and opens them with Orvelin's entry.
TEST(DesktopSetup, TheStartUpPromptRegistersOrvelinForOrvFilesWithTheRealTools) {
    TestApplication();
    for (const char* tool : {"xdg-mime", "mimetype", "update-mime-database"})
        if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
            GTEST_SKIP() << tool << " is not installed (scripts/install-deps.sh installs it)";
    TempFolder home;
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((home.dir() / "data").string()));
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((home.dir() / "config").string()));
    // Nor what an installed Orvelin registered for the whole system.
    qputenv("XDG_DATA_DIRS", QByteArray::fromStdString((home.dir() / "system").string()));
    qputenv("XDG_CONFIG_DIRS", QByteArray::fromStdString((home.dir() / "system").string()));
    qunsetenv("XDG_CURRENT_DESKTOP"); // the generic desktop, whatever runs the tests
    const std::string project = (home.dir() / "navbar.orv").string();
    WriteBytes(project, "Orvelin Project 1.0  Beta 6\r\n");

    MemorySettingsBackend backend;
    Settings settings(backend);
    settings.setValue(SettingKey::ShortCut, "Created"); // no menu-entry offer first
    FakeUserInterface ui;
    QtDesktopTools tools;
    QWidget owner;
    DesktopSetup setup(settings, ui, tools, findProgramFolder(), &owner);

    setup.offerAtStartup();
    Answer(owner, "btnNo", true);
    EXPECT_EQ(settings.value(SettingKey::DontAskToAssociate), "1");
    setup.offerAtStartup();
    EXPECT_EQ(owner.findChild<FrmAskToAssociate*>(), nullptr) << "asked again after Don't ask";

    settings.setValue(SettingKey::DontAskToAssociate, "0");
    setup.offerAtStartup();
    Answer(owner, "btnYes", false);
    EXPECT_TRUE(ui.texts().empty()) << ui.texts().front();
    EXPECT_EQ(Trimmed(tools.run("xdg-mime", {"query", "filetype", project}).output),
              "application/x-orvelin-project");
    EXPECT_EQ(Trimmed(tools.run("xdg-mime", {"query", "default", kProjectMimeType}).output),
              kDesktopId);
    setup.offerAtStartup();
    EXPECT_EQ(owner.findChild<FrmAskToAssociate*>(), nullptr) << "asked once associated";
}
