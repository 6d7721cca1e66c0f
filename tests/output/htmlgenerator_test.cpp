#include "fakeui.h"
#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectmodel.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using namespace orvelin;

namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back(text.substr(start) + "<no CR LF>");
            break;
        }
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

/// The fields of a parameter line's value, split on "|" (the value ends in "|").
std::vector<std::string> fieldsOf(const std::string& paramLine) {
    const std::size_t open = paramLine.find("value=\"");
    const std::size_t close = paramLine.rfind("\">");
    std::vector<std::string> fields;
    if (open == std::string::npos || close == std::string::npos)
        return fields;
    const std::string value = paramLine.substr(open + 7, close - open - 7);
    std::size_t start = 0;
    for (std::size_t bar = value.find('|'); bar != std::string::npos;
         bar = value.find('|', start)) {
        fields.push_back(value.substr(start, bar - start));
        start = bar + 1;
    }
    if (start != value.size())
        fields.push_back("<after last |>" + value.substr(start));
    return fields;
}

ProjectModel projectWithButtons(int count) {
    ProjectModel model;
    model.AppletName = "Nav";
    for (int i = 1; i <= count; ++i)
        model.AddButton(kFactoryDefaultButton);
    return model;
}

/// A program folder of its own for each test, so the JSCaller source is known.
class HtmlGenerator : public ::testing::Test {
protected:
    void SetUp() override {
        m_folder = fs::temp_directory_path() /
                   ("orvelin-html-" +
                    std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
        SetProgramFolderOverride(m_folder.string());
    }
    void TearDown() override {
        SetProgramFolderOverride("");
        fs::remove_all(m_folder);
    }

    void writeIni(const std::string& text) {
        std::ofstream(m_folder / "Orvel.ini", std::ios::binary) << text;
    }

    fs::path m_folder;
};

const char* const kNotice = "<Param Name=\"CopyRight\" value=\"* Orvelin 1.0  Beta 6  (c) 2026 "
                            "The Orvelin developers   *   https://orvelin.org   *   "
                            "hello@orvelin.org   *\">";

} // namespace

TEST_F(HtmlGenerator, KnownProjectGivesExactText) {
    ProjectModel model = projectWithButtons(2);
    model.Button(2).x = 120;
    model.Button(2).y = -8;
    model.Button(2).LabelUP = "Go on";
    model.Button(2).ProgramDOWN = "2 1;6 500;";
    model.BackGround = 16777215;
    model.BackImg = "img/back.gif";
    model.BackImgStyle = 1;
    model.AppletProgramOUT = "1 1;";
    model.BgOffsetX = -3;

    const GeneratedHtml html = MakeHTML(model);

    const std::string expected =
        "<!-- BEGIN GENERATED CODE: Orvelin: https://orvelin.org -->\r\n"
        "<applet name = \"Nav\" code=\"Orvel1b6.class\" archive=\"Orvel1b6.jar\" width=510 "
        "height=170 MAYSCRIPT>\r\n" +
        std::string(kNotice) +
        "\r\n"
        "<Param Name=\"p\" value=\"Nav|2|0|0|FFFFFF|back.gif|1|0||||1 1;|-3|0|\\n|||\">\r\n"
        "<Param Name=\"1\" value=\"0|0|107|40||||||_self|1|0|0||||FFFF00|00FFFF|FF0000|000000|"
        "0000FF|FFFFFF|Arial|Arial|Arial|0|0|0|10|10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||"
        "\">\r\n"
        "<Param Name=\"2\" value=\"120|-8|107|40|Go&nbspon|||||_self|1|0|0||||FFFF00|00FFFF|"
        "FF0000|000000|0000FF|FFFFFF|Arial|Arial|Arial|0|0|0|10|10|10||||0|0|0|0|0|0|53|25|53|"
        "31|53|37|0|||2 1;6 500;|\">\r\n"
        "</applet>\r\n"
        "<!-- END GENERATED CODE -->\r\n";
    EXPECT_EQ(html.text, expected);
    EXPECT_FALSE(html.usesJavaScript);
}

