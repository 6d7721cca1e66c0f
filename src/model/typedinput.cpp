#include "typedinput.h"

#include "textcatalogue.h"

#include <cctype>

namespace orvelin {

namespace {

FieldKind kindOf(TypedField field) {
    switch (field) {
    case TypedField::Label:
        return FieldKind::Label;
    case TypedField::Url:
    case TypedField::Text:
        return FieldKind::Text;
    case TypedField::File:
        return FieldKind::File;
    case TypedField::Raw:
        break;
    }
    return FieldKind::Raw;
}

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

} // namespace

TypedText acceptTyped(TypedField field, std::string_view typed) {
    const FieldKind kind = kindOf(field);
    TypedText out;
    std::string refused;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const char c = typed[i];
        if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < typed.size() && typed[i + 1] == '\n')
                ++i;
            out.text += field == TypedField::Label ? "\\n" : " ";
        } else if (c == '|' && field == TypedField::Url) {
            out.text += "%7C";
        } else if (fieldCanHold(kind, c)) {
            out.text += c;
        } else if (refused.find(c) == std::string::npos) {
            refused += c;
        }
    }
    const TextCatalogue& msg = texts();
    if (!refused.empty()) {
        std::string names;
        for (const char c : refused) {
            if (!names.empty())
                names += ", ";
            names += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? msg[Msg::ControlCharacters]
                                                                       : quoted(std::string(1, c));
        }
        out.note = msg[Msg::FieldCannotHold] + names;
    } else if (field == TypedField::Url && typed.find('|') != std::string_view::npos) {
        out.note = msg[Msg::UrlBarEncoded];
    } else if (const std::string reference = firstCharacterReference(out.text);
               !reference.empty()) {
        out.note = quoted(reference) + msg[Msg::CharacterReference];
    }
    return out;
}

std::string firstCharacterReference(std::string_view text) {
    for (std::size_t at = text.find('&'); at != std::string_view::npos;
         at = text.find('&', at + 1)) {
        std::size_t end = at + 1;
        if (end < text.size() && text[end] == '#') {
            ++end;
            const bool hex = end < text.size() && (text[end] == 'x' || text[end] == 'X');
            if (hex)
                ++end;
            const std::size_t digits = end;
            while (end < text.size() &&
                   (hex ? std::isxdigit(static_cast<unsigned char>(text[end])) != 0
                        : std::isdigit(static_cast<unsigned char>(text[end])) != 0))
                ++end;
            // A numeric reference needs no ";" to be decoded.
            if (end > digits)
                return std::string(
                    text.substr(at, end - at + (end < text.size() && text[end] == ';')));
            continue;
        }
        while (end < text.size() && (isAsciiLetter(text[end]) ||
                                     std::isdigit(static_cast<unsigned char>(text[end])) != 0))
            ++end;
        // A named one is taken as such with its ";"; the applet's own "&nbsp", "&y01" and
        // "&y02" have none.
        if (end > at + 1 && end < text.size() && text[end] == ';')
            return std::string(text.substr(at, end - at + 1));
    }
    return {};
}

} // namespace orvelin
