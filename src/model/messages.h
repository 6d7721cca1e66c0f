#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvelin {

/**
 * Every message the core shows the user, by name. Their texts in force come from the
 * text catalogue, which a language file can change; where each one sits in a language
 * file is fixed by the catalogue's sections, not by this order.
 */
enum class Msg : std::size_t {
    // Progress window.
    PleaseWait,
    SavingButtonsToFile,
    SavingButton, ///< followed by "<i> of <n>"
    OfWord,       ///< " of "
    LoadingProject,
    LoadingButton, ///< followed by "<i> of <n>"
    GeneratingHtml,
    // Project file.
    ErrorSaving,
    ErrorLoading,
    EarlierVersionTitle,
    EarlierVersion,
    EarlierVersionNote,
    UnsupportedFile,
    // Editor.
    ButtonLimit,
    ButtonLimitHint,
    AskToSaveProject,
    AskToSaveChanged,
    AskToSaveQuestion,
    NothingSelected,
    DefaultButtonStored,
    SoundConvNotFound,
    SettingsCorrupted,
    SettingsRestored,
    LanguageNextStart,
    PropertiesForButton,
    ButtonPrefix,
    // Painting.
    SomethingWrong,
    OnDrawLabel,
    // Action editor.
    NoButtonsOnApplet,
    WrongParameters,
    WrongReturnParameters,
    // Publishing.
    CantCopyBackground,
    CantCopyButtonFiles,
    PressCancelToStop,
    CantCopyAppletClassFiles,
    CantCopyClassFiles,
    // Language files.
    LanguageFile,
    LanguageFileNotFound,
    // Editor, later additions.
    HelpNotFound, ///< after the help page's path
    // Design surface dialogs.
    RestoreDefaultsQuestion,
    IniWriteFailed,
    // Editing, later additions.
    FontSizeRange,
    LabelCutAtSemicolon,
    ProgramForButtons, ///< "%1" stands for the number of buttons
    NotSelectedNote,   ///< after "Button <n>"
    AppletSizeRange,
    FieldCannotHold,   ///< followed by the characters left out
    ControlCharacters, ///< how the list of left-out characters names control characters
    UrlBarEncoded,
    CharacterReference, ///< after the reference in quotes
    WrongBox,           ///< followed by the name of Move's box
    // Save as, loading.
    FileExists,      ///< after the file's path
    ReplaceQuestion, ///< on the line after FileExists
    CharactersRemoved,
    AppletPrefix, ///< names the applet where ButtonPrefix names a button
    // Publishing, later additions.
    PageNotWritten, ///< followed by the page's path, ": " and the reason
    PageNotOpened,  ///< after the page's path
    // Desktop integration.
    AssociateDone,
    AssociateFailed, ///< followed by the reason
    ShortCutFailed,  ///< followed by the reason
    // HTML5 player.
    PlayerMissing,   ///< "%1" stands for the player's path in the program folder
    PlayerNotCopied, ///< followed by the path it was to be copied to
    // Undo steps: what an edit did, and the names of what it changed.
    StepAddButton,
    StepAddButtons,
    StepDuplicateButton,
    StepRemoveButton,
    StepRemoveButtons,
    StepMoveButton,
    StepMoveButtons,
    StepResizeButton,
    StepResizeButtons,
    StepBringToFront,
    StepSendToBack,
    StepPlaceLabel,
    StepChange, ///< "%1" stands for the name of what changed (a Field message)
    StepChangeProperties,
    FieldPosition,
    FieldSize,
    FieldLabel,
    FieldURL,
    FieldStatus,
    FieldTarget,
    FieldBorder,
    FieldNoBackground,
    FieldHandCursor,
    FieldImage,
    FieldSound,
    FieldImagePlacement,
    FieldLabelPosition,
    FieldLabelPlacement,
    FieldFont,
    FieldFontColor,
    FieldFontSize,
    FieldFontStyle,
    FieldBackColor,
    FieldHidden,
    FieldActionProgram,
    FieldAppletWidth,
    FieldAppletHeight,
    FieldBehaviour,
    FieldDownButton,
    FieldBackgroundColor,
    FieldBackgroundImage,
    FieldBackgroundImagePlacement,
    FieldAppletProgram,
    FieldBackgroundOffset,
    FieldAppletName,
    // File choosers' filters, in Qt's form.
    ProjectFilter,
    LegacyProjectFilter,
    ImageFilter,
    SoundFilter,
    PageFileFilter,
    // The causes an error message names on its second line, as the program has always
    // named them.
    CauseFileNotFound,
    CausePathNotFound,
    CausePermissionDenied,
    CauseDiskFull,
    CauseFileAccess,
    CauseBadFileName,
    CauseTypeMismatch,
    CauseOverflow,
    CauseInputPastEnd,
    CauseSubscriptOutOfRange,
    Count
};

/// The message's name in the text catalogue and in translators' lists ("PleaseWait").
std::string_view messageName(Msg id);
/// The built-in English text; the text in force is the catalogue's (textcatalogue.h).
std::string_view englishMessage(Msg id);

/// Carriage return and line feed, the line break of every text the program writes.
inline constexpr std::string_view kCrLf = "\r\n";

} // namespace orvelin