TEST_F(HtmlGenerator, ProjectWithoutButtonsGivesSixLines) {
    ProjectModel model = projectWithButtons(0);
    model.AppletWidth = 300;
    model.AppletHeight = 45;
    const std::vector<std::string> lines = linesOf(MakeHTML(model).text);
    ASSERT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines[1], "<applet name = \"Nav\" code=\"Orvel1b6.class\" archive=\"Orvel1b6.jar\" "
                        "width=300 height=45 MAYSCRIPT>");
    EXPECT_EQ(lines[2], kNotice);
    EXPECT_EQ(lines[3], "<Param Name=\"p\" value=\"Nav|0|0|0|000000||0|0|||||0|0|\\n|||\">");
    EXPECT_EQ(lines[4], "</applet>");
    EXPECT_EQ(lines[5], "<!-- END GENERATED CODE -->");
}

TEST_F(HtmlGenerator, AppletLineKeepsSeventeenFieldsWithLiteralBackslashN) {
    ProjectModel model = projectWithButtons(1);
    model.Behaviour = 1;
    model.DOWNBtn = -1;
    model.AppletProgramOVER = "5 1 2 FF8000;";
    model.AppletProgramDOWN = "7 0 go()&y01;";
    model.AppletProgramStart = "6 2.5;";
    model.BgOffsetY = 12;
    const std::string p = linesOf(MakeHTML(model).text)[3];
    const std::vector<std::string> fields = fieldsOf(p);
    ASSERT_EQ(fields.size(), 17u) << p;
    EXPECT_EQ(fields[2], "1");
    EXPECT_EQ(fields[3], "-1");
    EXPECT_EQ(fields[7], "0");
    EXPECT_EQ(fields[8], "");
    EXPECT_EQ(fields[9], "5 1 2 FF8000;");
    EXPECT_EQ(fields[10], "7 0 go()&y01;");
    EXPECT_EQ(fields[13], "12");
    EXPECT_EQ(fields[14], "\\n");
    EXPECT_EQ(fields[15], "6 2.5;");
    EXPECT_EQ(fields[16], "");
    EXPECT_EQ(p.find('\n'), std::string::npos);
}

TEST_F(HtmlGenerator, TextFieldsAreEncodedAndRawFieldsAreNot) {
    ProjectModel model = projectWithButtons(1);
    ButtonRecord& b = model.Button(1);
    b.LabelUP = "A|B C";
    b.LabelOVER = "say \"hi\"";
    b.LabelDOWN = "a;b\\nc";
    b.URL = "page.html?a=1 b";
    b.Status = "The \"best\" page";
    b.Target = "my frame";
    b.FontUP = "Times New Roman";
    b.FontStyleOVER = "3";
    b.ProgramOVER = "4 1 1 Hi&nbspthere;";
    const std::vector<std::string> f = fieldsOf(linesOf(MakeHTML(model).text)[4]);
    ASSERT_EQ(f.size(), 50u);
    EXPECT_EQ(f[4], "AIB&nbspC");
    EXPECT_EQ(f[5], "say&nbsp&y02hi&y02");
    EXPECT_EQ(f[6], "a;b\\nc");
    EXPECT_EQ(f[7], "page.html?a=1&nbspb");
    EXPECT_EQ(f[8], "The&nbsp&y02best&y02&nbsppage");
    EXPECT_EQ(f[9], "my&nbspframe");
    EXPECT_EQ(f[22], "Times New Roman");
    EXPECT_EQ(f[26], "3");
    EXPECT_EQ(f[48], "4 1 1 Hi&nbspthere;");
}

