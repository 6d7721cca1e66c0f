#pragma once

#include "buttonrecord.h"

#include <string>
#include <string_view>

namespace orvelin {

/// What a typed field is, for what it can keep of what the user types or pastes.
enum class TypedField {
    Label, ///< a label: its line breaks are the two characters "\n"
    Url,   ///< a link: "|" is written as "%7C", which means the same to a browser
    Text,  ///< status, target
    File,  ///< image and sound paths
    Raw,   ///< font names, the action editor's JavaScript
};

/// What a field keeps of typed text, and what the user is to be told about it.
struct TypedText {
    std::string text;
    /// Empty, or a short note for beside the field: what was changed or left out, or
    /// that a browser would read part of the text as another character.
    std::string note;
};

/**
 * The text a field keeps of `typed`, so that every field holds only what the project
 * file and the applet parameters can carry. A line break (CR LF, CR or LF) becomes a
 * label's "\n", elsewhere a blank; a "|" in a link becomes "%7C"; whatever else the
 * field cannot hold (FieldCanHold) is left out and named in the note.
 */
TypedText acceptTyped(TypedField field, std::string_view typed);

/// The first character reference in `text` ("&#124;", "&#x7C;", "&amp;") that a browser
/// decodes before any script reads a parameter; empty when there is none.
std::string firstCharacterReference(std::string_view text);

} // namespace orvelin
