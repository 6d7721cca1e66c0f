#include "editor.h"

#include "languagefiles.h"
#include "programfolder.h"
#include "projectfile.h"
#include "textcatalogue.h"
#include "texthelpers.h"

#include <algorithm>
#include <filesystem>

namespace orvelin {

namespace {

constexpr const char* kProgramTitle = "Orvelin";

} // namespace

const char* askToSaveText(SaveAnswer answer) {
    switch (answer) {
    case SaveAnswer::Saved:
        return "SAVED";
    case SaveAnswer::Yes:
        return "YES";
    case SaveAnswer::No:
        return "NO";
    case SaveAnswer::Cancel:
        return "CANCEL";
    }
    return "CANCEL";
}

std::string mainTitle() {
    return std::string(kProgramTitle) + " " + kVersionText;
}

std::string buttonsClipboardHeader() {
    return std::string(kProgramTitle) + " Buttons " + kVersionText;
}

std::string buttonsClipboardText(const ProjectModel& model, const std::vector<int>& buttons) {
    std::string text = buttonsClipboardHeader() + std::string(kCrLf);
    for (int index : buttons) {
        appendSerializedButton(text, model.button(index));
        text += kCrLf;
    }
    return text;
}

std::optional<std::vector<ButtonRecord>> buttonsFromClipboardText(std::string_view text) {
    std::vector<ButtonRecord> buttons;
    bool header = true;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (header) {
            if (line != buttonsClipboardHeader())
                return std::nullopt;
            header = false;
        } else if (!line.empty()) {
            ButtonRecord record;
            if (parseButton(line, record))
                return std::nullopt;
            // Text typed elsewhere may hold what no field can store.
            cleanTextFields(record);
            buttons.push_back(std::move(record));
        }
    }
    if (header)
        return std::nullopt;
    return buttons;
}

std::string projectSavePath(std::string_view chosen, std::string_view chosenFilter) {
    const std::string_view projectFilter =
        std::string_view(texts()[Msg::ProjectFilter])
            .substr(0, std::string_view(texts()[Msg::ProjectFilter]).find(";;"));
    const std::string name = bareFileName(chosen);
    if (chosenFilter != projectFilter || name.empty() || name.find('.', 1) != std::string::npos)
        return std::string(chosen);
    return std::string(chosen) + ".orv";
}

std::string projectPathFromCommandLine(std::string_view commandLine) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!commandLine.empty() && blank(commandLine.front()))
        commandLine.remove_prefix(1);
    while (!commandLine.empty() && blank(commandLine.back()))
        commandLine.remove_suffix(1);
    if (!commandLine.empty() && commandLine.front() == '"') {
        // The first and the last character go, whatever the last one is.
        commandLine.remove_prefix(1);
        if (!commandLine.empty())
            commandLine.remove_suffix(1);
    }
    return std::string(commandLine);
}

Editor::Editor(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
               DesignView& design, Shell& shell, EditorView& view, std::string programFolder)
    : m_model(model), m_list(list), m_ui(ui), m_settings(settings), m_design(design),
      m_shell(shell), m_view(view), m_programFolder(std::move(programFolder)),
      m_recent(settings, view), m_properties(model, list, ui, settings, view) {
    m_listening = m_model.notices.listen([this](const DocumentChange& c) { showChange(c); });
}

Editor::~Editor() {
    m_model.notices.stopListening(m_listening);
}

void Editor::showChange(const DocumentChange& change) {
    if (change.countChanged || change.selection || change.everything)
        m_view.showButtonList();
    if ((change.applet || change.everything) && !change.fromPanel)
        SetMainParams();
    // The panel follows a drag as it goes; a resize only when the handle is let go.
    const int current = m_model.CurrentButton;
    const bool resizing = change.gesture && !change.onlyMoved(current);
    if (change.selection || change.countChanged || change.everything ||
        (!change.fromPanel && !resizing && change.touches(current)))
        ShowProp(current);
}

void Editor::announceReplaced(int countBefore) {
    DocumentChange change;
    change.everything = change.applet = change.background = true;
    change.countChanged = change.selection = true;
    change.countBefore = countBefore;
    m_model.notices.announce(change);
}

