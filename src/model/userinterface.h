#pragma once

#include <optional>
#include <string>

namespace orvelin {

/// The modeless progress window with the busy pointer, which long reads and writes
/// keep up to date.
class ProgressView {
public:
    virtual ~ProgressView() = default;
    /// `percent` is -1 for none.
    virtual void showProgress(const std::string& title, const std::string& text, int percent) = 0;
    virtual void hideProgress() = 0;
};

/**
 * All the core ever asks of the person in front of it. The Qt layer implements it
 * with message boxes, file dialogs and the progress window; tests with a scripted
 * fake that records every question.
 */
class UserInterface : public ProgressView {
public:
    enum class Answer { Yes, No, Cancel, Ok };

    /// A message with an OK button. An empty title means the program's default title.
    virtual void showMessage(const std::string& text, const std::string& title = {}) = 0;
    /// A message that reports a failure or a refusal: the same box with the warning
    /// icon where the interface has icons.
    virtual void showWarning(const std::string& text, const std::string& title = {}) {
        showMessage(text, title);
    }
    /// Yes / No / Cancel.
    virtual Answer askYesNoCancel(const std::string& text, const std::string& title = {}) = 0;
    /// OK / Cancel.
    virtual Answer askOkCancel(const std::string& text, const std::string& title = {}) = 0;

    /// File choosers; `filter` is in Qt's form ("Orvelin Files (*.orv);;All Files (*)").
    virtual std::optional<std::string> chooseOpenFile(const std::string& filter) = 0;
    virtual std::optional<std::string> chooseSaveFile(const std::string& filter,
                                                      const std::string& proposed) = 0;
    /// The save chooser that also tells which entry of `filter` the user had chosen, in
    /// its text ("Orvelin Files (*.orv)"); this default knows none and leaves it empty.
    virtual std::optional<std::string> chooseSaveFileAndFilter(const std::string& filter,
                                                               const std::string& proposed,
                                                               std::string& chosenFilter) {
        chosenFilter.clear();
        return chooseSaveFile(filter, proposed);
    }
};

} // namespace orvelin
