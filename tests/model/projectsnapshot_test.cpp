#include "projectfile.h"
#include "projectsnapshot.h"

#include <gtest/gtest.h>

using namespace orvelin;

namespace {

struct Document {
    ProjectModel model;
    ButtonList list;

    explicit Document(int buttons) {
        for (int i = 1; i <= buttons; ++i) {
            model.addButton(kFactoryDefaultButton);
            model.button(i).x = static_cast<std::int16_t>(i * 20);
            model.button(i).LabelUP = "B" + std::to_string(i);
            list.append();
        }
    }
    ProjectSnapshot snap() const { return makeSnapshot(model, list); }
};

} // namespace

TEST(ProjectSnapshot, PutsBackTheSavedTextTheSelectionAndWhereTheNextButtonGoes) {
    Document d(4);
    d.model.CurrentButton = 3;
    d.list.selectOnly(2);
    d.list.addSelection(3);
    const ProjectSnapshot before = d.snap();
    const std::string text = projectText(d.model);
    const std::int16_t slot5x = d.model.button(5).x;

    d.model.removeButton(2);
    d.model.removeButton(1);
    d.list.removeLast();
    d.list.removeLast();
    d.list.selectOnly(1);
    d.model.BgOffsetX = 7;
    d.model.AppletProgramOUT = "Beep;";
    d.model.button(5).x = 999; // a slot past the last button
    ASSERT_FALSE(sameDocument(before, d.model));

    restoreSnapshot(before, d.model, d.list);
    EXPECT_EQ(projectText(d.model), text);
    EXPECT_TRUE(sameDocument(before, d.model));
    EXPECT_EQ(d.list.selectedButtons(), std::vector<int>({2, 3}));
    EXPECT_EQ(d.model.CurrentButton, 3);
    EXPECT_EQ(d.model.button(5).x, slot5x);
}

TEST(ProjectSnapshot, NamesEachKindOfStepAndSaysWhatChanged) {
    Document d(4);
    const ProjectSnapshot start = d.snap();
    const auto after = [&](auto edit) {
        Document e = d;
        edit(e.model);
        return describeChange(start, e.snap());
    };
    EXPECT_EQ(after([](ProjectModel& m) {
                  for (int i : {1, 2, 4})
                      m.button(i).y += 5;
              }),
              "Move 3 Buttons");
    EXPECT_EQ(after([](ProjectModel& m) { m.button(2).Width = 9; }), "Resize Button");
    EXPECT_EQ(after([](ProjectModel& m) { m.button(2).LabelOVER = "x"; }), "Change Label");
    EXPECT_EQ(after([](ProjectModel& m) { m.button(3).FontColorDOWN = 1; }), "Change Font Color");
    EXPECT_EQ(after([](ProjectModel& m) { m.button(3).LabelPosYUP = 1; }), "Place Label");
    EXPECT_EQ(after([](ProjectModel& m) { m.BgOffsetY = 3; }), "Change Background Offset");
    EXPECT_EQ(after([](ProjectModel& m) { m.addButton(kFactoryDefaultButton); }), "Add Button");
    EXPECT_EQ(after([](ProjectModel& m) {
                  m.duplicateButton(2);
                  m.button(5).x += 10;
              }),
              "Duplicate Button");
    EXPECT_EQ(after([](ProjectModel& m) { m.removeButton(1); }), "Remove Button");
    EXPECT_EQ(after([](ProjectModel& m) {
                  const ButtonRecord b = m.button(2);
                  m.removeButton(2);
                  m.button(4) = b;
                  ++m.ButtonCount;
              }),
              "Bring to Front");

    Document e = d;
    e.model.button(2).URL = "a.htm";
    e.model.DOWNBtn = 1;
    const DocumentChange change = changeBetween(start, e.snap());
    EXPECT_TRUE(change.applet);
    EXPECT_FALSE(change.countChanged);
    EXPECT_EQ(change.buttons, std::vector<int>({2}));
}
