#include "buttonrecord.h"
#include "qsettingsbackend.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(QSettingsBackend, ValuesSurviveInTheGivenFileUnderTheVersionedGroup) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::string file = dir.filePath(QStringLiteral("store.conf")).toStdString();
    const std::string label = "Home, sweet \"home\" @ \\ caf\xC3\xA9";
    {
        QSettingsBackend backend(file);
        Settings settings(backend);
        settings.setDefaultButton(kFactoryDefaultButton);
        settings.setRecentFile(1, "/home/u/My Projects/a.orv");
        settings.setValue(SettingKey::BrowsersName, label, 1);
        settings.saveGeometry("frmDesign", {10, 20, 300, 200});
    }
    QSettingsBackend reopened(file);
    Settings settings(reopened);
    EXPECT_EQ(settings.defaultButton(), kFactoryDefaultButton);
    EXPECT_EQ(reopened.get("1.0  Beta 6\\Params", "strDefaultBtn", "-1"), kFactoryDefaultButton)
        << "written under \"...\\Params\\\", read under \"...\\Params\"";
    EXPECT_EQ(settings.recentFile(1), "/home/u/My Projects/a.orv");
    EXPECT_EQ(settings.value(SettingKey::BrowsersName, 1), label);
    EXPECT_EQ(settings.storedGeometry("frmDesign"), (WindowGeometry{10, 20, 300, 200}));
    EXPECT_TRUE(settings.flag(SettingKey::AutoTile)) << "a missing key gives the default";
}

TEST(QSettingsBackend, AnUnquotedListInAHandEditedFileReadsAsOneText) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("edited.conf"));
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("[1.0%20%20Beta%206]\nRecent\\File1=a, b\n");
    }
    QSettingsBackend backend(path.toStdString());
    EXPECT_EQ(backend.get("1.0  Beta 6\\Recent", "File1", "-1"), "a, b");
}
