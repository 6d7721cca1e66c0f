#pragma once

#include "userinterface.h"

#include <iosfwd>

namespace orvelin::cli {

/**
 * The user interface of the command-line tool: what the designer would show in a
 * message box is written to a stream (stderr), one message per paragraph; questions
 * are answered with Cancel and file choosers choose nothing, since nobody is there
 * to ask. An OK/Cancel message (a file that could not be copied) is written like any
 * other and answered with OK, so the command goes on and every such message is seen.
 * The progress window has no use here.
 */
class ConsoleUserInterface : public UserInterface {
public:
    explicit ConsoleUserInterface(std::ostream& err) : m_err(err) {}

    void showMessage(const std::string& text, const std::string& title) override;
    Answer askOkCancel(const std::string& text, const std::string& title) override;
    Answer askYesNoCancel(const std::string&, const std::string&) override {
        return Answer::Cancel;
    }
    std::optional<std::string> chooseOpenFile(const std::string&) override { return {}; }
    std::optional<std::string> chooseSaveFile(const std::string&, const std::string&) override {
        return {};
    }
    void showProgress(const std::string&, const std::string&, int) override {}
    void hideProgress() override {}

    /// How many messages were shown.
    int messageCount() const { return m_messages; }

private:
    std::ostream& m_err;
    int m_messages = 0;
};

} // namespace orvelin::cli
