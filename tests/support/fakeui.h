#pragma once

#include "textcatalogue.h"
#include "userinterface.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace orvelin::testing {

/// A scripted user: answers come from queues, everything shown is recorded.
class FakeUserInterface : public UserInterface {
public:
    struct Shown {
        std::string kind; ///< "message", "yesnocancel", "okcancel", "open", "save"
        std::string text;
        std::string title;
    };

    std::vector<Shown> shown;
    std::deque<Answer> answers;                         ///< for the two question kinds
    std::deque<std::optional<std::string>> chosenFiles; ///< for the two file choosers
    bool progressVisible = false;

    void showMessage(const std::string& text, const std::string& title) override {
        shown.push_back({"message", text, title});
    }
    Answer askYesNoCancel(const std::string& text, const std::string& title) override {
        shown.push_back({"yesnocancel", text, title});
        return next(Answer::Cancel);
    }
    Answer askOkCancel(const std::string& text, const std::string& title) override {
        shown.push_back({"okcancel", text, title});
        return next(Answer::Ok);
    }
    std::optional<std::string> chooseOpenFile(const std::string& filter) override {
        shown.push_back({"open", filter, {}});
        return nextFile();
    }
    std::optional<std::string> chooseSaveFile(const std::string& filter,
                                              const std::string& proposed) override {
        shown.push_back({"save", filter, proposed});
        return nextFile();
    }
    std::optional<std::string> chooseSaveFileAndFilter(const std::string& filter,
                                                       const std::string& proposed,
                                                       std::string& chosen) override {
        chosen = "Orvelin Files (*.orv)"; // the user keeps the project filter
        return chooseSaveFile(filter, proposed);
    }
    void showProgress(const std::string&, const std::string&, int) override {
        progressVisible = true;
    }
    void hideProgress() override { progressVisible = false; }

    /// Texts of the messages shown, in order.
    std::vector<std::string> texts() const {
        std::vector<std::string> out;
        for (const Shown& s : shown)
            if (s.kind == "message")
                out.push_back(s.text);
        return out;
    }

private:
    Answer next(Answer fallback) {
        if (answers.empty())
            return fallback;
        Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    std::optional<std::string> nextFile() {
        if (chosenFiles.empty())
            return std::nullopt;
        auto f = chosenFiles.front();
        chosenFiles.pop_front();
        return f;
    }
};

} // namespace orvelin::testing
