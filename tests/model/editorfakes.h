#pragma once

#include "buttonlist.h"
#include "designview.h"
#include "editorview.h"
#include "fakeui.h"
#include "projectmodel.h"
#include "testdoubles.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orvelin::testing {

/// A design surface that follows the model's notices and writes down every call it
/// makes of itself as text ("LoadButton 3").
class RecordingDesignView : public DesignView {
public:
    explicit RecordingDesignView(ProjectModel& model)
        : m_model(model), m_listening(model.notices.listen([this](const DocumentChange& c) {
              notices.push_back(c);
              showChange(c, m_model);
          })) {}
    ~RecordingDesignView() override { m_model.notices.stopListening(m_listening); }

    std::vector<std::string> calls;
    std::vector<DocumentChange> notices;
    bool onTop = false;

    void LoadButton(int index) override { calls.push_back("LoadButton " + std::to_string(index)); }
    void hideLastButton(int index) override {
        calls.push_back("HideLastButton " + std::to_string(index));
    }
    void clearButtons() override { calls.push_back("ClearButtons"); }
    void RedrawButton(int index, bool, bool, bool) override { redrawn.push_back(index); }
    void redrawAll() override { calls.push_back("RedrawAll"); }
    void moveButton(int index, bool) override {
        calls.push_back("MoveButton " + std::to_string(index));
    }
    void placeMarks(int index) override { calls.push_back("PlaceMarks " + std::to_string(index)); }
    void selectionChanged() override { calls.push_back("SelectionChanged"); }
    void UpdateTransparentBtns() override { calls.push_back("UpdateTransparentBtns"); }
    void appletChanged() override { calls.push_back("AppletChanged"); }
    void hideMarks() override { calls.push_back("HideMarks"); }
    void setOnTop(bool top) override {
        onTop = top;
        calls.push_back(top ? "SetOnTop 1" : "SetOnTop 0");
    }

    std::vector<int> redrawn; ///< indices given to RedrawButton, in order
    long count(const std::string& call) const {
        return std::count(calls.begin(), calls.end(), call);
    }
    void clear() {
        calls.clear();
        notices.clear();
        redrawn.clear();
    }

private:
    ProjectModel& m_model;
    int m_listening;
};

/// A main window that records what it was told to show, and the model's Updating flag
/// at the moments it fills its controls.
class RecordingEditorView : public EditorView {
public:
    explicit RecordingEditorView(const ProjectModel& model) : m_model(model) {}

    std::vector<int> props; ///< the buttons shown in the panel, in order
    std::vector<bool> mainParamsUpdating;
    std::string caption;
    std::array<std::pair<std::string, bool>, 5> recent{}; ///< slots 1..4
    bool onTopChecked = false;
    std::string language;
    bool autoTileChecked = false;
    int labelEditorCloses = 0;
    int quits = 0;
    std::map<std::string, ImageSize> imageSizes;

    void ShowProp(int index, const std::string&) override { props.push_back(index); }
    void SetMainParams() override { mainParamsUpdating.push_back(m_model.Updating); }
    void showButtonList() override {}
    void setCaption(const std::string& text) override { caption = text; }
    void setRecentEntry(int slot, const std::string& text, bool visible) override {
        recent.at(static_cast<std::size_t>(slot)) = {text, visible};
    }
    void setActionTitle(const std::string&) override {}
    void showState(ButtonState) override {}
    void setOnTopChecked(bool checked) override { onTopChecked = checked; }
    void setLanguageChecked(const std::string& lang) override { language = lang; }
    void setAutoTileChecked(bool checked) override { autoTileChecked = checked; }
    void closeLabelEditor() override { ++labelEditorCloses; }
    void quitProgram() override { ++quits; }
    std::optional<ImageSize> imageSizeOf(const std::string& path) override {
        const auto it = imageSizes.find(path);
        return it == imageSizes.end() ? std::nullopt : std::optional<ImageSize>(it->second);
    }

private:
    const ProjectModel& m_model;
};

/// What the editor works on: a fresh project, a scripted user, settings in memory and
/// recording views and shell.
struct EditorParts {
    ProjectModel model;
    ButtonList list;
    FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingDesignView design{model};
    FakeShell shell;
    RecordingEditorView view{model};
};

} // namespace orvelin::testing
