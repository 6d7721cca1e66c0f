#include "messages.h"

#include <iterator>

namespace orvelin {

namespace {

struct MessageInfo {
    std::string_view name;
    std::string_view english;
};

// In the order of Msg.
constexpr MessageInfo kMessages[] = {
    {"PleaseWait", "Please Wait..."},
    {"SavingButtonsToFile", "Saving Buttons to File..."},
    {"SavingButton", "Saving Button # "},
    {"OfWord", " of "},
    {"LoadingProject", "Loading Project..."},
    {"LoadingButton", "Loading Button # "},
    {"GeneratingHtml", "Please wait. Generating HTML code..."},
    {"ErrorSaving",
     "Error Saving Buttons. File may be Read Only, Hidden or used by another application."},
    {"ErrorLoading", "Error loading project."},
    {"EarlierVersionTitle", "Warning"},
    {"EarlierVersion", "Project was created by earlier version of Orvelin"},
    {"EarlierVersionNote", "Note: Saving will convert it to version "},
    {"UnsupportedFile",
     "File type not supported or it was created by later version of the program."},
    {"ButtonLimit", "Can't create more buttons on one applet."},
    {"ButtonLimitHint", "You may use two applets and put them on one page instead."},
    {"AskToSaveProject", "The Project "},
    {"AskToSaveChanged", " has changed."},
    {"AskToSaveQuestion", "Do you want to Save the changes?"},
    {"NothingSelected", "Nothing selected"},
    {"DefaultButtonStored", "Properties of this button will be used to create new ones."},
    {"SoundConvNotFound", "/SoundConv not found."},
    {"SettingsCorrupted",
     "Registry settings were currupted. Program will try to restore previous settings."},
    {"SettingsRestored", "Settings restored. Please restart the program."},
    {"LanguageNextStart", "Change will take effect the next time the Program is started."},
    {"PropertiesForButton", "Properties for Button # "},
    {"ButtonPrefix", "Button "},
    {"SomethingWrong", "Something wrong"},
    {"OnDrawLabel", "On DrawLabel("},
    {"NoButtonsOnApplet", "No Buttons on the Applet"},
    {"WrongParameters", "Wrong Parameters"},
    {"WrongReturnParameters", "Wrong Return Parameters"},
    {"CantCopyBackground", "Can't copy BackGround Image."},
    {"CantCopyButtonFiles", "Can't copy Pictures Or Sounds for Button # "},
    {"PressCancelToStop", "Press Cancel to stop showing error messages."},
    {"CantCopyAppletClassFiles", "Can't copy Applet Class files"},
    {"CantCopyClassFiles", "Can't copy Class Files"},
    {"LanguageFile", "Language File: "},
    {"LanguageFileNotFound", " not found"},
    {"HelpNotFound", " could not be opened: no program for web pages was found. Install a web "
                     "browser (for example: sudo apt install chromium) or choose the one that "
                     "opens web pages (xdg-settings set default-web-browser chromium.desktop)."},
    {"RestoreDefaultsQuestion",
     "The default button and the advanced options will get their original values."},
    {"IniWriteFailed", "Unable to write registry or .ini file value."},
    {"FontSizeRange", "The font size must be a whole number from 1 to 2048."},
    {"LabelCutAtSemicolon", "A program ends each command at \";\": this label will be cut at its "
                            "first \";\".\r\nAdd it anyway? (No returns to the label.)"},
    {"ProgramForButtons", "This program will be set for %1 buttons"},
    {"NotSelectedNote", " is not selected: its properties are shown, and edits go to the selected "
                        "buttons only. Click it to edit it."},
    {"AppletSizeRange", "The applet's width and height are at least 1 pixel."},
    {"FieldCannotHold", "This field cannot store these characters; they were left out: "},
    {"ControlCharacters", "control characters"},
    {"UrlBarEncoded", "\"|\" is written as %7C in a link, which means the same to a browser."},
    {"CharacterReference",
     " will reach the page as one character: a browser decodes it before the bar reads it."},
    {"WrongBox", "The value to correct is in the box "},
    {"FileExists", " already exists."},
    {"ReplaceQuestion", "Do you want to replace it?"},
    {"CharactersRemoved", "Characters that these fields cannot hold were removed:"},
    {"AppletPrefix", "Applet"},
    {"PageNotWritten", "Can't write the page "},
    {"PageNotOpened",
     " could not be opened in a browser. Choose another browser in the list next to \"Test in "
     "Browser\", or add yours to the list with the button beside it."},
    {"AssociateDone", "Orvelin now opens .orv project files."},
    {"AssociateFailed", "Orvelin could not become the program for .orv files: "},
    {"ShortCutFailed", "Orvelin could not be added to the applications menu: "},
    {"PlayerMissing", "The HTML5 player %1 is missing, so no page was written: without it the page "
                      "would show nothing in today's browsers.\r\n\r\nPut orvelin-player.js back "
                      "in the program folder, or turn off \"Play pages with the HTML5 player\" in "
                      "Options > Advanced (orvelin-cli: --no-player)."},
    {"PlayerNotCopied", "Can't copy the HTML5 player to "},
    {"StepAddButton", "Add Button"},
    {"StepAddButtons", "Add %1 Buttons"},
    {"StepDuplicateButton", "Duplicate Button"},
    {"StepRemoveButton", "Remove Button"},
    {"StepRemoveButtons", "Remove %1 Buttons"},
    {"StepMoveButton", "Move Button"},
    {"StepMoveButtons", "Move %1 Buttons"},
    {"StepResizeButton", "Resize Button"},
    {"StepResizeButtons", "Resize %1 Buttons"},
    {"StepBringToFront", "Bring to Front"},
    {"StepSendToBack", "Send to Back"},
    {"StepPlaceLabel", "Place Label"},
    {"StepChange", "Change %1"},
    {"StepChangeProperties", "Change Properties"},
    {"FieldPosition", "Position"},
    {"FieldSize", "Size"},
    {"FieldLabel", "Label"},
    {"FieldURL", "URL"},
    {"FieldStatus", "Status"},
    {"FieldTarget", "Target"},
    {"FieldBorder", "Border"},
    {"FieldNoBackground", "No Background"},
    {"FieldHandCursor", "Hand Cursor"},
    {"FieldImage", "Image"},
    {"FieldSound", "Sound"},
    {"FieldImagePlacement", "Image Placement"},
    {"FieldLabelPosition", "Label Position"},
    {"FieldLabelPlacement", "Label Placement"},
    {"FieldFont", "Font"},
    {"FieldFontColor", "Font Color"},
    {"FieldFontSize", "Font Size"},
    {"FieldFontStyle", "Font Style"},
    {"FieldBackColor", "Back Color"},
    {"FieldHidden", "Hidden"},
    {"FieldActionProgram", "Action Program"},
    {"FieldAppletWidth", "Applet Width"},
    {"FieldAppletHeight", "Applet Height"},
    {"FieldBehaviour", "Behaviour"},
    {"FieldDownButton", "DOWN Button"},
    {"FieldBackgroundColor", "Background Color"},
    {"FieldBackgroundImage", "Background Image"},
    {"FieldBackgroundImagePlacement", "Background Image Placement"},
    {"FieldAppletProgram", "Applet Program"},
    {"FieldBackgroundOffset", "Background Offset"},
    {"FieldAppletName", "Applet Name"},
    // Qt reads the patterns between the last parentheses, separated by blanks, and
    // matches them without regard to case; "*" (not "*.*") is every file on a system
    // where names need no extension. PNG is offered beside the two formats the applet
    // names, since the designer reads it too.
    {"ProjectFilter", "Orvelin Files (*.orv);;All Files (*)"},
    {"LegacyProjectFilter", "Legacy Projects (*.ini);;All Files (*)"},
    {"ImageFilter", "GIF , JPG (*.gif *.jpg *.jpeg *.png);;All Files (*)"},
    {"SoundFilter", "Sun's Audio (*.au);;All Files (*)"},
    {"PageFileFilter", "HTML (*.htm;*.html);;All Files (*.*)"},
    {"CauseFileNotFound", "File not found"},
    {"CausePathNotFound", "Path not found"},
    {"CausePermissionDenied", "Permission denied"},
    {"CauseDiskFull", "Disk full"},
    {"CauseFileAccess", "Path/File access error"},
    {"CauseBadFileName", "Bad file name or number"},
    {"CauseTypeMismatch", "Type mismatch"},
    {"CauseOverflow", "Overflow"},
    {"CauseInputPastEnd", "Input past end of file"},
    {"CauseSubscriptOutOfRange", "Subscript out of range"},
};
static_assert(std::size(kMessages) == static_cast<std::size_t>(Msg::Count));

} // namespace

std::string_view messageName(Msg id) {
    return kMessages[static_cast<std::size_t>(id)].name;
}

std::string_view englishMessage(Msg id) {
    return kMessages[static_cast<std::size_t>(id)].english;
}

} // namespace orvelin
