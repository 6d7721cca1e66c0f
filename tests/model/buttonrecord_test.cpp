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

/// A record whose every field differs from the defaults.
ButtonRecord Unusual() {
    ButtonRecord r;
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        const FieldKind kind = ButtonFields()[static_cast<std::size_t>(pos)].kind;
        const bool number = kind == FieldKind::Int16 || kind == FieldKind::Color;
        EXPECT_FALSE(
            SetFieldText(r, pos, number ? std::to_string(1000 + pos) : "t" + std::to_string(pos)));
    }
    return r;
}

} // namespace

TEST(ButtonRecord, FactoryStringParsesToTheDefaultsAndBack) {
    ButtonRecord record = Unusual();
    ASSERT_FALSE(ParseButton(kFactoryDefaultButton, record));
    EXPECT_EQ(record, ButtonRecord{});
    EXPECT_EQ(SerializeButton(ButtonRecord{}), kFactoryDefaultButton);
    EXPECT_EQ(SplitFields(kFactoryDefaultButton).size(), 50U);
}

TEST(ButtonRecord, FieldPositionsMatchTheNamedMembers) {
    const ButtonRecord r = Unusual();
    const std::vector<std::int32_t> singles = {
        r.x, r.y, r.Width, r.Height, r.Border, r.noBackGround, r.ShowHand, r.Hidden};
    EXPECT_EQ(singles, (std::vector<std::int32_t>{1000, 1001, 1002, 1003, 1010, 1011, 1012, 1046}));
    EXPECT_EQ(r.URL + r.Status + r.Target, "t7t8t9");
    for (const ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN}) {
        const int k = static_cast<int>(s);
        const auto t = [k](int pos) { return "t" + std::to_string(pos + k); };
        EXPECT_EQ(r.Label(s), t(4));
        EXPECT_EQ(r.Image(s), t(13));
        EXPECT_EQ(r.BackColor(s), 1016 + k);
        EXPECT_EQ(r.FontColor(s), 1019 + k);
        EXPECT_EQ(r.Font(s), t(22));
        EXPECT_EQ(r.FontStyle(s), t(25));
        EXPECT_EQ(r.FontSize(s), 1028 + k);
        EXPECT_EQ(r.Sound(s), t(31));
        EXPECT_EQ(r.ImgStyle(s), 1034 + k);
        EXPECT_EQ(r.PositionText(s), 1037 + k);
        EXPECT_EQ(r.LabelPosX(s), 1040 + 2 * k);
        EXPECT_EQ(r.LabelPosY(s), 1041 + 2 * k);
        EXPECT_EQ(r.Program(s), t(47));
    }
    const std::vector<std::string> fields = SplitFields(SerializeButton(r));
    ASSERT_EQ(fields.size(), 50U);
    for (int pos = 0; pos < kButtonFieldCount; ++pos)
        EXPECT_EQ(fields[static_cast<std::size_t>(pos)], FieldText(r, pos)) << pos;
    EXPECT_STREQ(ButtonFields()[16].name, "BackColorUP");
    EXPECT_STREQ(ButtonFields()[49].name, "ProgramDOWN");
}

TEST(ButtonRecord, StateAccessorsReachTheirTriples) {
    ButtonRecord r = Unusual();
    EXPECT_EQ(&r.Label(ButtonState::OVER), &r.LabelOVER);
    EXPECT_EQ(&r.Image(ButtonState::DOWN), &r.ImageDOWN);
    EXPECT_EQ(&r.Sound(ButtonState::UP), &r.SndUP);
    EXPECT_EQ(&r.FontStyle(ButtonState::OVER), &r.FontStyleOVER);
    EXPECT_EQ(&r.Program(ButtonState::DOWN), &r.ProgramDOWN);
    EXPECT_EQ(&r.BackColor(ButtonState::DOWN), &r.BackColorDOWN);
    EXPECT_EQ(&r.LabelPosX(ButtonState::OVER), &r.LabelPosXOVER);
    EXPECT_EQ(&r.LabelPosY(ButtonState::DOWN), &r.LabelPosYDOWN);
    const ButtonRecord& c = r;
    EXPECT_EQ(c.FontSize(ButtonState::OVER), r.FontSizeOVER);
    EXPECT_EQ(c.ImgStyle(ButtonState::UP), r.ImgStyleUP);
    EXPECT_EQ(c.PositionText(ButtonState::DOWN), r.PositionTextDOWN);
}

