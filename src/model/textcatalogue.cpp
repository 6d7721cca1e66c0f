#include "textcatalogue.h"

#include <iterator>
#include <unordered_map>
#include <utility>

namespace orvelin {

namespace {

// Each array is one part of a language file: the k-th entry takes the k-th line of
// the part. Languages files written for the program depend on these orders: add at
// the end of a section of our own, never reorder or remove.

constexpr TextEntry kSetAction[] = {
    {"frmSetAction", "btnAdd", "&Add"},
    {"frmSetAction", "btnRemove", "&Remove"},
    {"frmSetAction", "btnUP.toolTip", "Move Command Up"},
    {"frmSetAction", "btnDown.toolTip", "Move Command Down"},
    {"frmSetAction", "btnCopyProg", "Copy"},
    {"frmSetAction", "btnCopyProg.toolTip", "Copy Whole Program to Buffer"},
    {"frmSetAction", "btnPasteProg", "Paste"},
    {"frmSetAction", "btnPasteProg.toolTip", "Append Program from Buffer to Current Program"},
    {"frmSetAction", "btnOk", "&Ok"},
    {"frmSetAction", "btnCancel", "&Cancel"},
    {"frmSetAction", "lblWidth", "width:"},
    {"frmSetAction", "lblHeight", "height:"},
    {"frmSetAction", "lblMiliseconds", "Time in miliseconds:"},
    {"frmSetAction", "btnGetHexColor", "..."},
    {"frmSetAction", "btnGetHexColor.toolTip", "Select Color"},
    {"frmSetAction", "cmbAction.item0", "Show"},
    {"frmSetAction", "cmbAction.item1", "Hide"},
    {"frmSetAction", "cmbAction.item2", "Move"},
    {"frmSetAction", "cmbAction.item3", "Set Label"},
    {"frmSetAction", "cmbAction.item4", "Set Color"},
    {"frmSetAction", "cmbAction.item5", "Wait"},
    {"frmSetAction", "cmbAction.item6", "Call JavaScript"},
};

// clang-format off
// The main block: the main editor's controls and menu items, then the messages, in
// the order of the message table.
constexpr TextEntry kMain[] = {
    {"frmMain", "mnuFile", "&File"},
    {"frmMain", "mnuNew", "&New"},
    {"frmMain", "mnuOpen", "&Open..."},
    {"frmMain", "mnuSave", "&Save"},
    {"frmMain", "mnuSaveAs", "Save &As..."},
    {"frmMain", "mnuImport", "&Import Legacy Project..."},
    {"frmMain", "mnuExit", "E&xit"},
    {"frmMain", "mnuEdit", "&Edit"},
    {"frmMain", "mnuUndo", "&Undo"},
    {"frmMain", "mnuRedo", "&Redo"},
    {"frmMain", "mnuAdd", "&Add Button"},
    {"frmMain", "mnuDuplicate", "&Duplicate Button"},
    {"frmMain", "mnuRemove", "&Remove Button"},
    {"frmMain", "mnuCut", "Cu&t Buttons"},
    {"frmMain", "mnuCopy", "&Copy Buttons"},
    {"frmMain", "mnuPaste", "&Paste Buttons"},
    {"frmMain", "mnuMakeDefault", "Make &Default"},
    {"frmMain", "mnuView", "&View"},
    {"frmMain", "mnuDesignOnTop", "Keep Design Window on &Top"},
    {"frmMain", "mnuBuildHtml", "Build &HTML"},
    {"frmMain", "mnuDesignWindow", "&Design Window"},
    {"frmMain", "mnuOptions", "&Options"},
    {"frmMain", "mnuLanguage", "&Language"},
    {"frmMain", "mnuEnglish", "English"},
    {"frmMain", "mnuRussian", "Russian"},
    {"frmMain", "mnuHebrew", "Hebrew"},
    {"frmMain", "mnuAutoTile", "&Tile Small Background Images"},
    {"frmMain", "mnuAdvanced", "&Advanced..."},
    {"frmMain", "mnuAssociate", "Open .orv &Files with Orvelin"},
    {"frmMain", "mnuTools", "&Tools"},
    {"frmMain", "mnuSoundConv", "&Sound Converter..."},
    {"frmMain", "mnuHelp", "&Help"},
    {"frmMain", "mnuHelpContents", "&Help"},
    {"frmMain", "mnuAbout", "&About Orvelin"},
    {"frmMain", "btnAdd", "Add"},
    {"frmMain", "btnDuplicate", "Duplicate"},
    {"frmMain", "btnRemove", "Remove"},
    {"frmMain", "btnBuild", "Build HTML"},
    {"frmMain", "btnUP", "Up State"},
    {"frmMain", "btnOVER", "Mouse-Over"},
    {"frmMain", "btnDOWN", "Down State"},
    {"frmMain", "fraGeometry", "Position and Size"},
    {"frmMain", "fraLabel", "Label"},
    {"frmMain", "fraImageSound", "Image and Sound"},
    {"frmMain", "fraLink", "Link"},
    {"frmMain", "fraOptions", "Options"},
    {"frmMain", "fraApplet", "Applet"},
    {"frmMain", "fraBackground", "Background"},
    {"frmMain", "fraAppletActions", " Set Action:"},
    {"frmMain", "#actionProgramUP", "Set Action: On Leaving Button..."},
    {"frmMain", "#actionProgramOVER", "Set Action: On Entering Button..."},
    {"frmMain", "#actionProgramDOWN", "Set Action: On Button Press..."},
    {"frmMain", "btnSetAction.toolTip", "Edit the action program of this state"},
    message(Msg::PleaseWait),
    message(Msg::SavingButtonsToFile),
    message(Msg::SavingButton),
    message(Msg::OfWord),
    message(Msg::LoadingProject),
    message(Msg::LoadingButton),
    message(Msg::GeneratingHtml),
    message(Msg::ErrorSaving),
    message(Msg::ErrorLoading),
    message(Msg::EarlierVersionTitle),
    message(Msg::EarlierVersion),
    message(Msg::EarlierVersionNote),
    message(Msg::UnsupportedFile),
    message(Msg::ButtonLimit),
    message(Msg::ButtonLimitHint),
    message(Msg::AskToSaveProject),
    message(Msg::AskToSaveChanged),
    message(Msg::AskToSaveQuestion),
    message(Msg::NothingSelected),
    message(Msg::DefaultButtonStored),
    message(Msg::SoundConvNotFound),
    message(Msg::SettingsCorrupted),
    message(Msg::SettingsRestored),
    message(Msg::LanguageNextStart),
    message(Msg::PropertiesForButton),
    message(Msg::ButtonPrefix),
    message(Msg::SomethingWrong),
    message(Msg::OnDrawLabel),
    message(Msg::NoButtonsOnApplet),
    message(Msg::WrongParameters),
    message(Msg::WrongReturnParameters),
    message(Msg::CantCopyBackground),
    message(Msg::CantCopyButtonFiles),
    message(Msg::PressCancelToStop),
    message(Msg::CantCopyAppletClassFiles),
    message(Msg::CantCopyClassFiles),
    message(Msg::LanguageFile),
    message(Msg::LanguageFileNotFound),
    message(Msg::HelpNotFound),
    message(Msg::RestoreDefaultsQuestion),
    message(Msg::IniWriteFailed),
    message(Msg::FontSizeRange),
    message(Msg::LabelCutAtSemicolon),
    message(Msg::ProgramForButtons),
    message(Msg::NotSelectedNote),
    message(Msg::AppletSizeRange),
    message(Msg::FieldCannotHold),
    message(Msg::ControlCharacters),
    message(Msg::UrlBarEncoded),
    message(Msg::CharacterReference),
    message(Msg::WrongBox),
};
static_assert(std::size(kMain) == 104);

// The main editor's texts that follow the main block.
constexpr TextEntry kMainMore[] = {
    {"frmMain", "lstButtons.toolTip", "Ctrl+click or Shift+click selects several buttons"},
    {"frmMain", "btnAdd.toolTip", "Add a button"},
    {"frmMain", "btnDuplicate.toolTip", "Duplicate the current button"},
    {"frmMain", "btnRemove.toolTip", "Remove the current button"},
    {"frmMain", "btnBuild.toolTip", "Show the applet code and build the page"},
    {"frmMain", "#undoStep", "&Undo %1"},
    {"frmMain", "#redoStep", "&Redo %1"},
    {"frmMain", "mnuMakeDefault.toolTip", "New buttons take the properties of this one"},
    {"frmMain", "mnuAutoTile.toolTip", "A background image smaller than the applet both ways is tiled"},
    {"frmMain", "lblX", "X:"},
    {"frmMain", "lblWidth", "Width:"},
    {"frmMain", "lblY", "Y:"},
    {"frmMain", "lblHeight", "Height:"},
    {"frmMain", "lblText", "Text:"},
    {"frmMain", "btnMultiLine", "..."},
    {"frmMain", "btnMultiLine.toolTip", "Edit a label of several lines"},
    {"frmMain", "chkCenterText", "Center Text"},
    {"frmMain", "chkPositionText", "At:"},
    {"frmMain", "chkPositionText.toolTip", "Draw the label at a position in the button"},
    {"frmMain", "txtLabelPosX.toolTip", "Label position X"},
    {"frmMain", "txtLabelPosY.toolTip", "Label position Y"},
    {"frmMain", "lblFont", "Font:"},
    {"frmMain", "btnBold", "B"},
    {"frmMain", "btnBold.toolTip", "Bold"},
    {"frmMain", "btnItalic", "I"},
    {"frmMain", "btnItalic.toolTip", "Italic"},
    {"frmMain", "#fontDrawnAs", "   (drawn here as %1)"},
    {"frmMain", "lblColour", "Colour:"},
    {"frmMain", "picFontColor.toolTip", "Label colour"},
    {"frmMain", "lblBackColor", "Background:"},
    {"frmMain", "picBackColor.toolTip", "Background colour"},
    {"frmMain", "lblImage", "Image:"},
    {"frmMain", "btnBrowseImage", "..."},
    {"frmMain", "btnBrowseImage.toolTip", "Choose an image"},
    {"frmMain", "lblImgStyle", "Placement:"},
    {"frmMain", "cmbImgStyle.item0", "Center"},
    {"frmMain", "cmbImgStyle.item1", "Tile"},
    {"frmMain", "cmbImgStyle.item2", "Stretch"},
    {"frmMain", "lblSound", "Sound:"},
    {"frmMain", "btnBrowseSound", "..."},
    {"frmMain", "btnBrowseSound.toolTip", "Choose a sound"},
    {"frmMain", "lblURL", "URL:"},
    {"frmMain", "lblStatus", "Status:"},
    {"frmMain", "lblTarget", "Target:"},
    {"frmMain", "chkBorder", "Border"},
    {"frmMain", "chkTransparent", "Transparent"},
    {"frmMain", "chkTransparent.toolTip", "No background: the applet shows through"},
    {"frmMain", "chkShowHand", "Hand cursor"},
    {"frmMain", "chkHidden", "Hidden"},
    {"frmMain", "chkHidden.toolTip", "Hidden when the applet starts"},
    {"frmMain", "lblAppletWidth", "Width:"},
    {"frmMain", "txtAppletWidth.toolTip", "The applet's width in pixels"},
    {"frmMain", "lblAppletHeight", "Height:"},
    {"frmMain", "txtAppletHeight.toolTip", "The applet's height in pixels"},
    {"frmMain", "imgPushBtn", "Act like push buttons"},
    {"frmMain", "imgRadioBtn", "Act like radio buttons"},
    {"frmMain", "chkDOWNBtn", "Use Down State"},
    {"frmMain", "chkDOWNBtn.toolTip", "The applet's Down State button option"},
    {"frmMain", "lblBackGround", "Colour:"},
    {"frmMain", "picBackGround.toolTip", "Applet background colour"},
    {"frmMain", "lblBackImg", "Image:"},
    {"frmMain", "btnBrowseBackImg", "..."},
    {"frmMain", "btnBrowseBackImg.toolTip", "Choose a background image"},
    {"frmMain", "lblBackImgStyle", "Placement:"},
    {"frmMain", "cmbBackImgStyle.item0", "Center"},
    {"frmMain", "cmbBackImgStyle.item1", "Tile"},
    {"frmMain", "cmbBackImgStyle.item2", "Stretch"},
    {"frmMain", "btnBgOffset", "Offset..."},
    {"frmMain", "btnBgOffset.toolTip", "Move the background image"},
    {"frmMain", "picAppletProgramStart.toolTip", "On Applet Start"},
    {"frmMain", "picAppletProgramOVER.toolTip", "On Mouse Moving above the Applet"},
    {"frmMain", "picAppletProgramDOWN.toolTip", "On Mouse Clicking the Applet"},
    {"frmMain", "picAppletProgramOUT.toolTip", "On Mouse Exiting the Applet"},
    {"frmMain", "#answerYes", "&Yes"},
    {"frmMain", "#answerNo", "&No"},
    {"frmMain", "#answerOk", "OK"},
    {"frmMain", "#answerCancel", "Cancel"},
};

constexpr TextEntry kMessages[] = {
    message(Msg::FileExists),
    message(Msg::ReplaceQuestion),
    message(Msg::CharactersRemoved),
    message(Msg::AppletPrefix),
    message(Msg::PageNotWritten),
    message(Msg::PageNotOpened),
    message(Msg::AssociateDone),
    message(Msg::AssociateFailed),
    message(Msg::ShortCutFailed),
    message(Msg::PlayerMissing),
    message(Msg::PlayerNotCopied),
    message(Msg::StepAddButton),
    message(Msg::StepAddButtons),
    message(Msg::StepDuplicateButton),
    message(Msg::StepRemoveButton),
    message(Msg::StepRemoveButtons),
    message(Msg::StepMoveButton),
    message(Msg::StepMoveButtons),
    message(Msg::StepResizeButton),
    message(Msg::StepResizeButtons),
    message(Msg::StepBringToFront),
    message(Msg::StepSendToBack),
    message(Msg::StepPlaceLabel),
    message(Msg::StepChange),
    message(Msg::StepChangeProperties),
    message(Msg::FieldPosition),
    message(Msg::FieldSize),
    message(Msg::FieldLabel),
    message(Msg::FieldURL),
    message(Msg::FieldStatus),
    message(Msg::FieldTarget),
    message(Msg::FieldBorder),
    message(Msg::FieldNoBackground),
    message(Msg::FieldHandCursor),
    message(Msg::FieldImage),
    message(Msg::FieldSound),
    message(Msg::FieldImagePlacement),
    message(Msg::FieldLabelPosition),
    message(Msg::FieldLabelPlacement),
    message(Msg::FieldFont),
    message(Msg::FieldFontColor),
    message(Msg::FieldFontSize),
    message(Msg::FieldFontStyle),
    message(Msg::FieldBackColor),
    message(Msg::FieldHidden),
    message(Msg::FieldActionProgram),
    message(Msg::FieldAppletWidth),
    message(Msg::FieldAppletHeight),
    message(Msg::FieldBehaviour),
    message(Msg::FieldDownButton),
    message(Msg::FieldBackgroundColor),
    message(Msg::FieldBackgroundImage),
    message(Msg::FieldBackgroundImagePlacement),
    message(Msg::FieldAppletProgram),
    message(Msg::FieldBackgroundOffset),
    message(Msg::FieldAppletName),
};

// clang-format on

constexpr SectionInfo kSections[] = {
    {TextSection::Main, "", kMain},
    {TextSection::Design, "[frmDesign]", {}},
    {TextSection::Html, "[frmHTML]", {}},
    {TextSection::About, "[frmAbout]", {}},
    {TextSection::Advanced, "[frmAdvanced]", {}},
    {TextSection::BrowserSetup, "[frmBrowserSetup]", {}},
    {TextSection::EditBrowser, "[frmEditBrowser]", {}},
    {TextSection::SetAction, "[frmSetAction]", kSetAction},
    {TextSection::AskToAssociate, "[frmAskToAssociate]", {}},
    {TextSection::ShortCut, "[frmShortCut]", {}},
    {TextSection::MainMore, "[frmMain]", kMainMore},
    {TextSection::DesignTools, "[frmDesignTools]", {}},
    {TextSection::Messages, "[Messages]", kMessages},
    {TextSection::BackgroundOffset, "[frmBgOffset]", {}},
    {TextSection::LabelEditor, "[frmMultiLineEditor]", {}},
    {TextSection::SoundConverter, "[frmSoundConv]", {}},
};
static_assert(std::size(kSections) == kTextSectionCount);

using Place = std::pair<TextSection, std::size_t>;

// Where each message and each window's text sits, looked up once.
struct Index {
    std::array<Place, static_cast<std::size_t>(Msg::Count)> messages{};
    std::unordered_map<std::string, Place> controls;

