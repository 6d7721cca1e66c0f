#pragma once

#include "../model/editorfakes.h"
#include "fakeui.h"
#include "frmmain.h"
#include "testapplication.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace orvelin::testing {

inline const std::string kExample = std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv";

/// The main window over a fresh project, a scripted user, settings in memory and a
/// recording design surface, started the way the program starts it.
struct MainWindow {
    ProjectModel model;
    ButtonList list;
    FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingDesignView design;
    FakeShell shell;
    std::unique_ptr<FrmMain> window;

    explicit MainWindow(const std::string& commandLine = {}) {
        TestApplication();
        window = std::make_unique<FrmMain>(model, list, ui, settings, design, shell);
        window->editor().Startup(commandLine);
    }

    template <typename T> T* find(const char* name) const {
        T* child = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(child, nullptr) << name;
        return child;
    }
    QLineEdit* field(const char* name) const { return find<QLineEdit>(name); }
    QListWidget* buttons() const { return find<QListWidget>("lstButtons"); }
    QAction* action(const char* name) const { return find<QAction>(name); }

    /// Types into a line edit as the user would: select all, then the new text.
    void type(const char* name, const QString& text) {
        QLineEdit* edit = field(name);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    void addButtons(int n) {
        for (int i = 0; i < n; ++i)
            window->editor().AddButton();
    }
    /// Shown and active, for clicks that need a laid-out window and for shortcuts.
    void showActive() {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
};

} // namespace orvelin::testing