TEST(ButtonRecord, TextAfterTheLastBarIsIgnored) {
    ButtonRecord record;
    ASSERT_FALSE(ParseButton(std::string(kFactoryDefaultButton) + "junk|", record));
    EXPECT_EQ(record, ButtonRecord{});
    ASSERT_FALSE(ParseButton("5|6|7|8|notAnumber", record));
    EXPECT_EQ(record.Height, 8);
    EXPECT_EQ(record.LabelUP, "");
}

TEST(ButtonRecord, FewerSeparatorsLeaveLaterFieldsUnchanged) {
    ButtonRecord record = Unusual();
    ASSERT_FALSE(ParseButton("1|2|3|", record));
    EXPECT_EQ(record.x, 1);
    EXPECT_EQ(record.y, 2);
    EXPECT_EQ(record.Width, 3);
    EXPECT_EQ(record.Height, 1003);
    EXPECT_EQ(record.ProgramDOWN, "t49");
    ButtonRecord untouched = Unusual();
    ASSERT_FALSE(ParseButton("", untouched));
    EXPECT_EQ(untouched, Unusual());
}

TEST(ButtonRecord, IntegerFieldWithoutANumberIsAConversionError) {
    ButtonRecord record = Unusual();
    FieldError e = ParseButton("7||", record);
    EXPECT_EQ(e.position, 1);
    EXPECT_EQ(e.description, "Type mismatch");
    EXPECT_EQ(record.x, 7) << "fields before the error are assigned";
    EXPECT_EQ(record.y, 1001) << "the failing field keeps its value";

    e = ParseButton("0|0|1O7|", record);
    EXPECT_EQ(e.position, 2);
    EXPECT_EQ(e.description, "Type mismatch");

    e = ParseButton("0|0|107|40|||||||x|", record);
    EXPECT_EQ(e.position, 10);
}

TEST(ButtonRecord, OutOfRangeIntegerOverflows) {
    ButtonRecord record;
    FieldError e = ParseButton("0|0|40000|", record);
    EXPECT_EQ(e.position, 2);
    EXPECT_EQ(e.description, "Overflow");
    EXPECT_EQ(record.Width, 107);
    EXPECT_FALSE(ParseButton("-32768|32767|-1|", record));
    EXPECT_EQ(record.x, -32768);
    EXPECT_EQ(record.y, 32767);
    EXPECT_EQ(record.Width, -1);
}

TEST(ButtonRecord, ColoursTakeTheWholeThirtyTwoBitRange) {
    ButtonRecord record;
    EXPECT_FALSE(SetFieldText(record, 16, "2147483647"));
    EXPECT_EQ(record.BackColorUP, 2147483647);
    EXPECT_FALSE(SetFieldText(record, 17, "-2147483648"));
    EXPECT_EQ(record.BackColorOVER, -2147483647 - 1);
    EXPECT_FALSE(SetFieldText(record, 21, "16777215"));
    EXPECT_EQ(record.FontColorDOWN, 16777215);
    const FieldError e = SetFieldText(record, 18, "2147483648");
    EXPECT_EQ(e.position, 18);
    EXPECT_EQ(e.description, "Overflow");
    EXPECT_EQ(record.BackColorDOWN, 255);
    EXPECT_EQ(SetFieldText(record, 19, "").description, "Type mismatch");
}

