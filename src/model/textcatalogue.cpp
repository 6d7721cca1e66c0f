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
    {"frmMain", "mnuAutoTile.toolTip",
     "A background image smaller than the applet both ways is tiled"},
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
    message(Msg::ProjectFilter),
    message(Msg::LegacyProjectFilter),
    message(Msg::ImageFilter),
    message(Msg::SoundFilter),
    message(Msg::PageFileFilter),
    message(Msg::CauseFileNotFound),
    message(Msg::CausePathNotFound),
    message(Msg::CausePermissionDenied),
    message(Msg::CauseDiskFull),
    message(Msg::CauseFileAccess),
    message(Msg::CauseBadFileName),
    message(Msg::CauseTypeMismatch),
    message(Msg::CauseOverflow),
    message(Msg::CauseInputPastEnd),
    message(Msg::CauseSubscriptOutOfRange),
};

constexpr TextEntry kDesign[] = {
    {"frmDesign", "frmDesign", "Design"},
    {"frmDesign", "btnAddBtn", "&Add"},
    {"frmDesign", "btnDuplicate", "D&uplicate"},
    {"frmDesign", "btnRemove", "&Remove"},
    {"frmDesign", "btnViewHtml", "View &HTML"},
    {"frmDesign", "chkNoBackGround", "&No background"},
    {"frmDesign", "btnAddBtn.toolTip", "Add a new button"},
    {"frmDesign", "btnDuplicate.toolTip", "Duplicate the current button"},
    {"frmDesign", "btnRemove.toolTip", "Remove the current button (the one with the handles)"},
    {"frmDesign", "btnViewHtml.toolTip", "Show the applet code"},
    {"frmDesign", "chkNoBackGround.toolTip", "Show the buttons without the applet background"},
    {"frmDesign", "lblZoom.toolTip",
     "Zoom of the design surface (Ctrl+wheel, Ctrl++, Ctrl+-, Ctrl+0)"},
    {"frmDesign", "#zoomLevel", "%1%"},
    {"frmDesign", "mnuView", "&View"},
    {"frmDesign", "mnuArrange", "&Arrange"},
    {"frmDesign", "mnuSnapToButtons", "&Snap to Buttons"},
};

constexpr TextEntry kHtml[] = {
    {"frmHTML", "frmHTML", "Applet Code"},
    {"frmHTML", "lblAppletName", "Applet Name:"},
    {"frmHTML", "btnPreview", "Test in &Browser"},
    {"frmHTML", "btnBrowsers", "..."},
    {"frmHTML", "btnReGenerate", "Re&generate"},
    {"frmHTML", "btnCopyToClb", "&Copy To ClipBoard"},
    {"frmHTML", "btnSave", "&Build Applet ..."},
    {"frmHTML", "btnClose", "Close"},
    {"frmHTML", "btnBrowsers.toolTip", "Edit the list of browsers"},
    {"frmHTML", "btnSave.toolTip", "Build Applet with All files"},
    {"frmHTML", "cmbBrowser.toolTip", "The browser that Test in Browser opens the page in"},
    // The first browser of every list: the desktop's own choice.
    {"frmHTML", "#defaultBrowser", "Default Browser"},
};

constexpr TextEntry kAbout[] = {
    {"frmAbout", "frmAbout", "About Orvelin"},
    {"frmAbout", "lblProgram", "Orvelin"},
    {"frmAbout", "#version", "Version %1"},
    {"frmAbout", "lblDescription",
     "A designer for bars of web-page buttons: lay out the buttons, give each its three "
     "states, and build the applet code that shows them in a page."},
    {"frmAbout", "lblCopyright", "Copyright \u00a9 2026 The Orvelin developers"},
    {"frmAbout", "#webAddress", "Web site: %1"},
    {"frmAbout", "lblWebAddress.toolTip", "Opens the web site in your browser"},
    {"frmAbout", "btnOk", "OK"},
};

constexpr TextEntry kAdvanced[] = {
    {"frmAdvanced", "frmAdvanced", "Advanced"},
    {"frmAdvanced", "chkAutoTile", "Tile small background images automatically"},
    {"frmAdvanced", "chkHtml5Player", "Play pages with the HTML5 player"},
    {"frmAdvanced", "lblGridSize", "Design &grid:"},
    {"frmAdvanced", "btnRestoreDefaults", "Restore Defaults"},
    {"frmAdvanced", "btnOk", "OK"},
    {"frmAdvanced", "chkHtml5Player.toolTip",
     "Test in Browser and Build Applet put orvelin-player.js beside the page, so that the "
     "buttons play in today's browsers without Java"},
    {"frmAdvanced", "txtGridSize.toolTip",
     "Dragged buttons snap to a grid of this size on the design window"},
    // The grid box: its value 0, and the unit after every other value.
    {"frmAdvanced", "#gridOff", "Off"},
    {"frmAdvanced", "#gridUnit", " px"},
    {"frmAdvanced", "chkAutoTile.toolTip",
     "A background image smaller than the applet is repeated until it fills the applet"},
    {"frmAdvanced", "btnRestoreDefaults.toolTip",
     "Puts back the factory default button and the default options"},
    {"frmAdvanced", "btnOk.toolTip", "Closes the window: every change is stored at once"},
    {"frmAdvanced", "lblGridSize.toolTip", "Off: dragged buttons are not held to a grid"},
};

