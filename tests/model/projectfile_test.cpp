#include "fakeui.h"
#include "messages.h"
#include "projectfile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
namespace fs = std::filesystem;

namespace {

const std::string kCurrentHeader = "Orvelin Project 1.0  Beta 6";
const std::string kEmptyAppletLine = "510|170|0|0|0|0||0||||0|0|||";
const std::string kDefaultButtonLine(kFactoryDefaultButton);

/// A fresh folder under the system's temporary folder, removed afterwards.
class ProjectFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::random_device entropy;
        folder = fs::temp_directory_path() / ("orvelin-projectfile-" + std::to_string(entropy()));
        fs::create_directories(folder);
    }
    void TearDown() override {
        std::error_code ec;
        fs::permissions(folder / "project.orv", fs::perms::owner_all, ec);
        fs::remove_all(folder, ec);
    }

    std::string path(const std::string& name = "project.orv") const {
        return (folder / name).string();
    }
    void write(const std::string& bytes, const std::string& name = "project.orv") const {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    std::string read(const std::string& name = "project.orv") const {
        std::ifstream in(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    /// Header, applet line with `count` buttons and the given button lines, CR LF each.
    static std::string projectText(int count, const std::vector<std::string>& buttons,
                                   const std::string& header = kCurrentHeader) {
        std::string text =
            header + "\r\n510|170|" + std::to_string(count) + "|0|0|0||0||||0|0|||\r\n";
        for (const std::string& b : buttons)
            text += b + "\r\n";
        return text;
    }

    /// A default button line at position (x, 0), so that buttons can be told apart.
    static std::string buttonAt(int x) { return std::to_string(x) + kDefaultButtonLine.substr(1); }

    fs::path folder;
    FakeUserInterface ui;
    ProjectModel model;
};

/// A project in which every field of every button differs from its default.
ProjectModel richProject() {
    ProjectModel m;
    m.AppletWidth = 640;
    m.AppletHeight = -12;
    m.Behaviour = 1;
    m.DOWNBtn = -1;
    m.BackGround = 12632256;
    m.BackImg = "C:\\Bilder\\Hintergrund äöü.gif";
    m.BackImgStyle = 2;
    m.AppletProgramOVER = "ShowButton(2);";
    m.AppletProgramDOWN = "GoToURL(\"http://example.org/a b\",\"_top\");";
    m.AppletProgramOUT = "HideButton(2);PlaySound(\"out.au\");";
    m.BgOffsetX = -7;
    m.BgOffsetY = 32767;
    m.AppletProgramStart = "SetLabel(1,\"Grüße\");";
    m.AppletName = "written but never read back";
    for (int b = 1; b <= 3; ++b) {
        ButtonRecord& r = m.Button(b);
        for (int pos = 0; pos < kButtonFieldCount; ++pos) {
            const std::string n = std::to_string(b * 100 + pos + 1);
            switch (ButtonFields()[static_cast<std::size_t>(pos)].kind) {
            case FieldKind::Int16:
                SetFieldText(r, pos, pos % 2 ? "-" + n : n);
                break;
            case FieldKind::Color:
                SetFieldText(r, pos, std::to_string(b * 1000000 + pos));
                break;
            case FieldKind::Label:
                SetFieldText(r, pos, "Line " + n + "\\nsays \"hi\" | ünïcödé  ; &amp");
                break;
            default:
                SetFieldText(r, pos, "field " + n + " \"q\" é;");
                break;
            }
        }
        r.ProgramDOWN = "ShowButton(" + std::to_string(b) + ");SetStatus(\"a;b\");";
    }
    m.ButtonCount = 3;
    return m;
}

} // namespace

TEST_F(ProjectFileTest, SavedProjectLoadsBackAsTheSameModel) {
    ProjectModel saved = richProject();
    for (int pos = 0; pos < kButtonFieldCount; ++pos)
        ASSERT_NE(FieldText(saved.Button(2), pos), FieldText(ButtonRecord{}, pos)) << pos;
    saved.Saved = false;
    ASSERT_TRUE(SaveProject(saved, path(), ui));
    EXPECT_TRUE(saved.Saved);
    EXPECT_TRUE(ui.messages().empty());

    model.AppletName = "kept from before";
    model.CurrentButton = 0;
    model.Saved = false;
    ASSERT_TRUE(LoadProject(model, path(), ui));
    EXPECT_TRUE(ui.messages().empty());

    ProjectModel expected = saved;
    expected.AppletName = "kept from before";
    for (int b = 1; b <= 3; ++b)
        for (ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN}) {
            std::string& label = expected.Button(b).Label(s);
            std::replace(label.begin(), label.end(), '|', 'I');
        }
    expected.ProjectFileName = path();
    expected.Saved = true;
    expected.CurrentButton = 0;
    for (int b = 1; b <= 3; ++b)
        EXPECT_EQ(model.Button(b), expected.Button(b)) << "button " << b;
    EXPECT_EQ(model.Button(2).LabelUP, "Line 205\\nsays \"hi\" I ünïcödé  ; &amp");
    EXPECT_EQ(model.AppletWidth, expected.AppletWidth);
    EXPECT_EQ(model.AppletHeight, expected.AppletHeight);
    EXPECT_EQ(model.ButtonCount, 3);
    EXPECT_EQ(model.Behaviour, expected.Behaviour);
    EXPECT_EQ(model.DOWNBtn, expected.DOWNBtn);
    EXPECT_EQ(model.BackGround, expected.BackGround);
    EXPECT_EQ(model.BackImg, expected.BackImg);
    EXPECT_EQ(model.BackImgStyle, expected.BackImgStyle);
    EXPECT_EQ(model.AppletProgramOVER, expected.AppletProgramOVER);
    EXPECT_EQ(model.AppletProgramDOWN, expected.AppletProgramDOWN);
    EXPECT_EQ(model.AppletProgramOUT, expected.AppletProgramOUT);
    EXPECT_EQ(model.BgOffsetX, expected.BgOffsetX);
    EXPECT_EQ(model.BgOffsetY, expected.BgOffsetY);
    EXPECT_EQ(model.AppletProgramStart, expected.AppletProgramStart);
    EXPECT_EQ(model.AppletName, "kept from before");
    EXPECT_EQ(model.ProjectFileName, path());
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.CurrentButton, 0);
}