TEST_F(HtmlGenerator, EveryButtonFieldLandsAtItsRecordPositionInItsEncoding) {
    const ButtonRecord plain;
    const std::vector<std::string> plainFields =
        fieldsOf("value=\"" + ButtonParameterValue(plain) + "\">");
    ASSERT_EQ(plainFields.size(), 50u);
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        ButtonRecord record;
        std::string stored, expected;
        switch (ButtonFields()[static_cast<std::size_t>(pos)].kind) {
        case FieldKind::Int16:
            stored = expected = std::to_string(-100 - pos);
            break;
        case FieldKind::Color: {
            // Blue 0x13, green 0x02, red 0x20 + pos: six hexadecimal digits.
            stored = std::to_string(0x130220 + pos);
            char red[3];
            std::snprintf(red, sizeof red, "%02X", 0x20 + pos);
            expected = std::string(red) + "0213";
            break;
        }
        case FieldKind::Label:
        case FieldKind::Text:
            stored = "f " + std::to_string(pos) + "|\"";
            expected = "f&nbsp" + std::to_string(pos) + "I&y02";
            break;
        case FieldKind::File:
            stored = "C:\\d\\f " + std::to_string(pos) + ".gif";
            expected = "f&nbsp" + std::to_string(pos) + ".gif";
            break;
        case FieldKind::Raw:
            stored = expected = "raw " + std::to_string(pos) + ";";
            break;
        }
        ASSERT_FALSE(SetFieldText(record, pos, stored)) << pos;
        const std::vector<std::string> fields =
            fieldsOf("value=\"" + ButtonParameterValue(record) + "\">");
        ASSERT_EQ(fields.size(), 50u) << pos;
        for (int other = 0; other < kButtonFieldCount; ++other) {
            const auto i = static_cast<std::size_t>(other);
            EXPECT_EQ(fields[i], other == pos ? expected : plainFields[i])
                << "field " << other << " after setting "
                << ButtonFields()[static_cast<std::size_t>(pos)].name;
        }
    }
}

TEST_F(HtmlGenerator, ColoursFollowTheirHexadecimalLength) {
    const std::vector<std::pair<std::int32_t, std::string>> cases = {
        {0, "000000"},     {255, "FF0000"},      {65280, "00FF00"}, {16711680, "0000FF"},
        {65535, "FFFF00"}, {16777215, "FFFFFF"}, {5, "000000"},     {256, ""},
        {1048575, ""},     {0x123456, "563412"}, {0x00AB, "AB0000"}};
    for (const auto& [colour, web] : cases) {
        ProjectModel model = projectWithButtons(1);
        model.BackGround = colour;
        model.Button(1).BackColorOVER = colour;
        model.Button(1).FontColorDOWN = colour;
        const std::vector<std::string> lines = linesOf(MakeHTML(model).text);
        EXPECT_EQ(fieldsOf(lines[3])[4], web) << colour;
        const std::vector<std::string> button = fieldsOf(lines[4]);
        EXPECT_EQ(button[17], web) << colour;
        EXPECT_EQ(button[21], web) << colour;
        EXPECT_EQ(button[16], "FFFF00");
    }
}

TEST_F(HtmlGenerator, FilesArriveAsTheirEncodedBareNames) {
    ProjectModel model = projectWithButtons(1);
    model.BackImg = "/home/ann/web/sky blue.jpg";
    ButtonRecord& b = model.Button(1);
    b.ImageUP = "C:\\web\\img\\home up.gif";
    b.ImageOVER = "images/home.gif";
    b.ImageDOWN = "plain.png";
    b.SndUP = "D:\\snd/mixed\\click.au";
    b.SndDOWN = "";
    const std::vector<std::string> lines = linesOf(MakeHTML(model).text);
    EXPECT_EQ(fieldsOf(lines[3])[5], "sky&nbspblue.jpg");
    const std::vector<std::string> f = fieldsOf(lines[4]);
    EXPECT_EQ(f[13], "home&nbspup.gif");
    EXPECT_EQ(f[14], "home.gif");
    EXPECT_EQ(f[15], "plain.png");
    EXPECT_EQ(f[31], "click.au");
    EXPECT_EQ(f[32], "");
    EXPECT_EQ(f[33], "");
}

