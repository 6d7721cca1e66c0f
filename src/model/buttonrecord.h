#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

/// The three visual states of a button; every per-state triple is kept in this order.
enum class ButtonState { UP = 0, OVER = 1, DOWN = 2 };

const char* stateName(ButtonState state); ///< "UP", "OVER", "DOWN"
bool stateFromName(std::string_view name, ButtonState& state);

/// Font style code "0".."3" from the two style toggles and back.
std::string fontStyleCode(bool bold, bool italic);
void fontStyleFlags(std::string_view code, bool& bold, bool& italic);

/**
 * One button's 50 properties, in the order of its pipe-separated form (the
 * default-button setting, a project-file button line, an applet parameter).
 * Colours are 0x00BBGGRR; flags are 0 or 1 (a -1 from a comparison is kept).
 */
struct ButtonRecord {
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t Width = 107;
    std::int16_t Height = 40;
    std::string LabelUP, LabelOVER, LabelDOWN;
    std::string URL;
    std::string Status;
    std::string Target = "_self";
    std::int16_t Border = 1;
    std::int16_t noBackGround = 0;
    std::int16_t ShowHand = 0;
    std::string ImageUP, ImageOVER, ImageDOWN;
    std::int32_t BackColorUP = 65535;
    std::int32_t BackColorOVER = 16776960;
    std::int32_t BackColorDOWN = 255;
    std::int32_t FontColorUP = 0;
    std::int32_t FontColorOVER = 16711680;
    std::int32_t FontColorDOWN = 16777215;
    std::string FontUP = "Arial", FontOVER = "Arial", FontDOWN = "Arial";
    std::string FontStyleUP = "0", FontStyleOVER = "0", FontStyleDOWN = "0";
    std::int16_t FontSizeUP = 10, FontSizeOVER = 10, FontSizeDOWN = 10;
    std::string SndUP, SndOVER, SndDOWN;
    std::int16_t ImgStyleUP = 0, ImgStyleOVER = 0, ImgStyleDOWN = 0;
    std::int16_t PositionTextUP = 0, PositionTextOVER = 0, PositionTextDOWN = 0;
    std::int16_t LabelPosXUP = 53, LabelPosYUP = 25;
    std::int16_t LabelPosXOVER = 53, LabelPosYOVER = 31;
    std::int16_t LabelPosXDOWN = 53, LabelPosYDOWN = 37;
    std::int16_t Hidden = 0;
    std::string ProgramUP, ProgramOVER, ProgramDOWN;

    // Per-state access, so that editor code never spells out the triple.
    std::string& label(ButtonState s);
    const std::string& label(ButtonState s) const;
    std::string& image(ButtonState s);
    const std::string& image(ButtonState s) const;
    std::string& sound(ButtonState s);
    const std::string& sound(ButtonState s) const;
    std::string& font(ButtonState s);
    const std::string& font(ButtonState s) const;
    std::string& fontStyle(ButtonState s);
    const std::string& fontStyle(ButtonState s) const;
    std::string& Program(ButtonState s);
    const std::string& Program(ButtonState s) const;
    std::int32_t& backColor(ButtonState s);
    std::int32_t backColor(ButtonState s) const;
    std::int32_t& fontColor(ButtonState s);
    std::int32_t fontColor(ButtonState s) const;
    std::int16_t& fontSize(ButtonState s);
    std::int16_t fontSize(ButtonState s) const;
    std::int16_t& ImgStyle(ButtonState s);
    std::int16_t ImgStyle(ButtonState s) const;
    std::int16_t& positionText(ButtonState s);
    std::int16_t positionText(ButtonState s) const;
    std::int16_t& labelPosX(ButtonState s);
    std::int16_t labelPosX(ButtonState s) const;
    std::int16_t& labelPosY(ButtonState s);
    std::int16_t labelPosY(ButtonState s) const;

    bool operator==(const ButtonRecord&) const = default;
};

inline constexpr int kButtonFieldCount = 50;

/**
 * How a field is held, which decides how each form writes it:
 *            project file      applet parameter
 *   Int16    decimal           decimal
 *   Color    decimal           "#RRGGBB" (ColorToWeb)
 *   Label    EncodeLabel       EncodeLabel
 *   Text     as it is          EncodeLabel            (URL, status, target)
 *   File     as it is          EncodeLabel(bare name) (image and sound paths)
 *   Raw      as it is          as it is               (fonts, style codes, programs)
 */
enum class FieldKind { Int16, Color, Label, Text, File, Raw };

/**
 * One field of a record `R` (a button, or the project's applet settings): its name (the
 * legacy file's key, the name in messages), its kind and the member that holds it
 * (exactly one of the three, matching the kind).
 */
