#include "buttonrecord.h"
#include "texthelpers.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

using namespace orvelin;

namespace {

// A record whose every field differs from the defaults: numbers 1000 + position,
// texts "t" + position.
ButtonRecord Unusual() {
    ButtonRecord r;
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        const FieldKind kind = buttonFields()[static_cast<std::size_t>(pos)].kind;
        const bool number = kind == FieldKind::Int16 || kind == FieldKind::Color;
        EXPECT_FALSE(
            setFieldText(r, pos, number ? std::to_string(1000 + pos) : "t" + std::to_string(pos)));
    }
    return r;
}

} // namespace

TEST(ButtonRecord, FactoryStringParsesToTheDefaultsAndBack) {
    ButtonRecord record = Unusual();
    record.LabelUP = std::string(500, 'x'); // a longer earlier text leaves no trace
    ASSERT_FALSE(parseButton(kFactoryDefaultButton, record));
    EXPECT_EQ(record, ButtonRecord{});
    EXPECT_EQ(serializeButton(ButtonRecord{}), kFactoryDefaultButton);
    const std::string_view fields = kFactoryDefaultButton;
    EXPECT_EQ(std::count(fields.begin(), fields.end(), '|'), 50);
    std::string text = "before\r\n";
    appendSerializedButton(text, Unusual());
    EXPECT_EQ(text, "before\r\n" + serializeButton(Unusual()));
}

TEST(ButtonRecord, ParsingStopsAtTheFirstBadFieldAndIgnoresWhatFollowsTheLastBar) {
    struct Case {
        const char* line;
        bool applyPosition;
        int errorAt;
        const char* error;
        const char* head; // fields 0 to 4 afterwards, read over Unusual()
    };
    const Case cases[] = {{"5|6|7|8|notAnumber", true, -1, "", "5|6|7|8|t4"},
                          {"-32768|32767|-1|", true, -1, "", "-32768|32767|-1|1003|t4"},
                          {"0|0|1O7|", true, 2, "Type mismatch", "0|0|1002|1003|t4"},
                          {"0|0|40000|", true, 2, "Overflow", "0|0|1002|1003|t4"},
                          // Without the position, x and y are checked but keep their values.
                          {"1|2|3|", false, -1, "", "1000|1001|3|1003|t4"},
                          {"1|y|3|", false, 1, "Type mismatch", "1000|1001|1002|1003|t4"}};
    for (const Case& c : cases) {
        ButtonRecord record = Unusual();
        const FieldError e = parseButton(c.line, record, c.applyPosition);
        EXPECT_EQ(e.position, c.errorAt) << c.line;
        EXPECT_EQ(e.description, c.error) << c.line;
        std::string head;
        for (int pos = 0; pos < 5; ++pos)
            head += fieldText(record, pos) + (pos < 4 ? "|" : "");
        EXPECT_EQ(head, c.head) << c.line;
        EXPECT_EQ(record.ProgramDOWN, "t49") << c.line;
    }
    ButtonRecord record;
    ASSERT_FALSE(parseButton(std::string(kFactoryDefaultButton) + "junk|", record));
    EXPECT_EQ(record, ButtonRecord{});
}

TEST(ButtonRecord, FieldsHoldOnlyWhatTheirEncodingsCarry) {
    const std::string mixed = "a\"b|c\r\nd\te\x7F\x01 \xC3\xA9;&";
    const std::pair<FieldKind, std::string> cases[] = {{FieldKind::Label, "a\"b|cde \xC3\xA9;&"},
                                                       {FieldKind::Text, "a\"bcde \xC3\xA9;&"},
                                                       {FieldKind::File, "a\"bcde \xC3\xA9;&"},
                                                       {FieldKind::Raw, "abcde \xC3\xA9;&"}};
    for (const auto& [kind, kept] : cases) {
        bool removed = false;
        EXPECT_EQ(cleanFieldText(kind, mixed, &removed), kept);
        EXPECT_TRUE(removed);
        EXPECT_EQ(cleanFieldText(kind, kept, &removed), kept);
        EXPECT_FALSE(removed);
    }
}