TEST_F(ProjectFileTest, SmallProjectIsWrittenLetterForLetter) {
    model.AppletWidth = 300;
    model.AppletHeight = 50;
    model.BackGround = -1;
    model.BackImg = "back.gif";
    model.AppletProgramStart = "ShowButton(1);";
    model.AppletName = "bar";
    model.ButtonCount = 1;
    model.Button(1).x = -5;
    model.Button(1).LabelUP = "Say \"Hi\" | bye";
    model.Button(1).URL = "http://x.org/a b";
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(read(), "Orvelin Project 1.0  Beta 6\r\n"
                      "300|50|1|0|0|-1|back.gif|0||||0|0|ShowButton(1);|bar|\r\n"
                      "-5|0|107|40|Say&nbsp&y02Hi&y02&nbspI&nbspbye|||http://x.org/a b||_self|1|"
                      "0|0||||65535|16776960|255|0|16711680|16777215|Arial|Arial|Arial|0|0|0|10|"
                      "10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||\r\n");
}

TEST_F(ProjectFileTest, ProjectWithoutButtonsIsTwoLines) {
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(read(), kCurrentHeader + "\r\n" + kEmptyAppletLine + "\r\n");
}

TEST_F(ProjectFileTest, TextBeyondAsciiIsWrittenAsUtf8WithoutByteOrderMark) {
    model.ButtonCount = 1;
    model.Button(1).Status = "é€";
    ASSERT_TRUE(SaveProject(model, path(), ui));
    const std::string bytes = read();
    EXPECT_EQ(bytes.rfind("Orvelin", 0), 0u);
    EXPECT_NE(bytes.find("|\xC3\xA9\xE2\x82\xAC|"), std::string::npos);
}

TEST_F(ProjectFileTest, EarlierHeadersWarnAndLoadOn) {
    for (const char* header : {"Orvelin Project 1.0  Beta 5", "Orvelin Project 1.0  Beta 4",
                               "Tessaly Project 1.0  Beta 3", "Orvelin Project 1.0  Beta 3",
                               "Tessaly Project 1.0  Beta 2"}) {
        FakeUserInterface fresh;
        write(projectText(2, {buttonAt(1), buttonAt(2)}, header));
        ProjectModel loaded;
        EXPECT_TRUE(LoadProject(loaded, path(), fresh)) << header;
        ASSERT_EQ(fresh.shown.size(), 1u) << header;
        EXPECT_EQ(fresh.shown[0].title, "Warning");
        EXPECT_EQ(fresh.shown[0].text, "Project was created by earlier version of Orvelin\r\n\r\n"
                                       "Note: Saving will convert it to version 1.0  Beta 6");
        EXPECT_EQ(loaded.ButtonCount, 2);
        EXPECT_EQ(loaded.Button(2).x, 2);
    }
}

TEST_F(ProjectFileTest, CurrentOrUnknownHeaderLoadsWithoutAMessage) {
    for (const char* header :
         {"Orvelin Project 1.0  Beta 6", "Orvelin Project 1.0 Beta 6", "", "whatever"}) {
        FakeUserInterface fresh;
        write(projectText(1, {buttonAt(9)}, header));
        ProjectModel loaded;
        EXPECT_TRUE(LoadProject(loaded, path(), fresh)) << header;
        EXPECT_TRUE(fresh.shown.empty()) << header;
        EXPECT_EQ(loaded.Button(1).x, 9);
    }
}