void Editor::announceCount(int countBefore, int firstChanged, std::string name) {
    DocumentChange change;
    change.countChanged = change.selection = true;
    change.countBefore = countBefore;
    for (int i = firstChanged; i <= m_model.ButtonCount; ++i)
        change.button(i);
    change.name = std::move(name);
    m_model.notices.announce(change);
}

void Editor::announceSelection() {
    DocumentChange change;
    change.selection = true;
    m_model.notices.announce(change);
}

StartupResult Editor::startup(std::string_view commandLine) {
    m_model.Saved = true;
    m_view.setCaption(mainTitle());
    m_recent.GetRecent();
    const std::string language = m_settings.value(SettingKey::LanguageCurrent);
    m_view.setLanguageChecked(language);
    if (language != kEnglish)
        applyLanguage(language);
    m_model.CurrentState = ButtonState::UP;
    showCurrentState();
    if (appendDefaultButton() == StartupResult::Quit)
        return StartupResult::Quit;
    SetMainParams();
    const bool onTop = m_settings.flag(SettingKey::frmDesignOnTop);
    if (onTop)
        m_design.setOnTop(true);
    m_view.setOnTopChecked(onTop);
    m_view.setAutoTileChecked(m_settings.flag(SettingKey::AutoTile));
    m_model.Saved = true;

    const std::string path = projectPathFromCommandLine(commandLine);
    if (!path.empty())
        loadFile(path);
    return StartupResult::Ready;
}

bool Editor::mayAskToAssociate() const {
    return m_settings.value(SettingKey::DontAskToAssociate) != "1";
}

void Editor::newProject() {
    if (AskToSave() == SaveAnswer::Cancel)
        return;
    const int countBefore = m_model.ButtonCount;
    m_model.reset();
    m_list.clear();
    announceReplaced(countBefore);
    m_view.closeLabelEditor();
    m_view.setCaption(mainTitle());
    applyKeepOnTop();
    m_model.Saved = true;
    m_view.projectReplaced();
}

void Editor::open() {
    if (AskToSave() == SaveAnswer::Cancel)
        return;
    const std::optional<std::string> path = m_ui.chooseOpenFile(texts()[Msg::ProjectFilter]);
    if (path)
        loadFile(*path);
    applyKeepOnTop();
}

void Editor::openRecent(int slot) {
    const std::string path = m_recent.path(slot);
    if (path.empty())
        return;
    if (AskToSave() == SaveAnswer::Cancel)
        return;
    loadFile(path);
}

bool Editor::save() {
    if (m_model.ProjectFileName.empty())
        return saveAs();
    if (!SaveProject(m_model, m_model.ProjectFileName, m_ui))
        return false;
    m_recent.WriteRecent(m_model.ProjectFileName);
    return true;
}

bool Editor::saveAs() {
    const std::string proposed =
        m_model.ProjectFileName.empty() ? kProposedProjectName : m_model.ProjectFileName;
    std::string filter;
    const std::optional<std::string> chosen =
        m_ui.chooseSaveFileAndFilter(texts()[Msg::ProjectFilter], proposed, filter);
    applyKeepOnTop();
    if (!chosen || chosen->empty())
        return false;
    const std::string path = projectSavePath(*chosen, filter);
    // The dialog asked about the name as typed; the added extension may name a file.
    std::error_code ec;
    if (path != *chosen && std::filesystem::exists(path, ec)) {
        const TextCatalogue& msg = texts();
        if (m_ui.askOkCancel(path + msg[Msg::FileExists] + std::string(kCrLf) +
                             msg[Msg::ReplaceQuestion]) != UserInterface::Answer::Ok)
            return false;
    }
    // The project keeps its old name when the new file could not be written, so that
    // the next save does not aim at a path known to fail.
    if (!SaveProject(m_model, path, m_ui))
        return false;
    m_model.ProjectFileName = path;
    m_view.setCaption(mainTitle() + " " + path);
    m_recent.WriteRecent(path);
    return true;
}