constexpr TextEntry kBrowserSetup[] = {
    {"frmBrowserSetup", "frmBrowserSetup", "Browsers"},
    {"frmBrowserSetup", "lblHint",
     "\"Test in Browser\" opens the page in the browser chosen in the HTML window. The first "
     "entry is the desktop's default browser."},
    {"frmBrowserSetup", "btnAdd", "&Add..."},
    {"frmBrowserSetup", "btnEdit", "&Edit..."},
    {"frmBrowserSetup", "btnRemove", "&Remove"},
    {"frmBrowserSetup", "btnUp", "Move &Up"},
    {"frmBrowserSetup", "btnDown", "Move &Down"},
    {"frmBrowserSetup", "btnFind", "&Find Browsers"},
    {"frmBrowserSetup", "btnAdd.toolTip", "Add a browser and its program to the list"},
    {"frmBrowserSetup", "btnEdit.toolTip", "Change the name or program of the selected browser"},
    {"frmBrowserSetup", "btnRemove.toolTip", "Remove the selected browser from the list"},
    {"frmBrowserSetup", "btnUp.toolTip", "Move the selected browser up the list"},
    {"frmBrowserSetup", "btnDown.toolTip", "Move the selected browser down the list"},
    {"frmBrowserSetup", "btnFind.toolTip",
     "Add the browsers installed on this computer that are not listed"},
};

constexpr TextEntry kEditBrowser[] = {
    {"frmEditBrowser", "frmEditBrowser", "Browser"},
    {"frmEditBrowser", "lblName", "&Name:"},
    {"frmEditBrowser", "lblProgram", "&Program:"},
    {"frmEditBrowser", "btnBrowse", "..."},
    {"frmEditBrowser", "btnBrowse.toolTip", "Choose the browser's program"},
    {"frmEditBrowser", "#notRunnable",
     "%1 was not found or cannot be run. Choose the browser's program."},
};

constexpr TextEntry kDesignTools[] = {
    {"frmDesign", "mnuZoomIn", "Zoom &In"},
    {"frmDesign", "mnuZoomOut", "Zoom &Out"},
    {"frmDesign", "mnuZoomActual", "&Actual Size"},
    {"frmDesign", "tbArrange", "Arrange"},
    {"frmDesign", "mnuAlignLeft", "Align Left"},
    {"frmDesign", "mnuAlignHCentre", "Align Horizontal Centres"},
    {"frmDesign", "mnuAlignRight", "Align Right"},
    {"frmDesign", "mnuAlignTop", "Align Top"},
    {"frmDesign", "mnuAlignVCentre", "Align Vertical Centres"},
    {"frmDesign", "mnuAlignBottom", "Align Bottom"},
    {"frmDesign", "mnuDistributeH", "Distribute Horizontally"},
    {"frmDesign", "mnuDistributeV", "Distribute Vertically"},
    {"frmDesign", "mnuSameWidth", "Same Width"},
    {"frmDesign", "mnuSameHeight", "Same Height"},
    {"frmDesign", "mnuSameSize", "Same Size"},
    // An arrange command's tool tip: %1 is the command.
    {"frmDesign", "#arrangeOnCurrent", "%1 (on the current button)"},
    {"frmDesign", "#arrangeThree", "%1 (at least three selected buttons)"},
    {"frmDesign", "mnuSnapToButtons.toolTip",
     "Dragged buttons snap to the edges and centres of the others (hold Alt to place freely)"},
    {"frmDesign", "#bringToFront", "bring to front"}, // a button's right-click menu
    {"frmDesign", "#sendBack", "send back"},
};

// The browser dialogs' texts that their sections have no room for.
constexpr TextEntry kBrowsersMore[] = {
    {"frmBrowserSetup", "btnOk", "OK"},
    {"frmBrowserSetup", "btnCancel", "Cancel"},
    {"frmEditBrowser", "btnOk", "OK"},
    {"frmEditBrowser", "btnCancel", "Cancel"},
    {"frmEditBrowser", "#messageTitle", "Orvelin"},
};

constexpr SectionInfo kSections[] = {
    {TextSection::Main, "", kMain},
    {TextSection::Design, "[frmDesign]", kDesign},
    {TextSection::Html, "[frmHTML]", kHtml},
    {TextSection::About, "[frmAbout]", kAbout},
    {TextSection::Advanced, "[frmAdvanced]", kAdvanced},
    {TextSection::BrowserSetup, "[frmBrowserSetup]", kBrowserSetup},
    {TextSection::EditBrowser, "[frmEditBrowser]", kEditBrowser},
    {TextSection::SetAction, "[frmSetAction]", kSetAction},
    {TextSection::AskToAssociate, "[frmAskToAssociate]", kAskToAssociate},
    {TextSection::ShortCut, "[frmShortCut]", kShortCut},
    {TextSection::MainMore, "[frmMain]", kMainMore},
    {TextSection::DesignTools, "[frmDesignTools]", kDesignTools},
    {TextSection::Messages, "[Messages]", kMessages},
    {TextSection::BackgroundOffset, "[frmBgOffset]", kBackgroundOffset},
    {TextSection::LabelEditor, "[frmMultiLineEditor]", kLabelEditor},
    {TextSection::SoundConverter, "[frmSoundConv]", kSoundConverter},
    {TextSection::SetActionMore, "[frmSetActionMore]", kSetActionMore},
    {TextSection::BrowsersMore, "[frmBrowsersMore]", kBrowsersMore},
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