TEST(ButtonRecord, FieldsReadNumbersAsTheTypedNumberConversionDoes) {
    // Every form, plain or not, gives a field what the conversion of typed numbers gives.
    const std::vector<std::string> texts = {
        "0",           "-0",         "+5",         "007",
        "-32768",      "32767",      "32768",      "-32769",
        "999999999",   "-999999999", "1000000000", "2147483647",
        "-2147483648", "2147483648", "12.5",       "1e3",
        " 7",          "7 ",         "-",          "",
        "--1",         "0x1",        "1-",         "99999999999999999999"};
    for (const std::string& text : texts) {
        for (const int pos : {2, 16}) {
            const bool wide = pos == 16;
            const WholeNumber expected = wide ? ParseWholeNumber(text, INT32_MIN, INT32_MAX)
                                              : ParseWholeNumber(text, INT16_MIN, INT16_MAX);
            ButtonRecord record;
            const FieldError e = SetFieldText(record, pos, text);
            EXPECT_EQ(e.description, NumberErrorText(expected.error)) << text;
            const std::int64_t value = wide ? record.BackColorUP : record.Width;
            const std::int64_t unchanged = wide ? ButtonRecord().BackColorUP : ButtonRecord().Width;
            EXPECT_EQ(value, expected.error == NumberError::None ? expected.value : unchanged)
                << text;
        }
    }
}

TEST(ButtonRecord, LabelsAreEncodedOnWriteAndDecodedOnRead) {
    ButtonRecord record;
    record.LabelUP = "a|b c";
    record.LabelOVER = "say \"hi\"";
    record.LabelDOWN = "x;y\\ny";
    record.URL = "http://x/a b";
    record.Status = "go there";
    const std::string line = SerializeButton(record);
    const std::vector<std::string> fields = SplitFields(line);
    EXPECT_EQ(fields[4], "aIb&nbspc");
    EXPECT_EQ(fields[5], "say&nbsp&y02hi&y02");
    EXPECT_EQ(fields[6], "x;y\\ny");
    EXPECT_EQ(fields[7], "http://x/a b") << "other texts are written as they are";
    EXPECT_EQ(fields[8], "go there");

    ButtonRecord back;
    ASSERT_FALSE(ParseButton(line, back));
    EXPECT_EQ(back.LabelUP, "aIb c") << "the bar comes back as a capital I";
    EXPECT_EQ(back.LabelOVER, "say \"hi\"");
    EXPECT_EQ(back.LabelDOWN, "x;y\\ny");
    EXPECT_EQ(back.URL, "http://x/a b");

    ASSERT_FALSE(ParseButton("0|0|107|40|a&y01b|&nbsp|", back));
    EXPECT_EQ(back.LabelUP, "a;b");
    EXPECT_EQ(back.LabelOVER, " ");
}

TEST(ButtonRecord, ReadingOverAButtonReplacesEveryTextItHeld) {
    // A record read again keeps no trace of its longer earlier texts.
    ButtonRecord record = Unusual();
    record.LabelUP = std::string(500, 'x');
    record.ProgramUP = std::string(500, 'y');
    ASSERT_FALSE(ParseButton(kFactoryDefaultButton, record));
    EXPECT_EQ(record, ButtonRecord());
    EXPECT_EQ(SerializeButton(record), kFactoryDefaultButton);
}

TEST(ButtonRecord, AppendedLineFollowsWhatWasThere) {
    const ButtonRecord record = Unusual();
    std::string text = "before\r\n";
    AppendSerializedButton(text, record);
    EXPECT_EQ(text, "before\r\n" + SerializeButton(record));
}

TEST(ButtonRecord, PositionCanBeCheckedWithoutBeingApplied) {
    ButtonRecord record;
    record.x = 11;
    record.y = 12;
    ASSERT_FALSE(ParseButton("1|2|3|", record, false));
    EXPECT_EQ(record.x, 11);
    EXPECT_EQ(record.y, 12);
    EXPECT_EQ(record.Width, 3);
    const FieldError e = ParseButton("1|y|3|", record, false);
    EXPECT_EQ(e.position, 1);
    EXPECT_EQ(record.Width, 3);
}