void Editor::importLegacy() {
    if (AskToSave() == SaveAnswer::Cancel)
        return;
    const std::optional<std::string> path = m_ui.chooseOpenFile(texts()[Msg::LegacyProjectFilter]);
    applyKeepOnTop();
    if (!path)
        return;
    const int countBefore = clearProject();
    showLoadResult(LoadProject_OLD(m_model, *path, &m_ui), m_ui);
    showLoadedProject(countBefore);
    // The imported design exists in no current-format file yet: saving must ask for a
    // new name instead of overwriting the legacy file.
    m_model.ProjectFileName.clear();
    m_model.Saved = false;
    m_view.setCaption(mainTitle());
    m_view.projectReplaced();
}

bool showLoadResult(const LoadResult& result, UserInterface& ui) {
    constexpr std::size_t kCleanedLinesShown = 10;
    const TextCatalogue& msg = texts();
    if (result.earlierVersion)
        ui.showMessage(msg[Msg::EarlierVersion] + std::string(kCrLf) + std::string(kCrLf) +
                           msg[Msg::EarlierVersionNote] + kVersionText,
                       msg[Msg::EarlierVersionTitle]);
    if (result.error)
        ui.showWarning(msg[Msg::ErrorLoading] + std::string(kCrLf) + result.error->cause);
    if (!result.cleaned.empty()) {
        std::string text = msg[Msg::CharactersRemoved];
        for (std::size_t i = 0; i < result.cleaned.size() && i < kCleanedLinesShown; ++i)
            text.append(kCrLf).append(result.cleaned[i]);
        if (result.cleaned.size() > kCleanedLinesShown)
            text.append(kCrLf).append("...");
        ui.showWarning(text);
    }
    return result.loaded();
}

SaveAnswer Editor::AskToSave() {
    if (m_model.Saved)
        return SaveAnswer::Saved;
    const TextCatalogue& msg = texts();
    const std::string text = msg[Msg::AskToSaveProject] + m_model.ProjectFileName +
                             msg[Msg::AskToSaveChanged] + std::string(kCrLf) +
                             msg[Msg::AskToSaveQuestion];
    switch (m_ui.askYesNoCancel(text, kProgramTitle)) {
    case UserInterface::Answer::Yes:
        save();
        return SaveAnswer::Yes;
    case UserInterface::Answer::No:
        return SaveAnswer::No;
    default:
        return SaveAnswer::Cancel;
    }
}

bool Editor::close() {
    const SaveAnswer answer = AskToSave();
    return answer == SaveAnswer::No || m_model.Saved;
}

void Editor::addButton() {
    if (appendDefaultButton() == StartupResult::Quit)
        m_view.quitProgram();
}

StartupResult Editor::appendDefaultButton() {
    if (m_model.ButtonCount >= kMaxButtons) {
        const TextCatalogue& msg = texts();
        m_ui.showWarning(msg[Msg::ButtonLimit] + std::string(kCrLf) + msg[Msg::ButtonLimitHint]);
        return StartupResult::Ready;
    }
    if (m_model.addButton(m_settings.defaultButton()) == ProjectModel::AddResult::CorruptDefault) {
        repairDefaultButton();
        return StartupResult::Quit;
    }
    m_list.append();
    m_list.selectOnly(m_model.CurrentButton);
    announceCount(m_model.ButtonCount - 1, m_model.ButtonCount);
    return StartupResult::Ready;
}

void Editor::repairDefaultButton() {
    m_ui.showWarning(texts()[Msg::SettingsCorrupted]);
    m_settings.setDefaultButton(kFactoryDefaultButton);
    m_ui.showMessage(texts()[Msg::SettingsRestored]);
}

void Editor::duplicateButton() {
    const int source = m_model.CurrentButton;
    if (m_model.ButtonCount < 1 || source < 1 || source > m_model.ButtonCount)
        return;
    if (m_model.duplicateButton(source) == ProjectModel::AddResult::LimitReached) {
        const TextCatalogue& msg = texts();
        m_ui.showWarning(msg[Msg::ButtonLimit] + std::string(kCrLf) + msg[Msg::ButtonLimitHint]);
        return;
    }
    // The copy stands 10 pixels right of and below the original, so that it is seen.
    ButtonRecord& copy = m_model.button(m_model.CurrentButton);
    copy.x = static_cast<std::int16_t>(std::min(copy.x + kDuplicateOffset, 32767));
    copy.y = static_cast<std::int16_t>(std::min(copy.y + kDuplicateOffset, 32767));
    m_list.append();
    m_list.selectOnly(m_model.CurrentButton);
    announceCount(m_model.ButtonCount - 1, m_model.ButtonCount);
}