TEST_F(HtmlGenerator, ButtonsAreNumberedInTheirDrawingOrder) {
    ProjectModel model = projectWithButtons(12);
    for (int i = 1; i <= 12; ++i)
        model.Button(i).x = static_cast<std::int16_t>(i * 10);
    const std::vector<std::string> lines = linesOf(MakeHTML(model).text);
    ASSERT_EQ(lines.size(), 18u);
    for (int i = 1; i <= 12; ++i) {
        const std::string& line = lines[static_cast<std::size_t>(3 + i)];
        EXPECT_EQ(line.rfind("<Param Name=\"" + std::to_string(i) + "\" value=\"", 0), 0u) << line;
        EXPECT_EQ(fieldsOf(line)[0], std::to_string(i * 10));
        EXPECT_EQ(line.substr(line.size() - 6), "||||\">") << line;
    }
}

TEST_F(HtmlGenerator, EmptyAppletNameComesFromTheProjectFile) {
    ProjectModel model = projectWithButtons(1);
    model.AppletName.clear();
    model.ProjectFileName = "C:\\Sites\\Top Menu.orv";
    std::string text = MakeHTML(model).text;
    EXPECT_EQ(model.AppletName, "Top_Menu");
    EXPECT_NE(text.find("<applet name = \"Top_Menu\" "), std::string::npos);
    EXPECT_EQ(fieldsOf(linesOf(text)[3])[0], "Top_Menu");

    // Once set, the name stays, even when the file changes.
    model.ProjectFileName = "/srv/other.orv";
    MakeHTML(model);
    EXPECT_EQ(model.AppletName, "Top_Menu");

    EXPECT_EQ(DefaultAppletName(""), "Orvelin");
    EXPECT_EQ(DefaultAppletName("/home/ann/2nd bar.v2.orv"), "_2nd_bar_v2");
    EXPECT_EQ(DefaultAppletName("/home/ann/Menü.orv"), "Menü");
    EXPECT_EQ(DefaultAppletName("/home/ann/a|b.orv"), "aIb");
    EXPECT_EQ(DefaultAppletName("x.o"), "");
}

TEST_F(HtmlGenerator, NewProjectIsNamedOrvelin) {
    ProjectModel model = projectWithButtons(0);
    model.AppletName.clear();
    MakeHTML(model);
    EXPECT_EQ(model.AppletName, "Orvelin");
}

TEST_F(HtmlGenerator, AppletNameBoxStoresASafeIdentifier) {
    ProjectModel model;
    SetAppletNameFromBox(model, "My Menu");
    EXPECT_EQ(model.AppletName, "My_Menu");
    SetAppletNameFromBox(model, "2nd bar.v2");
    EXPECT_EQ(model.AppletName, "_2nd_bar_v2");
    SetAppletNameFromBox(model, "a&nbspb&y02c");
    EXPECT_EQ(model.AppletName, "a_b_c");
    SetAppletNameFromBox(model, "x<y>,z");
    EXPECT_EQ(model.AppletName, "x<y>,z");
}

TEST_F(HtmlGenerator, JavaScriptLinkAtTheStartOfAUrlAddsTheCallerBlock) {
    writeIni("; AppletName before the block is not copied\r\n"
             "[JSCALLER]\r\n"
             "function InitJSCaller() { document.applets['AppletName'].init(); }\r\n"
             "var AppletNameAppletName = 'AppletName';\r\n"
             "[END OF JSCALLER]\r\n"
             "after the end AppletName\r\n");
    ProjectModel model = projectWithButtons(3);
    model.Button(1).URL = "http://example.org/?q=javascript:go()";
    model.Button(2).URL = "JavaScript:go()";
    const GeneratedHtml html = MakeHTML(model);
    EXPECT_TRUE(html.usesJavaScript);
    const std::string tail = "</applet>\r\n"
                             "\r\n"
                             "function InitJSCaller() { document.applets['Nav'].init(); }\r\n"
                             "var NavNav = 'Nav';\r\n"
                             "<!-- END GENERATED CODE -->\r\n";
    ASSERT_GE(html.text.size(), tail.size());
    EXPECT_EQ(html.text.substr(html.text.size() - tail.size()), tail);
}

