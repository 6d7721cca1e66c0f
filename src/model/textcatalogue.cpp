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

// Both questions start the same way and stay small: caption, question, the answers.
constexpr TextEntry kAskToAssociate[] = {
    {"frmAskToAssociate", "frmAskToAssociate", "Orvelin"},
    {"frmAskToAssociate", "lblQuestion",
     "Orvelin is not the program that opens Orvelin project files (.orv).\r\n\r\n"
     "Make Orvelin the program for .orv files?"},
    {"frmAskToAssociate", "btnYes", "&Yes"},
    {"frmAskToAssociate", "btnNo", "&No"},
    {"frmAskToAssociate", "chkDontAsk", "Don't ask me again"},
};

constexpr TextEntry kShortCut[] = {
    {"frmShortCut", "frmShortCut", "Orvelin"},
    {"frmShortCut", "lblQuestion",
     "This copy of Orvelin runs from its build folder and has no entry in your applications "
     "menu.\r\n\r\nAdd Orvelin to the applications menu?"},
    {"frmShortCut", "btnYes", "&Yes"},
    {"frmShortCut", "btnNo", "&No"},
};

constexpr TextEntry kBackgroundOffset[] = {
    {"frmBgOffset", "frmBgOffset", "Background Offset"},
    {"frmBgOffset", "lblOffsetX", "&X:"},
    {"frmBgOffset", "lblOffsetY", "&Y:"},
    {"frmBgOffset", "btnOk", "OK"},
    {"frmBgOffset", "btnCancel", "Cancel"},
    {"frmBgOffset", "#unit", " px"},
};

constexpr TextEntry kLabelEditor[] = {
    {"frmMultiLineEditor", "frmMultiLineEditor", "Multi-line Label"},
    {"frmMultiLineEditor", "btnClose", "Close"},
};

constexpr TextEntry kSoundConverter[] = {
    {"frmSoundConv", "frmSoundConv", "Sound Converter"},
    {"frmSoundConv", "lblFiles",
     "Sound files (WAV, FLAC, Ogg, AIFF...) to turn into Sun audio (.au, 8000 Hz, mono, 8-bit "
     "mu-law):"},
    {"frmSoundConv", "btnAdd", "&Add Files..."},
    {"frmSoundConv", "btnRemove", "&Remove"},
    {"frmSoundConv", "optBeside", "Beside each &source file"},
    {"frmSoundConv", "optFolder", "Into &folder:"},
    {"frmSoundConv", "btnBrowse", "&Browse..."},
    {"frmSoundConv", "btnConvert", "&Convert"},
    {"frmSoundConv", "btnClose", "Close"},
    {"frmSoundConv", "#addTitle", "Add Sound Files"},
    {"frmSoundConv", "#soundFiles", "Sounds (%1)"},
    {"frmSoundConv", "#allFiles", "All Files (%1)"},
    {"frmSoundConv", "#folderTitle", "Folder for the .au Files"},
    {"frmSoundConv", "#written", "Written: %1"},
    {"frmSoundConv", "#failed", "Failed: %1"},
    {"frmSoundConv", "#converted", "%1 of %2 converted."},
    {"frmSoundConv", "#noSound", "it holds no sound"},
    {"frmSoundConv", "#replacesSource",
     "the converted sound would replace the file itself; choose another folder"},
    {"frmSoundConv", "#unreadable", "not a sound file that can be read (%1)"},
    {"frmSoundConv", "#unwritable", "cannot be written (%1)"},
};

// The action editor's texts beyond the 22 of its section.
constexpr TextEntry kSetActionMore[] = {
    {"frmSetAction", "lblX", "x:"}, // the move panel's first two captions
    {"frmSetAction", "lblY", "y:"},
    {"frmSetAction", "#boxX", "X"}, // Move's boxes as "Wrong Parameters" names them
    {"frmSetAction", "#boxY", "Y"},
    {"frmSetAction", "#boxWidth", "width"},
    {"frmSetAction", "#boxHeight", "height"},
};

constexpr TextEntry kMessages[] = {
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
};

constexpr SectionInfo kSections[] = {
    {TextSection::Main, "", {}},
    {TextSection::Design, "[frmDesign]", {}},
    {TextSection::Html, "[frmHTML]", {}},
    {TextSection::About, "[frmAbout]", {}},
    {TextSection::Advanced, "[frmAdvanced]", {}},
    {TextSection::BrowserSetup, "[frmBrowserSetup]", {}},
    {TextSection::EditBrowser, "[frmEditBrowser]", {}},
    {TextSection::SetAction, "[frmSetAction]", kSetAction},
    {TextSection::AskToAssociate, "[frmAskToAssociate]", kAskToAssociate},
    {TextSection::ShortCut, "[frmShortCut]", kShortCut},
    {TextSection::MainMore, "[frmMain]", {}},
    {TextSection::DesignTools, "[frmDesignTools]", {}},
    {TextSection::Messages, "[Messages]", kMessages},
    {TextSection::BackgroundOffset, "[frmBgOffset]", kBackgroundOffset},
    {TextSection::LabelEditor, "[frmMultiLineEditor]", kLabelEditor},
    {TextSection::SoundConverter, "[frmSoundConv]", kSoundConverter},
    {TextSection::SetActionMore, "[frmSetActionMore]", kSetActionMore},
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