void Editor::removeButton() {
    const int current = m_model.CurrentButton;
    if (current < 1 || current > m_model.ButtonCount)
        return;
    const int oldCount = m_model.ButtonCount;
    m_model.removeButton(current);
    m_list.removeLast();
    m_model.CurrentButton = 1;
    if (m_model.ButtonCount > 0)
        m_list.selectOnly(1);
    // The buttons after the removed one took the places before them.
    announceCount(oldCount, current);
}

std::string Editor::copyButtons() const {
    const std::vector<int> selected = m_list.selectedButtons();
    return selected.empty() ? std::string() : buttonsClipboardText(m_model, selected);
}

std::string Editor::cutButtons() {
    std::string text = copyButtons();
    const std::vector<int> selected = m_list.selectedButtons();
    if (selected.empty())
        return text;
    const int oldCount = m_model.ButtonCount;
    for (auto it = selected.rbegin(); it != selected.rend(); ++it) {
        m_model.removeButton(*it);
        m_list.removeLast();
    }
    m_model.CurrentButton = m_model.ButtonCount > 0 ? 1 : 0;
    if (m_model.ButtonCount > 0)
        m_list.selectOnly(1);
    announceCount(oldCount, selected.front());
    return text;
}

void Editor::pasteButtons(std::string_view text) {
    const std::optional<std::vector<ButtonRecord>> buttons = buttonsFromClipboardText(text);
    if (!buttons || buttons->empty())
        return;
    if (m_model.ButtonCount + static_cast<int>(buttons->size()) > kMaxButtons) {
        const TextCatalogue& msg = texts();
        m_ui.showWarning(msg[Msg::ButtonLimit] + std::string(kCrLf) + msg[Msg::ButtonLimitHint]);
        return;
    }
    const int first = m_model.ButtonCount + 1;
    for (ButtonRecord record : *buttons) {
        // Offset like a duplicate, so that the copies do not hide their originals.
        record.x = static_cast<std::int16_t>(std::min(record.x + kDuplicateOffset, 32767));
        record.y = static_cast<std::int16_t>(std::min(record.y + kDuplicateOffset, 32767));
        ++m_model.ButtonCount;
        m_model.button(m_model.ButtonCount) = std::move(record);
        m_list.append();
    }
    m_model.Saved = false;
    m_model.CurrentButton = m_model.ButtonCount;
    m_list.selectOnly(first);
    for (int i = first + 1; i <= m_model.ButtonCount; ++i)
        m_list.addSelection(i);
    // A pasted copy of one button is no duplicate, though it looks like one.
    announceCount(first - 1, first, countedButtons(ButtonStep::Add, buttons->size()));
}

void Editor::clickList(int index) {
    if (index < 1 || index > m_model.ButtonCount)
        return;
    m_model.CurrentButton = static_cast<std::int16_t>(index);
    announceSelection();
}

void Editor::setListSelection(const std::vector<int>& selected) {
    for (int i = 1; i <= m_list.count(); ++i)
        m_list.setSelected(i, std::find(selected.begin(), selected.end(), i) != selected.end());
    // The panel says whether the current button is still among the edited ones.
    announceSelection();
}

void Editor::switchState(std::string_view state) {
    ButtonState parsed = ButtonState::UP;
    if (!stateFromName(state, parsed))
        return;
    m_model.CurrentState = parsed;
    showCurrentState();
    // Every button and the panel show the other state.
    DocumentChange change;
    change.everything = true;
    m_model.notices.announce(change);
}

void Editor::showCurrentState() {
    const ButtonState state = m_model.CurrentState;
    m_view.showState(state);
    m_view.setActionTitle(programKindTitle(buttonProgramKind(state)));
}

ProgramKind Editor::actionProgramKind() const {
    return buttonProgramKind(m_model.CurrentState);
}

