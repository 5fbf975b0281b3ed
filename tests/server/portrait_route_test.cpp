// A profile's portrait and the photos of diary days are served from the documents folder only
// to an unlocked session, and only under the names the diary gives them.
#include <gtest/gtest.h>

#include "server_fixture.h"
#include "store/portrait.h"

namespace lad::server::test {
namespace {

// The pregnancy that the first launch starts.
constexpr char kGuid[] = "00000000-0000-0000-0001-000000000001";
constexpr std::string_view kJpeg = "\xFF\xD8\xFF\xE0 portrait bytes \xFF\xD9";

class PortraitRouteTest : public ServerTest {
 protected:
  void placePortrait() {
    const auto file = installation_->withContext([](Context& c) { return portraitFile(c, kGuid); });
    std::filesystem::create_directories(file.parent_path());
    writeFile(file, kJpeg);
  }
  httplib::Result fetch(const std::string& path, const std::string& session) {
    return client()->Get(path, sessionHeaders(session));
  }
};

TEST_F(PortraitRouteTest, TheCardShowsThePortraitWhichOnlyAnUnlockedSessionGets) {
  placePortrait();
  const std::string session = openSession();
  const Json card = Json::parse(fetch("/api/view", session)->body)["view"]["children"][0];
  const std::string address = card.value("portrait", "");
  EXPECT_EQ(address, std::string("/doc/portrait/") + kGuid);

  auto shown = fetch(address, session);
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->body, kJpeg);
  EXPECT_EQ(shown->get_header_value("Content-Type"), "image/jpeg");
  EXPECT_EQ(shown->get_header_value("Cache-Control"), "private, no-store");

  EXPECT_EQ(fetch(address, "")->status, 403);  // no session
  EXPECT_EQ(fetch(address, "not-a-session")->status, 403);

  lockWith("2468");
  ASSERT_TRUE(postEvent(R"({"type":"visible"})", session));
  EXPECT_EQ(fetch(address, session)->status, 403);
  typeCode(session, "2468");
  EXPECT_EQ(fetch(address, session)->status, 200) << "once unlocked";
}

TEST_F(PortraitRouteTest, OnlyAProfileIdentifierNamesAFile) {
  placePortrait();
  const std::string session = openSession();
  const std::string settings = settingsNow();
  for (const char* path :
       {"/doc/portrait/..%2F..%2F..%2FLibrary%2FPreferences.json", "/doc/portrait/../../Library",
        "/doc/portrait/child-00000000-0000-0000-0001-000000000001.jpg",
        "/doc/portrait/00000000-0000-0000-0001-00000000000", "/doc/portrait/%00"}) {
    auto res = fetch(path, session);
    ASSERT_TRUE(res) << path;
    EXPECT_NE(res->status, 200) << path;
  }
  EXPECT_EQ(fetch("/doc/portrait/not-a-guid", session)->status, 400);
  EXPECT_EQ(fetch("/doc/portrait/00000000-0000-0000-0001-000000000002", session)->status, 404);
  EXPECT_EQ(settingsNow(), settings);
}

TEST_F(PortraitRouteTest, ADaysPhotoIsServedUnderItsOwnNamesOnly) {
  const auto small = installation_->withContext(
      [](Context& c) { return c.documentsDir() / "picture-s" / "23-11-2026-s.jpg"; });
  std::filesystem::create_directories(small.parent_path());
  writeFile(small, kJpeg);
  const std::string session = openSession();
  auto shown = fetch("/doc/picture/23-11-2026-s.jpg?v=1", session);
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->body, kJpeg);
  EXPECT_EQ(fetch("/doc/picture/23-11-2026-s.jpg", "")->status, 403);
  for (const char* name : {"..%2Fpicture-s%2F23-11-2026-s.jpg", "23-11-26-s.jpg", "x23-11-2026.jpg",
                           "23-11-2026.png", "child-23-11-2026.jpg", "%00"})
    EXPECT_EQ(statusOf(fetch(std::string("/doc/picture/") + name, session)), 400) << name;
  EXPECT_EQ(fetch("/doc/picture/24-11-2026.jpg", session)->status, 404);
  EXPECT_EQ(fetch("/doc/picture/ABC-1-23-11-2026-s.jpg", session)->status, 404);
}

}  // namespace
}  // namespace lad::server::test
