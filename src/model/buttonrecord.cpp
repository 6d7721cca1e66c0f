#include "buttonrecord.h"

#include "projectmodel.h"
#include "texthelpers.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace orvelin {

const char* const kFactoryDefaultButton =
    "0|0|107|40||||||_self|1|0|0||||65535|16776960|255|0|16711680|16777215|Arial|Arial|Arial|0|0|"
    "0|10|10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||";

const char* stateName(ButtonState state) {
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

bool stateFromName(std::string_view name, ButtonState& state) {
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

std::string fontStyleCode(bool bold, bool italic) {
    if (bold && italic)
        return "3";
    if (bold)
        return "1";
    if (italic)
        return "2";
    return "0";
}

void fontStyleFlags(std::string_view code, bool& bold, bool& italic) {
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

using B = ButtonRecord;
using K = FieldKind;
// clang-format off
constexpr std::array<ButtonField, kButtonFieldCount> kButtonFields = {{
    Field("x", K::Int16, &B::x),
    Field("y", K::Int16, &B::y),
    Field("Width", K::Int16, &B::Width),
    Field("Height", K::Int16, &B::Height),
    Field("LabelUP", K::Label, &B::LabelUP),
    Field("LabelOVER", K::Label, &B::LabelOVER),
    Field("LabelDOWN", K::Label, &B::LabelDOWN),
    Field("URL", K::Text, &B::URL),
    Field("Status", K::Text, &B::Status),
    Field("Target", K::Text, &B::Target),
    Field("Border", K::Int16, &B::Border),
    Field("noBackGround", K::Int16, &B::noBackGround),
    Field("ShowHand", K::Int16, &B::ShowHand),
    Field("ImageUP", K::File, &B::ImageUP),
    Field("ImageOVER", K::File, &B::ImageOVER),
    Field("ImageDOWN", K::File, &B::ImageDOWN),
    Field("BackColorUP", K::Color, &B::BackColorUP),
    Field("BackColorOVER", K::Color, &B::BackColorOVER),
    Field("BackColorDOWN", K::Color, &B::BackColorDOWN),
    Field("FontColorUP", K::Color, &B::FontColorUP),
    Field("FontColorOVER", K::Color, &B::FontColorOVER),
    Field("FontColorDOWN", K::Color, &B::FontColorDOWN),
    Field("FontUP", K::Raw, &B::FontUP),
    Field("FontOVER", K::Raw, &B::FontOVER),
    Field("FontDOWN", K::Raw, &B::FontDOWN),
    Field("FontStyleUP", K::Raw, &B::FontStyleUP),
    Field("FontStyleOVER", K::Raw, &B::FontStyleOVER),
    Field("FontStyleDOWN", K::Raw, &B::FontStyleDOWN),
    Field("FontSizeUP", K::Int16, &B::FontSizeUP),
    Field("FontSizeOVER", K::Int16, &B::FontSizeOVER),
    Field("FontSizeDOWN", K::Int16, &B::FontSizeDOWN),
    Field("SndUP", K::File, &B::SndUP),
    Field("SndOVER", K::File, &B::SndOVER),
    Field("SndDOWN", K::File, &B::SndDOWN),
    Field("ImgStyleUP", K::Int16, &B::ImgStyleUP),
    Field("ImgStyleOVER", K::Int16, &B::ImgStyleOVER),
    Field("ImgStyleDOWN", K::Int16, &B::ImgStyleDOWN),
    Field("PositionTextUP", K::Int16, &B::PositionTextUP),
    Field("PositionTextOVER", K::Int16, &B::PositionTextOVER),
    Field("PositionTextDOWN", K::Int16, &B::PositionTextDOWN),
    Field("LabelPosXUP", K::Int16, &B::LabelPosXUP),
    Field("LabelPosYUP", K::Int16, &B::LabelPosYUP),
    Field("LabelPosXOVER", K::Int16, &B::LabelPosXOVER),
    Field("LabelPosYOVER", K::Int16, &B::LabelPosYOVER),
    Field("LabelPosXDOWN", K::Int16, &B::LabelPosXDOWN),
    Field("LabelPosYDOWN", K::Int16, &B::LabelPosYDOWN),
    Field("Hidden", K::Int16, &B::Hidden),
    Field("ProgramUP", K::Raw, &B::ProgramUP),
    Field("ProgramOVER", K::Raw, &B::ProgramOVER),
    Field("ProgramDOWN", K::Raw, &B::ProgramDOWN),
}};
// clang-format on
static_assert(kindsMatchMembers(kButtonFields));

/// The field at `pos`; any position past the table is the last field.
const ButtonField& fieldSlot(int pos) {
    return kButtonFields[static_cast<std::size_t>(
        pos >= 0 && pos < kButtonFieldCount ? pos : kButtonFieldCount - 1)];
}

} // namespace

// clang-format off
#define ORVELIN_STATE_ACCESSORS(Type, name, Name)                                                        \
    Type& ButtonRecord::name(ButtonState s) { return pick(s, Name##UP, Name##OVER, Name##DOWN); }  \
    const Type& ButtonRecord::name(ButtonState s) const {                                          \
        return pick(s, Name##UP, Name##OVER, Name##DOWN);                                          \
    }
#define ORVELIN_STATE_VALUE_ACCESSORS(Type, name, Name)                                                  \
    Type& ButtonRecord::name(ButtonState s) { return pick(s, Name##UP, Name##OVER, Name##DOWN); }  \
    Type ButtonRecord::name(ButtonState s) const {                                                 \
        return pick(s, Name##UP, Name##OVER, Name##DOWN);                                          \
    }
// clang-format on

ORVELIN_STATE_ACCESSORS(std::string, label, Label)
ORVELIN_STATE_ACCESSORS(std::string, image, Image)
ORVELIN_STATE_ACCESSORS(std::string, font, Font)
ORVELIN_STATE_ACCESSORS(std::string, fontStyle, FontStyle)
ORVELIN_STATE_ACCESSORS(std::string, Program, Program)
ORVELIN_STATE_VALUE_ACCESSORS(std::int32_t, backColor, BackColor)
ORVELIN_STATE_VALUE_ACCESSORS(std::int32_t, fontColor, FontColor)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, fontSize, FontSize)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, ImgStyle, ImgStyle)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, positionText, PositionText)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, labelPosX, LabelPosX)
ORVELIN_STATE_VALUE_ACCESSORS(std::int16_t, labelPosY, LabelPosY)

std::string& ButtonRecord::sound(ButtonState s) {
    return pick(s, SndUP, SndOVER, SndDOWN);
}
const std::string& ButtonRecord::sound(ButtonState s) const {
    return pick(s, SndUP, SndOVER, SndDOWN);
}

#undef ORVELIN_STATE_ACCESSORS
#undef ORVELIN_STATE_VALUE_ACCESSORS

const std::array<ButtonField, kButtonFieldCount>& buttonFields() {
    return kButtonFields;
}

bool fieldCanHold(FieldKind kind, char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F)
        return false;
    switch (kind) {
    case FieldKind::Label:
        return true;
    case FieldKind::Text:
    case FieldKind::File:
        return c != '|';
    case FieldKind::Int16:
    case FieldKind::Color:
    case FieldKind::Raw:
        break;
    }
    return c != '|' && c != '"';
}

std::string cleanFieldText(FieldKind kind, std::string_view text, bool* removed) {
    std::string out(text);
    const bool any = cleanFieldInPlace(kind, out);
    if (removed)
        *removed = any;
    return out;
}

bool cleanFieldInPlace(FieldKind kind, std::string& text) {
    // FieldCanHold as a table per kind: every load passes every text of every button.
    using Table = std::array<bool, 256>;
    static const std::array<Table, 6> tables = [] {
        std::array<Table, 6> all{};
        for (std::size_t k = 0; k < all.size(); ++k)
            for (std::size_t b = 0; b < 256; ++b)
                all[k][b] = fieldCanHold(static_cast<FieldKind>(k), static_cast<char>(b));
        return all;
    }();
    const Table& holds = tables.at(static_cast<std::size_t>(kind));
    const auto refused = [&holds](char c) { return !holds[static_cast<unsigned char>(c)]; };
    const auto first = std::find_if(text.begin(), text.end(), refused);
    if (first == text.end())
        return false;
    text.erase(std::remove_if(first, text.end(), refused), text.end());
    return true;
}

std::vector<int> cleanTextFields(ButtonRecord& record) {
    std::vector<int> changed;
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        const ButtonField& f = fieldSlot(pos);
        if (f.text && cleanFieldInPlace(f.kind, record.*f.text))
            changed.push_back(pos);
    }
    return changed;
}

namespace {

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
    return parseWholeNumber(text, min, max);
}

/// Sets the integer field of `slot` from its text; false, with the cause, when the
/// text holds no number in the field's range (the field is then left as it was).
template <typename R>
bool storeNumber(R& record, const RecordField<R>& slot, std::string_view text, NumberError& error) {
    const WholeNumber n = parseNumber(text, slot.colour != nullptr);
    error = n.error;
    if (n.error != NumberError::None)
        return false;
    if (slot.colour)
        record.*slot.colour = static_cast<std::int32_t>(n.value);
    else
        record.*slot.number = static_cast<std::int16_t>(n.value);
    return true;
}

/// The longest decimal text of a field's number, "-2147483648".
constexpr std::size_t kLongestNumber = 11;

/// Writes field `slot` of `record` at `to` as stored text; returns the end.
template <typename R> char* writeField(char* to, const R& record, const RecordField<R>& slot) {
    if (slot.text) {
        const std::string& text = record.*slot.text;
        std::memcpy(to, text.data(), text.size());
        return to + text.size();
    }
    return std::to_chars(to, to + kLongestNumber, fieldNumber(record, slot)).ptr;
}

/// Fields [first, last) each followed by "|", written through a pointer into room
/// made for all of them at once.
void appendFields(std::string& out, const ButtonRecord& record, int first, int last) {
    std::size_t room = 0;
    for (int pos = first; pos < last; ++pos) {
        const ButtonField& slot = fieldSlot(pos);
        room += 1 + (slot.text ? (record.*slot.text).size() : kLongestNumber);
    }
    const std::size_t start = out.size();
    out.resize(start + room);
    char* const begin = out.data();
    char* to = begin + start;
    for (int pos = first; pos < last; ++pos) {
        to = writeField(to, record, fieldSlot(pos));
        *to++ = '|';
    }
    out.resize(static_cast<std::size_t>(to - begin));
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

template <typename R>
FieldError setFieldText(R& record, const RecordField<R>& f, int pos, std::string_view text) {
    if (f.text) {
        (record.*f.text).assign(text);
        return {};
    }
    NumberError error = NumberError::None;
    if (!storeNumber(record, f, text, error))
        return {pos, numberErrorText(error)};
    return {};
}

template <typename R>
void appendFieldText(std::string& out, const R& record, const RecordField<R>& f) {
    if (f.text) {
        out += record.*f.text;
        return;
    }
    char digits[kLongestNumber];
    out.append(digits, writeField(digits, record, f));
}

template FieldError setFieldText(ButtonRecord&, const ButtonField&, int, std::string_view);
template FieldError setFieldText(ProjectModel&, const RecordField<ProjectModel>&, int,
                                 std::string_view);
template void appendFieldText(std::string&, const ButtonRecord&, const ButtonField&);
template void appendFieldText(std::string&, const ProjectModel&, const RecordField<ProjectModel>&);

std::string fieldText(const ButtonRecord& record, int pos) {
    std::string text;
    appendFieldText(text, record, fieldSlot(pos));
    return text;
}

FieldError setFieldText(ButtonRecord& record, int pos, std::string_view text) {
    return setFieldText(record, fieldSlot(pos), pos, text);
}

std::string serializeButton(const ButtonRecord& record) {
    std::string out;
    out.reserve(256);
    appendSerializedButton(out, record);
    return out;
}

void appendSerializedButton(std::string& out, const ButtonRecord& record) {
    // Runs of fields between the labels go in one piece each; labels are encoded.
    const auto& fields = buttonFields();
    for (int pos = 0; pos < kButtonFieldCount;) {
        if (fields[static_cast<std::size_t>(pos)].kind == FieldKind::Label) {
            appendEncodedLabel(out, record.*fieldSlot(pos).text);
            out += '|';
            ++pos;
            continue;
        }
        int end = pos + 1;
        while (end < kButtonFieldCount &&
               fields[static_cast<std::size_t>(end)].kind != FieldKind::Label)
            ++end;
        appendFields(out, record, pos, end);
        pos = end;
    }
}

FieldError parseButton(std::string_view line, ButtonRecord& record, bool applyPosition) {
    const auto& fields = buttonFields();
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
                return {pos, numberErrorText(error)};
            continue;
        }
        const ButtonField& slot = fieldSlot(pos);
        if (slot.text) {
            // Cleared and appended to rather than assigned: the strings keep their
            // storage from one load to the next, and appending skips the overlap checks.
            std::string& text = record.*slot.text;
            text.clear();
            if (fields[static_cast<std::size_t>(pos)].kind == FieldKind::Label)
                appendDecodedLabel(text, field);
            else
                text.append(field);
        } else if (!storeNumber(record, slot, field, error)) {
            return {pos, numberErrorText(error)};
        }
    }
    return {};
}

} // namespace orvelin