void Editor::makeDefault() {
    const int current = m_model.CurrentButton;
    if (current < 1 || current > m_model.ButtonCount) {
        m_ui.showWarning(texts()[Msg::NothingSelected]);
        return;
    }
    m_settings.setDefaultButton(serializeButton(m_model.button(current)));
    m_ui.showMessage(texts()[Msg::DefaultButtonStored]);
}

std::string Editor::programFolder() const {
    return m_programFolder.empty() ? findProgramFolder() : m_programFolder;
}

void Editor::soundConverter() {
    const std::string folder = programFolder();
    if (!m_shell.startProgram(joinPath(folder, "SoundConv"), {}))
        m_ui.showWarning(folder + texts()[Msg::SoundConvNotFound]);
}

void Editor::help() {
    const std::string page = joinPath(programFolder(), "help/help.htm");
    // A missing page and a page no program opens need different remedies.
    std::error_code ec;
    if (!std::filesystem::is_regular_file(page, ec))
        m_ui.showWarning(page + texts()[Msg::LanguageFileNotFound]);
    else if (!m_shell.openDocument(page))
        m_ui.showWarning(page + texts()[Msg::HelpNotFound]);
}

void Editor::toggleKeepOnTop() {
    const bool onTop = !keepOnTop();
    m_settings.setFlag(SettingKey::frmDesignOnTop, onTop);
    m_view.setOnTopChecked(onTop);
    m_design.setOnTop(onTop);
}

bool Editor::keepOnTop() const {
    return m_settings.flag(SettingKey::frmDesignOnTop);
}

void Editor::applyKeepOnTop() {
    if (keepOnTop())
        m_design.setOnTop(true);
}

void Editor::setLanguage(const std::string& language) {
    if (language != kEnglish && m_languages) {
        applyLanguage(language);
        return;
    }
    m_settings.setValue(SettingKey::LanguageCurrent, language);
    m_view.setLanguageChecked(language);
    if (language == kEnglish)
        m_ui.showMessage(texts()[Msg::LanguageNextStart]);
}

void Editor::applyLanguage(const std::string& language) {
    if (!m_languages)
        return;
    // The main block, then the sections of the windows that are always there (the main
    // editor's and the messages beyond the main block included); the other windows
    // read theirs as they are shown.
    m_languages->applyMain(language, m_ui,
                           {TextSection::MainMore, TextSection::Messages, TextSection::Design,
                            TextSection::DesignTools, TextSection::Html, TextSection::About});
    const std::string inForce = m_languages->current();
    m_view.setLanguageChecked(inForce);
    m_view.showTexts(inForce);
}

void Editor::setAutoTile(bool on) {
    m_settings.setFlag(SettingKey::AutoTile, on);
}

void Editor::ShowProp(int index) {
    m_properties.ShowProp(index);
}

void Editor::SetMainParams() {
    m_properties.SetMainParams();
}

bool Editor::loadFile(const std::string& path) {
    const int countBefore = clearProject();
    const bool loaded = showLoadResult(LoadProject(m_model, path, &m_ui), m_ui);
    showLoadedProject(countBefore);
    // A file read only in part has no name in the editor (saving it must not overwrite
    // the rest of it), so neither has the title.
    m_view.setCaption(loaded ? mainTitle() + " " + path : mainTitle());
    if (loaded)
        m_recent.WriteRecent(path);
    m_view.projectReplaced();
    return loaded;
}

int Editor::clearProject() {
    const int countBefore = m_model.ButtonCount;
    m_model.ButtonCount = 0;
    m_model.CurrentButton = 0;
    m_model.ProjectFileName.clear();
    m_list.clear();
    return countBefore;
}

void Editor::showLoadedProject(int countBefore) {
    // The readers fill the model only; the views follow the notice, for a partly read
    // file as well (the buttons read so far stay).
    for (int i = 1; i <= m_model.ButtonCount; ++i)
        m_list.append();
    if (m_model.ButtonCount > 0) {
        m_model.CurrentButton = 1;
        m_list.selectOnly(1);
    } else {
        m_model.CurrentButton = 0;
    }
    announceReplaced(countBefore);
}

} // namespace orvelin