TEST(ButtonRecord, FontStyleCodesFollowTheTwoToggles) {
    EXPECT_EQ(FontStyleCode(false, false), "0");
    EXPECT_EQ(FontStyleCode(true, false), "1");
    EXPECT_EQ(FontStyleCode(false, true), "2");
    EXPECT_EQ(FontStyleCode(true, true), "3");
    for (const bool bold : {false, true}) {
        for (const bool italic : {false, true}) {
            bool b = !bold;
            bool i = !italic;
            FontStyleFlags(FontStyleCode(bold, italic), b, i);
            EXPECT_EQ(b, bold);
            EXPECT_EQ(i, italic);
        }
    }
    bool b = true;
    bool i = true;
    FontStyleFlags("7", b, i);
    EXPECT_FALSE(b || i);
}

TEST(ButtonRecord, StateNamesConvertBothWays) {
    ButtonState s = ButtonState::UP;
    EXPECT_TRUE(StateFromName("DOWN", s));
    EXPECT_EQ(s, ButtonState::DOWN);
    EXPECT_STREQ(StateName(ButtonState::OVER), "OVER");
    EXPECT_FALSE(StateFromName("over", s));
    EXPECT_EQ(s, ButtonState::DOWN);
}

TEST(ProjectModel, TheHundredAndFirstButtonIsAcceptedTheNextRefused) {
    ProjectModel model;
    for (int i = 1; i <= kMaxButtons; ++i)
        ASSERT_EQ(model.AddButton(kFactoryDefaultButton), ProjectModel::AddResult::Added) << i;
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_EQ(model.CurrentButton, 101);
    model.Saved = true;
    model.CurrentButton = 5;
    const ButtonRecord spare = model.Button(102);
    EXPECT_EQ(model.AddButton(kFactoryDefaultButton), ProjectModel::AddResult::LimitReached);
    EXPECT_EQ(model.DuplicateButton(1), ProjectModel::AddResult::LimitReached);
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_EQ(model.CurrentButton, 5);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.Button(102), spare);
}

TEST(ProjectModel, NewButtonKeepsItsSlotPositionAndTakesTheRestFromTheDefault) {
    ProjectModel model;
    model.Button(1) = ButtonRecord{};
    model.Button(1).x = 40;
    model.Button(1).y = 50;
    model.Button(1).LabelUP = "stale";
    ASSERT_EQ(model.AddButton("9|9|60|20|Go&nbsphome|"), ProjectModel::AddResult::Added);
    const ButtonRecord& b = model.Button(1);
    EXPECT_EQ(b.x, 40);
    EXPECT_EQ(b.y, 50);
    EXPECT_EQ(b.Width, 60);
    EXPECT_EQ(b.Height, 20);
    EXPECT_EQ(b.LabelUP, "Go home");
    EXPECT_EQ(b.LabelOVER, "");
    EXPECT_EQ(b.Target, "_self");
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_FALSE(model.Saved);
}

TEST(ProjectModel, CorruptDefaultLeavesTheModelUnchanged) {
    ProjectModel model;
    ASSERT_EQ(model.AddButton(kFactoryDefaultButton), ProjectModel::AddResult::Added);
    model.Saved = true;
    const ButtonRecord slot = model.Button(2);
    FieldError error;
    EXPECT_EQ(model.AddButton("0|0|wide|40|", &error), ProjectModel::AddResult::CorruptDefault);
    EXPECT_EQ(error.position, 2);
    EXPECT_EQ(error.description, "Type mismatch");
    EXPECT_EQ(model.AddButton("x|0|", &error), ProjectModel::AddResult::CorruptDefault);
    EXPECT_EQ(error.position, 0);
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.Button(2), slot);
}

