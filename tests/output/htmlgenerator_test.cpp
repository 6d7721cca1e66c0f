#include "htmlgenerator.h"
#include "programfolder.h"
#include "projectmodel.h"
#include "tempfolder.h"
#include "textfile.h"

#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <regex>
#include <string>
#include <vector>

using namespace orvelin;
using Fields = std::vector<std::string>;

namespace {

/// The fields of a parameter value, each ended by "|"; a tail without its "|" is marked.
Fields Split(const std::string& value) {
    Fields fields;
    std::size_t start = 0;
    for (std::size_t bar; (bar = value.find('|', start)) != std::string::npos; start = bar + 1)
        fields.push_back(value.substr(start, bar - start));
    if (start != value.size())
        fields.push_back("<no |>" + value.substr(start));
    return fields;
}

ProjectModel Project(int buttons) {
    ProjectModel model;
    model.AppletName = "Nav";
    for (int i = 1; i <= buttons; ++i)
        model.addButton(kFactoryDefaultButton);
    return model;
}

/// A program folder of its own for each test, so the caller block's source is known.
class HtmlGenerator : public ::testing::Test {
protected:
    void writeIni(const std::string& text) { folder.write("Orvel.ini", text); }

    orvelin::testing::TempFolder folder;
    const std::string dir = folder.dir().string();
};

const std::string kHead = "<!-- BEGIN GENERATED CODE: Orvelin: https://orvelin.org -->\r\n";
const std::string kNotice = "<Param Name=\"CopyRight\" value=\"* Orvelin 1.0  Beta 6  (c) 2026 "
                            "The Orvelin developers   *   https://orvelin.org   *   "
                            "hello@orvelin.org   *\">\r\n";
const std::string kTail = "</applet>\r\n<!-- END GENERATED CODE -->\r\n";

} // namespace

TEST_F(HtmlGenerator, KnownProjectGivesExactText) {
    ProjectModel model = Project(2);
    ButtonRecord& b = model.button(1);
    b.LabelOVER = "a|\"b\";\\n";
    b.URL = "x y.htm";
    b.ImageUP = "C:\\web\\img\\home up.gif";
    b.SndUP = "D:\\snd/mixed\\click.au";
    b.BackColorOVER = 0x00AB;
    b.FontColorDOWN = 1048575; // no six-digit form: empty
    model.button(2).x = 120;
    model.button(2).y = -8;
    model.button(2).LabelUP = "Go on";
    model.button(2).ProgramDOWN = "2 1;6 500;";
    model.BackGround = 16777215;
    model.BackImg = "img/back.gif";
    model.BackImgStyle = 1;
    model.Behaviour = 1;
    model.DOWNBtn = -1;
    model.AppletProgramOVER = "5 1 2 FF8000;";
    model.AppletProgramDOWN = "7 0 go()&y01;";
    model.AppletProgramOUT = "1 1;";
    model.AppletProgramStart = "6 2.5;";
    model.BgOffsetX = -3;
    model.BgOffsetY = 12;
    const GeneratedHtml html = MakeHTML(model, "Nav", "\r\nnot used");
    EXPECT_EQ(html.text,
              kHead +
                  "<applet name = \"Nav\" code=\"Orvel1b6.class\" archive=\"Orvel1b6.jar\" "
                  "width=510 height=170 MAYSCRIPT>\r\n" +
                  kNotice +
                  "<Param Name=\"p\" value=\"Nav|2|1|-1|FFFFFF|back.gif|1|0||5 1 2 FF8000;|7 0 "
                  "go()&y01;|1 1;|-3|12|\\n|6 2.5;||\">\r\n"
                  "<Param Name=\"1\" value=\"0|0|107|40||aI&y02b&y02;\\n||x&nbspy.htm||_self|1|0|"
                  "0|home&nbspup.gif|||FFFF00|AB0000|FF0000|000000|0000FF||Arial|Arial|Arial|0|0|0|"
                  "10|10|10|click.au|||0|0|0|0|0|0|53|25|53|31|53|37|0||||\">\r\n"
                  "<Param Name=\"2\" value=\"120|-8|107|40|Go&nbspon|||||_self|1|0|0||||FFFF00|"
                  "00FFFF|FF0000|000000|0000FF|FFFFFF|Arial|Arial|Arial|0|0|0|10|10|10||||0|0|0|0|"
                  "0|0|53|25|53|31|53|37|0|||2 1;6 500;|\">\r\n" +
                  kTail);
    EXPECT_FALSE(html.usesJavaScript);

    // Without buttons: the six lines and nothing else.
    ProjectModel empty = Project(0);
    empty.AppletWidth = 300;
    empty.AppletHeight = 45;
    EXPECT_EQ(MakeHTML(empty, "Nav", "").text,
              kHead +
                  "<applet name = \"Nav\" code=\"Orvel1b6.class\" archive=\"Orvel1b6.jar\" "
                  "width=300 height=45 MAYSCRIPT>\r\n" +
                  kNotice +
                  "<Param Name=\"p\" value=\"Nav|0|0|0|000000||0|0|||||0|0|\\n|||\">\r\n" + kTail);
}