TEST_F(ProjectFileTest, LinesAfterTheLastButtonAreIgnored) {
    write(projectText(2, {buttonAt(1), buttonAt(2), "", "trailing text", "x|y|z"}));
    EXPECT_TRUE(LoadProject(model, path(), ui));
    EXPECT_TRUE(ui.messages().empty());
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.Button(3), ButtonRecord{});
}

TEST_F(ProjectFileTest, LoneLineFeedsAndAnUnterminatedCompleteLastLineAreAccepted) {
    std::string text =
        kCurrentHeader + "\n510|170|2|0|0|0||0||||0|0|||\n" + buttonAt(1) + "\n" + buttonAt(2);
    write(text);
    EXPECT_TRUE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.Button(2).x, 2);
    EXPECT_TRUE(ui.messages().empty());

    // Without buttons the applet line may be the unterminated last one.
    write(kCurrentHeader + "\r\n" + kEmptyAppletLine);
    ProjectModel empty;
    EXPECT_TRUE(LoadProject(empty, path(), ui));
}

TEST_F(ProjectFileTest, AppletNameComesFromTheFieldAfterTheWrittenOnes) {
    write(kCurrentHeader + "\r\n510|170|0|0|0|0||0||||0|0||written|read|\r\n");
    model.AppletName = "before";
    EXPECT_TRUE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.AppletName, "read");
}

TEST_F(ProjectFileTest, LoadStartsFromAnEmptySelectionAndNoFileName) {
    model.CurrentButton = 1;
    model.ButtonCount = 1;
    model.ProjectFileName = "/old.orv";
    write("Orvelin Project 1.0  Beta 6\r\n", "broken.orv");
    EXPECT_FALSE(LoadProject(model, path("broken.orv"), ui));
    EXPECT_EQ(model.CurrentButton, 0);
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_EQ(ui.messages(),
              std::vector<std::string>{"Error loading project.\r\nInput past end of file"});
}

TEST_F(ProjectFileTest, ShortFileKeepsTheButtonsItHolds) {
    write(projectText(3, {buttonAt(1), buttonAt(2)}));
    model.Saved = false;
    EXPECT_FALSE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.Button(2).x, 2);
    EXPECT_FALSE(model.Saved);
    EXPECT_EQ(ui.messages(),
              std::vector<std::string>{"Error loading project.\r\nInput past end of file"});
    EXPECT_FALSE(ui.progressVisible);
}

TEST_F(ProjectFileTest, CutOffButtonKeepsTheOnesBefore) {
    const std::string full = projectText(
        6, {buttonAt(1), buttonAt(2), buttonAt(3), buttonAt(4), buttonAt(5), buttonAt(6)});
    const std::size_t fifth = full.find("\r\n5|");
    ASSERT_NE(fifth, std::string::npos);
    for (std::size_t cut : {fifth + 2, fifth + 3, fifth + 40, fifth + 2 + buttonAt(5).size() - 1}) {
        FakeUserInterface fresh;
        write(full.substr(0, cut));
        ProjectModel loaded;
        EXPECT_FALSE(LoadProject(loaded, path(), fresh)) << cut;
        EXPECT_EQ(loaded.ButtonCount, 4) << cut;
        EXPECT_EQ(loaded.Button(4).x, 4);
        EXPECT_EQ(fresh.messages(),
                  std::vector<std::string>{"Error loading project.\r\nInput past end of file"});
    }
}

TEST_F(ProjectFileTest, NumberErrorsInAButtonKeepTheOnesBefore) {
    std::string third = buttonAt(3);
    third.replace(third.find("|107|"), 5, "|wide|");
    write(projectText(4, {buttonAt(1), buttonAt(2), third, buttonAt(4)}));
    EXPECT_FALSE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(ui.messages(), std::vector<std::string>{"Error loading project.\r\nType mismatch"});

    FakeUserInterface second;
    std::string first = buttonAt(1);
    first.replace(first.find("|40|"), 4, "|40000|");
    write(projectText(2, {first, buttonAt(2)}));
    EXPECT_FALSE(LoadProject(model, path(), second));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(second.messages(), std::vector<std::string>{"Error loading project.\r\nOverflow"});
}

TEST_F(ProjectFileTest, BadAppletLineKeepsNoButtons) {
    write(kCurrentHeader + "\r\n510|tall|1|0|0|0||0||||0|0|||\r\n" + buttonAt(1) + "\r\n");
    EXPECT_FALSE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.AppletWidth, 510);
    EXPECT_EQ(ui.messages(), std::vector<std::string>{"Error loading project.\r\nType mismatch"});

    // A cut-off applet line is read past the end of the file.
    FakeUserInterface cut;
    write(kCurrentHeader + "\r\n510|170|0|0|0|0||0|");
    EXPECT_FALSE(LoadProject(model, path(), cut));
    EXPECT_EQ(cut.messages(),
              std::vector<std::string>{"Error loading project.\r\nInput past end of file"});
}