TEST_F(HtmlGenerator, JavaScriptElsewhereInAUrlAddsNothing) {
    writeIni("[JSCALLER]\nfunction InitJSCaller() {}\n[END OF JSCALLER]\n");
    ProjectModel model = projectWithButtons(2);
    model.Button(1).URL = "page.html#javascript:";
    model.Button(2).URL = " javascript:go()";
    const GeneratedHtml html = MakeHTML(model);
    EXPECT_FALSE(html.usesJavaScript);
    EXPECT_EQ(html.text.find("InitJSCaller"), std::string::npos);
    EXPECT_NE(html.text.find("</applet>\r\n<!-- END GENERATED CODE -->\r\n"), std::string::npos);
}

TEST_F(HtmlGenerator, MissingOrvelIniLeavesAnEmptyLine) {
    ProjectModel model = projectWithButtons(1);
    model.Button(1).URL = "javascript:x()";
    const GeneratedHtml html = MakeHTML(model);
    EXPECT_TRUE(html.usesJavaScript);
    EXPECT_NE(html.text.find("</applet>\r\n\r\n<!-- END GENERATED CODE -->\r\n"),
              std::string::npos);
}

TEST_F(HtmlGenerator, CallerBlockMarkersAreReadWithoutRegardToCase) {
    writeIni("[jscaller]\n"
             "one AppletName\n"
             "  [JSCALLER]\n"
             "appletname stays\n"
             "[End Of JsCaller]\n"
             "two\n");
    EXPECT_EQ(GetJSCaller("Bar"), "\r\none Bar\r\n  [JSCALLER]\r\nappletname stays");
}

TEST_F(HtmlGenerator, EndMarkerBeforeTheStartStopsReading) {
    writeIni("[END OF JSCALLER]\r\n[JSCALLER]\r\nfunction InitJSCaller() {}\r\n");
    EXPECT_EQ(GetJSCaller("Bar"), "");
}

TEST_F(HtmlGenerator, CallerBlockWithoutEndMarkerRunsToTheEndOfTheFile) {
    writeIni("[JSCALLER]\r\n\r\nlast line without a break");
    EXPECT_EQ(GetJSCaller("Bar"), "\r\n\r\nlast line without a break");
}

TEST_F(HtmlGenerator, ShippedCallerBlockDefinesInitJSCallerForTheApplet) {
    const std::string block =
        JSCallerFromFile(std::string(ORVELIN_SOURCE_DIR) + "/data/Orvel.ini", "Nav");
    ASSERT_EQ(block.rfind("\r\n", 0), 0u);
    EXPECT_NE(block.find("function InitJSCaller()"), std::string::npos);
    EXPECT_NE(block.find("document.applets['Nav']"), std::string::npos);
    EXPECT_NE(block.find("<script"), std::string::npos);
    EXPECT_NE(block.find("</script>"), std::string::npos);
    EXPECT_EQ(block.find("AppletName"), std::string::npos);
    EXPECT_EQ(block.find("JSCALLER]"), std::string::npos);
    EXPECT_EQ(block.find("chkNoBackGround"), std::string::npos);
}

TEST_F(HtmlGenerator, ProgressWindowIsShownWhileGenerating) {
    orvelin::testing::FakeUserInterface ui;
    ProjectModel model = projectWithButtons(2);
    MakeHTML(model, &ui);
    ASSERT_EQ(ui.progressShows, 1);
    EXPECT_EQ(ui.progressTexts[0], "Please Wait...|Please wait. Generating HTML code...");
    EXPECT_EQ(ui.progressHides, 1);
    EXPECT_FALSE(ui.progressVisible);
}

TEST_F(HtmlGenerator, GeneratingChangesNothingButAnEmptyName) {
    ProjectModel model = projectWithButtons(3);
    model.Button(2).URL = "javascript:a()";
    model.Saved = false;
    const ProjectModel before = model;
    const std::string first = MakeHTML(model).text;
    EXPECT_EQ(MakeHTML(model).text, first);
    for (int i = 0; i < kButtonSlots; ++i)
        EXPECT_EQ(model.Button(i), before.Button(i));
    EXPECT_EQ(model.AppletName, before.AppletName);
    EXPECT_FALSE(model.Saved);
}
