#include "buttonrecord.h"
#include "projectmodel.h"
#include "texthelpers.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace orvelin;

namespace {

std::vector<std::string> SplitFields(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t bar = line.find('|'); bar != std::string::npos; bar = line.find('|', start)) {
        fields.push_back(line.substr(start, bar - start));
        start = bar + 1;
    }
    return fields;
}

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
    EXPECT_EQ(SplitFields(kFactoryDefaultButton).size(), 50U);
    std::string text = "before\r\n";
    appendSerializedButton(text, Unusual());
    EXPECT_EQ(text, "before\r\n" + serializeButton(Unusual()));
}

TEST(ButtonRecord, FieldPositionsMatchTheNamedMembersAndTheStateAccessors) {
    ButtonRecord r = Unusual();
    EXPECT_EQ(
        (std::vector<int>{r.x, r.y, r.Width, r.Height, r.Border, r.noBackGround, r.ShowHand,
                          r.BackColorDOWN, r.FontSizeOVER, r.LabelPosXOVER, r.LabelPosYDOWN,
                          r.Hidden}),
        (std::vector<int>{1000, 1001, 1002, 1003, 1010, 1011, 1012, 1018, 1029, 1042, 1045, 1046}));
    EXPECT_EQ(r.URL + r.Status + r.Target + r.LabelOVER + r.ImageDOWN + r.SndUP + r.FontStyleOVER +
                  r.ProgramDOWN,
              "t7t8t9t5t15t31t26t49");
    for (const ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN}) {
        const int k = static_cast<int>(s);
        const auto t = [k](int pos) { return "t" + std::to_string(pos + k); };
        EXPECT_EQ(r.label(s) + r.image(s) + r.font(s) + r.fontStyle(s) + r.sound(s) + r.Program(s),
                  t(4) + t(13) + t(22) + t(25) + t(31) + t(47));
        const ButtonRecord& c = r;
        EXPECT_EQ((std::vector<int>{c.backColor(s), c.fontColor(s), c.fontSize(s), c.ImgStyle(s),
                                    c.positionText(s), c.labelPosX(s), c.labelPosY(s)}),
                  (std::vector<int>{1016 + k, 1019 + k, 1028 + k, 1034 + k, 1037 + k, 1040 + 2 * k,
                                    1041 + 2 * k}));
    }
    const std::vector<std::string> fields = SplitFields(serializeButton(r));
    ASSERT_EQ(fields.size(), 50U);
    for (int pos = 0; pos < kButtonFieldCount; ++pos)
        EXPECT_EQ(fields[static_cast<std::size_t>(pos)], fieldText(r, pos)) << pos;
    EXPECT_STREQ(buttonFields()[16].name, "BackColorUP");
    EXPECT_STREQ(buttonFields()[49].name, "ProgramDOWN");
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

TEST(ProjectModel, TheHundredAndFirstButtonIsAcceptedTheNextRefused) {
    ProjectModel model;
    for (int i = 1; i <= kMaxButtons; ++i)
        ASSERT_EQ(model.addButton(kFactoryDefaultButton), ProjectModel::AddResult::Added) << i;
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_EQ(model.CurrentButton, 101);
    model.Saved = true;
    model.CurrentButton = 5;
    const ButtonRecord spare = model.button(102);
    EXPECT_EQ(model.addButton(kFactoryDefaultButton), ProjectModel::AddResult::LimitReached);
    EXPECT_EQ(model.duplicateButton(1), ProjectModel::AddResult::LimitReached);
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_EQ(model.CurrentButton, 5);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.button(102), spare);
}

TEST(ProjectModel, CorruptDefaultLeavesTheModelUnchanged) {
    ProjectModel model;
    ASSERT_EQ(model.addButton(kFactoryDefaultButton), ProjectModel::AddResult::Added);
    model.Saved = true;
    model.button(2) = Unusual();
    FieldError error;
    EXPECT_EQ(model.addButton("0|0|wide|40|", &error), ProjectModel::AddResult::CorruptDefault);
    EXPECT_EQ(error.position, 2);
    EXPECT_EQ(error.description, "Type mismatch");
    EXPECT_EQ(model.addButton("x|0|", &error), ProjectModel::AddResult::CorruptDefault);
    EXPECT_EQ(error.position, 0);
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.button(2), Unusual());
}

TEST(ProjectModel, ProgramSlotsNameTheSevenPrograms) {
    ProjectModel model;
    EXPECT_EQ(model.programSlot(ProgramKind::ProgramOVER, 3), &model.button(3).ProgramOVER);
    EXPECT_EQ(model.programSlot(ProgramKind::AppletProgramOUT, 0), &model.AppletProgramOUT);
    EXPECT_EQ(model.programSlot(ProgramKind::ProgramUP, 0), nullptr);
    EXPECT_EQ(model.programSlot(ProgramKind::ProgramUP, 103), nullptr);
    EXPECT_EQ(programKindFromName("AppletProgramDOWN"), ProgramKind::AppletProgramDOWN);
    EXPECT_EQ(programKindFromName("Program"), std::nullopt);
}
