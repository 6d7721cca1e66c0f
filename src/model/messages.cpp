#include "messages.h"

namespace orvelin {

const char* MessageTable::englishDefault(Msg id) {
    switch (id) {
    case Msg::PleaseWait:
        return "Please Wait...";
    case Msg::SavingButtonsToFile:
        return "Saving Buttons to File...";
    case Msg::SavingButton:
        return "Saving Button # ";
    case Msg::OfWord:
        return " of ";
    case Msg::LoadingProject:
        return "Loading Project...";
    case Msg::LoadingButton:
        return "Loading Button # ";
    case Msg::GeneratingHtml:
        return "Please wait. Generating HTML code...";
    case Msg::ErrorSaving:
        return "Error Saving Buttons. File may be Read Only, Hidden or used by another "
               "application.";
    case Msg::ErrorLoading:
        return "Error loading project.";
    case Msg::EarlierVersionTitle:
        return "Warning";
    case Msg::EarlierVersion:
        return "Project was created by earlier version of Orvelin";
    case Msg::EarlierVersionNote:
        return "Note: Saving will convert it to version ";
    case Msg::UnsupportedFile:
        return "File type not supported or it was created by later version of the program.";
    case Msg::ButtonLimit:
        return "Can't create more buttons on one applet.";
    case Msg::ButtonLimitHint:
        return "You may use two applets and put them on one page instead.";
    case Msg::AskToSaveProject:
        return "The Project ";
    case Msg::AskToSaveChanged:
        return " has changed.";
    case Msg::AskToSaveQuestion:
        return "Do you want to Save the changes?";
    case Msg::NothingSelected:
        return "Nothing selected";
    case Msg::DefaultButtonStored:
        return "Properties of this button will be used to create new ones.";
    case Msg::SoundConvNotFound:
        return "/SoundConv not found.";
    case Msg::SettingsCorrupted:
        return "Registry settings were currupted. Program will try to restore previous settings.";
    case Msg::SettingsRestored:
        return "Settings restored. Please restart the program.";
    case Msg::LanguageNextStart:
        return "Change will take effect the next time the Program is started.";
    case Msg::PropertiesForButton:
        return "Properties for Button # ";
    case Msg::ButtonPrefix:
        return "Button ";
    case Msg::SomethingWrong:
        return "Something wrong";
    case Msg::OnDrawLabel:
        return "On DrawLabel(";
    case Msg::NoButtonsOnApplet:
        return "No Buttons on the Applet";
    case Msg::WrongParameters:
        return "Wrong Parameters";
    case Msg::WrongReturnParameters:
        return "Wrong Return Parameters";
    case Msg::CantCopyBackground:
        return "Can't copy BackGround Image.";
    case Msg::CantCopyButtonFiles:
        return "Can't copy Pictures Or Sounds for Button # ";
    case Msg::PressCancelToStop:
        return "Press Cancel to stop showing error messages.";
    case Msg::CantCopyAppletClassFiles:
        return "Can't copy Applet Class files";
    case Msg::CantCopyClassFiles:
        return "Can't copy Class Files";
    case Msg::LanguageFile:
        return "Language File: ";
    case Msg::LanguageFileNotFound:
        return " not found";
    case Msg::HelpNotFound:
        return " could not be opened: no program for web pages was found. Install a web "
               "browser (for example: sudo apt install chromium) or choose the one that "
               "opens web pages (xdg-settings set default-web-browser chromium.desktop).";
    case Msg::RestoreDefaultsQuestion:
        return "The default button and the advanced options will get their original values.";
    case Msg::IniWriteFailed:
        return "Unable to write registry or .ini file value.";
    case Msg::FontSizeRange:
        return "The font size must be a whole number from 1 to 2048.";
    case Msg::LabelCutAtSemicolon:
        return "A program ends each command at \";\": this label will be cut at its first "
               "\";\".\r\nAdd it anyway? (No returns to the label.)";
    case Msg::ProgramForButtons:
        return "This program will be set for %1 buttons";
    case Msg::AppletSizeRange:
        return "The applet's width and height are at least 1 pixel.";
    case Msg::FieldCannotHold:
        return "This field cannot store these characters; they were left out: ";
    case Msg::ControlCharacters:
        return "control characters";
    case Msg::UrlBarEncoded:
        return "\"|\" is written as %7C in a link, which means the same to a browser.";
    case Msg::CharacterReference:
        return " will reach the page as one character: a browser decodes it before the bar "
               "reads it.";
    case Msg::WrongBox:
        return "The value to correct is in the box ";
    case Msg::NotSelectedNote:
        return " is not selected: its properties are shown, and edits go to the selected "
               "buttons only. Click it to edit it.";
    case Msg::FileExists:
        return " already exists.";
    case Msg::ReplaceQuestion:
        return "Do you want to replace it?";
    case Msg::CharactersRemoved:
        return "Characters that these fields cannot hold were removed:";
    case Msg::AppletPrefix:
        return "Applet";
    case Msg::PageNotWritten:
        return "Can't write the page ";
    case Msg::PageNotOpened:
        return " could not be opened in a browser. Choose another browser in the list next "
               "to \"Test in Browser\", or add yours to the list with the button beside it.";
    case Msg::AssociateDone:
        return "Orvelin now opens .orv project files.";
    case Msg::AssociateFailed:
        return "Orvelin could not become the program for .orv files: ";
    case Msg::ShortCutFailed:
        return "Orvelin could not be added to the applications menu: ";
    case Msg::PlayerMissing:
        return "The HTML5 player %1 is missing, so no page was written: without it the page "
               "would show nothing in today's browsers.\r\n\r\nPut orvelin-player.js back in "
               "the program folder, or turn off \"Play pages with the HTML5 player\" in "
               "Options > Advanced (orvelin-cli: --no-player).";
    case Msg::PlayerNotCopied:
        return "Can't copy the HTML5 player to ";
    case Msg::Count:
        break;
    }
    return "";
}

MessageTable::MessageTable() {
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        m_texts[i] = englishDefault(static_cast<Msg>(i));
}

const MessageTable& messages() {
    static const MessageTable table;
    return table;
}

} // namespace orvelin