    Index() {
        for (const SectionInfo& info : kSections)
            for (std::size_t i = 0; i < info.entries.size(); ++i) {
                const TextEntry& e = info.entries[i];
                if (e.isMessage())
                    messages[static_cast<std::size_t>(e.message)] = {info.section, i};
                else
                    controls.emplace(key(e.window, e.control), Place{info.section, i});
            }
    }

    static std::string key(std::string_view window, std::string_view control) {
        std::string k(window);
        k += '/';
        k += control;
        return k;
    }
};

const Index& index() {
    static const Index built;
    return built;
}

const TextCatalogue* inForce = nullptr;

} // namespace

std::span<const SectionInfo> textSections() {
    return kSections;
}

const SectionInfo& sectionInfo(TextSection section) {
    return kSections[static_cast<std::size_t>(section)];
}

std::string_view englishText(const TextEntry& entry) {
    return entry.isMessage() ? englishMessage(entry.message) : entry.english;
}

std::string entryLabel(const TextEntry& entry) {
    if (entry.isMessage())
        return "message " + std::string(messageName(entry.message));
    return std::string(entry.window) + ' ' + std::string(entry.control);
}

TextCatalogue::TextCatalogue() {
    for (const SectionInfo& info : kSections) {
        auto& texts = m_texts[static_cast<std::size_t>(info.section)];
        texts.reserve(info.entries.size());
        for (const TextEntry& e : info.entries)
            texts.emplace_back(englishText(e));
    }
}

const std::string& TextCatalogue::operator[](Msg id) const {
    const auto [section, position] = index().messages[static_cast<std::size_t>(id)];
    return at(section, position);
}

const std::string& TextCatalogue::text(std::string_view window, std::string_view control) const {
    const std::string k = Index::key(window, control);
    const auto found = index().controls.find(k);
    if (found == index().controls.end()) {
        static thread_local std::string missing;
        missing = '?' + k;
        return missing;
    }
    return at(found->second.first, found->second.second);
}

const std::string& TextCatalogue::at(TextSection section, std::size_t position) const {
    return m_texts[static_cast<std::size_t>(section)].at(position);
}

void TextCatalogue::set(TextSection section, std::size_t position, std::string text) {
    m_texts[static_cast<std::size_t>(section)].at(position) = std::move(text);
}

const TextCatalogue& texts() {
    static const TextCatalogue english;
    return inForce ? *inForce : english;
}

void useTexts(const TextCatalogue* catalogue) {
    inForce = catalogue;
}

} // namespace orvelin