template <typename R> struct RecordField {
    const char* name;
    FieldKind kind;
    std::int16_t R::*number = nullptr;
    std::int32_t R::*colour = nullptr;
    std::string R::*text = nullptr;
};

/// A table entry: `kind` must match the member's type (see KindsMatchMembers).
template <typename R>
constexpr RecordField<R> Field(const char* name, FieldKind kind, std::int16_t R::*m) {
    return {name, kind, m, nullptr, nullptr};
}
template <typename R>
constexpr RecordField<R> Field(const char* name, FieldKind kind, std::int32_t R::*m) {
    return {name, kind, nullptr, m, nullptr};
}
template <typename R>
constexpr RecordField<R> Field(const char* name, FieldKind kind, std::string R::*m) {
    return {name, kind, nullptr, nullptr, m};
}

/// True when every field's kind fits its member: Int16 a 16-bit one, Color a 32-bit one,
/// the others a string. Checked where the tables are defined.
template <typename Table> constexpr bool kindsMatchMembers(const Table& table) {
    for (const auto& f : table) {
        const bool fits = f.kind == FieldKind::Int16   ? f.number != nullptr
                          : f.kind == FieldKind::Color ? f.colour != nullptr
                                                       : f.text != nullptr;
        if (!fits)
            return false;
    }
    return true;
}

/// The number a numeric field holds (0 for a text field).
template <typename R> std::int32_t fieldNumber(const R& record, const RecordField<R>& f) {
    return f.colour ? record.*f.colour : f.number ? record.*f.number : 0;
}

using ButtonField = RecordField<ButtonRecord>;

/**
 * Whether a field of `kind` can hold the byte `c` in every form it is written in: the
 * project file line (a "|" ends a field, a line break ends the button), the legacy INI
 * line and the applet parameter (a double-quoted attribute whose fields end at "|").
 * No field holds a control character: a label's own line break is the two characters
 * "\n", and a line break anywhere would cut the line. Labels carry '"' and "|" through
 * their encoding (the "|" comes back as "I", by design); Text and File fields carry '"'
 * (encoded for the applet) but no "|"; Raw fields (fonts, style codes, programs, the
 * applet name) neither. Numbers are checked as numbers where they are read.
 */
bool fieldCanHold(FieldKind kind, char c);

/**
 * `text` without the bytes a field of `kind` cannot hold (FieldCanHold): the one rule
 * for what a field may contain, used when a project is read, when a page is generated
 * and where the user types. `removed`, when given, tells whether anything went.
 */
std::string cleanFieldText(FieldKind kind, std::string_view text, bool* removed = nullptr);

/// CleanFieldText in place; true when something was removed.
bool cleanFieldInPlace(FieldKind kind, std::string& text);

/// Cleans every text field of `record` in place; the positions of those that changed.
std::vector<int> cleanTextFields(ButtonRecord& record);

/// The 50 fields in the order of every pipe-separated form of a button.
const std::array<ButtonField, kButtonFieldCount>& buttonFields();

/// Field `pos` as stored text (integers in decimal, texts as they are, no encoding).
std::string fieldText(const ButtonRecord& record, int pos);
/// Field `f` as stored text appended to `out`.
template <typename R>
void appendFieldText(std::string& out, const R& record, const RecordField<R>& f);

/// Result of assigning one field from text: an integer field holding no number is a
/// conversion error, named as the designer names it ("Type mismatch", "Overflow").
struct FieldError {
    int position = -1; ///< -1: no error
    std::string description;
    explicit operator bool() const { return position >= 0; }
};

/// Assigns field `pos` from stored text (no decoding). Leaves the field as it was on error.
FieldError setFieldText(ButtonRecord& record, int pos, std::string_view text);
/// The same for any record's field; the error's position is `pos`.
template <typename R>
FieldError setFieldText(R& record, const RecordField<R>& f, int pos, std::string_view text);

/// The 50 fields each followed by "|"; labels through EncodeLabel.
std::string serializeButton(const ButtonRecord& record);

/// serializeButton(record) appended to `out`.
void appendSerializedButton(std::string& out, const ButtonRecord& record);

/**
 * Fills `record` from a pipe-separated line: every "|" closes a field, text after the
 * last "|" is ignored, missing fields stay as they were. Labels go through DecodeLabel.
 * Stops at the first conversion error, leaving the fields before it assigned.
 * Without `applyPosition`, x and y are checked but not assigned (a new button keeps
 * the position of its table slot).
 */
FieldError parseButton(std::string_view line, ButtonRecord& record, bool applyPosition = true);

/// The factory default-button string.
extern const char* const kFactoryDefaultButton;

} // namespace orvelin