TEST_F(ProjectFileTest, ButtonCountBeyondTheTableIsRefused) {
    std::vector<std::string> lines;
    for (int i = 1; i <= 103; ++i)
        lines.push_back(buttonAt(i));
    write(projectText(103, lines));
    EXPECT_FALSE(LoadProject(model, path(), ui));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(ui.messages(),
              std::vector<std::string>{"Error loading project.\r\nSubscript out of range"});

    FakeUserInterface negative;
    write(projectText(-1, {}));
    EXPECT_FALSE(LoadProject(model, path(), negative));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(negative.messages().size(), 1u);

    FakeUserInterface full;
    lines.resize(102);
    write(projectText(102, lines));
    EXPECT_TRUE(LoadProject(model, path(), full));
    EXPECT_EQ(model.ButtonCount, 102);
    EXPECT_EQ(model.Button(102).x, 102);
}

TEST_F(ProjectFileTest, MissingFileIsReported) {
    model.ButtonCount = 2;
    EXPECT_FALSE(LoadProject(model, path("nowhere.orv"), ui));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(ui.messages(), std::vector<std::string>{"Error loading project.\r\nFile not found"});
    EXPECT_EQ(ui.progressHides, 1);
    EXPECT_FALSE(ui.progressVisible);
}

TEST_F(ProjectFileTest, OldCodePageFileIsDecoded) {
    EXPECT_TRUE(LoadProject(model, ORVELIN_TEST_DATA "/project_cp1252.orv", ui));
    EXPECT_EQ(model.Button(1).LabelUP, "Café € “ok”");
}

TEST_F(ProjectFileTest, FailedSaveLeavesTheOldFileAlone) {
    const std::string old = projectText(1, {buttonAt(1)});
    write(old);
    fs::permissions(path(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    model = richProject();
    model.Saved = false;
    EXPECT_FALSE(SaveProject(model, path(), ui));
    EXPECT_FALSE(model.Saved);
    EXPECT_EQ(read(), old);
    EXPECT_EQ(ui.messages(),
              std::vector<std::string>{"Error Saving Buttons. File may be Read "
                                       "Only, Hidden or used by another application."});
    EXPECT_FALSE(ui.progressVisible);
    // Nothing is left behind in the folder.
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);

    FakeUserInterface missing;
    EXPECT_FALSE(SaveProject(model, (folder / "no" / "such.orv").string(), missing));
    EXPECT_EQ(missing.messages().size(), 1u);
    EXPECT_FALSE(model.Saved);
}

TEST_F(ProjectFileTest, SaveReplacesAnExistingFile) {
    write(std::string(5000, 'x'));
    fs::permissions(path(), fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(read(), kCurrentHeader + "\r\n" + kEmptyAppletLine + "\r\n");
    EXPECT_EQ(fs::status(path()).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(ProjectFileTest, ProgressCountsTheButtons) {
    model = richProject();
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(ui.progressTexts,
              (std::vector<std::string>{"Please Wait...|Saving Buttons to File...",
                                        "Please Wait...|Saving Button # 1 of 3",
                                        "Please Wait...|Saving Button # 2 of 3",
                                        "Please Wait...|Saving Button # 3 of 3"}));
    EXPECT_EQ(ui.progressPercents, (std::vector<int>{-1, 33, 66, 100}));
    EXPECT_EQ(ui.progressHides, 1);

    FakeUserInterface loading;
    ProjectModel loaded;
    ASSERT_TRUE(LoadProject(loaded, path(), loading));
    EXPECT_EQ(loading.progressTexts,
              (std::vector<std::string>{"Please Wait...|Loading Project...",
                                        "Please Wait...|Loading Button # 1 of 3",
                                        "Please Wait...|Loading Button # 2 of 3",
                                        "Please Wait...|Loading Button # 3 of 3"}));
    EXPECT_EQ(loading.progressPercents, (std::vector<int>{-1, 33, 66, 100}));
    EXPECT_EQ(loading.progressHides, 1);
    EXPECT_FALSE(loading.progressVisible);
}

TEST_F(ProjectFileTest, ProgressTextsComeFromTheMessageTable) {
    const std::string saved = Messages()[Msg::SavingButton];
    Messages().set(Msg::SavingButton, "Sohranenie # ");
    model.ButtonCount = 1;
    const bool ok = SaveProject(model, path(), ui);
    Messages().set(Msg::SavingButton, saved);
    ASSERT_TRUE(ok);
    EXPECT_EQ(ui.progressTexts.back(), "Please Wait...|Sohranenie # 1 of 1");
}
