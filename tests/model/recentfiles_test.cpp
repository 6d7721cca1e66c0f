#include "editorfakes.h"
#include "recentfiles.h"

#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::RecordingEditorView;

namespace {

struct RecentFixture : ::testing::Test {
    ProjectModel model;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingEditorView view{model};
    RecentFiles recent{settings, view};
};

} // namespace

TEST_F(RecentFixture, FiveFilesInTurnKeepTheNewestFourNewestFirst) {
    for (const char* path : {"/p/P.orv", "/p/Q.orv", "/p/R.orv", "/p/S.orv", "/p/T.orv"})
        recent.WriteRecent(path);
    EXPECT_EQ(recent.Slots(),
              (std::array<std::string, 4>{"/p/T.orv", "/p/S.orv", "/p/R.orv", "/p/Q.orv"}));
    EXPECT_EQ(view.recent[1], (std::pair<std::string, bool>{"/p/T.orv", true}));
    EXPECT_EQ(view.recent[4], (std::pair<std::string, bool>{"/p/Q.orv", true}));
}

TEST_F(RecentFixture, APathAlreadyListedKeepsItsPlace) {
    for (const char* path : {"/p/P.orv", "/p/Q.orv", "/p/R.orv", "/p/S.orv", "/p/T.orv"})
        recent.WriteRecent(path);
    recent.WriteRecent("/p/R.orv");
    EXPECT_EQ(recent.Slots(),
              (std::array<std::string, 4>{"/p/T.orv", "/p/S.orv", "/p/R.orv", "/p/Q.orv"}));
    // The comparison is exact: another spelling is another file.
    recent.WriteRecent("/p/r.orv");
    EXPECT_EQ(recent.Path(1), "/p/r.orv");
    EXPECT_EQ(recent.Path(4), "/p/R.orv");
}

TEST_F(RecentFixture, EmptySlotsAreHiddenInTheMenu) {
    recent.GetRecent();
    for (int slot = 1; slot <= 4; ++slot)
        EXPECT_FALSE(view.recent[static_cast<std::size_t>(slot)].second) << slot;
    recent.WriteRecent("/p/A.orv");
    EXPECT_EQ(view.recent[1], (std::pair<std::string, bool>{"/p/A.orv", true}));
    EXPECT_FALSE(view.recent[2].second);
    EXPECT_EQ(recent.Path(2), "");
    EXPECT_EQ(recent.Path(0), "");
    EXPECT_EQ(recent.Path(5), "");
}