TEST_F(HtmlGenerator, AnEmptyAppletNameComesFromTheProjectFileAndThenStays) {
    ProjectModel model = Project(1);
    model.AppletName.clear();
    model.ProjectFileName = "C:\\Sites\\Top Menu.orv";
    EXPECT_EQ(nameTheApplet(model), "Top_Menu");
    EXPECT_EQ(model.AppletName, "Top_Menu");
    model.ProjectFileName = "/srv/other.orv";
    EXPECT_EQ(nameTheApplet(model), "Top_Menu");
    // The name given is the one in the tag and in "p", whatever the model holds.
    const std::string text = MakeHTML(model, "Other", "").text;
    EXPECT_NE(text.find("<applet name = \"Other\" "), std::string::npos);
    EXPECT_NE(text.find("value=\"Other|1|"), std::string::npos);

    const std::pair<const char*, const char*> names[] = {
        {"", "Orvelin"}, {"/home/ann/2nd bar.v2.orv", "_2nd_bar_v2"}, {"/home/ann/a|b.orv", "aIb"}};
    for (const auto& [file, name] : names)
        EXPECT_EQ(defaultAppletName(file), name) << file;
    const std::pair<const char*, const char*> typed[] = {
        {"My Menu", "My_Menu"}, {"a&nbspb&y02c", "a_b_c"}, {"x<y>,z", "x<y>,z"}};
    for (const auto& [box, name] : typed) {
        setAppletNameFromBox(model, box);
        EXPECT_EQ(model.AppletName, name) << box;
    }
}

TEST_F(HtmlGenerator, JavaScriptLinkAtTheStartOfAUrlAddsTheCallerBlock) {
    writeIni("; AppletName before the block is not copied\r\n"
             "[JSCALLER]\r\n"
             "function InitJSCaller() { document.applets['AppletName'].init(); }\r\n"
             "var AppletNameAppletName = 'AppletName';\r\n"
             "[END OF JSCALLER]\r\n"
             "after the end AppletName\r\n");
    ProjectModel model = Project(3);
    model.button(1).URL = "http://example.org/?q=javascript:go()";
    model.button(2).URL = "JavaScript:go()";
    const GeneratedHtml html = MakeHTML(model, "Nav", GetJSCaller("Nav", dir));
    EXPECT_TRUE(html.usesJavaScript);
    const std::string tail = "</applet>\r\n"
                             "\r\n"
                             "function InitJSCaller() { document.applets['Nav'].init(); }\r\n"
                             "var NavNav = 'Nav';\r\n"
                             "<!-- END GENERATED CODE -->\r\n";
    EXPECT_TRUE(html.text.ends_with(tail)) << html.text;

    // Elsewhere in a URL it adds nothing.
    model.button(2).URL = " javascript:go()";
    model.button(3).URL = "page.html#javascript:";
    const GeneratedHtml plain = MakeHTML(model, "Nav", GetJSCaller("Nav", dir));
    EXPECT_FALSE(plain.usesJavaScript);
    EXPECT_TRUE(plain.text.ends_with(kTail));
    EXPECT_EQ(plain.text.find("InitJSCaller"), std::string::npos);
}

TEST_F(HtmlGenerator, CallerBlockIsReadBetweenItsMarkersWhateverTheirCase) {
    EXPECT_EQ(GetJSCaller("Bar", dir), "") << "no Orvel.ini";
    const std::pair<const char*, const char*> cases[] = {
        {"[jscaller]\none AppletName\n  [JSCALLER]\nappletname stays\n[End Of JsCaller]\ntwo\n",
         "\r\none Bar\r\n  [JSCALLER]\r\nappletname stays"},
        {"[END OF JSCALLER]\r\n[JSCALLER]\r\nfunction InitJSCaller() {}\r\n", ""},
        {"[JSCALLER]\r\n\r\nlast line without a break", "\r\n\r\nlast line without a break"}};
    for (const auto& [ini, block] : cases) {
        writeIni(ini);
        EXPECT_EQ(GetJSCaller("Bar", dir), block) << ini;
    }
}

TEST_F(HtmlGenerator, AnyTextInAnyFieldLeavesEveryParameterInsideItsQuotesWithItsFields) {
    // Whatever a damaged project or a careless caller puts into its texts, the applet gets
    // the same lines: each parameter inside its quotes, with all its fields.
    const std::string pieces[] = {
        "\"",       "|",    "\r", "\n", "<", ">", "&", " ", "\t", "a", "\"><script>x</script>",
        "\xC3\xA9", "\x01", "\\n"};
    const std::regex line("<applet name = \"[^\"\r\n]*\" code=[^\r\n]*|</applet>|"
                          "<Param Name=\"[^\"\r\n]*\" value=\"([^\"\r\n]*)\">");
    std::mt19937 random(17);
    for (int round = 0; round < 200; ++round) {
        ProjectModel model = Project(static_cast<int>(random() % 4));
        for (std::string* text :
             {&model.AppletName, &model.BackImg, &model.AppletProgramOVER, &model.AppletProgramDOWN,
              &model.AppletProgramOUT, &model.AppletProgramStart})
            *text = pieces[random() % std::size(pieces)] + pieces[random() % std::size(pieces)];
        for (int i = 1; i <= model.ButtonCount; ++i)
            for (int pos = 0; pos < kButtonFieldCount; ++pos) // numbers refuse and stay
                setFieldText(model.button(i), pos, pieces[random() % std::size(pieces)]);
        std::string page = MakeHTML(model, model.AppletName, "").text;
        page = page.substr(page.find("<applet"), page.find("</applet>") + 9 - page.find("<applet"));
        std::vector<std::size_t> fields;
        for (std::string_view text : splitLines(page)) {
            std::match_results<std::string_view::const_iterator> match;
            ASSERT_TRUE(std::regex_match(text.begin(), text.end(), match, line)) << text;
            if (match[1].matched)
                fields.push_back(Split(match[1]).size());
        }
        std::vector<std::size_t> expected{1, 17}; // the notice is one text
        expected.resize(2 + static_cast<std::size_t>(model.ButtonCount), 50);
        ASSERT_EQ(fields, expected) << page;
    }
}
