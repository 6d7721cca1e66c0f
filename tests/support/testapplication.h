#pragma once

#include <QApplication>
#include <gtest/gtest.h>

namespace orvelin::testing {

/**
 * The one QApplication of a widget test program, made on first use. It is deleted
 * after the last test, while Qt's own globals still exist: an application object
 * left to the exit handlers crashes the program after every test has passed.
 */
inline QApplication& TestApplication() {
    static QApplication* app = nullptr;
    if (app == nullptr) {
        static int argc = 1;
        static char name[] = "orvelin_test";
        static char* argv[] = {name, nullptr};
        app = new QApplication(argc, argv);
        class DeleteApplication : public ::testing::Environment {
        public:
            void TearDown() override {
                delete app;
                app = nullptr;
            }
        };
        ::testing::AddGlobalTestEnvironment(new DeleteApplication);
    }
    return *app;
}

/// The child of `parent` named `name`; a missing one fails the test.
template <typename T = QWidget> T* Child(const QObject& parent, const char* name) {
    T* child = parent.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(child, nullptr) << name;
    return child;
}

} // namespace orvelin::testing
