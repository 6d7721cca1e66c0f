#include "buttonrecord.h"

#include "texthelpers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <variant>

namespace orvelin {

const char* const kFactoryDefaultButton =
    "0|0|107|40||||||_self|1|0|0||||65535|16776960|255|0|16711680|16777215|Arial|Arial|Arial|0|0|"
    "0|10|10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||";

const char* StateName(ButtonState state) {
    switch (state) {
    case ButtonState::UP:
        return "UP";
    case ButtonState::OVER:
        return "OVER";
    case ButtonState::DOWN:
        return "DOWN";
    }
    return "UP";
}

bool StateFromName(std::string_view name, ButtonState& state) {
    if (name == "UP")
        state = ButtonState::UP;
    else if (name == "OVER")
        state = ButtonState::OVER;
    else if (name == "DOWN")
        state = ButtonState::DOWN;
    else
        return false;
    return true;
}

std::string FontStyleCode(bool bold, bool italic) {
    if (bold && italic)
        return "3";
    if (bold)
        return "1";
    if (italic)
        return "2";
    return "0";
}

void FontStyleFlags(std::string_view code, bool& bold, bool& italic) {
    // Anything but the four digits draws regular, as the applet does.
    const int value = code.size() == 1 ? code[0] - '0' : 0;
    bold = value == 1 || value == 3;
    italic = value == 2 || value == 3;
}

namespace {

template <typename T> T& pick(ButtonState s, T& up, T& over, T& down) {
    switch (s) {
    case ButtonState::OVER:
        return over;
    case ButtonState::DOWN:
        return down;
    case ButtonState::UP:
        break;
    }
    return up;
}

using FieldRef = std::variant<std::int16_t*, std::int32_t*, std::string*>;

FieldRef fieldRef(ButtonRecord& r, int pos) {
    switch (pos) {
    case 0:
        return &r.x;
    case 1:
        return &r.y;
    case 2:
        return &r.Width;
    case 3:
        return &r.Height;
    case 4:
        return &r.LabelUP;
    case 5:
        return &r.LabelOVER;
    case 6:
        return &r.LabelDOWN;
    case 7:
        return &r.URL;
    case 8:
        return &r.Status;
    case 9:
        return &r.Target;
    case 10:
        return &r.Border;
    case 11:
        return &r.noBackGround;
    case 12:
        return &r.ShowHand;
    case 13:
        return &r.ImageUP;
    case 14:
        return &r.ImageOVER;
    case 15:
        return &r.ImageDOWN;
    case 16:
        return &r.BackColorUP;
    case 17:
        return &r.BackColorOVER;
    case 18:
        return &r.BackColorDOWN;
    case 19:
        return &r.FontColorUP;
    case 20:
        return &r.FontColorOVER;
    case 21:
        return &r.FontColorDOWN;
    case 22:
        return &r.FontUP;
    case 23:
        return &r.FontOVER;
    case 24:
        return &r.FontDOWN;
    case 25:
        return &r.FontStyleUP;
    case 26:
        return &r.FontStyleOVER;
    case 27:
        return &r.FontStyleDOWN;
    case 28:
        return &r.FontSizeUP;
    case 29:
        return &r.FontSizeOVER;
    case 30:
        return &r.FontSizeDOWN;
    case 31:
        return &r.SndUP;
    case 32:
        return &r.SndOVER;
    case 33:
        return &r.SndDOWN;
    case 34:
        return &r.ImgStyleUP;
    case 35:
        return &r.ImgStyleOVER;
    case 36:
        return &r.ImgStyleDOWN;
    case 37:
        return &r.PositionTextUP;
    case 38:
        return &r.PositionTextOVER;
    case 39:
        return &r.PositionTextDOWN;
    case 40:
        return &r.LabelPosXUP;
    case 41:
        return &r.LabelPosYUP;
    case 42:
        return &r.LabelPosXOVER;
    case 43:
        return &r.LabelPosYOVER;
    case 44:
        return &r.LabelPosXDOWN;
    case 45:
        return &r.LabelPosYDOWN;
    case 46:
        return &r.Hidden;
    case 47:
        return &r.ProgramUP;
    case 48:
        return &r.ProgramOVER;
    default:
        return &r.ProgramDOWN;
    }
}

} // namespace

// clang-format off
#define ORVELIN_STATE_ACCESSORS(Type, Name)                                                        \
    Type& ButtonRecord::Name(ButtonState s) { return pick(s, Name##UP, Name##OVER, Name##DOWN); }  \
    const Type& ButtonRecord::Name(ButtonState s) const {                                          \
        return pick(s, Name##UP, Name##OVER, Name##DOWN);                                          \
    }
#define ORVELIN_STATE_VALUE_ACCESSORS(Type, Name)                                                  \
    Type& ButtonRecord::Name(ButtonState s) { return pick(s, Name##UP, Name##OVER, Name##DOWN); }  \
    Type ButtonRecord::Name(ButtonState s) const {                                                 \
        return pick(s, Name##UP, Name##OVER, Name##DOWN);                                          \
    }
// clang-format on

ORVELIN_STATE_ACCESSORS(std::string, Label)
ORVELIN_STATE_ACCESSORS(std::string, Image)
ORVELIN_STATE_ACCESSORS(std::string, Font)
ORVELIN_STATE_ACCESSORS(std::string, FontStyle)
ORVELIN_STATE_ACCESSORS(std::string, Program)
ORVELIN_STATE_VALUE_ACCESSORS(std::int32_t, BackColor)
ORVELIN_STATE_VALUE_ACCESSORS(std::int32_t, FontColor)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, FontSize)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, ImgStyle)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, PositionText)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, LabelPosX)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, LabelPosY)

std::string& ButtonRecord::Sound(ButtonState s) {
    return pick(s, SndUP, SndOVER, SndDOWN);
}
const std::string& ButtonRecord::Sound(ButtonState s) const {
    return pick(s, SndUP, SndOVER, SndDOWN);
}

#undef ORVELIN_STATE_ACCESSORS
#undef ORVELIN_STATE_VALUE_ACCESSORS

const std::array<ButtonField, kButtonFieldCount>& ButtonFields() {
    using K = FieldKind;
    static const std::array<ButtonField, kButtonFieldCount> fields = {{
        {"x", K::Int16},
        {"y", K::Int16},
        {"Width", K::Int16},
        {"Height", K::Int16},
        {"LabelUP", K::Label},
        {"LabelOVER", K::Label},
        {"LabelDOWN", K::Label},
        {"URL", K::Text},
        {"Status", K::Text},
        {"Target", K::Text},
        {"Border", K::Int16},
        {"noBackGround", K::Int16},
        {"ShowHand", K::Int16},
        {"ImageUP", K::File},
        {"ImageOVER", K::File},
        {"ImageDOWN", K::File},
        {"BackColorUP", K::Color},
        {"BackColorOVER", K::Color},
        {"BackColorDOWN", K::Color},
        {"FontColorUP", K::Color},
        {"FontColorOVER", K::Color},
        {"FontColorDOWN", K::Color},
        {"FontUP", K::Raw},
        {"FontOVER", K::Raw},
        {"FontDOWN", K::Raw},
        {"FontStyleUP", K::Raw},
        {"FontStyleOVER", K::Raw},
        {"FontStyleDOWN", K::Raw},
        {"FontSizeUP", K::Int16},
        {"FontSizeOVER", K::Int16},
        {"FontSizeDOWN", K::Int16},
        {"SndUP", K::File},
        {"SndOVER", K::File},
        {"SndDOWN", K::File},
        {"ImgStyleUP", K::Int16},
        {"ImgStyleOVER", K::Int16},
        {"ImgStyleDOWN", K::Int16},
        {"PositionTextUP", K::Int16},
        {"PositionTextOVER", K::Int16},
        {"PositionTextDOWN", K::Int16},
        {"LabelPosXUP", K::Int16},
        {"LabelPosYUP", K::Int16},
        {"LabelPosXOVER", K::Int16},
        {"LabelPosYOVER", K::Int16},
        {"LabelPosXDOWN", K::Int16},
        {"LabelPosYDOWN", K::Int16},
        {"Hidden", K::Int16},
        {"ProgramUP", K::Raw},
        {"ProgramOVER", K::Raw},
        {"ProgramDOWN", K::Raw},
    }};
    return fields;
}

namespace {

void appendNumber(std::string& out, std::int32_t value) {
    char digits[16];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    out.append(digits, static_cast<std::size_t>(end.ptr - digits));
}

/// Field `pos` as stored text appended to `out`; with `encodeLabels` a label field
/// goes through the label encoding.
void appendFieldText(std::string& out, const ButtonRecord& record, int pos, bool encodeLabels) {
    // fieldRef only hands out pointers; reading through them does not modify.
    const FieldRef ref = fieldRef(const_cast<ButtonRecord&>(record), pos);
    if (auto p = std::get_if<std::string*>(&ref)) {
        if (encodeLabels && ButtonFields()[static_cast<std::size_t>(pos)].kind == FieldKind::Label)
            AppendEncodedLabel(out, **p);
        else
            out += **p;
    } else if (auto p16 = std::get_if<std::int16_t*>(&ref)) {
        appendNumber(out, **p16);
    } else {
        appendNumber(out, *std::get<std::int32_t*>(ref));
    }
}

/// Up to nine digits with at most a minus, as the writer puts every number: read here,
/// where the general reading would cost more than the rest of the field.
bool plainNumber(std::string_view text, std::int64_t& value) {
    const bool negative = !text.empty() && text.front() == '-';
    const std::size_t first = negative ? 1 : 0;
    if (text.size() == first || text.size() - first > 9)
        return false;
    std::int64_t magnitude = 0;
    for (std::size_t p = first; p < text.size(); ++p) {
        const unsigned digit = static_cast<unsigned char>(text[p]) - unsigned{'0'};
        if (digit > 9)
            return false;
        magnitude = magnitude * 10 + digit;
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

WholeNumber parseNumber(std::string_view text, bool wide) {
    // A plain number in range reads as itself; anything else (out of range included)
    // goes the general way, which gives the error.
    const std::int64_t min =
        wide ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int16_t>::min();
    const std::int64_t max =
        wide ? std::numeric_limits<std::int32_t>::max() : std::numeric_limits<std::int16_t>::max();
    std::int64_t value = 0;
    if (plainNumber(text, value) && value >= min && value <= max)
        return {value, NumberError::None};
    return ParseWholeNumber(text, min, max);
}

/// Sets an integer field from its text; false, with the cause, when the text holds
/// no number in the field's range (the field is then left as it was).
bool storeNumber(const FieldRef& ref, std::string_view text, NumberError& error) {
    const bool wide = std::holds_alternative<std::int32_t*>(ref);
    const WholeNumber n = parseNumber(text, wide);
    error = n.error;
    if (n.error != NumberError::None)
        return false;
    if (wide)
        *std::get<std::int32_t*>(ref) = static_cast<std::int32_t>(n.value);
    else
        *std::get<std::int16_t*>(ref) = static_cast<std::int16_t>(n.value);
    return true;
}

/// The next "|" at or after `start`, or npos. Most fields are a few characters long:
/// looking at them directly is quicker than a search call.
std::size_t nextBar(std::string_view line, std::size_t start) {
    const std::size_t near = std::min(line.size(), start + 8);
    for (std::size_t i = start; i < near; ++i) {
        if (line[i] == '|')
            return i;
    }
    return line.find('|', near);
}

} // namespace

std::string FieldText(const ButtonRecord& record, int pos) {
    std::string out;
    appendFieldText(out, record, pos, false);
    return out;
}

FieldError SetFieldText(ButtonRecord& record, int pos, std::string_view text) {
    const FieldRef ref = fieldRef(record, pos);
    if (auto p = std::get_if<std::string*>(&ref)) {
        (*p)->assign(text);
        return {};
    }
    NumberError error = NumberError::None;
    if (!storeNumber(ref, text, error))
        return {pos, NumberErrorText(error)};
    return {};
}

std::string SerializeButton(const ButtonRecord& record) {
    std::string out;
    out.reserve(256);
    AppendSerializedButton(out, record);
    return out;
}

void AppendSerializedButton(std::string& out, const ButtonRecord& record) {
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        appendFieldText(out, record, pos, true);
        out += '|';
    }
}

FieldError ParseButton(std::string_view line, ButtonRecord& record, bool applyPosition) {
    const auto& fields = ButtonFields();
    std::size_t start = 0;
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        const std::size_t bar = nextBar(line, start);
        if (bar == std::string_view::npos)
            break; // text after the last "|" is ignored; later fields stay as they were
        const std::string_view field = line.substr(start, bar - start);
        start = bar + 1;
        NumberError error = NumberError::None;
        if (!applyPosition && pos < 2) {
            // Checked as a position would be, then dropped.
            error = parseNumber(field, false).error;
            if (error != NumberError::None)
                return {pos, NumberErrorText(error)};
            continue;
        }
        const FieldRef ref = fieldRef(record, pos);
        if (auto p = std::get_if<std::string*>(&ref)) {
            // Cleared and appended to rather than assigned: the strings keep their
            // storage from one load to the next, and appending skips the overlap checks.
            (*p)->clear();
            if (fields[static_cast<std::size_t>(pos)].kind == FieldKind::Label)
                AppendDecodedLabel(**p, field);
            else
                (*p)->append(field);
        } else if (!storeNumber(ref, field, error)) {
            return {pos, NumberErrorText(error)};
        }
    }
    return {};
}

} // namespace orvelin