TEST(ProjectModel, DuplicateAppendsACopyOfTheButton) {
    ProjectModel model;
    model.AddButton(kFactoryDefaultButton);
    model.AddButton(kFactoryDefaultButton);
    model.Button(1).LabelUP = "one";
    model.Button(1).x = 33;
    ASSERT_EQ(model.DuplicateButton(1), ProjectModel::AddResult::Added);
    EXPECT_EQ(model.ButtonCount, 3);
    EXPECT_EQ(model.CurrentButton, 3);
    EXPECT_EQ(model.Button(3), model.Button(1));
}

TEST(ProjectModel, RemoveButtonMovesTheLaterOnesDown) {
    ProjectModel model;
    for (int i = 1; i <= 4; ++i) {
        model.AddButton(kFactoryDefaultButton);
        model.Button(i).LabelUP = "b" + std::to_string(i);
    }
    model.Saved = true;
    model.RemoveButton(2);
    EXPECT_EQ(model.ButtonCount, 3);
    EXPECT_EQ(model.Button(1).LabelUP, "b1");
    EXPECT_EQ(model.Button(2).LabelUP, "b3");
    EXPECT_EQ(model.Button(3).LabelUP, "b4");
    EXPECT_FALSE(model.Saved);

    model.Saved = true;
    model.RemoveButton(0);
    model.RemoveButton(4);
    EXPECT_EQ(model.ButtonCount, 3);
    EXPECT_TRUE(model.Saved);
    model.RemoveButton(3);
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.Button(2).LabelUP, "b3");
}

TEST(ProjectModel, ResetEmptiesTheProjectButKeepsTheAppletSettings) {
    ProjectModel model;
    model.AddButton(kFactoryDefaultButton);
    model.AppletWidth = 300;
    model.BackGround = 255;
    model.Behaviour = 1;
    model.AppletName = "menu";
    model.BackImg = "bg.gif";
    model.AppletProgramStart = "a;";
    model.AppletProgramOUT = "b;";
    model.ProjectFileName = "/tmp/p.orv";
    model.Reset();
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.CurrentButton, 0);
    EXPECT_EQ(model.BackImg, "");
    EXPECT_EQ(model.AppletProgramStart, "");
    EXPECT_EQ(model.AppletProgramOUT, "");
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.AppletWidth, 300);
    EXPECT_EQ(model.BackGround, 255);
    EXPECT_EQ(model.Behaviour, 1);
    EXPECT_EQ(model.AppletName, "menu");
}

TEST(ProjectModel, ProgramSlotsNameTheSevenPrograms) {
    ProjectModel model;
    EXPECT_EQ(model.ProgramSlot("ProgramOVER", 3), &model.Button(3).ProgramOVER);
    EXPECT_EQ(model.ProgramSlot("ProgramDOWN", 1), &model.Button(1).ProgramDOWN);
    EXPECT_EQ(model.ProgramSlot("AppletProgramStart", 0), &model.AppletProgramStart);
    EXPECT_EQ(model.ProgramSlot("AppletProgramOUT", 0), &model.AppletProgramOUT);
    EXPECT_EQ(model.ProgramSlot("ProgramUP", 0), nullptr);
    EXPECT_EQ(model.ProgramSlot("ProgramUP", 103), nullptr);
    EXPECT_EQ(model.ProgramSlot("Program", 1), nullptr);
    EXPECT_TRUE(IsButtonProgramKind("ProgramUP"));
    EXPECT_FALSE(IsButtonProgramKind("AppletProgramOVER"));
    EXPECT_TRUE(IsAppletProgramKind("AppletProgramDOWN"));
}

TEST(ProjectModel, EditedStateFallsBackToUp) {
    ProjectModel model;
    model.CurrentState = "OVER";
    EXPECT_EQ(model.EditedState(), ButtonState::OVER);
    model.CurrentState = "sideways";
    EXPECT_EQ(model.EditedState(), ButtonState::UP);
}
